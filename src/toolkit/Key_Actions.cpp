#include "toolkit/Key_Actions.h"

#include <QApplication>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QTableView>
#include <algorithm>
#include <utility>

namespace {

bool Is_Alone(const QKeyEvent& key)
{
    return (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

// Belongs to the control whose keys it watches; while one of them is held down, it watches the whole program.
class Key_Action : public QObject
{
public:
    Key_Action(QWidget& control, QList<int> keys, std::function<void()> action)
        : QObject(&control), m_control(control), m_keys(std::move(keys)), m_action(std::move(action))
    {
        control.installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
            return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        if (m_held_key != No_Key)
            return Is_Repeated(key);
        if (watched != &m_control || key.type() != QEvent::KeyPress || !m_keys.contains(key.key()) || !Is_Alone(key))
            return false;
        if (!key.isAutoRepeat()) {
            m_held_key = key.key();
            qApp->installEventFilter(this);
            m_action();
        }
        return true;
    }

private:
    static constexpr int No_Key = 0;

    bool Is_Repeated(const QKeyEvent& key)
    {
        if (key.isAutoRepeat())
            return key.key() == m_held_key;
        if (key.type() == QEvent::KeyPress || key.key() == m_held_key) {
            m_held_key = No_Key;
            qApp->removeEventFilter(this);
        }
        return false;
    }

    QWidget& m_control;
    const QList<int> m_keys;
    const std::function<void()> m_action;
    int m_held_key = No_Key;
};

class Repeat_Drop : public QObject
{
public:
    Repeat_Drop() : QObject(qApp) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
            return false;
        if (static_cast<const QKeyEvent&>(*event).isAutoRepeat())
            return true;
        qApp->removeEventFilter(this);
        deleteLater();
        return false;
    }
};

// The table itself moves from its current row to another and selects that. The first row, which is current when the
// table gets the focus, would be skipped, and an only row could never be selected.
class First_Selection : public QObject
{
public:
    explicit First_Selection(QTableView& table) : QObject(&table), m_table(table) { table.installEventFilter(this); }

    bool eventFilter(QObject* /*table*/, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress || m_table.selectionModel()->hasSelection())
            return false;
        const auto& key = static_cast<const QKeyEvent&>(*event);
        const int last_row = m_table.model()->rowCount() - 1;
        if (last_row < 0 || !Is_Alone(key))
            return false;
        switch (key.key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            m_table.selectRow(std::max(0, m_table.currentIndex().row()));
            return true;
        case Qt::Key_Home:
            m_table.selectRow(0);
            return true;
        case Qt::Key_End:
            m_table.selectRow(last_row);
            return true;
        default:
            return false;
        }
    }

private:
    QTableView& m_table;
};

} // namespace

void Act_On_Keys(QWidget& control, const QList<int>& keys, std::function<void()> action)
{
    new Key_Action(control, keys, std::move(action)); // the control owns it
}

void Drop_Repeats()
{
    new Repeat_Drop; // the application owns it until it is over
}

void Give_Table_Keys(QTableView& table, const Table_Actions& actions)
{
    if (actions.edit)
        Act_On_Keys(table, QList<int>{Qt::Key_F2} + Return_Keys, actions.edit);
    if (actions.remove)
        Act_On_Keys(table, {Qt::Key_Delete}, actions.remove);
    new First_Selection(table); // the table owns it
}
