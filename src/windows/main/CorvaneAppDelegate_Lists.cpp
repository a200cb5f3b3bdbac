#include "list/Number_Import.h"
#include "list/Number_Judge.h"
#include "list/Number_Rules.h"
#include "platform/Interface_Thread.h"
#include "platform/String_Helpers.h"
#include "texts/Texts.h"
#include "toolkit/Line_Edit_Limit.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Row_Finder.h"
#include "toolkit/Window_Work.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/list/Handset_Bubble.h"
#include "windows/list/List_Dialogs.h"
#include "windows/main/Composer.h"
#include "windows/main/Contact_Desk.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/List_Arrivals.h"
#include "windows/main/List_Cells.h"
#include "windows/main/Recipient_Rows.h"
#include "windows/main/Send_Promise.h"
#include "windows/main/Undo_Strip.h"

#include <utility>

// The recipient list and the number rules: what fills the list and changes it.

namespace {

// Reaching exactly this many recipients makes the counter itself redraw the table.
constexpr int Redisplay_Count = Number_Import::First_Shown;

// Releasing a million recipients takes time, like everything that is done with each of them.
void Let_Go_Of(Recipient_List& list)
{
    Run_On_Worker([&] { list.Clear(); });
}

} // namespace

void CorvaneAppDelegate::Create_Num_Msg_List(const QString& number, const QString& message_val)
{
    const QString trimmed_number = Trim_Str(number);
    if (trimmed_number.isEmpty())
        return;
    List_Will_Change();
    nsListDataObject.Append(trimmed_number, message_val);
    Recipient_Changed(nsListDataObject.Count() - 1);
    Update_List_Count();
    Remember_Composer_Text();
}

// The first composer text that an item was made with is remembered; later ones do not replace it here.
void CorvaneAppDelegate::Remember_Composer_Text()
{
    if (prev_composer_msg.isEmpty())
        prev_composer_msg = m_composer->Text();
}

bool CorvaneAppDelegate::Check_Ph_Number(const QString& number, bool test_flag) const
{
    return Number_Rules::Check_Ph_Number(number, test_flag);
}

Number_Terms CorvaneAppDelegate::Terms_For_New_Numbers() const
{
    return {m_ui->_Skip_Duplicate_Chk->isChecked() ? &nsListDataObject.Numbers() : nullptr,
            m_ui->_Exclusion_Chk->isChecked() ? &nsExclusionListDataObject : nullptr};
}

QString CorvaneAppDelegate::Num_Able_To_insert(const QString& number) const
{
    const auto judged = Judge_Number(number, Terms_For_New_Numbers());
    return judged.verdict == Number_Verdict::Accepted ? judged.number : QString();
}

bool CorvaneAppDelegate::Check_Duplicate_Number(const QString& number) const
{
    return nsListDataObject.Numbers().Contains(number);
}

void CorvaneAppDelegate::Update_List_Count()
{
    Show_List_Count(nsListDataObject.Count());
    m_ui->_Bubble->Look_Again();
    if (nsListDataObject.Count() == Redisplay_Count)
        Redisplay_Recipients();
}

void CorvaneAppDelegate::Show_List_Count(int count)
{
    m_ui->_gsm_list_count->setText(Texts::Total_Numbers + QString::number(count));
    m_contacts->List_Changed();
}

bool CorvaneAppDelegate::Blank_Msg_Chk() const
{
    for (int index = 0; index < nsListDataObject.Count(); ++index) {
        if (!nsListDataObject.Message_At(index).isEmpty())
            return false;
    }
    return m_composer->Text().isEmpty();
}

int CorvaneAppDelegate::numberOfRowsInTableView(const QTableView* table) const
{
    return table == m_ui->idTableView ? nsListDataObject.Count() : nsExclusionListDataObject.Count();
}

QString CorvaneAppDelegate::tableView(const QTableView* table, const QString& objectValueForTableColumn, int row) const
{
    try {
        if (table == m_ui->idTableView)
            return Recipient_Cell(nsListDataObject, objectValueForTableColumn, row);
        return Exclusion_Cell(nsExclusionListDataObject, objectValueForTableColumn, row);
    } catch (const Invalid_Parameter&) {
        return {};
    }
}

