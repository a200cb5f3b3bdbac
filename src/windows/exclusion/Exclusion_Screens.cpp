#include "windows/exclusion/Exclusion_Screens.h"

#include "list/Exclusion_Rules.h"
#include "texts/Texts.h"
#include "ui_Exclusion_Wizard.h"
#include "windows/exclusion/Lists_Page.h"
#include "windows/exclusion/Name_Page.h"
#include "windows/exclusion/Numbers_Page.h"

namespace {

// A panel takes its place in the window for as long as it is shown, whatever is shown in it: it goes with its controls.
void Show_Or_Hide(std::initializer_list<QWidget*> parts, bool hide)
{
    for (QWidget* part : parts) {
        part->setHidden(hide);
        const auto controls = part->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (QWidget* control : controls)
            control->setHidden(hide);
    }
}

void Put_In_Place_Of(QWidget& button, QWidget& other)
{
    button.setEnabled(true);
    button.show();
    other.hide();
}

} // namespace

Exclusion_Screens::Exclusion_Screens(Ui::Exclusion_Wizard& form, Lists_Page& lists, Name_Page& name,
                                     Numbers_Page& numbers, Exclusion_Steps& steps)
    : m_form(form), m_lists(lists), m_name(name), m_numbers(numbers), m_steps(steps)
{
}

void Exclusion_Screens::Show_Hide_First_Screen(bool hide)
{
    Show_Or_Hide({m_form.lists_panel, m_form.m_st_msg_gp_box, m_form.m_cancel_btn, m_form.m_saveapplied_btn}, hide);
}

void Exclusion_Screens::Show_Hide_Add_Screen_1(bool hide)
{
    Show_Or_Hide({m_form.name_panel, m_form.m_st_msg_gp_box, m_form.m_back_btn, m_form.m_next_btn, m_form.m_finish_btn,
                  m_form.m_cancel2_btn},
                 hide);
}

void Exclusion_Screens::Show_Hide_Add_Screen_2(bool hide)
{
    Show_Or_Hide({m_form.name_panel, m_form.m_st_msg_gp_box}, hide);
    if (!hide)
        Put_In_Place_Of(*m_form.m_next_btn, *m_form.m_finish_btn);
}

void Exclusion_Screens::Show_Hide_Finish_Screen(bool hide)
{
    Show_Or_Hide({m_form.m_final_screen_box}, hide);
    if (!hide)
        Put_In_Place_Of(*m_form.m_finish_btn, *m_form.m_next_btn);
}

void Exclusion_Screens::Show_Info(const QString& text)
{
    m_form.m_st_msg->setText(text);
    Show_Or_Hide({m_form.m_st_msg_gp_box}, false);
}

void Exclusion_Screens::Hide_All_But_First()
{
    Show_Hide_Finish_Screen(true);
    Show_Hide_Add_Screen_1(true);
    Show_Info(Texts::Exclusion::message_info1);
}

void Exclusion_Screens::Return_To_First_Screen()
{
    Hide_All_But_First();
    Show_Hide_First_Screen(false);
    m_form.m_exclusion_list->setFocus();
}

bool Exclusion_Screens::Is_On_First_Screen() const
{
    return !m_form.lists_panel->isHidden();
}

// The steps may still know of some in a list that has been saved, while none is shown.
bool Exclusion_Screens::Has_Unsaved_Numbers() const
{
    return m_steps.Has_Unsaved_Numbers() && !m_form.m_ex_num_list->isHidden();
}

void Exclusion_Screens::Show_Name_Screen(const QString& info)
{
    Show_Hide_First_Screen(true);
    Show_Info(info);
    Show_Hide_Add_Screen_1(false);
    Put_In_Place_Of(*m_form.m_next_btn, *m_form.m_finish_btn);
}

void Exclusion_Screens::Show_Numbers_Screen()
{
    m_form.m_st_curr_use_ex_list->setText(Texts::Exclusion::Current_List + m_name.Current());
    Show_Hide_Add_Screen_2(true);
    Show_Hide_Finish_Screen(false);
    m_form.m_loadfile_edit->setFocus();
}

void Exclusion_Screens::Clear_Fields()
{
    for (QLineEdit* field : {m_form.m_ex_list_name_edit, m_form.m_loadnum_edit, m_form.m_loadfile_edit})
        field->clear();
}

void Exclusion_Screens::AddNew_Btn()
{
    Clear_Fields();
    Show_Name_Screen(Texts::Exclusion::message_info2);
    m_form.m_ex_list_name_edit->setFocus();
    m_steps.Begin_New_List();
}

void Exclusion_Screens::OnUpdate()
{
    Forget_What_Was_Typed();
    Edit(m_lists.Available_To_Edit());
}

void Exclusion_Screens::Update_By_Applied_List()
{
    Forget_What_Was_Typed();
    Edit(m_lists.Applied_To_Edit());
}

void Exclusion_Screens::Forget_What_Was_Typed()
{
    m_name.Read();
    m_numbers.Read_Path();
    Clear_Fields();
    Begin_On_First_Screen();
}

void Exclusion_Screens::Edit(const std::optional<QString>& name)
{
    if (!name)
        return;
    m_numbers.Take({});
    m_name.Show(*name);
    Show_Name_Screen(Texts::Exclusion::message_info1);
    m_steps.Begin_Editing();
    OnContinue();
}

void Exclusion_Screens::OnContinue()
{
    if (m_steps.Is_Naming_New_List() && !Continue_With_New_Name())
        return;
    if (m_steps.Is_Editing())
        Continue_With_Edited_List();
    else
        m_form.m_ex_num_list->scrollToTop();
}

bool Exclusion_Screens::Continue_With_New_Name()
{
    using Exclusion_Rules::Name_Verdict;
    m_steps.Forget_Unsaved_Numbers();
    const auto verdict = m_name.Read_New(m_lists.Available_Names());
    if (verdict == Name_Verdict::Exists) {
        // To the file field it goes, which this screen hides: nothing that is shown keeps the focus.
        if (QWidget* focused = m_form.name_panel->window()->focusWidget())
            focused->clearFocus();
        m_form.m_loadfile_edit->setFocus();
    }
    if (verdict != Name_Verdict::Accepted)
        return false;
    m_numbers.Take({});
    m_steps.Take_New_Name();
    Show_Numbers_Screen();
    return true;
}

void Exclusion_Screens::Continue_With_Edited_List()
{
    if (!m_numbers.Open(m_name.Read()))
        return;
    m_steps.Show_Edited_Numbers();
    Show_Numbers_Screen();
    m_form.m_ex_num_list->scrollToTop();
}

void Exclusion_Screens::Finish_Btn()
{
    if (m_numbers.Tells_It_Is_Empty())
        return;
    const bool is_new = m_steps.Has_Numbers_Of_New_List();
    if (!is_new && !m_steps.Has_Numbers_Of_Edited_List())
        return;
    if (!Show_YES_NO_MessageBox(Texts::Exclusion::Ask_To_Continue))
        return;
    const QString& name = m_name.Read();
    m_numbers.Write(name, is_new);
    if (is_new)
        m_lists.Create_Avail_List(name);
    m_numbers.Take({});
    Refill_Main_Window();
    m_form.m_ex_list_name_edit->clear();
    m_form.m_loadfile_edit->clear();
    Return_To_First_Screen();
}

void Exclusion_Screens::Back_Btn()
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
        m_form.m_ex_list_name_edit->setFocus();
        break;
    }
}
