#include "windows/exclusion/Exclusion_Steps.h"

#include <gtest/gtest.h>

using Screen = Exclusion_Steps::Screen;
using Counts = std::pair<int, int>; // of adding and updating

TEST(Exclusion_Steps, Each_Step_Forward_Has_Its_Counts)
{
    Exclusion_Steps steps;
    add_count = 0;
    update_count = 3;
    steps.Begin_New_List();
    EXPECT_EQ(Counts(add_count, update_count), Counts(1, 0));
    steps.Take_New_Name();
    EXPECT_EQ(Counts(add_count, update_count), Counts(2, 0));
    Begin_On_First_Screen();
    steps.Begin_Editing();
    EXPECT_EQ(Counts(add_count, update_count), Counts(0, 2));
    steps.Show_Edited_Numbers();
    EXPECT_EQ(Counts(add_count, update_count), Counts(0, 3));
}

TEST(Exclusion_Steps, Back_Asks_About_Unsaved_Numbers_Where_They_Would_Be_Lost_And_Never_About_Applied_Lists)
{
    constexpr int Not_Asked = 0, No = 1, Yes = 2;
    constexpr auto Saved = &Exclusion_Steps::Forget_Unsaved_Numbers;
    constexpr auto Unsaved = &Exclusion_Steps::Note_Unsaved_Numbers;
    const struct
    {
        const char* from;
        Counts counts;
        void (Exclusion_Steps::*note)();
        int answer;
        Screen to;
        Counts counts_after;
        bool is_still_unsaved;
    } cases[] = {
        {"first screen", {0, 0}, Saved, Not_Asked, Screen::As_It_Is, {0, 0}, false},
        {"name of a new list", {1, 0}, Saved, Not_Asked, Screen::First, {0, 0}, false},
        {"name of a new list", {1, 0}, Unsaved, Not_Asked, Screen::First, {0, 0}, true},
        {"its numbers", {2, 0}, Saved, Not_Asked, Screen::Name_Of_New, {1, 0}, false},
        {"its numbers", {2, 0}, Unsaved, No, Screen::As_It_Is, {2, 0}, true},
        {"its numbers", {2, 0}, Unsaved, Yes, Screen::Name_Of_New, {1, 0}, false},
        {"name of an edited list", {0, 1}, Saved, Not_Asked, Screen::First, {0, 0}, false},
        {"one that is being opened", {0, 2}, Saved, Not_Asked, Screen::Name_Of_Edited, {0, 1}, false},
        {"its numbers, past its name", {0, 3}, Saved, Not_Asked, Screen::First, {0, 0}, false},
        {"its numbers", {0, 3}, Unsaved, No, Screen::As_It_Is, {0, 3}, true},
        {"its numbers", {0, 3}, Unsaved, Yes, Screen::First, {0, 0}, false},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::Message() << each.from << ", answer " << each.answer);
        Exclusion_Steps steps;
        steps.Note_Unsaved_Applied();
        (steps.*each.note)();
        std::tie(add_count, update_count) = each.counts;
        int questions = 0;
        EXPECT_EQ(steps.Go_Back([&] {
            ++questions;
            return each.answer == Yes;
        }),
                  each.to);
        EXPECT_EQ(questions, each.answer == Not_Asked ? 0 : 1);
        EXPECT_EQ(Counts(add_count, update_count), each.counts_after);
        EXPECT_EQ(steps.Has_Unsaved_Numbers(), each.is_still_unsaved);
    }
}
