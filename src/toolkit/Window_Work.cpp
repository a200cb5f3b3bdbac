#include "toolkit/Window_Work.h"

#include "platform/Interface_Thread.h"
#include "platform/Thread_Shortage.h"
#include "toolkit/Input_Hold.h"
#include "toolkit/PleaseWait_Modeless.h"

#include <utility>

Window_Work::Window_Work(QWidget& window, PleaseWait_Modeless& sheet)
    : m_window(window), m_sheet(sheet), m_running(std::make_shared<std::atomic<int>>(0))
{
}

Window_Work::~Window_Work()
{
    Await();
}

void Window_Work::Show_Sheet()
{
    m_sheet.Show_Progress(-1);
    if (m_window.isVisible())
        m_sheet.Begin_Sheet(&m_window);
}

void Window_Work::Hide_Sheet()
{
    m_sheet.End_Sheet();
}

bool Window_Work::Is_Sheet_Shown() const
{
    return m_sheet.isVisible();
}

std::shared_ptr<void> Window_Work::Sheet()
{
    Show_Sheet();
    return {this, [this](void* /*unused*/) { Hide_Sheet(); }};
}

void Window_Work::Hold_Input()
{
    m_input_hold = std::make_unique<Input_Hold>(&m_window);
}

void Window_Work::Release_Input()
{
    m_input_hold.reset();
}

// Until the worker has ended, or the system has refused it.
std::function<void()> Window_Work::Counted(std::function<void()> work)
{
    ++*m_running;
    const std::shared_ptr<void> counted(nullptr, [running = m_running](void* /*unused*/) { --*running; });
    return [counted, work = std::move(work)] { work(); };
}

void Window_Work::Start(const char* name, std::function<void()> work)
{
    Start_Worker(name, Counted(std::move(work)));
}

bool Window_Work::Start_If_Possible(const char* name, std::function<void()> work)
{
    return Start_Worker_If_Possible(name, Counted(std::move(work)));
}

void Window_Work::Await() const
{
    if (Is_Running())
        Await_Worker([running = m_running] { return *running == 0; });
}

void Window_Work::End()
{
    Await();
    Release_Input();
    Hide_Sheet();
}
