#pragma once

#include "list/Number_List.h"

#include <QString>

// Whether a number may join a list, wherever it comes from: typed, edited or read from a file. Any thread.

enum class Number_Verdict
{
    Accepted,
    Not_Valid,
    Repeated, ///< found before an exclusion
    Excluded
};

/// The lists that a number is looked for in; null where it does not matter.
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

/// Judges a number as typed.
Judged_Number Judge_Number(const QString& typed, const Number_Terms& terms);

/// Judges a number that stood in a list as number_before and was edited. Still the one it was, it is accepted as it
/// stands, without any check. Otherwise the list that it is in counts with the old number: so "123" can not become
/// "1-23" where repeats are refused.
Judged_Number Judge_Edited_Number(const QString& typed, const QString& number_before, const Number_Terms& terms);

/// The same for a number that is valid and normalised: a text or a Packed_Number.
template <typename Number>
Number_Verdict Judge_Valid_Number(const Number& number, const Number_Terms& terms)
{
    if (terms.present && terms.present->Contains(number))
        return Number_Verdict::Repeated;
    return terms.excluded && terms.excluded->Contains(number) ? Number_Verdict::Excluded : Number_Verdict::Accepted;
}
