#include "toolkit/Activity_Bar.h"

#include <QAccessibleWidget>

namespace {

constexpr int Steps_Of_A_Round = 50;
constexpr int Step_Milliseconds = 40;

// Without the value interface that every progress bar has.
class Busy_Interface : public QAccessibleWidget
{
public:
    explicit Busy_Interface(Activity_Bar& bar) : QAccessibleWidget(&bar, QAccessible::Animation) {}

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = true;
        return state;
    }
};

QAccessibleInterface* Interface_Of(const QString& /*class_name*/, QObject* object)
{
    auto* bar = qobject_cast<Activity_Bar*>(object);
    return bar ? new Busy_Interface(*bar) : nullptr;
}

} // namespace

Activity_Bar::Activity_Bar(QWidget* parent) : QProgressBar(parent)
{
    QAccessible::installFactory(Interface_Of); // once: a second time changes nothing
}

double Activity_Bar::Round_Done() const
{
    return static_cast<double>(m_step) / Steps_Of_A_Round;
}

// It runs only where it is seen.
void Activity_Bar::paintEvent(QPaintEvent* event)
{
    if (maximum() == minimum() && !m_pace.isActive())
        m_pace.start(Step_Milliseconds, this);
    QProgressBar::paintEvent(event);
}

void Activity_Bar::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_pace.timerId()) {
        QProgressBar::timerEvent(event);
        return;
    }
    if (maximum() != minimum() || !isVisible()) {
        m_pace.stop();
        return;
    }
    m_step = (m_step + 1) % Steps_Of_A_Round;
    update();
}
