#include "toolkit/Copy_Action.h"

#include "list/Row_Text.h"
#include "platform/Interface_Thread.h"
#include "toolkit/List_Tables.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>
#include <utility>

Copy_Action::Copy_Action(QTableView& table, std::function<Row_Source()> take_source)
    : QAction(tr("&Copy"), &table), m_table(table), m_take_source(std::move(take_source))
{
    setObjectName(QStringLiteral("Copy_Rows"));
    setShortcuts(QKeySequence::Copy);
    setShortcutContext(Qt::WidgetShortcut);
    setAutoRepeat(false);
    connect(this, &QAction::triggered, this, &Copy_Action::Copy);
}

void Copy_Action::Copy()
{
    const std::vector<int> rows = Rows_Selected_As_Shown(m_table);
    if (rows.empty())
        return;
    QString text;
    Run_On_Worker([&, source = m_take_source()] { text = Rows_As_Text(source, rows); });
    QGuiApplication::clipboard()->setText(text);
}
