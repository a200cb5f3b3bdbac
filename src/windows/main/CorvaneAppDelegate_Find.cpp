#include "engine/Outcome_Words.h"
#include "toolkit/Copy_Action.h"
#include "toolkit/Row_Finder.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/Main_Menu.h"
#include "windows/main/Recipient_Rows.h"
#include "windows/main/Send_Promise.h"

// Finding, sorting and copying recipients. None of it changes the list, or the order in which it is sent.

namespace {

Row_Source Source_Of(const Recipient_List& list, const Outcome_Codes& codes, int columns)
{
    return {list.Count(), columns, [list, codes](int column, int row) {
                if (column == 0)
                    return list.Numbers().At(row);
                return column == 1 ? list.Message_At(row) : Outcome_Words(codes.Outcome_Of(list.Mark_At(row)));
            }};
}

} // namespace

void CorvaneAppDelegate::Make_Finder()
{
    const auto take_source = [this] {
        return Source_Of(nsListDataObject, m_outcome_codes, m_recipient_rows->columnCount());
    };
    QTableView& table = *m_ui->idTableView;
    m_finder = std::make_unique<Row_Finder>(table, *m_recipient_rows, *m_ui->_Find_Strip, take_source);
    auto* edit = new QAction(Main_Menu::tr("&Edit ...") + QStringLiteral("\tF2"), &table);
    edit->setObjectName(QStringLiteral("Edit_Recipient"));
    connect(edit, &QAction::triggered, this, &CorvaneAppDelegate::doubleClickInTable);
    QAction* paste = table.actions().value(0);
    table.insertAction(paste, edit);
    table.insertAction(paste, new Copy_Action(table, take_source)); // the table owns it
}

// For a change in the list's place. Workers that hold it let go of it, lest all of it has to be copied.
void CorvaneAppDelegate::List_Will_Change()
{
    m_promise->List_Will_Change();
    m_finder->List_Will_Change();
}
