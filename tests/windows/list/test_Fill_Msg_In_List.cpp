#include "engine/Job_State.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Window_Look.h"
#include "windows/list/Dialogs_Test.h"
#include "windows/list/Fill_Msg_In_List.h"

namespace {

const QString Ask_All = QStringLiteral(
    "This action will copy the message of composer box to all numbers in the list.\n\nDo you want to continue?");
const QString Ask_Selected = QStringLiteral(
    "This action will copy the message of composer box to the selected numbers in the list. The messages "
    "of rest of the numbers remain unchanged.\n\nDo you want to continue?");
const QString Ask_Blank =
    QStringLiteral("This action will copy the message of composer box to the blank list items. The messages of rest of "
                   "the numbers remain unchanged.\n\nDo you want to continue?");
const QString None_Blank = QStringLiteral("There is no blank message in the phone numbers-messages list.");

class Fill_Msg_In_List_Test : public Dialogs_Test
{
protected:
    Fill_Msg_In_List_Test()
    {
        Add("1", "one");
        Add("2");
        Add("3", " ");
        Add("4");
        m_window.m_choices.composer_text = QStringLiteral("new");
        m_window.m_previous_message = QStringLiteral("before");
    }

    void Open(const std::function<void(QWidget&)>& meanwhile)
    {
        m_user.When_Opens(QStringLiteral("Fill_Msg_In_List"), meanwhile);
        Open_Fill_Dialog(m_window);
        EXPECT_FALSE(Fill_Msg_In_List::defaultInstance()->isVisible());
        EXPECT_EQ(Radios_On(*Fill_Msg_In_List::defaultInstance()), QStringList{"_fill_msg_all"});
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    static void Press_OK(QWidget& dialog) { Click(dialog, "OKPressed"); }

    const QStringList m_unchanged{"1: one", "2: ", "3:  ", "4: "};
};

TEST_F(Fill_Msg_In_List_Test, An_Empty_List_Is_Refused_And_The_Number_Field_Gets_The_Focus)
{
    m_window.m_recipients.Clear();
    m_user.Will_Press("OK");
    Open_Fill_Dialog(m_window);
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Boxed(List_Empty)});
    EXPECT_EQ(m_window.m_focused, std::vector{Main_Window::Field::Number});
    EXPECT_EQ(Message_IS, QString());
}

TEST_F(Fill_Msg_In_List_Test, An_Empty_Composer_Is_Refused_And_Gets_The_Focus)
{
    Message_IS = QStringLiteral("from before");
    m_window.m_choices.composer_text.clear();
    m_user.Will_Press("OK");
    Open_Fill_Dialog(m_window);
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Boxed(Enter_Message)});
    EXPECT_EQ(m_window.m_focused, std::vector{Main_Window::Field::Composer});
    EXPECT_EQ(Message_IS, QString());
    EXPECT_EQ(List(), m_unchanged);
}

TEST_F(Fill_Msg_In_List_Test, A_Composer_Of_Blanks_Is_Not_Empty)
{
    m_window.m_choices.composer_text = QStringLiteral(" \n");
    m_user.Will_Press("Yes");
    Open(Press_OK);
    EXPECT_EQ(List().first(), QStringLiteral("1:  \n"));
}

TEST_F(Fill_Msg_In_List_Test, A_Text_Of_1601_Characters_Is_Cut_In_The_List_And_In_The_Composer)
{
    const QString kept(1600, u'a');
    m_window.m_choices.composer_text = kept + u'b';
    m_user.Will_Press("Yes");
    Open(Press_OK);
    EXPECT_EQ(Message_IS, kept);
    EXPECT_EQ(m_window.m_choices.composer_text, kept);
    EXPECT_EQ(m_window.m_previous_message, kept);
    for (int row = 0; row < 4; ++row)
        EXPECT_EQ(m_window.m_recipients.At(row).Message, kept);
}

TEST_F(Fill_Msg_In_List_Test, A_Text_Within_The_Limit_Is_Not_Put_Back_Into_The_Composer)
{
    class Window_That_Refuses_Text : public Window_For_Tests
    {
        void Set_Composer_Text(const QString&) override { ADD_FAILURE() << "the composer was written to"; }
    } window;
    window.m_recipients.Append(QStringLiteral("1"), {});
    window.m_choices.composer_text = QString(1600, u'a');
    m_user.When_Opens(QStringLiteral("Fill_Msg_In_List"), [](QWidget& dialog) { Click(dialog, "CancelPressed"); });
    Open_Fill_Dialog(window);
    EXPECT_EQ(Message_IS, window.m_choices.composer_text);
}

