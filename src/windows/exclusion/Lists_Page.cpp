#include "windows/exclusion/Lists_Page.h"

#include "list/Exclusion_Rules.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "texts/Texts.h"
#include "windows/exclusion/Exclusion_Steps.h"

Lists_Page::Lists_Page(QTableView& available, QTableView& applied, Page_Work& work, Exclusion_Steps& steps)
    : m_work(work), m_steps(steps),
      m_exclusion_list_Data(available, {QStringLiteral("Avail_List"), tr("Available exclusion lists")},
                            {Texts::Exclusion::None_Available, Texts::Exclusion::None_Available_Selected}),
      m_applied_axclusion_list_Data(applied, {QStringLiteral("Exclude_List"), tr("Exclude when sending SMS")},
                                    {Texts::Exclusion::None_Applied, Texts::Exclusion::None_Applied_Selected})
{
    m_exclusion_list_Data.Hint().Say(tr("There is no exclusion list yet."), tr("Make the first list ..."));
    m_applied_axclusion_list_Data.Hint().Say(tr("No list is applied, so nobody is left out."));
}

void Lists_Page::Take(const QStringList& available, const QStringList& applied)
{
    m_exclusion_list_Data.Take(available);
    m_applied_axclusion_list_Data.Take(applied);
}

const Names_Table& Lists_Page::Names_In(const QTableView* table) const
{
    return table == &m_exclusion_list_Data.Table() ? m_exclusion_list_Data : m_applied_axclusion_list_Data;
}

void Lists_Page::Add_List_Btn()
{
    const auto rows = m_exclusion_list_Data.Rows_To_Act_On();
    if (!rows.empty())
        Apply(Exclusion_Rules::Names_At(Available_Names(), rows), Texts::Exclusion::Selected_In_Use);
}

void Lists_Page::Add_All_List_Btn()
{
    if (!m_exclusion_list_Data.Tells_It_Is_Empty())
        Apply(Available_Names(), Texts::Exclusion::All_In_Use);
}

void Lists_Page::Apply(const QStringList& chosen, const QString& none_left)
{
    const auto names = Exclusion_Rules::Not_Yet_Applied(chosen, m_applied_axclusion_list_Data.Names());
    if (names.isEmpty()) {
        m_exclusion_list_Data.Tell(none_left);
        return;
    }
    m_applied_axclusion_list_Data.Append(names);
    m_steps.Note_Unsaved_Applied();
}

void Lists_Page::Remove_List_Btn()
{
    const auto rows = m_applied_axclusion_list_Data.Rows_To_Act_On();
    if (rows.empty())
        return;
    m_applied_axclusion_list_Data.Remove(rows);
    m_steps.Note_Unsaved_Applied();
    m_applied_axclusion_list_Data.Table().setFocus();
}

void Lists_Page::Remove_All_List_Btn()
{
    if (m_applied_axclusion_list_Data.Tells_It_Is_Empty())
        return;
    m_applied_axclusion_list_Data.Take({});
    m_steps.Note_Unsaved_Applied();
}

void Lists_Page::Save_Applied_Btn()
{
    if (Show_YES_NO_MessageBox(Texts::Exclusion::Ask_To_Continue))
        Save_Applied_List();
}

void Lists_Page::Save_Applied_List()
{
    bool is_written = false;
    m_work.Wait_For([&] { is_written = Exclusion_Files::Write_Applied(m_applied_axclusion_list_Data.Names()); });
    if (!is_written) {
        Show_MessageBox(Texts::File_Error);
        return;
    }
    m_steps.Forget_Unsaved_Applied();
    Refill_Main_Window();
}

void Lists_Page::Delete_Btn()
{
    const auto rows = m_exclusion_list_Data.Rows_To_Act_On();
    if (!rows.empty() && Show_YES_NO_MessageBox(Texts::Exclusion::Ask_To_Delete))
        Delete_Lists(rows);
}

void Lists_Page::Delete_Lists(const std::vector<int>& rows)
{
    QStringList available = Available_Names();
    QStringList applied = m_applied_axclusion_list_Data.Names();
    const QStringList deleted = Exclusion_Rules::Names_At(available, rows);
    Exclusion_Rules::Remove_Rows(available, rows);
    Exclusion_Rules::Remove_Deleted(applied, deleted);
    Take(available, applied);
    bool is_index_written = false;
    bool is_applied_written = false;
    m_work.Wait_For([&] {
        for (const QString& name : deleted)
            Exclusion_Files::Delete_List(name);
        Check_Path_And_Create_Files();
        is_index_written = Exclusion_Files::Write_Index(available);
        is_applied_written = Exclusion_Files::Write_Applied(applied);
    });
    if (!is_index_written)
        Show_MessageBox(Texts::File_Error);
    if (is_applied_written)
        Refill_Main_Window();
    else
        Show_MessageBox(Texts::File_Error);
}

std::optional<QString> Lists_Page::Available_To_Edit()
{
    const auto name = m_exclusion_list_Data.Name_To_Edit();
    if (!name)
        return {};
    bool is_there = false;
    m_work.Wait_For([&] { is_there = Exclusion_Files::Create_List_If_Missing(*name); });
    if (is_there)
        return name;
    m_exclusion_list_Data.Tell(Texts::File_Error);
    return {};
}
