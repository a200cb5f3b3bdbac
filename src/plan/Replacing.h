#pragma once

#include "plan/Plan_Manner.h"

#include <optional>

// What may be written in place of characters that a message cannot afford. Any thread.

/// The text to be written in place of a character with its marks.
struct Replacement
{
    QString text;
    bool is_of_script = false; ///< letters of another script, which not everybody wants in these letters
};

/// How a message goes out, as far as it decides what a character may be replaced by.
enum class Written_How
{
    By_Standard,      ///< in the standard's alphabet
    Described_Single, ///< in the described one, as one message
    Described_Parts   ///< or in parts
};

/// What may stand in place of a character with its marks, and arrives as it is. Marks are joined with their letter
/// first; a letter with a mark that has no replacement loses the mark. Nothing where there is none, or where it would
/// be the same.
std::optional<Replacement> Replacement_For(const QString& character, Written_How how);
