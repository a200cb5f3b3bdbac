#include "windows/main/Send_Runner.h"

#include "device/Stop_Flag.h"
#include "engine/Confirmed_End.h"
#include "engine/Fixed_Wait_Manner.h"
#include "engine/Job_Order.h"
#include "engine/Job_State.h"
#include "engine/Send_Job.h"
#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/Thread_Shortage.h"
#include "records/Data_Paths.h"
#include "texts/Texts.h"
#include "toolkit/Desktop_Help.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "windows/main/Send_Checks.h"
#include "windows/main/Timed_Progress.h"

#include <QScopeGuard>
#include <QWidget>
#include <exception>
#include <utility>

namespace {

std::optional<Confirmed_Options> Confirmed_Options_Of(const Send_Order& order)
{
    if (!order.choices.confirm.confirms)
        return std::nullopt;
    Confirmed_Options options;
    options.folder = Jobs_Folder_Path;
    options.job = Job_Options_Of(order);
    options.keeps_journal = order.choices.confirm.keeps_receipt;
    return options;
}

} // namespace

// The right to send. It is claimed at the press and not by the thread that the press starts, so that two quick presses
// start one job; it is released, along with the main window's input, wherever it ends.
class Send_Runner::Claim
{
public:
    explicit Claim(Main_Window& window) : m_window(window)
    {
        int idle = 0;
        m_is_mine = sms_thread_var.compare_exchange_strong(idle, 1);
    }
    ~Claim()
    {
        if (!m_is_mine)
            return;
        Run_On_Interface_Thread([this] { m_window.Release_Input(); });
        sms_thread_var = 0;
    }
    bool Is_Mine() const { return m_is_mine; }
    Claim(const Claim&) = delete;
    Claim& operator=(const Claim&) = delete;

private:
    Main_Window& m_window;
    bool m_is_mine = false;
};

Send_Runner::Send_Runner(Main_Window& window, MFCSMS& session, Send_Progress& progress, Take_Device take_device,
                         Is_Device_Taken is_device_taken)
    : m_window(window), m_session(session), m_progress(progress), m_take_device(std::move(take_device)),
      m_is_device_taken(std::move(is_device_taken)), m_outcomes(window)
{
}

// Nothing when there is a job already, or when somebody else has the device.
std::shared_ptr<Send_Runner::Claim> Send_Runner::Claimed()
{
    if (m_is_device_taken && m_is_device_taken())
        return {};
    auto claim = std::make_shared<Claim>(m_window);
    return claim->Is_Mine() ? claim : nullptr;
}

void Send_Runner::Send_SMS_Btn()
{
    auto claim = Claimed();
    if (!claim)
        return;
    m_window.Hold_Input();
    auto order = Take_Send_Order(m_window);
    if (!order)
        return;
    Confirmed confirmed = Confirmed_Options_Of(*order);
    Start(std::move(claim), std::move(*order), std::move(confirmed), true);
}

void Send_Runner::Send_Confirmed(Send_Order order, const Confirmed_Options& options, bool is_the_list)
{
    auto claim = Claimed();
    if (!claim)
        return;
    m_window.Hold_Input();
    Start(std::move(claim), std::move(order), options, is_the_list);
}

void Send_Runner::Start(std::shared_ptr<Claim> claim, Send_Order order, Confirmed confirmed, bool is_the_list)
{
    const bool is_started = Start_Worker_If_Possible(
        "send job", [this, claim, order = std::move(order), confirmed = std::move(confirmed)]() mutable {
            const std::shared_ptr<void> device = m_take_device ? m_take_device() : nullptr;
            Send_SMS_Thread(order, confirmed);
        });
    claim.reset();
    if (!is_started)
        Show_MessageBox(Texts::Sending::Not_Started);
    else if (is_the_list)
        m_window.Begin_Outcomes(); // before anything that the job hands over
}

void Send_Runner::Send_SMS_Thread(Send_Order& order, const Confirmed& confirmed)
{
    Confirmed_End end;
    Desktop_Help& desktop = Desktop_Help::Of(*m_window.Window());
    desktop.Job_Begins();
    try {
        Timed_Progress progress(m_progress, order, m_pace, desktop);
        m_timed = &progress;
        const auto forget = qScopeGuard([this] { m_timed = nullptr; });
        if (confirmed) {
            Walk_Confirmed(order, *confirmed, progress, end);
        } else {
            Fixed_Wait_Manner manner(order, m_session);
            Send_Job(order, manner, progress, *this, Stop_SMS_Sending_Now).Send_SMS_Func();
        }
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QStringLiteral("The send job ended early: ") + QString::fromLocal8Bit(failure.what()));
        desktop.Job_Says(Texts::Sending::Broken_Off);
        desktop.Job_Ends();
        Show_MessageBox(Texts::Sending::Broken_Off);
    }
    desktop.Job_Ends();
    Run_On_Interface_Thread([&] {
        m_outcomes.End();
        if (confirmed)
            m_window.Confirmed_Job_Ended(end);
    });
}

void Send_Runner::Walk_Confirmed(Send_Order& order, const Confirmed_Options& options, Timed_Progress& progress,
                                 Confirmed_End& end)
{
    Confirmed_Options handing_out = options;
    handing_out.hands_out_record = true;
    m_refused_kind.reset();
    Confirmed_Manner manner(order, handing_out, progress, progress, Stop_SMS_Sending_Now);
    const auto hand_out = qScopeGuard([&] {
        if (manner.Record())
            end.record = std::make_shared<const Job_Record>(*manner.Record());
        end.refused_kind = m_refused_kind;
    });
    Send_Job(order, manner, progress, *this, Stop_SMS_Sending_Now).Send_SMS_Func();
}

void Send_Runner::Tell(const QString& text)
{
    m_timed->Job_Says(text);
    Run_On_Interface_Thread([this] { m_outcomes.Deliver(); }); // the table behind the box shows them all
    Show_MessageBox(text);
}

void Send_Runner::Exclusions_Were_Read(const Exclusion_Files::Applied_Numbers& applied)
{
    Run_On_Interface_Thread([&] { m_window.Take_Exclusions(applied); });
}

void Send_Runner::Row_Ended(int index, const Row_Outcome& outcome)
{
    m_timed->Row_Ended(outcome);
    m_refused_kind.reset();
    if (outcome.state == Row_State::Refused && Cause_Row(outcome.cause).offers_plain)
        m_refused_kind = outcome.cause;
    m_outcomes.Add(index, outcome);
}
