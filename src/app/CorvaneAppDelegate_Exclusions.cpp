#include "app/CorvaneAppDelegate.h"
#include "app/Exclusion_Trouble.h"
#include "app/basics/String_Helpers.h"
#include "exclusion/Exclusion_Files.h"
#include "platform/Interface_Thread.h"
#include "platform/Row_Table_Model.h"
#include "ui_CorvaneAppDelegate.h"

#include <utility>

// The exclusion set: what the applied lists hold, and what is told of those that can not be used.

bool CorvaneAppDelegate::Check_Exclusion_Number(const QString& number) const
{
    return nsExclusionListDataObject.Count_Of(number) > 0;
}

void CorvaneAppDelegate::Create_Exclusion_List(const QString& number)
{
    const QString trimmed_number = Trim_Str(number);
    if (trimmed_number.isEmpty())
        return;
    nsExclusionListDataObject.Append(trimmed_number);
    m_exclusion_rows->Reload();
}

void CorvaneAppDelegate::Exclusion_Chk()
{
    m_ui->idExclusionTableView->setVisible(m_ui->_Exclusion_Chk->isChecked());
    Show_Exclusion_Trouble({});
    if (m_ui->_Exclusion_Chk->isChecked())
        Fill_Exclusion_Num_List();
}

void CorvaneAppDelegate::Fill_Exclusion_Num_List()
{
    if (!m_ui->_Exclusion_Chk->isChecked())
        return;
    Exclusion_Set exclusions = Read_Applied_Exclusions(); // the table shows the present ones until these are whole
    std::swap(nsExclusionListDataObject, exclusions);
    m_exclusion_rows->Reload();
    Run_On_Worker([&] { exclusions.Clear(); });
}

Exclusion_Set CorvaneAppDelegate::Read_Applied_Exclusions()
{
    Check_Path_And_Create_Files();
    Exclusion_Files::Applied_Numbers applied;
    Run_On_Worker([&] { applied = Exclusion_Files::Read_Applied_Numbers(); });
    Show_Exclusion_Trouble(Exclusion_Trouble(applied));
    return std::move(applied.numbers);
}

// A line for as long as there is something to say.
void CorvaneAppDelegate::Show_Exclusion_Trouble(const QString& text)
{
    m_ui->_Exclusion_Trouble->setText(text);
    m_ui->_Exclusion_Trouble->setVisible(!text.isEmpty());
}
