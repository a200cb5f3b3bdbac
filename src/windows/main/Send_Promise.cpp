#include "windows/main/Send_Promise.h"

#include "device/Chosen_Device.h"
#include "plan/Chosen_Manner.h"
#include "plan/Plan_Pace.h"
#include "plan/Time_Words.h"
#include "platform/Interface_Thread.h"
#include "platform/Thread_Shortage.h"
#include "platform/Waiting.h"
#include "toolkit/Main_Window.h"
#include "windows/handover/Hand_Over_Wnd.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <algorithm>
#include <atomic>
#include <semaphore>
#include <utility>

namespace {

// So few are counted within a few milliseconds, whatever their texts are.
constexpr int Few_Recipients = 100;

// A long list is counted when no change has come for so long: what a person does meanwhile has the processors.
constexpr int Milliseconds_Of_Rest = 100;

constexpr int Milliseconds_In_Minute = 60000;

} // namespace

// What the worker that counts shares with the window.
struct Send_Promise::Count
{
    Send_Order order;
    Plan_Manner manner;
    std::atomic<bool> is_stopped{false};
    std::binary_semaphore has_let_go{0}; // of the order
};

Send_Promise::Send_Promise(const Controls& controls, Main_Window& window, const Plan_Pace& pace,
                           const Program_Settings& settings, std::function<QDateTime()> clock)
    : m_controls(controls), m_window(window), m_pace(pace), m_settings(settings), m_clock(std::move(clock)),
      m_wants_notice(settings.Wants_Notice(QLatin1String(Hand_Over_Wnd::Notice)))
{
    m_minute.setSingleShot(true);
    connect(&m_minute, &QTimer::timeout, this, &Send_Promise::Show);
    m_rest.setSingleShot(true);
    m_rest.setInterval(Milliseconds_Of_Rest);
    connect(&m_rest, &QTimer::timeout, this, &Send_Promise::Count_Behind_The_Window);
    connect(m_controls.other_ways, &QPushButton::clicked, this, &Send_Promise::Other_Ways);
    Show();
}

Send_Promise::~Send_Promise()
{
    List_Will_Change();
}

void Send_Promise::Depend_On(QWidget* control)
{
    if (const auto* box = qobject_cast<QComboBox*>(control))
        connect(box, &QComboBox::currentTextChanged, this, &Send_Promise::Changed);
    else if (const auto* button = qobject_cast<QAbstractButton*>(control))
        connect(button, &QAbstractButton::toggled, this, &Send_Promise::Changed);
}

// Several changes that come together are counted once, when they are over.
void Send_Promise::Changed()
{
    m_sums.reset();
    if (!std::exchange(m_is_due, true))
        Post_To_Interface_Thread(this, [this] { Begin_Count(); });
}

// The worker looks every few hundred rows whether it is to stop, so this is no wait that anybody sees.
void Send_Promise::List_Will_Change()
{
    if (const auto count = std::exchange(m_count, nullptr)) {
        count->is_stopped = true;
        count->has_let_go.acquire();
        Changed();
    }
}

Send_Order Send_Promise::Present_Order() const
{
    return {{}, Cus_SMS_Num_STR, m_window.Read_Send_Choices(), m_window.Recipients(), m_window.Exclusions()};
}

void Send_Promise::Begin_Count()
{
    if (const auto count = std::exchange(m_count, nullptr))
        count->is_stopped = true; // not awaited: it may be the last that holds a long list, and lets go of it slowly
    m_is_due = false;
    m_rest.stop();
    if (m_window.Recipients().Count() <= Few_Recipients) {
        const Send_Order order = Present_Order();
        Take(Sums_Of(Plan_Of(order, Manner_Of(order.choices, order.service_centre))));
        return;
    }
    Show_Words(tr("Counting ..."));
    m_rest.start();
}

