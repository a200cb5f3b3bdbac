#include "windows/exclusion/Exclusion_Steps.h"

#include <gtest/gtest.h>

namespace {

using Screen = Exclusion_Steps::Screen;

class Exclusion_Steps_Test : public testing::Test
{
protected:
    Exclusion_Steps_Test() { Begin_On_First_Screen(); }
    ~Exclusion_Steps_Test() override { Begin_On_First_Screen(); }

    Screen Back(bool answer = true)
    {
        return m_steps.Go_Back([this, answer] {
            ++m_questions;
            return answer;
        });
    }

    Exclusion_Steps m_steps;
    int m_questions = 0;
};

TEST_F(Exclusion_Steps_Test, A_New_List_Goes_From_Its_Name_To_Its_Numbers_And_Back)
{
    update_count = 3;
    m_steps.Begin_New_List();
    EXPECT_EQ(add_count, 1);
    EXPECT_EQ(update_count, 0);
    m_steps.Take_New_Name();
    EXPECT_EQ(add_count, 2);
    EXPECT_EQ(Back(), Screen::Name_Of_New);
    EXPECT_EQ(add_count, 1);
    EXPECT_EQ(Back(), Screen::First);
    EXPECT_EQ(add_count, 0);
    EXPECT_EQ(Back(), Screen::As_It_Is);
    EXPECT_EQ(m_questions, 0);
}

TEST_F(Exclusion_Steps_Test, Back_From_The_Numbers_Of_An_Edited_List_Goes_Straight_To_The_First_Screen)
{
    m_steps.Begin_Editing();
    EXPECT_EQ(update_count, 2);
    m_steps.Show_Edited_Numbers();
    EXPECT_EQ(update_count, 3);
    EXPECT_EQ(Back(), Screen::First);
    EXPECT_EQ(update_count, 0);
}

TEST_F(Exclusion_Steps_Test, Back_From_A_List_That_Is_Being_Opened_Goes_Over_Its_Name)
{
    m_steps.Begin_Editing();
    EXPECT_EQ(Back(), Screen::Name_Of_Edited);
    EXPECT_EQ(update_count, 1);
    EXPECT_EQ(Back(), Screen::First);
    EXPECT_EQ(update_count, 0);
}

TEST_F(Exclusion_Steps_Test, Unsaved_Numbers_Are_Asked_About_And_No_Stays)
{
    m_steps.Note_Unsaved_Numbers();
    add_count = 2;
    EXPECT_EQ(Back(false), Screen::As_It_Is);
    EXPECT_EQ(add_count, 2);
    EXPECT_TRUE(m_steps.Has_Unsaved_Numbers());
    EXPECT_EQ(Back(true), Screen::Name_Of_New);
    EXPECT_FALSE(m_steps.Has_Unsaved_Numbers());
    EXPECT_EQ(m_questions, 2);

    Begin_On_First_Screen();
    m_steps.Note_Unsaved_Numbers();
    update_count = 3;
    EXPECT_EQ(Back(false), Screen::As_It_Is);
    EXPECT_EQ(update_count, 3);
    EXPECT_TRUE(m_steps.Has_Unsaved_Numbers());
    EXPECT_EQ(Back(true), Screen::First);
    EXPECT_FALSE(m_steps.Has_Unsaved_Numbers());
    EXPECT_EQ(m_questions, 4);
}

TEST_F(Exclusion_Steps_Test, The_Name_Of_A_New_List_Is_Left_Without_A_Question_And_Keeps_The_Flag)
{
    m_steps.Begin_New_List();
    m_steps.Note_Unsaved_Numbers();
    EXPECT_EQ(Back(false), Screen::First);
    EXPECT_EQ(m_questions, 0);
    EXPECT_TRUE(m_steps.Has_Unsaved_Numbers());
}

TEST_F(Exclusion_Steps_Test, Unsaved_Applied_Lists_Are_Never_Asked_About)
{
    m_steps.Note_Unsaved_Applied();
    for (const auto& [adding, updating] : {std::pair{1, 0}, {2, 0}, {0, 1}, {0, 2}, {0, 3}}) {
        add_count = adding;
        update_count = updating;
        EXPECT_NE(Back(false), Screen::As_It_Is);
    }
    EXPECT_EQ(m_questions, 0);
}

} // namespace
