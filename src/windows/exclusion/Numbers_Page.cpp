#include "windows/exclusion/Numbers_Page.h"

#include "list/Exclusion_Rules.h"
#include "list/Number_File.h"
#include "list/Number_Judge.h"
#include "platform/Log_Line.h"
#include "platform/String_Helpers.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "texts/Texts.h"
#include "toolkit/Empty_List_Hint.h"
#include "toolkit/File_Panels.h"
#include "toolkit/Import_Strip.h"
#include "toolkit/List_Tables.h"
#include "ui_Exclusion_Wizard.h"
#include "windows/exclusion/Exclusion_Steps.h"
#include "windows/exclusion/Page_Work.h"
#include "windows/exclusion/Update_Ex_Num.h"

#include <QFileInfo>
#include <utility>

namespace {

constexpr int Reload_Count = 10;    // reaching exactly this many numbers reloads the table from the count itself
constexpr int Many_Numbers = 10000; // to let go of so many takes its time
const QString Key_Number = QStringLiteral("Exclusion_Num_List");

} // namespace

Numbers_Page::Numbers_Page(const Ui::Exclusion_Wizard& form, Page_Work& work, Exclusion_Steps& steps)
    : m_loadfile_edit(*form.m_loadfile_edit), m_loadnum_edit(*form.m_loadnum_edit), m_ex_num_list(*form.m_ex_num_list),
      m_st_num_count(*form.m_st_num_count), m_strip(*form.m_import_strip), m_work(work), m_steps(steps),
      m_rows(
          {{Key_Number, tr("Excluded number")}}, [this] { return Count(); },
          [this](const QString& identifier, int row) { return Value(identifier, row); }),
      Update_Excl_Num_Window(std::make_unique<Update_Ex_Num>(*this, m_ex_num_list.window()))
{
    Prepare_List_Table(m_ex_num_list, m_rows);
    auto* hint = new Empty_List_Hint(m_ex_num_list, QStringLiteral("First_Number_Here"));
    hint->Say(tr("No number is in this list yet. Type one above, or load a file of them."));
    hint->Hold_True(true);
    m_strip.Follow(m_ex_num_list);
    m_strip.Give_Letters();
}

Numbers_Page::~Numbers_Page() = default;

Row_Source Numbers_Page::Source() const
{
    return {Count(), 1, [numbers = m_ex_num_list_Data](int, int row) { return numbers.At(row); }};
}

QString Numbers_Page::Value(const QString& identifier, int row) const
{
    const bool is_there = identifier == Key_Number && row >= 0 && row < Count();
    return is_there ? m_ex_num_list_Data.At(row) : QString();
}

void Numbers_Page::Replace_Number(int row, const QString& number)
{
    if (row < 0 || row >= Count())
        return;
    Number_List numbers = m_ex_num_list_Data; // the table shows the present ones until these are whole
    m_work.Wait_For([&] { numbers.Replace(row, number); });
    std::swap(m_ex_num_list_Data, numbers);
    m_rows.Reload();
    m_work.Wait_For([&] { numbers = {}; });
}

void Numbers_Page::Create_Ex_Num_List(const QString& number)
{
    const QString trimmed_number = Trim_Str(number);
    if (trimmed_number.isEmpty())
        return;
    m_ex_num_list_Data.Append(trimmed_number);
    m_rows.Reload();
    Update_Exclusion_Num_Count();
}

void Numbers_Page::Update_Exclusion_Num_Count()
{
    Show_Count(Count());
    if (Count() == Reload_Count)
        m_rows.Reload();
}

void Numbers_Page::Show_Count(int count)
{
    m_st_num_count.setText(Texts::Total_Numbers + QString::number(count));
}

const QString& Numbers_Page::Read_Path()
{
    m_exlist_path_str = m_loadfile_edit.text();
    return m_exlist_path_str;
}

bool Numbers_Page::Tells_It_Is_Empty()
{
    if (Count() == 0)
        Tell_And_Focus(Texts::Exclusion::No_Numbers, m_ex_num_list);
    return Count() == 0;
}

// --------------------------------------------------------------------------------------------- whole lists of numbers

void Numbers_Page::Take(Number_List numbers)
{
    m_strip.Forget();
    std::swap(m_ex_num_list_Data, numbers);
    m_rows.Reload();
    Update_Exclusion_Num_Count();
    if (numbers.Count() > Many_Numbers)
        m_work.Wait_For([&] { numbers = {}; });
}

bool Numbers_Page::Open(const QString& list_name)
{
    const auto sheet = m_work.Sheet();
    Take({});
    Number_List numbers;
    m_work.Wait_For([&] { numbers = Exclusion_Files::Read_List(list_name); }, User_Input::Served);
    Take(std::move(numbers));
    Prev_Index = static_cast<unsigned>(Count());
    const QString& path = Read_Path();
    return !QFileInfo(path).isFile() || Fill_Numbers(path);
}

