#pragma once

#include "list/Number_List.h"

#include <QString>

// Whether a number may join a list, wherever it comes from: typed, edited or read from a file. Any thread.

enum class Number_Verdict
{
    Accepted,
    Not_Valid,
    Repeated, ///< checked before an exclusion
    Excluded
};

// The lists in which a number is looked for; null where a list does not matter.
struct Number_Terms
{
    const Number_List* present = nullptr;
    const Number_List* excluded = nullptr;
};

struct Judged_Number
{
    Number_Verdict verdict = Number_Verdict::Not_Valid;
    QString number; ///< normalised; empty when it is not valid
};

/// What a person is told who wanted to add a number with this verdict; empty for an accepted one.
QString Refusal(Number_Verdict verdict);

/// Judges a number as typed.
Judged_Number Judge_Number(const QString& typed, const Number_Terms& terms);

/// Judges an edited number that stood in a list as number_before. Unchanged, it is accepted as it is, without any
/// check. Otherwise its own list is checked with the old number still in it: "123" cannot become "1-23" where repeats
/// are refused.
Judged_Number Judge_Edited_Number(const QString& typed, const QString& number_before, const Number_Terms& terms);

/// The same for a number that is valid and normalised, given as a text or a Packed_Number.
template <typename Number>
Number_Verdict Judge_Valid_Number(const Number& number, const Number_Terms& terms)
{
    if (terms.present && terms.present->Contains(number))
        return Number_Verdict::Repeated;
    return terms.excluded && terms.excluded->Contains(number) ? Number_Verdict::Excluded : Number_Verdict::Accepted;
}
