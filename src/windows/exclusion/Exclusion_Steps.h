#pragma once

#include <functional>

// Where the exclusion wizard stands. Both belong to the interface thread.
extern int add_count;    ///< 0 no list is being made, 1 the name of a new list, 2 the numbers of a new list
extern int update_count; ///< 0 no list is being edited, 2 one is being opened, 3 its numbers, 1 on the way back

/// The wizard begins on its first screen, where no list is being made or edited.
void Begin_On_First_Screen();

// The way of the exclusion wizard from screen to screen, and what there is unsaved. It moves add_count and update_count
// and knows no widget: whoever asks shows the screen that it answers with. Owned by the wizard; interface thread.
class Exclusion_Steps
{
public:
    enum class Screen
    {
        As_It_Is,
        First,
        Name_Of_New,
        Name_Of_Edited
    };

    void Note_Unsaved_Numbers() { back_flag = true; }
    void Note_Unsaved_Applied() { update_app_ex = true; }
    void Forget_Unsaved_Numbers() { back_flag = false; }
    void Forget_Unsaved_Applied() { update_app_ex = false; }
    bool Has_Unsaved_Numbers() const { return back_flag; }

    void Begin_New_List();
    /// From the name of a new list to its numbers.
    void Take_New_Name() { add_count = 2; }
    void Begin_Editing() { update_count = 2; }
    /// The numbers of the edited list are in.
    void Show_Edited_Numbers() { update_count = 3; }

    bool Is_Naming_New_List() const { return add_count == 1; }
    bool Has_Numbers_Of_New_List() const { return add_count == 2; }
    bool Is_Editing() const { return update_count >= 1; }
    bool Has_Numbers_Of_Edited_List() const { return update_count == 3; }

    /// One screen back. With unsaved numbers it asks first whether they may be lost, and stays when they may not.
    Screen Go_Back(const std::function<bool()>& may_be_lost);

private:
    bool May_Leave_Numbers(const std::function<bool()>& may_be_lost);

    bool back_flag = false;     // the numbers table has unsaved changes; what Back asks about
    bool update_app_ex = false; // the applied lists have unsaved changes; nothing asks about them
};
