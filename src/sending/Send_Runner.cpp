#include "sending/Send_Runner.h"

#include "app/basics/Log_Line.h"
#include "app/shared/Globals.h"
#include "app/shared/Main_Window.h"
#include "platform/Interface_Thread.h"
#include "sending/Send_Job.h"

#include <exception>
#include <memory>

// The right to send. It is taken at the press and not by the thread that the press starts, so that two quick presses
// start one job; it is given back, with the main window's input, wherever it ends.
class Send_Runner::Claim
{
public:
    explicit Claim(Main_Window& window) : m_window(window) { m_window.Hold_Input(); }
    ~Claim()
    {
        Run_On_Interface_Thread([this] { m_window.Release_Input(); });
        sms_thread_var = 0;
    }
    Claim(const Claim&) = delete;
    Claim& operator=(const Claim&) = delete;

private:
    Main_Window& m_window;
};

Send_Runner::Send_Runner(Main_Window& window, MFCSMS& session, Send_Progress& progress)
    : m_window(window), m_session(session), m_progress(progress)
{
}

void Send_Runner::Send_SMS_Btn()
{
    int idle = 0;
    if (!sms_thread_var.compare_exchange_strong(idle, 1))
        return;
    const auto claim = std::make_shared<Claim>(m_window);
    try {
        Start_Worker("send job", [this, claim] { Send_SMS_Thread(); });
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QStringLiteral("The send job could not be started: ") +
                           QString::fromLocal8Bit(failure.what()));
    }
}

void Send_Runner::Send_SMS_Thread()
{
    Send_Job(m_window, m_session, m_progress).Send_SMS_Func();
}
