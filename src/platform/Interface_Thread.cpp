#include "platform/Interface_Thread.h"

#include "platform/System_Log.h"
#include "platform/Thread_Shortage.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QThread>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <exception>
#include <list>
#include <memory>
#include <mutex>
#include <pthread.h>
#include <system_error>
#include <thread>

namespace {

struct Worker
{
    std::function<void()> work;
    std::thread thread;
    std::atomic<bool> has_ended{false};
};

struct Worker_Register
{
    std::mutex lock;
    std::list<std::shared_ptr<Worker>> workers;
};

Worker_Register& The_Register()
{
    static Worker_Register workers;
    return workers;
}

// Steps handed over to the interface thread. They travel in a list of our own and not in the toolkit's events: a race
// detector cannot see inside the toolkit, and only with a lock of ours can it follow a step across and find the real
// races.
struct Handed_Over
{
    std::mutex lock;
    std::deque<std::function<void()>> steps;
    std::unique_ptr<QObject> door; // goes with the application, and takes the steps not yet done with it
};

Handed_Over& The_Steps()
{
    static Handed_Over steps;
    return steps;
}

std::function<void()> Next_Step()
{
    auto& steps = The_Steps();
    const std::lock_guard guard(steps.lock);
    auto step = std::move(steps.steps.front());
    steps.steps.pop_front();
    return step;
}

void Forget_Steps()
{
    std::deque<std::function<void()>> dropped;
    auto& steps = The_Steps();
    const std::lock_guard guard(steps.lock);
    steps.door.reset();
    dropped.swap(steps.steps);
}

// Where steps arrive on the interface thread, one per event.
class Door : public QObject
{
protected:
    void customEvent(QEvent* /*event*/) override { Next_Step()(); }
};

// The door is made with the application, on the interface thread, where every event filter sees it.
void Open_The_Door()
{
    auto& steps = The_Steps();
    const std::lock_guard guard(steps.lock);
    steps.door = std::make_unique<Door>();
    qAddPostRoutine(Forget_Steps);
}

Q_COREAPP_STARTUP_FUNCTION(Open_The_Door)

void Hand_Over(std::function<void()> step)
{
    auto& steps = The_Steps();
    const std::lock_guard guard(steps.lock);
    if (!steps.door)
        return; // the application is going: nobody is left to do it
    steps.steps.push_back(std::move(step));
    // The event passes through the toolkit, too: event filters see it before the step is taken.
    QCoreApplication::postEvent(steps.door.get(), QEvent(QEvent::User).clone());
}

// Lets the caller continue once the step that holds it is done, or was dropped because the application has gone.
class Awaited_Step
{
public:
    // The caller continues when the last copy of this is gone.
    std::shared_ptr<void> Hold()
    {
        return {this, [this](void* /*unused*/) {
                    const std::lock_guard guard(m_lock);
                    m_is_over = true;
                    m_changed.notify_all();
                }};
    }

    void Wait()
    {
        std::unique_lock guard(m_lock);
        m_changed.wait(guard, [this] { return m_is_over; });
    }

private:
    std::mutex m_lock;
    std::condition_variable m_changed;
    bool m_is_over = false;
};

void Do_The_Work(const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::exception& failure) {
        Write_System_Log(QStringLiteral("A worker ended early: ") + QString::fromLocal8Bit(failure.what()));
    } catch (...) {
        Write_System_Log(QStringLiteral("A worker ended early."));
    }
}

// Returns no thread where the system refuses one: the work meant for it must not be lost with it.
std::thread Thread_For(const char* name, void (*run)(void*), void* what)
{
    try {
        return std::thread(run, what);
    } catch (const std::system_error& refusal) {
        Write_System_Log(QStringLiteral("No thread for ") + QLatin1String(name) + QStringLiteral(": ") +
                         QString::fromLocal8Bit(refusal.what()));
        return {};
    }
}

void Run_Worker(void* what)
{
    auto* worker = static_cast<Worker*>(what);
    Do_The_Work(worker->work);
    worker->work = nullptr; // what the work holds is released before it counts as ended
    worker->has_ended = true;
    Wake_Interface_Thread();
}

