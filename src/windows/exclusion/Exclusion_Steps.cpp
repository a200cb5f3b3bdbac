#include "windows/exclusion/Exclusion_Steps.h"

int add_count = 0;
int update_count = 0;

void Begin_On_First_Screen()
{
    add_count = 0;
    update_count = 0;
}

void Exclusion_Steps::Begin_New_List()
{
    Begin_On_First_Screen();
    add_count = 1;
}

Exclusion_Steps::Screen Exclusion_Steps::Go_Back(const std::function<bool()>& may_be_lost)
{
    Screen screen = Screen::As_It_Is;
    if (add_count == 1) {
        add_count = 0;
        screen = Screen::First;
    } else if (add_count == 2) {
        if (!May_Leave_Numbers(may_be_lost))
            return screen;
        add_count = 1;
        screen = Screen::Name_Of_New;
    }
    if (update_count > 0) {
        if (!May_Leave_Numbers(may_be_lost))
            return screen;
        if (update_count == 3)
            update_count = 1; // the name of an edited list is passed over
        const bool is_at_first = update_count == 1;
        update_count = is_at_first ? 0 : 1;
        screen = is_at_first ? Screen::First : Screen::Name_Of_Edited;
    }
    return screen;
}

bool Exclusion_Steps::May_Leave_Numbers(const std::function<bool()>& may_be_lost)
{
    if (back_flag && !may_be_lost())
        return false;
    back_flag = false;
    return true;
}
