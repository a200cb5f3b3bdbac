#include "list/Edited_Number.h"

#include "list/Number_Rules.h"

Edited_Number Judge_Edited_Number(const QString& typed, const QString& number_before, const Recipient_List& recipients,
                                  const Exclusion_Set& exclusions, bool refuse_duplicates, bool refuse_excluded)
{
    using Verdict = Edited_Number::Verdict;
    if (typed == number_before)
        return {Verdict::Accepted, typed};
    const QString number = Number_Rules::Normalised_Number(typed);
    if (number.isEmpty())
        return {Verdict::Not_Valid, {}};
    if (refuse_duplicates && recipients.Count_Of(number) > 0)
        return {Verdict::Duplicate, number};
    if (refuse_excluded && exclusions.Count_Of(number) > 0)
        return {Verdict::Excluded, number};
    return {Verdict::Accepted, number};
}
