#pragma once

#include "device/At_Conversation.h"

/// Knows of messages that were handed over and got no result, to tell whose one is that comes later: the only one's
/// that it can be, or nobody's. A value.
class Results_Due
{
public:
    /// Whether a result may still come.
    bool Are_There() const { return m_count > 0; }
    /// Whether a message's own result may be an earlier message's.
    bool May_Be_Mistaken() const { return m_count > 0 && !m_is_passed; }

    /// A message got none in time.
    void Add();
    /// A message got OK alone: a reference may follow, and nothing else.
    void Add_Reference();
    /// A later message got its own. Devices answer in the order in which they were given messages, so an error that
    /// comes now is not about an earlier one.
    void Pass();
    /// One has come apart from every message's own.
    void Take(const Late_Result& result);
    /// So many have come for these messages and one more, and there is no telling whose each is.
    void Mix(int results);
    /// There is a device as new on the line.
    void Clear() { Reset(0); }

    /// The result of the last message that was added, if it has come.
    std::optional<Late_Result> Take_Settled() { return std::exchange(m_settled, std::nullopt); }
    /// Whether one message alone waits for one, and which is known.
    bool Is_One() const { return m_count == 1 && !m_is_mixed; }

private:
    void Reset(int count);

    int m_count = 0;
    bool m_is_mixed = false; // which of several is not known any longer
    bool m_is_passed = false;
    std::optional<Late_Result> m_settled;
};
