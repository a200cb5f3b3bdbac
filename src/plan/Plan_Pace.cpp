#include "plan/Plan_Pace.h"

#include "plan/Plan_Time.h"
#include "platform/Waiting.h"

#include <algorithm>
#include <vector>

namespace {

// Enough that a part which had to be tried again is no news, and few enough to follow a network that slows down.
constexpr std::size_t Parts_Remembered = 31;

} // namespace

void Plan_Pace::Add(bool fixed_waits, double seconds, int parts)
{
    if (parts <= 0 || seconds < 0)
        return;
    const std::lock_guard guard(m_lock);
    auto& remembered = m_seconds.at(fixed_waits ? 1 : 0);
    remembered.insert(remembered.end(), static_cast<std::size_t>(parts), seconds / parts);
    while (remembered.size() > Parts_Remembered)
        remembered.pop_front();
}

bool Plan_Pace::Has_Measured(bool fixed_waits) const
{
    const std::lock_guard guard(m_lock);
    return !m_seconds.at(fixed_waits ? 1 : 0).empty();
}

double Plan_Pace::Seconds_For_A_Part(bool fixed_waits) const
{
    const std::lock_guard guard(m_lock);
    const auto& remembered = m_seconds.at(fixed_waits ? 1 : 0);
    if (remembered.empty())
        return Paced(Usual_Seconds_For_A_Part(fixed_waits));
    std::vector<double> seconds(remembered.begin(), remembered.end());
    const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
}
