#include "windows/exclusion/Exclusion_Wizard.h"

#include "list/Exclusion_Rules.h"
#include "list/Number_File.h"
#include "list/Number_Judge.h"
#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/String_Helpers.h"
#include "records/Exclusion_Files.h"
#include "texts/Texts.h"
#include "toolkit/File_Panels.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Window_Work.h"
#include "ui_Exclusion_Wizard.h"
#include "windows/exclusion/Update_Ex_Num.h"

#include <QFileInfo>
#include <utility>

// The numbers of the list that is being made or edited.

namespace {

constexpr int Reload_Count = 10;    // reaching exactly this many numbers reloads the table from the count itself
constexpr int Many_Numbers = 10000; // to let go of so many takes its time

} // namespace

void Exclusion_Wizard::Show_Number_Count(int count)
{
    m_ui->m_st_num_count->setText(Texts::Total_Numbers + QString::number(count));
}

void Exclusion_Wizard::Update_Exclusion_Num_Count()
{
    Show_Number_Count(m_ex_num_list_Data.Count());
    if (m_ex_num_list_Data.Count() == Reload_Count)
        m_number_rows->Reload();
}

// Puts other numbers in the place of the present ones.
void Exclusion_Wizard::Take_Numbers(Number_List numbers)
{
    std::swap(m_ex_num_list_Data, numbers);
    m_number_rows->Reload();
    Update_Exclusion_Num_Count();
    if (numbers.Count() > Many_Numbers)
        Work_On_Worker([&] { numbers = {}; });
}

void Exclusion_Wizard::Create_Ex_Num_List(const QString& number)
{
    const QString trimmed_number = Trim_Str(number);
    if (trimmed_number.isEmpty())
        return;
    m_ex_num_list_Data.Append(trimmed_number);
    m_number_rows->Reload();
    Update_Exclusion_Num_Count();
}

bool Exclusion_Wizard::Skip_Duplicate_Number(const QString& number) const
{
    return m_ex_num_list_Data.Contains(number);
}

void Exclusion_Wizard::Replace_Number(int row, const QString& number)
{
    if (row < 0 || row >= m_ex_num_list_Data.Count())
        return;
    Number_List numbers = m_ex_num_list_Data; // the table shows the present ones until these are whole
    Work_On_Worker([&] { numbers.Replace(row, number); });
    std::swap(m_ex_num_list_Data, numbers);
    m_number_rows->Reload();
    Work_On_Worker([&] { numbers = {}; });
}

void Exclusion_Wizard::Continue_With_Edited_List()
{
    m_exlist_name_str = Typed_Name();
    {
        const auto sheet = m_work->Sheet();
        Take_Numbers({});
        Number_List numbers;
        Work_On_Worker([&] { numbers = Exclusion_Files::Read_List(m_exlist_name_str); }, Under::The_Sheet);
        Take_Numbers(std::move(numbers));
        Prev_Index = static_cast<unsigned>(m_ex_num_list_Data.Count());
        m_exlist_path_str = m_ui->m_loadfile_edit->text();
        if (QFileInfo(m_exlist_path_str).isFile() && !Fill_Numbers(m_exlist_path_str))
            return;
    }
    m_steps.Show_Edited_Numbers();
    Show_Numbers_Screen();
    m_ui->m_ex_num_list->scrollToTop();
}

bool Exclusion_Wizard::Fill_Numbers(const QString& /*path*/)
{
    return true;
}

void Exclusion_Wizard::Fill_Ex_List_Thread()
{
    Fill_Numbers(ex_file_Path);
    Run_On_Interface_Thread([this] { m_ui->m_ex_num_list->viewport()->update(); });
}

void Exclusion_Wizard::Browse_Btn()
{
    m_ui->m_loadfile_edit->clear();
    if (const auto path = Ask_For_File_To_Open(this))
        m_ui->m_loadfile_edit->setText(*path);
}

