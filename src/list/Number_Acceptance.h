#pragma once

#include "list/Exclusion_Set.h"
#include "list/Recipient_List.h"

#include <QString>

// Whether a number, as typed or read from a file, may join the recipient list, and what it becomes.
struct Number_Acceptance
{
    enum class Verdict
    {
        Accepted,
        Not_Valid,
        Duplicate, ///< only when duplicates are to be skipped; found before an exclusion
        Excluded   ///< only when exclusions are to be heeded
    };

    Verdict verdict = Verdict::Not_Valid;
    QString number; ///< normalised; empty when it is not valid
};

Number_Acceptance Judge_Number(const QString& raw_number, const Recipient_List& recipients,
                               const Exclusion_Set& exclusions, bool skip_duplicates, bool heed_exclusions);
