#include "toolkit/Named_Combo_Box.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QLineEdit>

namespace {

// The box with its two parts, the choices and the field, as the toolkit describes them, and with its name.
class Named_Box_Interface : public QAccessibleWidget
{
public:
    explicit Named_Box_Interface(Named_Combo_Box& box) : QAccessibleWidget(&box, QAccessible::ComboBox), m_box(box) {}

    int childCount() const override { return m_box.isEditable() ? 2 : 1; }

    QAccessibleInterface* child(int index) const override
    {
        switch (index) {
        case 0:
            return QAccessible::queryAccessibleInterface(m_box.view());
        case 1:
            return QAccessible::queryAccessibleInterface(m_box.lineEdit());
        default:
            return nullptr;
        }
    }

    int indexOfChild(const QAccessibleInterface* part) const override
    {
        if (part && part->object() == m_box.view())
            return 0;
        return part && part->object() == m_box.lineEdit() ? 1 : -1;
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_box.currentText() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override { return {showMenuAction(), setFocusAction()}; }

    void doAction(const QString& action) override
    {
        if (action == showMenuAction())
            m_box.showPopup();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    Named_Combo_Box& m_box;
};

QAccessibleInterface* Interface_Of(const QString& /*class_name*/, QObject* object)
{
    auto* box = qobject_cast<Named_Combo_Box*>(object);
    return box ? new Named_Box_Interface(*box) : nullptr;
}

} // namespace

Named_Combo_Box::Named_Combo_Box(QWidget* parent) : QComboBox(parent)
{
    QAccessible::installFactory(Interface_Of); // once: a second time changes nothing
}