void Numbers_Page::Write(const QString& list_name, bool is_new)
{
    bool is_index_written = true;
    bool is_list_written = true;
    m_work.Wait_For([&] {
        if (is_new)
            Check_Path_And_Create_Files();
        if (!Exclusion_Files::Index_Exists())
            return;
        if (is_new)
            is_index_written = Exclusion_Files::Append_To_Index(list_name);
        is_list_written = Exclusion_Files::Write_List(list_name, m_ex_num_list_Data);
    });
    for (const bool is_written : {is_index_written, is_list_written}) {
        if (!is_written)
            Show_MessageBox(Texts::File_Error);
    }
}

// ---------------------------------------------------------------------------------------------------- what is pressed

void Numbers_Page::Browse_Btn()
{
    m_loadfile_edit.clear();
    if (const auto path = Ask_For_File_To_Open(m_loadfile_edit.window()))
        m_loadfile_edit.setText(*path);
}

void Numbers_Page::Load_File_Btn()
{
    const QString path = Read_Path();
    bool is_file = false;
    m_work.Wait_For([&] { is_file = QFileInfo(path).isFile(); }); // a pipe or a device would never end
    if (!is_file) {
        Tell_And_Focus(Texts::Exclusion::Not_A_File, m_loadfile_edit);
        return;
    }
    auto sheet = m_work.Sheet();
    Number_List numbers = m_ex_num_list_Data;
    Import_Report report;
    const auto show_progress = [this](int count) { Run_On_Interface_Thread([&] { Show_Count(count); }); };
    try {
        m_work.Wait_For(
            [&] { report = Exclusion_Rules::Add_Numbers_Of_Text(Text_Of_Number_File(path), numbers, show_progress); },
            User_Input::Served);
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QStringLiteral("A file of numbers was not loaded: ") +
                           QString::fromLocal8Bit(failure.what()));
        report = {}; // nothing of it is kept
        report.Set_End(Import_Report::End::Early);
    }
    if (report.Added() > 0)
        m_steps.Note_Unsaved_Numbers();
    else
        numbers = m_ex_num_list_Data;
    Take(std::move(numbers));
    sheet.reset();
    m_strip.Show_Report(report);
}

void Numbers_Page::Add_Number_Btn()
{
    m_ex_num_str = m_loadnum_edit.text();
    const auto judged = Judge_Number(m_ex_num_str, {&m_ex_num_list_Data, nullptr});
    if (judged.verdict != Number_Verdict::Accepted) {
        Tell_And_Focus(Refusal(judged.verdict), m_loadnum_edit);
        return;
    }
    m_steps.Note_Unsaved_Numbers();
    Create_Ex_Num_List(judged.number);
    m_loadnum_edit.clear();
    m_loadnum_edit.setFocus();
}

// The selected rows; none, after telling so, when there are no numbers or nothing is selected.
std::vector<int> Numbers_Page::Rows_To_Act_On()
{
    if (Tells_It_Is_Empty())
        return {};
    auto rows = Rows_Selected_In(m_ex_num_list);
    if (rows.empty())
        Tell_And_Focus(Texts::Exclusion::No_Number_Selected, m_ex_num_list);
    return rows;
}

void Numbers_Page::Update_Number_Btn()
{
    const auto rows = Rows_To_Act_On();
    if (rows.size() > 1)
        Tell_And_Focus(Texts::Select_Only_One, m_ex_num_list);
    else if (!rows.empty())
        OnGetSelected();
}

void Numbers_Page::OnGetSelected()
{
    const auto rows = Rows_Selected_In(m_ex_num_list);
    if (rows.empty())
        return;
    const int row = rows.front();
    if (Update_Excl_Num_Window->Edit(Trim_Str(m_ex_num_list_Data.At(row)), row) == 1)
        m_steps.Note_Unsaved_Numbers();
}

void Numbers_Page::Remove_Number_Btn()
{
    const auto rows = Rows_To_Act_On();
    if (rows.empty())
        return;
    const auto sheet = m_work.Sheet();
    Number_List numbers = m_ex_num_list_Data; // the table shows the present ones until these are whole
    m_work.Wait_For([&] { numbers.Remove_Rows(rows); }, User_Input::Served);
    std::swap(m_ex_num_list_Data, numbers);
    if (Count() == 0)
        m_strip.Forget();
    Reload_And_Select_First(m_ex_num_list, m_rows);
    Update_Exclusion_Num_Count();
    m_ex_num_list.setFocus();
    m_steps.Note_Unsaved_Applied(); // and not numbers: Back does not ask about numbers that were only removed
    m_work.Wait_For([&] { numbers = {}; }, User_Input::Served);
}
