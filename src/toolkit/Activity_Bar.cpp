#include "toolkit/Activity_Bar.h"

#include <QAccessibleWidget>

namespace {

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
