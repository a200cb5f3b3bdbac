#pragma once

#include "engine/Row_Outcome.h"

#include <QList>
#include <QString>

/// What a confirmed job knows of a recipient's message besides its outcome.
struct Row_Details
{
    Row_Outcome outcome;
    int parts = 1;
    int parts_sent = 0;      ///< acknowledged by the network
    QList<int> references;   ///< of those, where one was given; 0 to 255
    int tries = 0;           ///< of the part that took most
    QString reason;          ///< one sentence for a person; empty for what the network took
    bool is_earlier = false; ///< settled before the job was gone on with
};

/// The outcome as a list of recipients shows it, where a message that is partly with its recipient is none that was not
/// taken.
inline Row_Outcome Shown_Outcome(const Row_Details& details)
{
    const Row_State state = details.outcome.state;
    const bool is_partly_taken =
        details.parts_sent > 0 && (state == Row_State::Refused || state == Row_State::Not_Tried);
    return {is_partly_taken ? Row_State::Partly_Taken : state, details.outcome.cause};
}

/// Receives what a confirmed job has to say besides its progress. Called on the job's thread; each call returns when it
/// is done.
class Confirmed_Watcher
{
public:
    virtual ~Confirmed_Watcher() = default;

    /// Each recipient that was reached, once, in the order of the list. Not_Tried is one of which the
    /// device was given a part, taken or not, before the job ended.
    virtual void Row_Done(int index, const Row_Details& details) = 0;
    /// The job waits until the device's state is right, and then goes on by itself.
    virtual void Held(const QString& reason) = 0;
    virtual void Goes_On() = 0;
    /// A delivery report: what the network says became of a part, TP-ST (3GPP TS 23.040, 9.2.3.15). It may come more
    /// than once, and never for some.
    virtual void Report_Came(int index, int part, int reference, int status) = 0;
    /// The network has not answered for so many seconds, at pace 1.
    virtual void Still_Waiting(int seconds) = 0;
};
