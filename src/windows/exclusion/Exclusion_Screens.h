#pragma once

#include "windows/exclusion/Exclusion_Steps.h"

#include <QString>
#include <optional>

class Lists_Page;
class Name_Page;
class Numbers_Page;

namespace Ui {
class Exclusion_Wizard;
}

// The exclusion wizard as it goes from screen to screen: what each shows, and what its pages hand on to the next. One
// form has the controls of all screens, because the text above, the buttons below and the order of the Tab key are
// theirs together. Owned by the wizard; interface thread.
class Exclusion_Screens
{
public:
    Exclusion_Screens(Ui::Exclusion_Wizard& form, Lists_Page& lists, Name_Page& name, Numbers_Page& numbers,
                      Exclusion_Steps& steps);

    // Each takes whether to hide it.
    void Show_Hide_First_Screen(bool hide);
    void Show_Hide_Add_Screen_1(bool hide);
    void Show_Hide_Add_Screen_2(bool hide);
    void Show_Hide_Finish_Screen(bool hide);

    /// Leaves nothing but the first screen, where the focus goes to the lists.
    void Return_To_First_Screen();
    void Hide_All_But_First();
    bool Is_On_First_Screen() const;
    /// Whether there are numbers that Back asks about.
    bool Has_Unsaved_Numbers() const;

    void AddNew_Btn();
    void OnUpdate();
    void Update_By_Applied_List();
    void OnContinue();
    void Finish_Btn();
    void Back_Btn();

private:
    void Show_Info(const QString& text);
    void Show_Name_Screen(const QString& info);
    void Show_Numbers_Screen();
    void Clear_Fields();
    void Forget_What_Was_Typed();
    void Edit(const std::optional<QString>& name);
    bool Continue_With_New_Name();
    void Continue_With_Edited_List();

    Ui::Exclusion_Wizard& m_form;
    Lists_Page& m_lists;
    Name_Page& m_name;
    Numbers_Page& m_numbers;
    Exclusion_Steps& m_steps;
};
