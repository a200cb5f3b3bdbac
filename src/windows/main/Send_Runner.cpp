#include "windows/main/Send_Runner.h"

#include "device/Stop_Flag.h"
#include "engine/Fixed_Wait_Manner.h"
#include "engine/Job_State.h"
#include "engine/Send_Job.h"
#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/Thread_Shortage.h"
#include "texts/Texts.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "windows/main/Send_Checks.h"

#include <exception>
#include <memory>
#include <utility>

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

Send_Runner::Send_Runner(Main_Window& window, MFCSMS& session, Send_Progress& progress)
    : m_window(window), m_session(session), m_progress(progress), m_outcomes(window)
{
}

void Send_Runner::Send_SMS_Btn()
{
    auto claim = std::make_shared<Claim>(m_window);
    if (!claim->Is_Mine())
        return;
    m_window.Hold_Input();
    auto order = Take_Send_Order(m_window);
    if (!order)
        return;
    const bool is_started = Start_Worker_If_Possible(
        "send job", [this, claim, order = std::move(*order)]() mutable { Send_SMS_Thread(std::move(order)); });
    claim.reset();
    if (is_started)
        m_window.Begin_Outcomes(); // before anything that the job hands over
    else
        Show_MessageBox(Texts::Sending::Not_Started);
}

void Send_Runner::Send_SMS_Thread(Send_Order order)
{
    try {
        Fixed_Wait_Manner manner(order, m_session);
        Send_Job(order, manner, m_progress, *this, Stop_SMS_Sending_Now).Send_SMS_Func();
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QStringLiteral("The send job ended early: ") + QString::fromLocal8Bit(failure.what()));
        Show_MessageBox(Texts::Sending::Broken_Off);
    }
    Run_On_Interface_Thread([this] { m_outcomes.End(); });
}

void Send_Runner::Tell(const QString& text)
{
    Run_On_Interface_Thread([this] { m_outcomes.Deliver(); }); // the table behind the box shows them all
    Show_MessageBox(text);
}

void Send_Runner::Exclusions_Were_Read(const Exclusion_Files::Applied_Numbers& applied)
{
    Run_On_Interface_Thread([&] { m_window.Take_Exclusions(applied); });
}

void Send_Runner::Row_Ended(int index, const Row_Outcome& outcome)
{
    m_outcomes.Add(index, outcome);
}
