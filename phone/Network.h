#pragma once

#include "phone/Phone_Moods.h"

#include <chrono>

namespace Handset {

/// Whether the phone has its network, which its moods may take away for a while. Owned by the phone, used under its
/// lock.
class Network
{
public:
    using Time = std::chrono::steady_clock::time_point;

    Network(const Phone_Moods& moods, Time now) { Set_Moods(moods, now); }

    void Set_Moods(const Phone_Moods& moods, Time now);
    void Get_Lost(Time now);

    bool Is_There(Time now) const;
    void Was_Asked_For() { ++m_queries; } ///< a question after it was answered

private:
    Phone_Moods m_moods;
    bool m_is_lost = false;
    Time m_lost_at{};
    int m_queries = 0; // since it was lost
};

/// A wait of the moods' own seconds at their pace; at most a day.
std::chrono::milliseconds Paced_Wait(const Phone_Moods& moods, double seconds);

} // namespace Handset
