#pragma once

#include "list/Exclusion_Set.h"
#include "list/Recipient_List.h"

#include <QString>

// Whether a recipient's number, as it was edited, may be saved, and what it becomes.
struct Edited_Number
{
    enum class Verdict
    {
        Accepted,
        Not_Valid,
        Duplicate, ///< only when duplicates are refused; found before an exclusion
        Excluded   ///< only when excluded numbers are refused
    };

    Verdict verdict = Verdict::Not_Valid;
    QString number; ///< as it is to be saved; empty when it is not valid
};

/// A number that is still the one it was is accepted as it stands, without any check. The list that duplicates are
/// looked for in is the whole one, in which the recipient being edited still stands with its old number: so "123" can
/// not become "1-23" while duplicates are refused.
Edited_Number Judge_Edited_Number(const QString& typed, const QString& number_before, const Recipient_List& recipients,
                                  const Exclusion_Set& exclusions, bool refuse_duplicates, bool refuse_excluded);
