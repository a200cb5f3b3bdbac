#pragma once

#include "engine/Row_Outcome.h"

namespace Exclusion_Files {
struct Applied_Numbers;
}

// Receives what a send job has to say besides its progress. Called on the job's thread; each call returns when it is
// done.
class Send_Listener
{
public:
    virtual ~Send_Listener() = default;

    /// Shows the user a text and returns when it has been seen.
    virtual void Tell(const QString& text) = 0;
    /// The job has read the applied exclusion lists, and uses these numbers.
    virtual void Exclusions_Were_Read(const Exclusion_Files::Applied_Numbers& applied) = 0;
    /// What became of the recipient at an index. Once for each that was reached, in the order of the list.
    virtual void Row_Ended(int index, const Row_Outcome& outcome) = 0;
};
