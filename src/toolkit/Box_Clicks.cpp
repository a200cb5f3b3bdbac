#include "toolkit/Box_Clicks.h"

#include <QAccessibleWidget>
#include <QCheckBox>
#include <QRadioButton>

namespace {

// The caption as it is read, without the mark of its key: a single "&".
QString Without_Mark(QString caption)
{
    for (qsizetype at = caption.indexOf(u'&'); at >= 0; at = caption.indexOf(u'&', at + 1))
        caption.remove(at, 1);
    return caption;
}

class Box_Interface : public QAccessibleWidget
{
public:
    Box_Interface(QAbstractButton& box, QAccessible::Role role) : QAccessibleWidget(&box, role), m_box(box) {}

    QString text(QAccessible::Text kind) const override
    {
        if (kind == QAccessible::Accelerator)
            return m_box.shortcut().toString(QKeySequence::NativeText);
        if (kind == QAccessible::Name && m_box.accessibleName().isEmpty())
            return Without_Mark(m_box.text()); // not what stands over the group that it is in
        return QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = m_box.isChecked();
        return state;
    }

    QStringList actionNames() const override
    {
        return m_box.isEnabled() ? QStringList{toggleAction(), setFocusAction()} : QStringList();
    }

    void doAction(const QString& action) override
    {
        if (action == toggleAction())
            m_box.animateClick(); // which returns at once, whatever the click opens
        else
            QAccessibleWidget::doAction(action);
    }

    QStringList keyBindingsForAction(const QString& action) const override
    {
        const QString key = text(QAccessible::Accelerator);
        return action == toggleAction() && !key.isEmpty() ? QStringList{key} : QStringList();
    }

private:
    QAbstractButton& m_box;
};

QAccessibleInterface* Interface_Of(const QString& /*class_name*/, QObject* object)
{
    if (auto* box = qobject_cast<QCheckBox*>(object))
        return new Box_Interface(*box, QAccessible::CheckBox);
    if (auto* button = qobject_cast<QRadioButton*>(object))
        return new Box_Interface(*button, QAccessible::RadioButton);
    return nullptr;
}

} // namespace

void Tick_Boxes_By_Clicks()
{
    QAccessible::installFactory(Interface_Of);
}
