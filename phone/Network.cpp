#include "phone/Network.h"

#include <algorithm>

namespace Handset {

void Network::Set_Moods(const Phone_Moods& moods, Time now)
{
    const bool was_wanted = m_moods.m_no_network;
    m_moods = moods;
    if (moods.m_no_network && !was_wanted)
        Get_Lost(now);
    else if (!moods.m_no_network && moods.m_network_lost_at == 0)
        m_is_lost = false;
}

void Network::Get_Lost(Time now)
{
    m_is_lost = true;
    m_lost_at = now;
    m_queries = 0;
}

bool Network::Is_There(Time now) const
{
    const int queries = m_moods.m_network_back_after_queries;
    const double seconds = m_moods.m_network_back_after_seconds;
    return !m_is_lost || (queries > 0 && m_queries >= queries) ||
           (seconds > 0 && now - m_lost_at >= Paced_Wait(m_moods, seconds));
}

std::chrono::milliseconds Paced_Wait(const Phone_Moods& moods, double seconds)
{
    constexpr double longest = 24 * 3600 * 1000.0;
    const double wait = moods.m_pace > 0 ? seconds * 1000 / moods.m_pace : longest;
    return std::chrono::milliseconds(static_cast<long>(std::clamp(wait, 0.0, longest)));
}

} // namespace Handset
