#pragma once

#include "list/Skip_Words.h"

#include <QLatin1String>
#include <QtGlobal>

/// What is to become of a row: it is sent, or why it is not.
enum class Row_Verdict : quint8
{
    Send,
    Duplicate,
    Excluded,
    Invalid_Number,
    Empty_Field,
    Unknown_Field,
    Too_Long,
    Wrong_Columns
};
inline constexpr int Row_Verdicts = 8;

/// The verdict as one of Skip_Words; empty for a row that is to be sent.
inline QLatin1String Skip_Word_For(Row_Verdict verdict)
{
    constexpr const char* words[Row_Verdicts] = {"",
                                                 Skip_Words::Duplicate,
                                                 Skip_Words::Excluded,
                                                 Skip_Words::Invalid_Number,
                                                 Skip_Words::Empty_Field,
                                                 Skip_Words::Unknown_Field,
                                                 Skip_Words::Too_Long,
                                                 Skip_Words::Wrong_Columns};
    return QLatin1String(words[static_cast<int>(verdict)]);
}