void CorvaneAppDelegate::Add_Number()
{
    const auto judged = Judge_Number(m_ui->_numberEdit->text(), Terms_For_New_Numbers());
    if (judged.verdict != Number_Verdict::Accepted) {
        Tell_And_Focus(Refusal(judged.verdict), Field::Number);
        return;
    }
    Create_Num_Msg_List(judged.number, m_composer->Text());
    Redisplay_Recipients();
    m_ui->_numberEdit->clear();
    Focus(Field::Number);
}

void CorvaneAppDelegate::Clear_Sel_Btn()
{
    if (nsListDataObject.Count() == 0) {
        Tell_And_Focus(Texts::Main::List_Empty, Field::Recipient_Table);
        return;
    }
    const auto rows = Selected_Recipient_Rows();
    if (rows.empty()) {
        Tell_And_Focus(Texts::Main::None_Selected, Field::Recipient_Table);
        return;
    }
    Remove_Recipients([&](Recipient_List& list) { list.Remove_Rows(rows); });
    if (nsListDataObject.Count() == 0) {
        m_ui->_numberEdit->clear();
        Focus(Field::Number);
    }
}

void CorvaneAppDelegate::Remove_Recipients(const std::function<void(Recipient_List&)>& remove)
{
    const auto sheet = m_work->Sheet();
    Recipient_List list = nsListDataObject; // the table shows the present list until this one is complete
    Run_On_Worker([&] { remove(list); });
    list = Exchange_List(std::move(list));
    Reload_And_Select_First(*m_ui->idTableView, *m_recipient_rows);
    Update_List_Count();
    Offer_Undo(std::move(list));
}

// Every change of the list as a whole, which hands the present one back.
Recipient_List CorvaneAppDelegate::Exchange_List(Recipient_List list)
{
    m_finder->List_Will_Change();
    std::swap(nsListDataObject, list);
    if (nsListDataObject.Count() == 0)
        m_arrivals->Forget();
    m_promise->Changed();
    m_ui->_Undo_Strip->Forget(); // what was removed belongs to another list than this one
    Forget_Outcomes_Of_Job();
    Look_For_Not_Taken();
    return list;
}

Recipient_List CorvaneAppDelegate::Remove_All_Recipients()
{
    Recipient_List list = Exchange_List();
    Redisplay_Recipients();
    Update_List_Count();
    return list;
}

void CorvaneAppDelegate::Clear_All_Btn()
{
    if (nsListDataObject.Count() == 0) {
        Show_MessageBox(Texts::Main::List_Empty);
        return;
    }
    if (!Show_YES_NO_MessageBox(Texts::Clear_All))
        return;
    const auto sheet = m_work->Sheet();
    Offer_Undo(Remove_All_Recipients());
    m_ui->_numberEdit->clear();
    Focus(Field::Number);
}

void CorvaneAppDelegate::doubleClickInTable()
{
    const auto rows = Selected_Recipient_Rows();
    if (rows.size() > 1)
        Show_MessageBox(Texts::Select_Only_One);
    else if (!rows.empty())
        OnGetSelected();
}

void CorvaneAppDelegate::OnGetSelected()
{
    const auto rows = Selected_Recipient_Rows();
    if (rows.empty())
        return;
    Open_Edit_Dialog(*this, rows.front());
    if (!m_ui->_Exclusion_Chk->isChecked())
        Show_Exclusion_Trouble({}); // the dialog's own box may have caused a notice
}

void CorvaneAppDelegate::Fill_Msg_Btn()
{
    Open_Fill_Dialog(*this);
}

void CorvaneAppDelegate::Update_Sel_Msgs_Btn()
{
    Open_Update_Selected(*this);
}

std::vector<int> CorvaneAppDelegate::Selected_Recipient_Rows() const
{
    return Rows_Selected_In(*m_ui->idTableView);
}

void CorvaneAppDelegate::Replace_Recipients(Recipient_List recipients)
{
    recipients = Exchange_List(std::move(recipients));
    Redisplay_Recipients();
    Update_List_Count();
    Let_Go_Of(recipients);
}

void CorvaneAppDelegate::Replace_Recipient(int row, const QString& number, const QString& message)
{
    List_Will_Change();
    nsListDataObject.Replace(row, number, message);
    Recipient_Changed(row);
    Redisplay_Recipients();
}

void CorvaneAppDelegate::Redisplay_Recipients()
{
    m_recipient_rows->Reload();
}

void CorvaneAppDelegate::controlTextDidChange()
{
    Cut_Line(*m_ui->_numberEdit, Number_Rules::Longest_Number);
}