void Exclusion_Wizard::Load_File_Btn()
{
    m_exlist_path_str = m_ui->m_loadfile_edit->text();
    bool is_file = false;
    Work_On_Worker([&] { is_file = QFileInfo(m_exlist_path_str).isFile(); }); // a pipe or a device would never end
    if (!is_file) {
        Tell_And_Focus(Texts::Exclusion::Not_A_File, *m_ui->m_loadfile_edit);
        return;
    }
    const auto sheet = m_work->Sheet();
    Number_List numbers = m_ex_num_list_Data;
    int added = 0;
    const auto show_progress = [this](int count) { Run_On_Interface_Thread([&] { Show_Number_Count(count); }); };
    try {
        Work_On_Worker(
            [&] {
                added = Exclusion_Rules::Add_Numbers_Of_Text(Text_Of_Number_File(m_exlist_path_str), numbers,
                                                             show_progress);
            },
            Under::The_Sheet);
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QStringLiteral("A file of numbers was not loaded: ") +
                           QString::fromLocal8Bit(failure.what()));
        added = 0;
    }
    if (added > 0)
        m_steps.back_flag = true;
    else
        numbers = m_ex_num_list_Data;
    Take_Numbers(std::move(numbers));
}

void Exclusion_Wizard::Add_Number_Btn()
{
    m_ex_num_str = m_ui->m_loadnum_edit->text();
    const auto judged = Judge_Number(m_ex_num_str, {&m_ex_num_list_Data, nullptr});
    switch (judged.verdict) {
    case Number_Verdict::Not_Valid:
        Tell_And_Focus(Texts::Not_A_Number, *m_ui->m_loadnum_edit);
        break;
    case Number_Verdict::Repeated:
        Tell_And_Focus(Texts::Number_Exists, *m_ui->m_loadnum_edit);
        break;
    case Number_Verdict::Accepted:
        m_steps.back_flag = true;
        Create_Ex_Num_List(judged.number);
        m_ui->m_loadnum_edit->clear();
        m_ui->m_loadnum_edit->setFocus();
        break;
    case Number_Verdict::Excluded: // by what is applied: it may join a list all the same, and is not asked for
        break;
    }
}

// The selected rows of the numbers; none, after telling so, when there are none or nothing is selected.
std::vector<int> Exclusion_Wizard::Selected_Numbers()
{
    if (m_ex_num_list_Data.Count() == 0) {
        Tell_And_Focus(Texts::Exclusion::No_Numbers, *m_ui->m_ex_num_list);
        return {};
    }
    auto rows = Rows_Selected_In(*m_ui->m_ex_num_list);
    if (rows.empty())
        Tell_And_Focus(Texts::Exclusion::No_Number_Selected, *m_ui->m_ex_num_list);
    return rows;
}

void Exclusion_Wizard::Update_Number_Btn()
{
    const auto rows = Selected_Numbers();
    if (rows.size() > 1)
        Tell_And_Focus(Texts::Select_Only_One, *m_ui->m_ex_num_list);
    else if (!rows.empty())
        OnGetSelected();
}

void Exclusion_Wizard::OnGetSelected()
{
    const auto rows = Rows_Selected_In(*m_ui->m_ex_num_list);
    if (rows.empty())
        return;
    const int row = rows.front();
    if (Update_Excl_Num_Window->Edit(Trim_Str(m_ex_num_list_Data.At(row)), row) == 1)
        m_steps.back_flag = true;
}

void Exclusion_Wizard::Remove_Number_Btn()
{
    const auto rows = Selected_Numbers();
    if (rows.empty())
        return;
    const auto sheet = m_work->Sheet();
    Number_List numbers = m_ex_num_list_Data; // the table shows the present ones until these are whole
    Work_On_Worker([&] { numbers.Remove_Rows(rows); }, Under::The_Sheet);
    std::swap(m_ex_num_list_Data, numbers);
    Reload_And_Select_First(*m_ui->m_ex_num_list, *m_number_rows);
    Update_Exclusion_Num_Count();
    m_ui->m_ex_num_list->setFocus();
    m_steps.update_app_ex = true; // and not back_flag: Back does not ask about numbers that were only removed
    Work_On_Worker([&] { numbers = {}; }, Under::The_Sheet);
}
