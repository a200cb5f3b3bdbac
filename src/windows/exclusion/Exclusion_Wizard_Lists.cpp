#include "windows/exclusion/Exclusion_Wizard.h"

#include "list/Exclusion_Rules.h"
#include "platform/String_Helpers.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "texts/Texts.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Row_Table_Model.h"
#include "ui_Exclusion_Wizard.h"

// The lists: applying, deleting, making and saving them.

// The selected rows; none, after telling so, when nothing with a name is selected.
std::vector<int> Exclusion_Wizard::Rows_With_A_Name(QTableView& table, const QStringList& names,
                                                    const QString& none_selected)
{
    const auto rows = Rows_Selected_In(table);
    if (!rows.empty() && !Trim_Str(names.value(rows.front())).isEmpty())
        return rows;
    Tell_And_Focus(none_selected, table);
    return {};
}

void Exclusion_Wizard::Add_List_Btn()
{
    if (m_exclusion_list_Data.isEmpty()) {
        Tell_And_Focus(Texts::Exclusion::None_Available, *m_ui->m_exclusion_list);
        return;
    }
    const auto rows =
        Rows_With_A_Name(*m_ui->m_exclusion_list, m_exclusion_list_Data, Texts::Exclusion::None_Available_Selected);
    if (rows.empty())
        return;
    const auto names = Exclusion_Rules::Not_Yet_Applied(Exclusion_Rules::Names_At(m_exclusion_list_Data, rows),
                                                        m_applied_axclusion_list_Data);
    if (names.isEmpty())
        Tell_And_Focus(Texts::Exclusion::Selected_In_Use, *m_ui->m_exclusion_list);
    else
        Apply_Lists(names);
}

void Exclusion_Wizard::Add_All_List_Btn()
{
    if (m_exclusion_list_Data.isEmpty()) {
        Tell_And_Focus(Texts::Exclusion::None_Available, *m_ui->m_exclusion_list);
        return;
    }
    const auto names = Exclusion_Rules::Not_Yet_Applied(m_exclusion_list_Data, m_applied_axclusion_list_Data);
    if (names.isEmpty())
        Tell_And_Focus(Texts::Exclusion::All_In_Use, *m_ui->m_exclusion_list);
    else
        Apply_Lists(names);
}

void Exclusion_Wizard::Apply_Lists(const QStringList& names)
{
    m_applied_axclusion_list_Data += names;
    m_applied_rows->Reload();
    m_steps.update_app_ex = true;
}

void Exclusion_Wizard::Remove_List_Btn()
{
    if (m_applied_axclusion_list_Data.isEmpty()) {
        Tell_And_Focus(Texts::Exclusion::None_Applied, *m_ui->m_applied_axclusion_list);
        return;
    }
    const auto rows = Rows_With_A_Name(*m_ui->m_applied_axclusion_list, m_applied_axclusion_list_Data,
                                       Texts::Exclusion::None_Applied_Selected);
    if (rows.empty())
        return;
    Exclusion_Rules::Remove_Rows(m_applied_axclusion_list_Data, rows);
    m_steps.update_app_ex = true;
    Reload_And_Select_First(*m_ui->m_applied_axclusion_list, *m_applied_rows);
    m_ui->m_applied_axclusion_list->setFocus();
}

void Exclusion_Wizard::Remove_All_List_Btn()
{
    if (m_applied_axclusion_list_Data.isEmpty()) {
        Tell_And_Focus(Texts::Exclusion::None_Applied, *m_ui->m_applied_axclusion_list);
        return;
    }
    m_applied_axclusion_list_Data.clear();
    m_steps.update_app_ex = true;
    m_applied_rows->Reload();
}

void Exclusion_Wizard::Save_Applied_Btn()
{
    if (Show_YES_NO_MessageBox(Texts::Exclusion::Ask_To_Continue))
        Save_Applied_List();
}

