#pragma once

#include "phone/Delivery_Report.h"
#include "phone/Phone_Moods.h"

#include <chrono>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace Handset {

/// The network's way of reporting deliveries: which reports come, when and in what order. Owned by the phone, used
/// under its lock.
class Report_Post
{
public:
    using Time = std::chrono::steady_clock::time_point;

    explicit Report_Post(const Phone_Moods& moods) : m_moods(moods) {}

    void Set_Moods(const Phone_Moods& moods) { m_moods = moods; }
    void Forget() { m_waiting.clear(); }

    /// A message that asks for a report has been sent.
    void Send_For(const std::string& number, int reference, Time now);

    /// The reports due by now, in the order in which they come; each is given once.
    std::vector<Delivery_Report> Take_Due(Time now);
    std::optional<Time> Next_Moment() const;

private:
    struct Waiting
    {
        Delivery_Report m_report;
        Time m_moment;
    };
    void Put(const Delivery_Report& report, Time moment);

    Phone_Moods m_moods;
    std::deque<Waiting> m_waiting; // by their moments
    unsigned m_count = 0;          // of messages reported on
};

} // namespace Handset
