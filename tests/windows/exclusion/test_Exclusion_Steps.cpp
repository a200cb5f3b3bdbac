#include "windows/exclusion/Exclusion_Steps.h"

#include <gtest/gtest.h>

namespace {

using Screen = Exclusion_Steps::Screen;

void Expect_Counts(int adding, int updating)
{
    EXPECT_EQ(add_count, adding);
    EXPECT_EQ(update_count, updating);
}

TEST(Exclusion_Steps, Each_Step_Forward_Has_Its_Counts)
{
    Exclusion_Steps steps;
    add_count = 0;
    update_count = 3;
    steps.Begin_New_List();
    Expect_Counts(1, 0);
    steps.Take_New_Name();
    Expect_Counts(2, 0);
    Begin_On_First_Screen();
    steps.Begin_Editing();
    Expect_Counts(0, 2);
    steps.Show_Edited_Numbers();
    Expect_Counts(0, 3);
}

TEST(Exclusion_Steps, Back_Asks_About_Unsaved_Numbers_Where_They_Would_Be_Lost_And_Never_About_Applied_Lists)
{
    constexpr int Not_Asked = 0, No = 1, Yes = 2;
    constexpr auto Saved = &Exclusion_Steps::Forget_Unsaved_Numbers;
    constexpr auto Unsaved = &Exclusion_Steps::Note_Unsaved_Numbers;
    const struct
    {
        const char* from;
        int adding, updating;
        void (Exclusion_Steps::*note)();
        int answer;
        Screen to;
        int adding_after, updating_after;
        bool is_still_unsaved;
    } cases[] = {
        {"first screen", 0, 0, Saved, Not_Asked, Screen::As_It_Is, 0, 0, false},
        {"name of a new list", 1, 0, Saved, Not_Asked, Screen::First, 0, 0, false},
        {"name of a new list", 1, 0, Unsaved, Not_Asked, Screen::First, 0, 0, true},
        {"its numbers", 2, 0, Saved, Not_Asked, Screen::Name_Of_New, 1, 0, false},
        {"its numbers", 2, 0, Unsaved, No, Screen::As_It_Is, 2, 0, true},
        {"its numbers", 2, 0, Unsaved, Yes, Screen::Name_Of_New, 1, 0, false},
        {"name of an edited list", 0, 1, Saved, Not_Asked, Screen::First, 0, 0, false},
        {"one that is being opened", 0, 2, Saved, Not_Asked, Screen::Name_Of_Edited, 0, 1, false},
        {"its numbers, past its name", 0, 3, Saved, Not_Asked, Screen::First, 0, 0, false},
        {"its numbers", 0, 3, Unsaved, No, Screen::As_It_Is, 0, 3, true},
        {"its numbers", 0, 3, Unsaved, Yes, Screen::First, 0, 0, false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.from << ", answer " << each.answer);
        Exclusion_Steps steps;
        steps.Note_Unsaved_Applied();
        (steps.*each.note)();
        add_count = each.adding;
        update_count = each.updating;
        int questions = 0;
        EXPECT_EQ(steps.Go_Back([&] {
            ++questions;
            return each.answer == Yes;
        }),
                  each.to);
        EXPECT_EQ(questions, each.answer == Not_Asked ? 0 : 1);
        Expect_Counts(each.adding_after, each.updating_after);
        EXPECT_EQ(steps.Has_Unsaved_Numbers(), each.is_still_unsaved);
    }
}

} // namespace
