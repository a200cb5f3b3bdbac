#include "list/Number_Judge.h"

#include "list/Number_Rules.h"
#include "texts/Texts.h"

QString Refusal(Number_Verdict verdict)
{
    switch (verdict) {
    case Number_Verdict::Not_Valid:
        return Texts::Not_A_Number;
    case Number_Verdict::Repeated:
        return Texts::Number_Exists;
    case Number_Verdict::Excluded:
        return Texts::Number_Excluded;
    case Number_Verdict::Accepted:
        break;
    }
    return {};
}

Judged_Number Judge_Number(const QString& typed, const Number_Terms& terms)
{
    const QString number = Number_Rules::Normalised_Number(typed);
    return {number.isEmpty() ? Number_Verdict::Not_Valid : Judge_Valid_Number(number, terms), number};
}

Judged_Number Judge_Edited_Number(const QString& typed, const QString& number_before, const Number_Terms& terms)
{
    return typed == number_before ? Judged_Number{Number_Verdict::Accepted, typed} : Judge_Number(typed, terms);
}
