#include "platform/Interface_Thread.h"
#include "platform/String_Helpers.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "records/Exclusion_Trouble.h"
#include "toolkit/Row_Table_Model.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/Send_Promise.h"

#include <utility>

// The exclusion set: what the applied lists hold, and the notice about lists that cannot be used.

bool CorvaneAppDelegate::Check_Exclusion_Number(const QString& number) const
{
    return nsExclusionListDataObject.Contains(number);
}

void CorvaneAppDelegate::Create_Exclusion_List(const QString& number)
{
    const QString trimmed_number = Trim_Str(number);
    if (trimmed_number.isEmpty())
        return;
    m_promise->List_Will_Change();
    nsExclusionListDataObject.Append(trimmed_number);
    m_promise->Changed();
    m_exclusion_rows->Reload();
}

void CorvaneAppDelegate::Exclusion_Chk()
{
    m_ui->idExclusionTableView->setVisible(m_ui->_Exclusion_Chk->isChecked());
    Show_Exclusion_Trouble({});
    if (m_ui->_Exclusion_Chk->isChecked())
        Fill_Exclusion_Num_List();
}

namespace {

// Read while the interface thread keeps serving.
Exclusion_Files::Applied_Numbers Applied_Numbers_Of_Files()
{
    Check_Path_And_Create_Files();
    Exclusion_Files::Applied_Numbers applied;
    Run_On_Worker([&] { applied = Exclusion_Files::Read_Applied_Numbers(); });
    return applied;
}

} // namespace

void CorvaneAppDelegate::Fill_Exclusion_Num_List()
{
    if (m_ui->_Exclusion_Chk->isChecked())
        Take_Exclusions(Applied_Numbers_Of_Files()); // the table shows the old ones until these are complete
}

void CorvaneAppDelegate::Take_Exclusions(const Exclusion_Files::Applied_Numbers& applied)
{
    Number_List before = std::exchange(nsExclusionListDataObject, applied.numbers);
    m_promise->Changed();
    m_exclusion_rows->Reload();
    Show_Exclusion_Trouble(Exclusion_Trouble(applied));
    Run_On_Worker([&] { before.Clear(); }); // maybe a million
}

Number_List CorvaneAppDelegate::Read_Applied_Exclusions()
{
    const auto applied = Applied_Numbers_Of_Files();
    Show_Exclusion_Trouble(Exclusion_Trouble(applied));
    return applied.numbers;
}

// A line that is visible only while there is something to say.
void CorvaneAppDelegate::Show_Exclusion_Trouble(const QString& text)
{
    m_ui->_Exclusion_Trouble->setText(text);
    m_ui->_Exclusion_Trouble->setVisible(!text.isEmpty());
}