TEST_F(Fill_Msg_In_List_Test, It_Opens_Modal_With_All_On)
{
    Open([&](QWidget& dialog) {
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(dialog.parentWidget(), &m_window);
        EXPECT_EQ(Radios_On(dialog), QStringList{"_fill_msg_all"});
        EXPECT_EQ(Focused(dialog), QStringLiteral("_fill_msg_all"));
        EXPECT_EQ(Message_IS, QStringLiteral("new"));
        Click(dialog, "CancelPressed");
    });
}

TEST_F(Fill_Msg_In_List_Test, Exactly_One_Radio_Button_Is_On)
{
    Open([](QWidget& dialog) {
        for (const char* radio : {"_fill_msg_selected", "_fill_msg_blank", "_fill_msg_all", "_fill_msg_blank"}) {
            Pick(dialog, radio);
            EXPECT_EQ(Radios_On(dialog), QStringList{radio});
        }
        auto& fill = static_cast<Fill_Msg_In_List&>(dialog);
        fill.Fill_To_ALL_Pressed();
        EXPECT_EQ(Radios_On(dialog), QStringList{"_fill_msg_all"});
        fill.Fill_To_Selected_Pressed();
        EXPECT_EQ(Radios_On(dialog), QStringList{"_fill_msg_selected"});
        fill.Fill_To_Blank_Pressed();
        EXPECT_EQ(Radios_On(dialog), QStringList{"_fill_msg_blank"});
        Click(dialog, "CancelPressed");
    });
}

TEST_F(Fill_Msg_In_List_Test, All_Fills_Every_Recipient_And_Keeps_The_Numbers)
{
    m_user.Will_Press("Yes");
    Open(Press_OK);
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Ask_All});
    EXPECT_EQ(List(), (QStringList{"1: new", "2: new", "3: new", "4: new"}));
    EXPECT_EQ(Fill_Msg_In_List::defaultInstance()->result(), 1);
    EXPECT_EQ(m_window.m_previous_message, QStringLiteral("new"));
    EXPECT_GT(m_window.m_redisplays, 0);
}

TEST_F(Fill_Msg_In_List_Test, Filling_All_Twice_Leaves_The_List_As_After_The_First_Time)
{
    for (int time = 0; time < 2; ++time) {
        m_user.Will_Press("Yes");
        Open(Press_OK);
        EXPECT_EQ(List(), (QStringList{"1: new", "2: new", "3: new", "4: new"}));
    }
}

TEST_F(Fill_Msg_In_List_Test, Selected_Fills_All_Of_Several_Selected_Rows)
{
    m_window.m_selected_rows = {0, 3};
    m_user.Will_Press("Yes");
    Open([](QWidget& dialog) {
        Pick(dialog, "_fill_msg_selected");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Ask_Selected});
    EXPECT_EQ(List(), (QStringList{"1: new", "2: ", "3:  ", "4: new"}));
}

TEST_F(Fill_Msg_In_List_Test, Selected_Without_A_Selected_Row_Is_Refused_And_The_Dialog_Stays)
{
    m_user.Will_Press("OK");
    Open([](QWidget& dialog) {
        Pick(dialog, "_fill_msg_selected");
        Click(dialog, "OKPressed");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Radios_On(dialog), QStringList{"_fill_msg_selected"});
        Click(dialog, "CancelPressed");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Boxed(None_Selected)});
    EXPECT_EQ(List(), m_unchanged);
}

TEST_F(Fill_Msg_In_List_Test, Blank_Fills_Empty_Messages_But_Not_One_Of_Spaces)
{
    m_window.m_selected_rows = {0};
    m_user.Will_Press("Yes");
    Open([](QWidget& dialog) {
        Pick(dialog, "_fill_msg_blank");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Ask_Blank});
    EXPECT_EQ(List(), (QStringList{"1: one", "2: new", "3:  ", "4: new"}));
}