void Send_Promise::Count_Behind_The_Window()
{
    auto count = std::make_shared<Count>();
    count->order = Present_Order();
    count->manner = Manner_Of(count->order.choices, count->order.service_centre);
    const bool is_started = Start_Worker_If_Possible("promise", [this, count] {
        std::optional<Job_Sums> sums;
        {
            const auto let_go = qScopeGuard([&] {
                count->order = {};
                count->has_let_go.release();
            });
            sums = Counted(*count);
        }
        if (!sums)
            return;
        Post_To_Interface_Thread(this, [this, count, sums] {
            if (count == m_count) {
                m_count.reset();
                Take(*sums);
            }
        });
    });
    if (is_started)
        m_count = std::move(count);
    else
        Show_Words({});
}

// Nothing of a list that is no longer wanted.
std::optional<Job_Sums> Send_Promise::Counted(const Count& count)
{
    const auto is_stopped = [&] { return count.is_stopped.load() || Program_Is_Exiting(); };
    const Job_Plan plan = Plan_Of(count.order, count.manner, is_stopped);
    return is_stopped() ? std::nullopt : std::optional(Sums_Of(plan));
}

void Send_Promise::Take(const Job_Sums& sums)
{
    m_sums = sums;
    Show();
}

void Send_Promise::Show()
{
    const bool has_recipients = m_window.Recipients().Count() > 0;
    m_controls.other_ways->setVisible(has_recipients);
    m_controls.words->setVisible(has_recipients); // it has a line of its own
    m_is_notice_shown = false;
    if (m_sums && has_recipients) {
        const Send_Choices choices = m_window.Read_Send_Choices();
        const Plan_Manner manner = Manner_Of(choices, Cus_SMS_Num_STR);
        const double seconds = Seconds_For(*m_sums, manner, m_pace.Seconds_For_A_Part(manner.fixed_waits));
        const QDateTime now = m_clock();
        m_is_notice_shown = m_wants_notice && Is_Much_For_One_Phone(*m_sums, seconds);
        QStringList lines{Time_Words::Promise(*m_sums, seconds, choices, now)};
        if (Names_Unfilled_Rows())
            lines.append(m_sums->unfilled.In_Words());
        if (m_is_notice_shown)
            lines.append(tr("That is much for one phone."));
        Show_Words(lines.join(u'\n'));
        m_minute.start(Milliseconds_In_Minute - now.time().msecsSinceStartOfDay() % Milliseconds_In_Minute);
    } else if (!m_is_due) {
        Show_Words({});
    }
    m_controls.other_ways->setText(m_is_notice_shown ? tr("What to do instead") : tr("Other ways ..."));
    m_controls.check->setText(has_recipients && Names_Unfilled_Rows() ? tr("Show who gets nothing ...")
                                                                      : tr("Check before sending ..."));
}

void Send_Promise::Show_Words(const QString& words)
{
    m_minute.stop();
    QLabel& label = *m_controls.words;
    label.setText(words);
    // Its height stays while the list is counted anew: everything above it would move, and be drawn once more.
    label.setMinimumHeight(words.isEmpty() ? 0 : std::max(label.minimumHeight(), label.heightForWidth(label.width())));
    m_controls.send->setAccessibleDescription(words);
}

// Who has looked need not be told again in this session.
void Send_Promise::Other_Ways()
{
    if (!m_other_ways) {
        m_other_ways = new Hand_Over_Wnd(
            [this] {
                Send_Order order = Present_Order();
                const Plan_Manner manner = Manner_Of(order.choices, order.service_centre);
                return Hand_Over_Wnd::Plan{std::move(order), manner};
            },
            m_settings, m_window.Window());
        connect(m_other_ways, &Hand_Over_Wnd::Notice_Chosen, this, [this](bool is_wanted) {
            m_wants_notice = is_wanted;
            Show();
        });
    }
    m_other_ways->Bring_Up();
    if (m_is_notice_shown) {
        m_wants_notice = false;
        Show();
    }
}
