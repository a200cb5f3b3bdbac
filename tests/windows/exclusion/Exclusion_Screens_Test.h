#pragma once

#include "windows/exclusion/Exclusion_Test.h"

#include <set>
#include <string>

inline const char* const Info_1 =
    "Exclusion List Wizard allows you to maintain the Lists of contacts or Groups, which you may need to exclude time "
    "to "
    "time when sending messages.\n\nFor Example, if you have lists of contacts of Marketing, Administration, R & D and "
    "Customer Care Team members and you want to send messages to all the teams 'Except' Administration team, you can "
    "apply exclusion rules to Administration team members contacts list.";
inline const char* const Info_2 = "\n\nGive a friendly name to your Exclusion list so that you can identify it easily.";
inline const char* const Back_Question =
    "\nYou have made changes in exclusion number list that have not been saved yet.\n\nDo you want to go back to "
    "previous screen without saving the exclusion number list?";

using Names = std::set<std::string>;

inline const Names Info = {"m_st_msg_gp_box", "m_st_msg"};
inline const Names First_Screen = {"m_exclusion_list", "m_applied_axclusion_list", "m_addlist_btn", "m_addAll_list_btn",
                                   "m_dellist_btn",    "m_delall_list_btn",        "m_addnew_btn",  "m_update_btn",
                                   "m_delete_btn",     "m_saveapplied_btn",        "m_cancel_btn"};
inline const Names Name_Fields = {"m_ex_list_name", "m_ex_list_name_edit", "m_ex_list_name_eg",
                                  "m_ex_list_name_eg_val"};
inline const Names Numbers_Screen = {
    "m_loadfile_label",      "m_loadfile_edit", "m_OR_label",       "m_browse_btn",  "m_load_btn",
    "m_st_num_count",        "m_add_num_btn",   "m_update_num_btn", "m_del_num_btn", "m_final_screen_box",
    "m_st_curr_use_ex_list", "m_loadnum_label", "m_loadnum_edit",   "m_ex_num_list"};
inline const Names Wizard_Buttons = {"m_back_btn", "m_next_btn", "m_finish_btn", "m_cancel2_btn"};

inline Names Together(std::initializer_list<Names> groups)
{
    Names all;
    for (const auto& group : groups)
        all.insert(group.begin(), group.end());
    return all;
}

inline const Names On_First_Screen = Together({Info, First_Screen});
inline const Names On_Name_Screen = Together({Info, Name_Fields, {"m_back_btn", "m_next_btn", "m_cancel2_btn"}});
inline const Names On_Numbers_Screen = Together({Numbers_Screen, {"m_back_btn", "m_finish_btn", "m_cancel2_btn"}});

// Knows which controls each screen of the wizard shows.
class Exclusion_Screens_Test : public Exclusion_Test
{
protected:
    Names Shown() const
    {
        Names shown;
        for (const auto& name : Together({Info, First_Screen, Name_Fields, Numbers_Screen, Wizard_Buttons})) {
            if (Control(name.c_str()).isVisible())
                shown.insert(name);
        }
        return shown;
    }

    void Expect_First_Screen() const
    {
        EXPECT_EQ(Shown(), On_First_Screen);
        EXPECT_EQ(Label("m_st_msg"), Info_1);
        EXPECT_EQ(m_window->focusWidget(), &Available());
    }

    void Expect_Counts(int adding, int updating) const
    {
        EXPECT_EQ(add_count, adding);
        EXPECT_EQ(update_count, updating);
    }

    QWidget* Focused() const { return m_window->focusWidget(); }
};
