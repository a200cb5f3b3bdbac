#include "phone/Report_Post.h"

#include "phone/Network.h"

#include <algorithm>

namespace Handset {

namespace {

constexpr std::size_t Most_Waiting = 100'000;

std::vector<int> Statuses_For(const Phone_Moods& moods, const std::string& number)
{
    std::vector<int> statuses;
    for (const auto& [end, status] : moods.m_report_status) {
        if (number.ends_with(end))
            statuses.push_back(status);
    }
    return statuses.empty() ? std::vector<int>{0} : statuses;
}

} // namespace

// One that is to be overtaken comes as late as the next one but one would; where no other follows, it comes then.
void Report_Post::Send_For(const std::string& number, int reference, Time now)
{
    if (m_moods.m_no_reports)
        return;
    const std::time_t sent = std::time(nullptr);
    const auto wait = Paced_Wait(m_moods, m_moods.m_report_after_seconds);
    const bool is_overtaken = m_moods.m_reports_out_of_order && m_count++ % 2 == 0;
    const Time moment = now + (is_overtaken ? 3 * wait : wait);
    for (const int status : Statuses_For(m_moods, number)) {
        const Delivery_Report report{number, reference, status, sent, sent + 1};
        if (m_moods.m_stray_reports) {
            Delivery_Report stray = report;
            stray.m_reference = (reference + 128) % 256;
            Put(stray, moment);
        }
        Put(report, moment);
        if (m_moods.m_reports_twice)
            Put(report, moment);
    }
    // The overtaker takes the overtaken along.
    if (m_moods.m_reports_out_of_order && !is_overtaken) {
        for (auto& other : m_waiting)
            other.m_moment = std::min(other.m_moment, moment);
    }
}

void Report_Post::Put(const Delivery_Report& report, Time moment)
{
    if (m_waiting.size() >= Most_Waiting)
        return;
    const auto behind = std::upper_bound(m_waiting.begin(), m_waiting.end(), moment,
                                         [](Time time, const Waiting& other) { return time < other.m_moment; });
    m_waiting.insert(behind, {report, moment});
}

std::vector<Delivery_Report> Report_Post::Take_Due(Time now)
{
    std::vector<Delivery_Report> due;
    for (; !m_waiting.empty() && m_waiting.front().m_moment <= now; m_waiting.pop_front())
        due.push_back(m_waiting.front().m_report);
    return due;
}

std::optional<Report_Post::Time> Report_Post::Next_Moment() const
{
    if (m_waiting.empty())
        return std::nullopt;
    return m_waiting.front().m_moment;
}

} // namespace Handset
