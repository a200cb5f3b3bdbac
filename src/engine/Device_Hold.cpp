#include "engine/Device_Hold.h"

#include "device/Confirmed_Session.h"
#include "engine/Row_Details.h"
#include "engine/Send_Progress.h"
#include "platform/Waiting.h"

#include <algorithm>

namespace {

constexpr double Seconds_Between_Looks = 2;
constexpr double Seconds_For_A_Memory = 30;
constexpr double Seconds_To_Come_Back = 30; // a plug that was pulled for a moment is no hold yet

} // namespace

Device_Hold::Device_Hold(Confirmed_Session& session, Send_Progress& progress, Confirmed_Watcher& watcher,
                         const Stop_Flag& stop, double limit)
    : m_session(session), m_progress(progress), m_watcher(watcher), m_stop(stop), m_limit(limit)
{
}

Device_Hold::End Device_Hold::Hold(Until until, const QString& reason, const Patience& patience)
{
    const double begin = Now_Seconds();
    double told_after = until == Until::Device_Is_Back ? Seconds_To_Come_Back : 0;
    m_progress.Show_Waiting(reason);
    bool is_told = false;
    for (bool is_first = true;; is_first = false) {
        const double waited = (Now_Seconds() - begin) / Paced(1);
        if (m_stop == 1 || Program_Is_Exiting())
            return End::Stopped;
        if (!is_told && waited >= told_after) {
            m_watcher.Held(reason);
            is_told = true;
        }
        if (Is_Right(until, waited)) {
            const End end = is_first && patience.where_right > 0 ? Wait_Where_Right(patience) : End::Right;
            if (is_told && (end == End::Right || end == End::Was_Right))
                m_watcher.Goes_On();
            return end;
        }
        if (m_limit > 0 && patience.held + waited >= told_after + m_limit)
            return End::Too_Long;
        m_stop.Wait(Seconds_Between_Looks);
    }
}

// The device says that it could send, and has just said that it cannot.
Device_Hold::End Device_Hold::Wait_Where_Right(const Patience& patience)
{
    const bool is_limited = m_limit > 0 && patience.held + patience.where_right > m_limit;
    m_stop.Wait(is_limited ? std::max(m_limit - patience.held, 0.0) : patience.where_right);
    if (m_stop == 1 || Program_Is_Exiting())
        return End::Stopped;
    return is_limited ? End::Too_Long : End::Was_Right;
}

bool Device_Hold::Is_Right(Until until, double waited)
{
    if (until == Until::Some_Time_Has_Passed)
        return waited >= Seconds_For_A_Memory;
    // A device that is unplugged while it is held comes back as a new one. One that was silent is prepared anew, too,
    // but what it says before that may be a late result.
    const bool is_open = m_session.Answers() && until != Until::Device_Is_Back;
    if (!is_open) {
        m_session.Close();
        if (m_session.Open() != Confirmed_Session::Opening::Ready)
            return false;
    }
    if (until == Until::Device_Is_Back)
        return true;
    const Device_Condition condition = m_session.Condition();
    if (until == Until::Card_Is_Ready)
        return condition.m_sim == Sim_State::Ready;
    return condition.m_answers && condition.m_registration != Registration::Searching &&
           condition.m_registration != Registration::Denied;
}