TEST_F(Fill_Msg_In_List_Test, Blank_Without_A_Blank_Message_Is_Refused_And_Changes_Nothing)
{
    m_window.m_recipients.Remove_Rows({1, 3});
    m_user.Will_Press("OK");
    Open([](QWidget& dialog) {
        Pick(dialog, "_fill_msg_blank");
        Click(dialog, "OKPressed");
        EXPECT_TRUE(dialog.isVisible());
        Click(dialog, "CancelPressed");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Boxed(None_Blank)});
    EXPECT_EQ(List(), (QStringList{"1: one", "3:  "}));
}

TEST_F(Fill_Msg_In_List_Test, No_To_Any_Question_Changes_Nothing_And_The_Dialog_Stays)
{
    m_window.m_selected_rows = {0};
    for (int question = 0; question < 3; ++question)
        m_user.Will_Press("No");
    Open([](QWidget& dialog) {
        for (const char* radio : {"_fill_msg_all", "_fill_msg_selected", "_fill_msg_blank"}) {
            Pick(dialog, radio);
            Click(dialog, "OKPressed");
            EXPECT_TRUE(dialog.isVisible());
        }
        Click(dialog, "CancelPressed");
    });
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Ask_All, Ask_Selected, Ask_Blank}));
    EXPECT_EQ(List(), m_unchanged);
    EXPECT_EQ(m_window.m_previous_message, QStringLiteral("before"));
}

TEST_F(Fill_Msg_In_List_Test, Cancel_Escape_And_The_Close_Button_End_It_With_Zero_And_Change_Nothing)
{
    const std::function<void(QWidget&)> ways[] = {
        [](QWidget& dialog) { Click(dialog, "CancelPressed"); },
        [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [](QWidget& dialog) { dialog.close(); },
    };
    for (const auto& way : ways) {
        Open([&](QWidget& dialog) {
            Pick(dialog, "_fill_msg_blank");
            way(dialog);
            EXPECT_FALSE(dialog.isVisible());
        });
        EXPECT_EQ(Fill_Msg_In_List::defaultInstance()->result(), 0);
        EXPECT_EQ(List(), m_unchanged);
        EXPECT_EQ(m_window.m_previous_message, QStringLiteral("before"));
        EXPECT_EQ(m_window.m_redisplays, 0);
    }
}

TEST_F(Fill_Msg_In_List_Test, Enter_Presses_OK)
{
    m_user.Will_Press("Yes");
    Open([](QWidget& dialog) { QTest::keyClick(dialog.focusWidget(), Qt::Key_Return); });
    EXPECT_EQ(List().first(), QStringLiteral("1: new"));
}

TEST_F(Fill_Msg_In_List_Test, Two_Hundred_Thousand_Recipients_Are_Filled_While_The_Window_Serves_Events_Under_A_Sheet)
{
    constexpr int Many = 200'000;
    m_window.m_recipients.Clear();
    for (int row = 0; row < Many; ++row)
        Add(QString::number(10'000'000'000 + row), row % 2 ? QStringLiteral("old") : QString());
    m_user.Will_Press("Yes");
    const Pulse pulse;
    Open(Press_OK);
    EXPECT_GE(pulse.Beats(), Beats_Of_A_Worker);
    int filled = 0;
    for (int row = 0; row < Many; ++row)
        filled += m_window.m_recipients.At(row).Message == QStringLiteral("new") ? 1 : 0;
    EXPECT_EQ(filled, Many);
    EXPECT_EQ(m_window.m_recipients.Numbers().First_Index_Of(QStringLiteral("10000199999")), Many - 1);
}

TEST_F(Fill_Msg_In_List_Test, Once_The_Program_Is_Exiting_It_Does_Not_Open)
{
    Begin_Program_Exit();
    Open_Fill_Dialog(m_window);
    EXPECT_EQ(List(), m_unchanged);
    EXPECT_EQ(m_window.m_previous_message, QStringLiteral("before"));
}

TEST_F(Fill_Msg_In_List_Test, It_Has_The_Programs_Background_And_One_Shared_Instance)
{
    const auto* dialog = Fill_Msg_In_List::defaultInstance();
    EXPECT_EQ(dialog, Fill_Msg_In_List::defaultInstance());
    EXPECT_EQ(dialog->objectName(), QStringLiteral("Fill_Msg_In_List"));
    EXPECT_EQ(dialog->palette().color(QPalette::Window), Window_Background());
}

} // namespace
