#include "windows/list/Fill_Msg_In_List.h"

#include "windows/list/Dialogs_Test.h"

const QString Ask_All =
    "This action will copy the message of composer box to all numbers in the list.\n\nDo you want to continue?";
const QString Ask_Selected =
    "This action will copy the message of composer box to the selected numbers in the list. The messages "
    "of rest of the numbers remain unchanged.\n\nDo you want to continue?";
const QString Ask_Blank =
    "This action will copy the message of composer box to the blank list items. The messages of rest of "
    "the numbers remain unchanged.\n\nDo you want to continue?";
const QString None_Blank = "\nThere is no blank message in the phone numbers-messages list.";

class Fill_Msg_In_List_Test : public Dialogs_Test
{
protected:
    Fill_Msg_In_List_Test() : Dialogs_Test("Fill_Msg_In_List", [this] { Open_Fill_Dialog(m_window); })
    {
        Put_Recipients();
        m_window.m_choices.composer_text = "new";
        m_window.m_previous_message = "before";
    }

    void Put_Recipients()
    {
        m_window.m_recipients.Clear();
        Add("1", "one");
        Add("2");
        Add("3", " ");
        Add("4");
    }

    const QStringList m_unchanged{"1: one", "2: ", "3:  ", "4: "};
};

TEST_F(Fill_Msg_In_List_Test, An_Empty_Composer_And_Then_An_Empty_List_Are_Refused_And_Get_The_Focus)
{
    Message_IS = "from before";
    m_window.m_choices.composer_text.clear();
    m_user.Will_Press("OK");
    Open_Fill_Dialog(m_window);
    EXPECT_EQ(List(), m_unchanged);
    m_window.m_recipients.Clear();
    m_user.Will_Press("OK");
    Open_Fill_Dialog(m_window);
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Enter_Message, List_Empty}));
    EXPECT_EQ(m_window.m_focused, (std::vector{Main_Window::Field::Composer, Main_Window::Field::Number}));
    EXPECT_EQ(Message_IS, "");
}

TEST_F(Fill_Msg_In_List_Test, A_Text_Of_1601_Characters_Is_Cut_In_The_List_And_In_The_Composer)
{
    const QString longest(1600, u'a');
    const struct
    {
        QString composed, kept;
        int composer_writes;
    } rows[] = {{" \n", " \n", 0}, {longest, longest, 0}, {longest + u'b', longest, 1}};
    for (const auto& [composed, kept, composer_writes] : rows) {
        m_window.m_choices.composer_text = composed;
        m_user.Will_Press("Yes");
        Run([&] { Click("OKPressed"); });
        EXPECT_EQ(Message_IS, kept);
        EXPECT_EQ(m_window.m_choices.composer_text, kept);
        EXPECT_EQ(m_window.m_composer_writes, composer_writes);
        EXPECT_EQ(m_window.m_previous_message, kept);
        EXPECT_EQ(List(), (QStringList{"1: " + kept, "2: " + kept, "3: " + kept, "4: " + kept}));
    }
}

TEST_F(Fill_Msg_In_List_Test, Exactly_One_Radio_Button_Is_On)
{
    Run([&] {
        EXPECT_EQ(Radios_On(), QStringList{"_fill_msg_all"});
        for (const char* radio : {"_fill_msg_selected", "_fill_msg_blank", "_fill_msg_all", "_fill_msg_blank"})
            Pick(radio);
        auto& fill = static_cast<Fill_Msg_In_List&>(*m_dialog);
        fill.Fill_To_ALL_Pressed();
        EXPECT_EQ(Radios_On(), QStringList{"_fill_msg_all"});
        fill.Fill_To_Selected_Pressed();
        EXPECT_EQ(Radios_On(), QStringList{"_fill_msg_selected"});
        fill.Fill_To_Blank_Pressed();
        EXPECT_EQ(Radios_On(), QStringList{"_fill_msg_blank"});
        Click("CancelPressed");
    });
}

TEST_F(Fill_Msg_In_List_Test, Each_Choice_Asks_And_Changes_Nothing_At_No_And_Fills_Its_Recipients_At_Yes)
{
    const struct
    {
        const char* radio;
        QString question;
        QStringList filled;
    } rows[] = {
        {"_fill_msg_all", Ask_All, {"1: new", "2: new", "3: new", "4: new"}},
        {"_fill_msg_selected", Ask_Selected, {"1: new", "2: ", "3:  ", "4: new"}},
        {"_fill_msg_blank", Ask_Blank, {"1: one", "2: new", "3:  ", "4: new"}},
    };
    m_window.m_selected_rows = {0, 3};
    QStringList shown;
    for (const auto& row : rows) {
        SCOPED_TRACE(row.radio);
        Put_Recipients();
        m_window.m_previous_message = "before";
        m_window.m_redisplays = 0;
        m_user.Will_Press("No");
        m_user.Will_Press("Yes");
        const int result = Run([&] {
            Pick(row.radio);
            Click("OKPressed");
            EXPECT_TRUE(m_dialog->isVisible());
            EXPECT_EQ(List(), m_unchanged);
            EXPECT_EQ(m_window.m_previous_message, "before");
            Click("OKPressed");
        });
        EXPECT_EQ(result, 1);
        EXPECT_EQ(List(), row.filled);
        EXPECT_EQ(m_window.m_previous_message, "new");
        EXPECT_GT(m_window.m_redisplays, 0);
        shown << row.question << row.question;
    }
    EXPECT_EQ(m_user.Was_Shown(), shown);
}

TEST_F(Fill_Msg_In_List_Test, A_Choice_That_Means_No_Recipient_Is_Refused_And_The_Dialog_Stays)
{
    m_window.m_recipients.Remove_Rows({1, 3});
    for (const char* radio : {"_fill_msg_selected", "_fill_msg_blank"}) {
        m_user.Will_Press("OK");
        Run([&] {
            Pick(radio);
            Click("OKPressed");
            EXPECT_TRUE(m_dialog->isVisible());
            EXPECT_EQ(Radios_On(), QStringList{radio});
            Click("CancelPressed");
        });
    }
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{None_Selected, None_Blank}));
    EXPECT_EQ(List(), (QStringList{"1: one", "3:  "}));
}