void Exclusion_Wizard::Save_Applied_List()
{
    bool is_written = false;
    Work_On_Worker([&] { is_written = Exclusion_Files::Write_Applied(m_applied_axclusion_list_Data); });
    if (!is_written) {
        Show_MessageBox(Texts::File_Error);
        return;
    }
    m_steps.update_app_ex = false;
    Refill_Main_Window();
}

void Exclusion_Wizard::Update_Btn()
{
    OnUpdate();
}

void Exclusion_Wizard::OnUpdate()
{
    Begin_Editing_Selected(*m_ui->m_exclusion_list, m_exclusion_list_Data, Texts::Exclusion::None_Available,
                           Texts::Exclusion::None_Available_Selected);
}

void Exclusion_Wizard::Update_By_Applied_List()
{
    Begin_Editing_Selected(*m_ui->m_applied_axclusion_list, m_applied_axclusion_list_Data,
                           Texts::Exclusion::None_Applied, Texts::Exclusion::None_Applied_Selected);
}

void Exclusion_Wizard::Delete_Btn()
{
    if (m_exclusion_list_Data.isEmpty()) {
        Tell_And_Focus(Texts::Exclusion::None_Available, *m_ui->m_exclusion_list);
        return;
    }
    const auto rows =
        Rows_With_A_Name(*m_ui->m_exclusion_list, m_exclusion_list_Data, Texts::Exclusion::None_Available_Selected);
    if (!rows.empty() && Show_YES_NO_MessageBox(Texts::Exclusion::Ask_To_Delete))
        Delete_Lists(rows);
}

void Exclusion_Wizard::Delete_Lists(const std::vector<int>& rows)
{
    const QStringList deleted = Exclusion_Rules::Names_At(m_exclusion_list_Data, rows);
    Exclusion_Rules::Remove_Rows(m_exclusion_list_Data, rows);
    Exclusion_Rules::Remove_Deleted(m_applied_axclusion_list_Data, deleted);
    // The lists that move up into the rows were not selected.
    m_ui->m_exclusion_list->clearSelection();
    m_ui->m_applied_axclusion_list->clearSelection();
    m_available_rows->Reload();
    m_applied_rows->Reload();
    bool is_index_written = false;
    bool is_applied_written = false;
    Work_On_Worker([&] {
        for (const QString& name : deleted)
            Exclusion_Files::Delete_List(name);
        Check_Path_And_Create_Files();
        is_index_written = Exclusion_Files::Write_Index(m_exclusion_list_Data);
        is_applied_written = Exclusion_Files::Write_Applied(m_applied_axclusion_list_Data);
    });
    if (!is_index_written)
        Show_MessageBox(Texts::File_Error);
    if (is_applied_written)
        Refill_Main_Window();
    else
        Show_MessageBox(Texts::File_Error);
}

void Exclusion_Wizard::Create_List()
{
    const QString name = Typed_Name();
    bool is_index_written = true;
    bool is_list_written = true;
    Work_On_Worker([&] {
        Check_Path_And_Create_Files();
        if (!Exclusion_Files::Index_Exists())
            return;
        is_index_written = Exclusion_Files::Append_To_Index(name);
        is_list_written = Exclusion_Files::Write_List(name, m_ex_num_list_Data);
    });
    for (const bool is_written : {is_index_written, is_list_written}) {
        if (!is_written)
            Show_MessageBox(Texts::File_Error);
    }
    Create_Avail_List(name);
    Take_Numbers({});
    Refill_Main_Window();
}

void Exclusion_Wizard::Save_Edited_List()
{
    const QString name = Typed_Name();
    bool is_written = true;
    Work_On_Worker([&] {
        if (Exclusion_Files::Index_Exists())
            is_written = Exclusion_Files::Write_List(name, m_ex_num_list_Data);
    });
    if (!is_written)
        Show_MessageBox(Texts::File_Error);
    Take_Numbers({});
    Refill_Main_Window();
}
