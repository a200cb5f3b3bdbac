// Bytes on their way out, each with the moment it may go. In order: nothing overtakes. Bounded: a line has no memory,
// so what does not fit is lost. Owned by Virtual_Phone, used under its lock.
#pragma once

#include "phone/Phone_Mind.h"

#include <chrono>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace Handset {

class Answer_Queue
{
public:
    using Clock = std::chrono::steady_clock;

    void Put(const Utterance& said, Clock::time_point now);

    // Bytes one by one, this far apart.
    void Put_Split(const Utterance& said, Clock::time_point now);

    bool Is_Empty() const { return m_waiting.empty(); }

    // The next bytes that may go now: all that is due, or one piece of what was put split. Empty when nothing is due.
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
