#include "phone/Answer_Queue.h"

#include <algorithm>

namespace Handset {

namespace {

constexpr std::size_t Most_Waiting = 256 * 1024; // bytes

} // namespace

void Answer_Queue::Put(const Utterance& said, Clock::time_point now)
{
    Put_Piece(said.m_bytes, now + std::chrono::milliseconds(said.m_delay_ms));
}

void Answer_Queue::Put_Split(const Utterance& said, Clock::time_point now, Clock::duration gap)
{
    auto moment = now + std::chrono::milliseconds(said.m_delay_ms);
    if (!m_waiting.empty())
        moment = std::max(moment, m_waiting.back().m_moment);
    for (const char byte : said.m_bytes) {
        moment += gap;
        Put_Piece(std::string(1, byte), moment);
    }
}

void Answer_Queue::Put_Piece(std::string bytes, Clock::time_point moment)
{
    if (bytes.empty() || m_size + bytes.size() > Most_Waiting)
        return;
    if (!m_waiting.empty())
        moment = std::max(moment, m_waiting.back().m_moment);
    m_size += bytes.size();
    m_waiting.push_back({std::move(bytes), moment});
}

std::string_view Answer_Queue::Due(Clock::time_point now) const
{
    if (m_waiting.empty() || m_waiting.front().m_moment > now)
        return {};
    return m_waiting.front().m_bytes;
}

void Answer_Queue::Went_Out(std::size_t count)
{
    if (m_waiting.empty())
        return;
    count = std::min(count, m_waiting.front().m_bytes.size());
    m_size -= count;
    m_waiting.front().m_bytes.erase(0, count);
    if (m_waiting.front().m_bytes.empty())
        m_waiting.pop_front();
}

std::optional<Answer_Queue::Clock::time_point> Answer_Queue::Next_Moment() const
{
    if (m_waiting.empty())
        return std::nullopt;
    return m_waiting.front().m_moment;
}

void Answer_Queue::Clear()
{
    m_waiting.clear();
    m_size = 0;
}

} // namespace Handset