void Join_Ended_Workers();

// Takes the work only if there is a thread for it.
bool Hand_To_Worker(const char* name, std::function<void()>& work)
{
    Join_Ended_Workers();
    auto& workers = The_Register();
    const std::lock_guard guard(workers.lock);
    workers.workers.push_back(std::make_shared<Worker>());
    auto& worker = *workers.workers.back();
    worker.work.swap(work);
    worker.thread = Thread_For(name, Run_Worker, &worker);
    if (worker.thread.joinable()) {
        pthread_setname_np(worker.thread.native_handle(), name);
        return true;
    }
    worker.work.swap(work);
    workers.workers.pop_back();
    return false;
}

void Serve_Until(const std::atomic<bool>& is_done, QEventLoop::ProcessEventsFlags flags)
{
    Wake_Interface_Thread();
    while (!is_done)
        QCoreApplication::processEvents(flags | QEventLoop::WaitForMoreEvents);
    Wake_Interface_Thread();
}

void Join_Ended_Workers()
{
    std::list<std::shared_ptr<Worker>> ended;
    auto& workers = The_Register();
    {
        const std::lock_guard guard(workers.lock);
        for (auto worker = workers.workers.begin(); worker != workers.workers.end();) {
            const auto here = worker++;
            if ((*here)->has_ended)
                ended.splice(ended.end(), workers.workers, here);
        }
    }
    for (const auto& worker : ended)
        worker->thread.join();
}

} // namespace

bool Is_Interface_Thread()
{
    const auto* application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread();
}

void Run_On_Interface_Thread(const std::function<void()>& step)
{
    auto* application = QCoreApplication::instance();
    if (!application || QThread::currentThread() == application->thread()) {
        step();
        return;
    }
    std::exception_ptr failure; // nothing may be thrown through the event loop
    Awaited_Step awaited;
    Hand_Over([&step, &failure, held = awaited.Hold()] {
        try {
            step();
        } catch (...) {
            failure = std::current_exception();
        }
    });
    awaited.Wait();
    if (failure)
        std::rethrow_exception(failure);
}

void Wake_Interface_Thread()
{
    if (auto* application = QCoreApplication::instance())
        Post_To_Interface_Thread(application, [] {});
}

void Post_To_Interface_Thread(QObject* context, std::function<void()> step)
{
    if (!QCoreApplication::instance())
        return;
    Hand_Over([context = QPointer<QObject>(context), step = std::move(step)] {
        if (context)
            step();
    });
}

void Run_On_Worker(const std::function<void()>& work, User_Input input)
{
    if (!Is_Interface_Thread()) {
        work();
        return;
    }
    std::atomic<bool> is_done{false};
    std::exception_ptr failure;
    std::function<void()> to_do = [&] {
        try {
            work();
        } catch (...) {
            failure = std::current_exception();
        }
        is_done = true;
        Wake_Interface_Thread();
    };
    std::thread worker = Thread_For(
        "work behind a window", [](void* what) { (*static_cast<std::function<void()>*>(what))(); }, &to_do);
    if (!worker.joinable()) {
        work();
        return;
    }
    Serve_Until(is_done, input == User_Input::Served ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    worker.join();
    if (failure)
        std::rethrow_exception(failure);
}

void Start_Worker(const char* name, std::function<void()> work)
{
    if (!Hand_To_Worker(name, work))
        Do_The_Work(work);
}

bool Start_Worker_If_Possible(const char* name, std::function<void()> work)
{
    return Hand_To_Worker(name, work);
}

void Await_Worker(const std::function<bool()>& has_ended)
{
    Wake_Interface_Thread();
    while (!has_ended())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    Wake_Interface_Thread();
}

int Workers_Running()
{
    auto& workers = The_Register();
    const std::lock_guard guard(workers.lock);
    int running = 0;
    for (const auto& worker : workers.workers)
        running += worker->has_ended ? 0 : 1;
    return running;
}

void Finish_Workers()
{
    Wake_Interface_Thread();
    while (Workers_Running() > 0)
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    Join_Ended_Workers();
}
