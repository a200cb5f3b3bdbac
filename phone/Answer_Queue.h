#pragma once

#include "phone/Phone_Voice.h"

#include <chrono>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace Handset {

/// Outgoing bytes, each with the moment it is due, strictly in order. Bounded: like a line, it loses what does not fit.
/// Owned by Virtual_Phone, used under its lock.
class Answer_Queue
{
public:
    using Clock = std::chrono::steady_clock;

    void Put(const Utterance& said, Clock::time_point now);

    /// Sends the bytes one by one, this far apart.
    void Put_Split(const Utterance& said, Clock::time_point now, Clock::duration gap = std::chrono::microseconds(100));

    bool Is_Empty() const { return m_waiting.empty(); }

    /// The bytes due now: all of them, or one piece of what was put split. Empty when nothing is due.
    std::string_view Due(Clock::time_point now) const;
    void Went_Out(std::size_t count);

    std::optional<Clock::time_point> Next_Moment() const;
    void Clear();

private:
    struct Piece
    {
        std::string m_bytes;
        Clock::time_point m_moment;
    };
    void Put_Piece(std::string bytes, Clock::time_point moment);

    std::deque<Piece> m_waiting;
    std::size_t m_size = 0;
};

} // namespace Handset
