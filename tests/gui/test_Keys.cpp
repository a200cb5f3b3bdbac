#include "gui/Open_Program.h"
#include "support/Keys.h"

using testing::ElementsAre;
using testing::IsEmpty;

// The main window with the keyboard alone.
class Keys : public Open_Program
{
protected:
    /// With "1", "2" and so on.
    void Fill_List(int count)
    {
        for (int number = 1; number <= count; ++number)
            m_delegate->Create_Num_Msg_List(QString::number(number), QString());
        m_delegate->Redisplay_Recipients();
        The<QTableView>("idTableView").setFocus();
    }
    void Begin_Number(const char* number)
    {
        The<QLineEdit>("_numberEdit").setText(number);
        The<QLineEdit>("_numberEdit").setFocus();
    }
};

TEST_F(Keys, Return_In_The_Number_Field_Adds_The_Number_Or_Refuses_It)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText("hello");
    The<QLineEdit>("_numberEdit").setFocus();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClicks(&The<QLineEdit>("_numberEdit"), "+4912");
        Press_Key(key, key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        EXPECT_TRUE(The<QLineEdit>("_numberEdit").text().isEmpty());
        EXPECT_TRUE(Has_Focus("_numberEdit"));
    }
    EXPECT_THAT(Numbers(), ElementsAre("004912", "004912"));
    EXPECT_EQ(m_delegate->Recipients().At(0).Message, "hello");
    Begin_Number("44+1");
    user.Will_Press("OK");
    Press_Key(Qt::Key_Return);
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nPlease enter a valid phone number."));
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "44+1");
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Keys, Return_Held_Down_Adds_A_Number_Once_And_Tells_Nothing_About_The_Empty_Field)
{
    Begin_Number("123");
    Hold_Down(Qt::Key_Return);
    EXPECT_THAT(Numbers(), ElementsAre("123"));
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Keys, F2_And_Return_Edit_The_Selected_Recipient_And_Say_What_The_Double_Click_Says)
{
    Fill_List(3);
    int row = 0;
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter}) {
        Select_Rows({row++});
        user.When_Opens("Update_Num_SMS", [row](QWidget& editor) {
            EXPECT_EQ(In<QLineEdit>(editor, "m_num_str").text(), QString::number(row));
            Press_Key(Qt::Key_Escape);
        });
        Press_Key(key);
    }
    EXPECT_THAT(Numbers(), ElementsAre("1", "2", "3"));
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return}) {
        The<QTableView>("idTableView").clearSelection();
        Press_Key(key); // with nothing selected it does nothing
        Select_Rows({0, 2});
        user.Will_Press("OK");
        Press_Key(key);
    }
    const QString told = "\nPlease select only one record to update.";
    EXPECT_THAT(user.Was_Shown(), ElementsAre(told, told));
}

TEST_F(Keys, Return_Held_Down_Opens_One_Editor_And_Does_Not_Press_Its_OK_And_Leaves_A_Message_To_Be_Read)
{
    Fill_List(2);
    Select_Rows({0});
    std::optional<Held_Key> held(Qt::Key_Return);
    user.When_Opens("Update_Num_SMS", [&](QWidget& editor) {
        Serve_Repeats(*held);
        EXPECT_TRUE(editor.isVisible());
        static_cast<QDialog&>(editor).reject();
    });
    held->Press();
    Serve_Repeats(*held);
    held.reset();
    EXPECT_FALSE(QApplication::activeModalWidget());

    Select_Rows({0, 1});
    Held_Key held_again(Qt::Key_Return);
    user.Will_Handle([&](QMessageBox& box) {
        Serve_Repeats(held_again);
        EXPECT_TRUE(box.isVisible());
        box.reject();
    });
    held_again.Press();
}

TEST_F(Keys, Delete_Does_What_Clear_Selected_Does_Once_However_Long_It_Is_Held)
{
    The<QTableView>("idTableView").setFocus();
    user.Will_Press("OK");
    Press_Key(Qt::Key_Delete);
    Fill_List(4);
    Select_Rows({1, 2});
    Hold_Down(Qt::Key_Delete);
    EXPECT_THAT(Numbers(), ElementsAre("1", "4"));
    EXPECT_EQ(Count_Label(), "Total Numbers : 2");
    Press_Key(Qt::Key_Delete); // row 0 is selected now
    Press_Key(Qt::Key_Delete);
    EXPECT_THAT(Numbers(), IsEmpty());
    EXPECT_TRUE(Has_Focus("_numberEdit"));
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nPhone numbers-Messages list is empty."));
}

TEST_F(Keys, Keys_With_Others_Held_Mean_Something_Else)
{
    Fill_List(2);
    Select_Rows({0});
    for (const auto modifier : {Qt::ControlModifier, Qt::ShiftModifier, Qt::AltModifier}) {
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return, Qt::Key_Delete})
            if (modifier != Qt::ControlModifier || key != Qt::Key_Return) // which sends
                Press_Key(key, modifier);
    }
    EXPECT_EQ(Numbers().size(), 2);
}

TEST_F(Keys, The_Keys_That_Move_Select_Where_They_Stand_While_Nothing_Is_Selected)
{
    Fill_List(3);
    auto& table = The<QTableView>("idTableView");
    for (const auto& [key, row] :
         {std::pair(Qt::Key_Down, 0), {Qt::Key_Up, 0}, {Qt::Key_Home, 0}, {Qt::Key_End, 2}, {Qt::Key_PageDown, 2}}) {
        table.clearSelection();
        Press_Key(key);
        EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(row)) << key;
    }
    Press_Key(Qt::Key_Up);
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(1));
}

// ---- The letters

TEST_F(Keys, Alt_And_A_Letter_Answer_A_Question)
{
    for (const auto& [key, is_yes] : {std::pair(Qt::Key_N, false), {Qt::Key_Y, true}}) {
        Fill_List(1);
        user.Will_Handle([key = key](QMessageBox& box) {
            Press_Key(key, Qt::AltModifier);
            EXPECT_TRUE(Serve_Until([&] { return !box.isVisible(); }, 5)) << key;
            box.reject();
        });
        Click("Clear_All_Btn");
        EXPECT_EQ(Numbers().isEmpty(), is_yes) << key;
    }
}
