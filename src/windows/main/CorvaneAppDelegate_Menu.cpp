#include "records/Data_Paths.h"
#include "toolkit/Row_Finder.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/Main_Menu.h"
#include "windows/main/Remembered_List.h"
#include "windows/main/Undo_Strip.h"

#include <QFileInfo>
#include <QMenu>

// What can be done in the main window by a menu, and by keys.

namespace {

QList<QKeySequence> Keys(QKeyCombination key)
{
    return {QKeySequence(key)};
}

} // namespace

void CorvaneAppDelegate::Make_Menu()
{
    auto& menu = *new Main_Menu(*m_ui->_Menu_Btn); // the button owns it
    menu.Begin(Main_Menu::tr("&List"));
    menu.Add(*m_ui->Add_Number);
    menu.Add(*m_ui->Load_Number, Keys(Qt::CTRL | Qt::Key_O));
    menu.Add(*m_ui->Import_Contacts, Keys(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    menu.Add(*m_ui->Export_Btn);
    menu.Add(m_finder->Find_Action());
    menu.Add(*m_finder->Orders().menuAction());
    menu.Add(m_ui->_Undo_Strip->Action());
    QAction& clear_selected = menu.Add(*m_ui->Clear_Sel_Btn);
    menu.Add(*m_ui->Clear_All_Btn);
    menu.Add(*m_ui->Select_Not_Taken);
    menu.Add(*m_ui->Keep_Not_Taken);
    const QString list_path = QFileInfo(Settings_Path).path() + QStringLiteral("/LastList.csv");
    auto* remembered = new Remembered_List({*this, *m_work, *m_ui->_Import_Strip}, Settings_File(Settings_Path),
                                           list_path); // the window owns it
    menu.Add(remembered->Choice());
    menu.Begin(Main_Menu::tr("&Message"));
    menu.Add(*m_ui->Fill_Msg_Btn);
    menu.Add(*m_ui->Update_Sel_Msgs_Btn);
    menu.Add(*m_ui->View_Templates_Btn);
    menu.Begin(Main_Menu::tr("&Sending"));
    menu.Add(*m_ui->Search_All_Modem);
    menu.Add(*m_ui->View_ExclusionWizrd_Btn);
    menu.Add(*m_ui->Check_List);
    menu.Add(*m_ui->Other_Ways_Btn);
    menu.Add(*m_ui->_sent_btn, {Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter});
    menu.Begin(Main_Menu::tr("&What was sent"));
    menu.Add(*m_ui->Show_Receipt);
    menu.Add(*m_ui->View_Receipts_Btn);
    menu.Add(*m_ui->Sent_Item_Btn);
    menu.End();
    menu.Add(*m_ui->Reset_Btn);
    menu.Add(*m_ui->Help_Btn, Keys(Qt::Key_F1));
    menu.Add(*m_ui->Exit_Btn, Keys(Qt::CTRL | Qt::Key_Q));
    m_ui->idTableView->addActions({&clear_selected, &m_finder->Find_Action(), m_finder->Orders().menuAction()});
}
