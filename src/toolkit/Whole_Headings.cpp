#include "toolkit/Whole_Headings.h"

#include "toolkit/Whole_Text_Delegate.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QTableView>
#include <QToolTip>

Whole_Headings::Whole_Headings(QTableView& table) : QObject(&table), m_table(table)
{
    table.horizontalHeader()->setTextElideMode(Qt::ElideRight);
    table.horizontalHeader()->viewport()->installEventFilter(this);
}

bool Whole_Headings::eventFilter(QObject* /*headings*/, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return false;
    const auto& help = static_cast<const QHelpEvent&>(*event);
    QHeaderView& headings = *m_table.horizontalHeader();
    const int column = headings.logicalIndexAt(help.pos());
    const bool is_cut = column >= 0 && headings.sectionSize(column) < headings.sectionSizeHint(column);
    const QString words = m_table.model()->headerData(column, Qt::Horizontal).toString();
    QToolTip::showText(help.globalPos(), is_cut ? Tool_Tip_Of(words) : QString(), headings.viewport());
    return true;
}
