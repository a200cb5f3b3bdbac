#include "toolkit/Double_Clicks.h"

#include <QItemSelectionModel>
#include <QMouseEvent>
#include <QTableView>

namespace {

bool Holds_Several_Rows(const QItemSelection& selection)
{
    int first = -1;
    for (const auto& range : selection) {
        if (range.top() != range.bottom() || (first >= 0 && range.top() != first))
            return true;
        first = range.top();
    }
    return false;
}

} // namespace

Double_Clicks::Double_Clicks(QTableView& table) : QObject(&table), m_table(table)
{
    table.viewport()->installEventFilter(this);
}

bool Double_Clicks::eventFilter(QObject* viewport, QEvent* event)
{
    const auto is_left = [event] { return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton; };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        Remember_Selection();
        break;
    case QEvent::MouseButtonDblClick:
        if (!is_left())
            return true;
        m_keeps_several = Bring_Back_Selection();
        break;
    case QEvent::MouseButtonRelease:
        // The release of a double click would again reduce the selection.
        if (is_left() && std::exchange(m_keeps_several, false))
            return true;
        break;
    default:
        break;
    }
    return QObject::eventFilter(viewport, event);
}

void Double_Clicks::Remember_Selection()
{
    m_keeps_several = false;
    m_several = m_table.selectionModel()->selection();
    if (!Holds_Several_Rows(m_several))
        m_several.clear();
}

bool Double_Clicks::Bring_Back_Selection()
{
    if (m_several.isEmpty())
        return false;
    m_table.selectionModel()->select(std::exchange(m_several, {}), QItemSelectionModel::ClearAndSelect);
    return true;
}
