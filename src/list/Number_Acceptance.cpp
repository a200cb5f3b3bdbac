#include "list/Number_Acceptance.h"

#include "list/Number_Rules.h"

Number_Acceptance Judge_Number(const QString& raw_number, const Recipient_List& recipients,
                               const Exclusion_Set& exclusions, bool skip_duplicates, bool heed_exclusions)
{
    using enum Number_Acceptance::Verdict;
    const QString number = Number_Rules::Normalised_Number(raw_number);
    if (number.isEmpty())
        return {Not_Valid, number};
    if (skip_duplicates && recipients.Count_Of(number) > 0)
        return {Duplicate, number};
    if (heed_exclusions && exclusions.Count_Of(number) > 0)
        return {Excluded, number};
    return {Accepted, number};
}
