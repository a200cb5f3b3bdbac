#pragma once

class QString;

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
};
