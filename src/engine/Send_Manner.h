#pragma once

#include "engine/Row_Outcome.h"
#include "engine/Send_Order.h"

/// How messages are handed to the device during one walk over a list: what is opened, what is waited for and what is
/// judged. The walk calls these from its own thread, in this order; Close may follow any of them.
class Send_Manner
{
public:
    /// What the walk does after a message.
    enum class Next
    {
        Go_On,
        Fail,     ///< the line failed: end with an error
        Break_Off ///< end, but not with an error
    };
    struct Submission
    {
        Next next = Next::Go_On;
        Row_Outcome outcome;
        bool is_handled = true; ///< its records are kept, and it counts for the batch
        QString notice = {};    ///< of Fail: what the user is told
    };

    virtual ~Send_Manner() = default;

    /// Tries whether the device can be opened.
    virtual bool Opens() = 0;
    /// Connects with the device for the walk. False when it does not answer.
    virtual bool Connect() = 0;
    /// Finds out how the device takes messages, and prepares it.
    virtual void Prepare() = 0;
    /// Whether it takes messages at all. Nothing is submitted otherwise.
    virtual bool Takes_Messages() const = 0;
    /// What the user is told where it does not connect or takes no messages.
    virtual QString Trouble() const = 0;
    /// What the user is told at the end of a walk that nothing broke off.
    virtual QString Completed() const = 0;
    virtual void Begin_Sending() = 0;
    /// Submits one recipient's message, cut to its limit already.
    virtual Submission Submit(int index, const Recipient& recipient) = 0;
    /// Whether the recipient's message was settled before this walk, or cannot be sent at all: it is not skipped,
    /// whatever the order says, but submitted, which tells what became of it.
    virtual bool Is_Settled(int /*index*/) { return false; }
    /// The recipient at an index was skipped, and that is being shown.
    virtual void Skipped(int index, Skip_Reason reason) = 0;
    virtual void Pause_Begins() = 0;
    /// The walk is over: what is still to come from the device may be waited for.
    virtual void End_Sending() = 0;
    /// Lets go of the device, wherever the walk ended.
    virtual void Close() = 0;
};
