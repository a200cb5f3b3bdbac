#include "toolkit/Status_Label.h"

#include <QAccessibleWidget>

namespace {

class Status_Interface : public QAccessibleWidget
{
public:
    explicit Status_Interface(Status_Label& label) : QAccessibleWidget(&label, QAccessible::StatusBar), m_label(label)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? m_label.text() : QAccessibleWidget::text(kind);
    }

private:
    Status_Label& m_label;
};

QAccessibleInterface* Interface_Of(const QString& /*class_name*/, QObject* object)
{
    auto* label = qobject_cast<Status_Label*>(object);
    return label ? new Status_Interface(*label) : nullptr;
}

} // namespace

Status_Label::Status_Label(QWidget* parent) : QLabel(parent)
{
    QAccessible::installFactory(Interface_Of); // once: a second time changes nothing
}

void Status_Label::Say(const QString& text)
{
    setText({});
    setText(text); // which tells of a new name
}
