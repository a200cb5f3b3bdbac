#include "windows/exclusion/Exclusion_Wizard.h"

#include "list/Exclusion_Rules.h"
#include "records/Exclusion_Files.h"
#include "texts/Texts.h"
#include "toolkit/Message_Boxes.h"
#include "ui_Exclusion_Wizard.h"

#include <QSignalBlocker>

// The screens of the wizard and the way from one to the other.

namespace {

void Show_Or_Hide(std::initializer_list<QWidget*> controls, bool hide)
{
    for (QWidget* control : controls)
        control->setHidden(hide);
}

} // namespace

// A panel takes its place in the window for as long as it is shown, whatever is shown in it: it goes with its controls.

void Exclusion_Wizard::Show_Hide_First_Screen(bool hide)
{
    Show_Or_Hide({m_ui->lists_panel, m_ui->m_st_msg_gp_box, m_ui->m_st_msg, m_ui->m_exclusion_list,
                  m_ui->m_applied_axclusion_list, m_ui->m_addlist_btn, m_ui->m_addAll_list_btn, m_ui->m_dellist_btn,
                  m_ui->m_delall_list_btn, m_ui->m_addnew_btn, m_ui->m_update_btn, m_ui->m_delete_btn,
                  m_ui->m_saveapplied_btn, m_ui->m_cancel_btn},
                 hide);
}

void Exclusion_Wizard::Show_Hide_Add_Screen_1(bool hide)
{
    Show_Or_Hide({m_ui->name_panel, m_ui->m_st_msg_gp_box, m_ui->m_st_msg, m_ui->m_ex_list_name,
                  m_ui->m_ex_list_name_edit, m_ui->m_ex_list_name_eg, m_ui->m_ex_list_name_eg_val, m_ui->m_back_btn,
                  m_ui->m_next_btn, m_ui->m_finish_btn, m_ui->m_cancel2_btn},
                 hide);
}

void Exclusion_Wizard::Show_Hide_Add_Screen_2(bool hide)
{
    Show_Or_Hide({m_ui->name_panel, m_ui->m_st_msg_gp_box, m_ui->m_st_msg, m_ui->m_ex_list_name,
                  m_ui->m_ex_list_name_edit, m_ui->m_ex_list_name_eg, m_ui->m_ex_list_name_eg_val},
                 hide);
    if (hide)
        return;
    m_ui->m_next_btn->setEnabled(true);
    m_ui->m_next_btn->show();
    m_ui->m_finish_btn->hide();
}

void Exclusion_Wizard::Show_Hide_Finish_Screen(bool hide)
{
    Show_Or_Hide({m_ui->m_loadfile_label, m_ui->m_loadfile_edit, m_ui->m_OR_label, m_ui->m_browse_btn, m_ui->m_load_btn,
                  m_ui->m_st_num_count, m_ui->m_add_num_btn, m_ui->m_update_num_btn, m_ui->m_del_num_btn,
                  m_ui->m_final_screen_box, m_ui->m_st_curr_use_ex_list, m_ui->m_loadnum_label, m_ui->m_loadnum_edit,
                  m_ui->m_ex_num_list},
                 hide);
    if (hide)
        return;
    m_ui->m_finish_btn->setEnabled(true);
    m_ui->m_finish_btn->show();
    m_ui->m_next_btn->hide();
}

void Exclusion_Wizard::Show_Info(const QString& text)
{
    m_ui->m_st_msg->setText(text);
    m_ui->m_st_msg_gp_box->show();
    m_ui->m_st_msg->show();
}

void Exclusion_Wizard::Show_Numbers_Screen()
{
    m_ui->m_st_curr_use_ex_list->setText(Texts::Exclusion::Current_List + m_exlist_name_str);
    Show_Hide_Add_Screen_2(true);
    Show_Hide_Finish_Screen(false);
    m_ui->m_loadfile_edit->setFocus();
}

void Exclusion_Wizard::Return_To_First_Screen()
{
    Show_Hide_Finish_Screen(true);
    Show_Hide_Add_Screen_1(true);
    Show_Info(Texts::Exclusion::message_info1);
    Show_Hide_First_Screen(false);
    m_ui->m_exclusion_list->setFocus();
}

void Exclusion_Wizard::AddNew_Btn()
{
    for (QLineEdit* field : {m_ui->m_ex_list_name_edit, m_ui->m_loadnum_edit, m_ui->m_loadfile_edit})
        field->clear();
    Show_Hide_First_Screen(true);
    Show_Info(Texts::Exclusion::message_info2);
    Show_Hide_Add_Screen_1(false);
    m_ui->m_next_btn->setEnabled(true);
    m_ui->m_finish_btn->hide();
    m_ui->m_ex_list_name_edit->setFocus();
    m_steps.Begin_New_List();
}

