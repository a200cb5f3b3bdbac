#include "toolkit/Desktop_Help.h"

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Desktop_Services.h"

#include <QApplication>
#include <algorithm>
#include <deque>
#include <functional>
#include <mutex>
#include <utility>

namespace {

bool Is_In_Front()
{
    bool is_in_front = false;
    Run_On_Interface_Thread([&] { is_in_front = QApplication::activeWindow() != nullptr; });
    return is_in_front;
}

} // namespace

// What is to be asked of the services, done one after the other by a worker that ends when nothing is left to do. At
// the program's end nothing is asked any more: whatever was held goes with the connections.
class Desktop_Help::Errands : public std::enable_shared_from_this<Errands>
{
public:
    using Errand = std::function<void(Desktop_Services&)>;

    explicit Errands(const Desktop_Buses& buses) : m_services(buses, QGuiApplication::desktopFileName()) {}

    void Add(Errand errand)
    {
        {
            const std::lock_guard guard(m_lock);
            m_waiting.push_back(std::move(errand));
            if (std::exchange(m_is_at_work, true))
                return;
        }
        Start_Worker("desktop", [self = shared_from_this()] { self->Do_All(); });
    }

private:
    void Do_All()
    {
        while (const Errand errand = Next())
            errand(m_services);
    }

    Errand Next()
    {
        const std::lock_guard guard(m_lock);
        if (Program_Is_Exiting())
            m_waiting.clear();
        m_is_at_work = !m_waiting.empty();
        if (!m_is_at_work)
            return {};
        Errand errand = std::move(m_waiting.front());
        m_waiting.pop_front();
        return errand;
    }

    std::mutex m_lock;
    std::deque<Errand> m_waiting;
    bool m_is_at_work = false;
    Desktop_Services m_services; // of the worker
};

Desktop_Help::Desktop_Help(const Desktop_Buses& buses, QObject* parent) : QObject(parent)
{
    if (!buses.session.isEmpty() || !buses.system.isEmpty())
        m_errands = std::make_shared<Errands>(buses);
}

Desktop_Help::~Desktop_Help() = default;

Desktop_Help& Desktop_Help::Of(QObject& main_window)
{
    Desktop_Help* help = nullptr;
    Run_On_Interface_Thread([&] {
        help = main_window.findChild<Desktop_Help*>(QString(), Qt::FindDirectChildrenOnly);
        if (!help)
            help = new Desktop_Help(Desktop_Buses::Of_This_Session(), &main_window);
    });
    return *help;
}

void Desktop_Help::Job_Begins()
{
    m_runs = true;
    m_percent = -1;
    m_was_in_front = false;
    if (m_errands)
        m_errands->Add([reason = tr("Messages are being sent")](auto& services) { services.Keep_Awake(reason); });
}

// No finer than anybody sees, so that a long list of skipped items does not become as many signals.
void Desktop_Help::Job_At(int position, int total)
{
    const int percent = static_cast<int>((position - 1) * 100LL / std::max(total, 1));
    if (!m_errands || std::exchange(m_percent, percent) == percent)
        return;
    m_errands->Add([percent](auto& services) { services.Show_Progress(percent / 100.0); });
}

void Desktop_Help::Job_Waits(const QString& reason)
{
    m_waits = true;
    Notify(tr("Sending waits"), reason);
}

void Desktop_Help::Job_Goes_On()
{
    if (std::exchange(m_waits, false) && m_errands)
        m_errands->Add([](auto& services) { services.Withdraw_Notification(); });
}

void Desktop_Help::Window_Closes()
{
    m_was_in_front = m_was_in_front || Is_In_Front();
}

void Desktop_Help::Job_Says(const QString& text)
{
    m_waits = false;
    Notify(tr("Sending has ended"), text);
}

void Desktop_Help::Notify(const QString& title, const QString& text)
{
    if (m_errands && !m_was_in_front && !Is_In_Front())
        m_errands->Add([title, text = text.simplified()](auto& services) { services.Notify(title, text); });
}

void Desktop_Help::Job_Ends()
{
    Job_Goes_On(); // it may have been stopped while it waited
    if (std::exchange(m_runs, false) && m_errands)
        m_errands->Add([](auto& services) {
            services.Hide_Progress();
            services.Let_Sleep();
        });
}
