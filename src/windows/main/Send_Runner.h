#pragma once

#include "engine/Confirmed_Manner.h"
#include "engine/Send_Listener.h"
#include "engine/Send_Order.h"
#include "plan/Plan_Pace.h"
#include "windows/main/Outcome_Post.h"

#include <functional>
#include <memory>
#include <optional>

class MFCSMS;
class Main_Window;
class Send_Progress;
class Timed_Progress;
struct Confirmed_End;

// Starts send jobs, one at a time, each on a worker of its own, and shows the user what they report; sms_thread_var is
// 1 from the press of Send until the job has cleaned up. Owned by the main window, which outlives Finish_Workers;
// interface thread.
class Send_Runner : private Send_Listener
{
public:
    /// What take_device returns is kept from before a job uses the device until it has ended; it may wait until nobody
    /// else does. On the job's thread.
    using Take_Device = std::function<std::shared_ptr<void>()>;
    /// Whether anybody but a job has it; no job is started then. Interface thread.
    using Is_Device_Taken = std::function<bool()>;

    Send_Runner(Main_Window& window, MFCSMS& session, Send_Progress& progress, Take_Device take_device = {},
                Is_Device_Taken is_device_taken = {});

    /// Send was pressed: checks what is to be sent, with the user's help, and starts a job, unless one is running. The
    /// main window takes no input until the progress window covers it or it is clear that nothing will be sent.
    void Send_SMS_Btn();

    /// Starts a job that confirms each message, without any check, unless one is running. The list shows what becomes
    /// of its recipients only if it is the job's.
    void Send_Confirmed(Send_Order order, const Confirmed_Options& options, bool is_the_list);

    /// What the parts of this session's jobs have needed.
    const Plan_Pace& Pace_So_Far() const { return m_pace; }

private:
    class Claim;
    using Confirmed = std::optional<Confirmed_Options>; // nothing for a job of fixed waits

    std::shared_ptr<Claim> Claimed();
    void Start(std::shared_ptr<Claim> claim, Send_Order order, Confirmed confirmed, bool is_the_list);
    void Send_SMS_Thread(Send_Order& order, const Confirmed& confirmed);
    void Walk_Confirmed(Send_Order& order, const Confirmed_Options& options, Timed_Progress& progress,
                        Confirmed_End& end);

    void Tell(const QString& text) override;
    void Row_Ended(int index, const Row_Outcome& outcome) override;
    void Exclusions_Were_Read(const Exclusion_Files::Applied_Numbers& applied) override;

    Main_Window& m_window;
    MFCSMS& m_session;
    Send_Progress& m_progress;
    const Take_Device m_take_device;
    const Is_Device_Taken m_is_device_taken;
    Outcome_Post m_outcomes;
    Plan_Pace m_pace;
    Timed_Progress* m_timed = nullptr;          // of the job that runs; on its thread
    std::optional<Device_Cause> m_refused_kind; // by the message that the job reached last; on its thread
};