void Exclusion_Wizard::Begin_Editing_Selected(QTableView& table, const QStringList& names, const QString& no_names,
                                              const QString& none_selected)
{
    m_exlist_name_str = Typed_Name();
    m_exlist_path_str = m_ui->m_loadfile_edit->text();
    for (QLineEdit* field : {m_ui->m_ex_list_name_edit, m_ui->m_loadnum_edit, m_ui->m_loadfile_edit})
        field->clear();
    Begin_On_First_Screen();
    if (names.isEmpty()) {
        Tell_And_Focus(no_names, table);
        return;
    }
    const auto rows = Rows_With_A_Name(table, names, none_selected);
    if (rows.empty())
        return;
    if (rows.size() > 1) {
        Tell_And_Focus(Texts::Select_Only_One, table);
        return;
    }
    const QString name = names.value(rows.front());
    if (&table == m_ui->m_exclusion_list) {
        bool is_there = false;
        Work_On_Worker([&] { is_there = Exclusion_Files::Create_List_If_Missing(name); });
        if (!is_there) {
            Tell_And_Focus(Texts::File_Error, table);
            return;
        }
    }
    Take_Numbers({});
    {
        // Only what is typed is cut: a list that came by its name in another way is this one, not one like it.
        const QSignalBlocker muted(*m_ui->m_ex_list_name_edit);
        m_ui->m_ex_list_name_edit->setText(name);
    }
    Show_Hide_First_Screen(true);
    Show_Info(Texts::Exclusion::message_info1);
    Show_Hide_Add_Screen_1(false);
    m_ui->m_next_btn->setEnabled(true);
    m_ui->m_finish_btn->hide();
    m_steps.Begin_Editing();
    OnContinue();
}

void Exclusion_Wizard::Next_Btn()
{
    OnContinue();
}

void Exclusion_Wizard::OnContinue()
{
    if (m_steps.Is_Naming_New_List() && !Continue_With_New_Name())
        return;
    if (m_steps.Is_Editing())
        Continue_With_Edited_List();
    else
        m_ui->m_ex_num_list->scrollToTop();
}

bool Exclusion_Wizard::Continue_With_New_Name()
{
    using Exclusion_Rules::Name_Verdict;
    m_steps.back_flag = false;
    m_exlist_name_str = Typed_Name();
    switch (Exclusion_Rules::Judge_List_Name(m_exlist_name_str, m_exclusion_list_Data)) {
    case Name_Verdict::Empty:
        Tell_And_Focus(Texts::Exclusion::Name_Missing, *m_ui->m_ex_list_name_edit);
        return false;
    case Name_Verdict::Forbidden_Sequence:
        Tell_And_Focus(Texts::Exclusion::Name_Not_Valid, *m_ui->m_ex_list_name_edit);
        return false;
    case Name_Verdict::Name_Of_Index:
        Tell_And_Focus(Texts::Exclusion::Name_Not_Free, *m_ui->m_ex_list_name_edit);
        return false;
    case Name_Verdict::Exists:
        Show_MessageBox(Texts::Exclusion::Name_Exists);
        // To the file field it goes, which this screen hides: nothing that is shown keeps the focus.
        if (QWidget* focused = focusWidget())
            focused->clearFocus();
        m_ui->m_loadfile_edit->setFocus();
        return false;
    case Name_Verdict::Accepted:
        break;
    }
    Take_Numbers({});
    m_steps.Take_New_Name();
    Show_Numbers_Screen();
    return true;
}

void Exclusion_Wizard::Finish_Btn()
{
    if (m_ex_num_list_Data.Count() == 0) {
        Tell_And_Focus(Texts::Exclusion::No_Numbers, *m_ui->m_ex_num_list);
        return;
    }
    const bool is_new = m_steps.Has_Numbers_Of_New_List();
    if (!is_new && !m_steps.Has_Numbers_Of_Edited_List())
        return;
    if (!Show_YES_NO_MessageBox(Texts::Exclusion::Ask_To_Continue))
        return;
    if (is_new)
        Create_List();
    else
        Save_Edited_List();
    m_ui->m_ex_list_name_edit->clear();
    m_ui->m_loadfile_edit->clear();
    Return_To_First_Screen();
}

void Exclusion_Wizard::Back_Btn()
{
    using Screen = Exclusion_Steps::Screen;
    const Screen screen = m_steps.Go_Back([] { return Show_YES_NO_MessageBox(Texts::Exclusion::Ask_To_Go_Back); });
    switch (screen) {
    case Screen::As_It_Is:
        break;
    case Screen::First:
        Return_To_First_Screen();
        break;
    case Screen::Name_Of_New:
    case Screen::Name_Of_Edited:
        Show_Info(screen == Screen::Name_Of_New ? Texts::Exclusion::message_info2 : Texts::Exclusion::message_info1);
        Show_Hide_Finish_Screen(true);
        Show_Hide_Add_Screen_2(false);
        m_ui->m_ex_list_name_edit->setFocus();
        break;
    }
}

QString Exclusion_Wizard::Typed_Name() const
{
    return Exclusion_Rules::List_Name(m_ui->m_ex_list_name_edit->text());
}
