#include "gui/Open_Program.h"
#include "platform/Text_Files.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/Templates.h"

// The buttons that open the two stores, and a template on its way into the composer.
class Templates_In_Composer : public Open_Program
{
protected:
    ~Templates_In_Composer() override { Set_Pace(1); }

    static void Store(const QByteArray& lines) { EXPECT_TRUE(Replace_File(Templates_Path, lines)); }

    /// Presses the main window's button and uses the first template.
    void Use_The_First()
    {
        When_Filled(user, "Templates", [](QWidget& window) {
            window.findChild<QTableView*>()->selectRow(0);
            Click_In(window, "Use_template_Btn");
            EXPECT_FALSE(window.isVisible());
        });
        Click("View_Templates_Btn");
        EXPECT_EQ(Templates::defaultInstance()->result(), 1);
    }

    /// The notice about long messages, which opens once and over the window that is in use.
    void Will_Be_Told_Of_The_Length(const char* over)
    {
        user.When_Opens("Long_SMS_Dlg", [over](QWidget& notice) {
            EXPECT_EQ(notice.parentWidget()->objectName(), over);
            Click_In(notice, "OKPressed");
        });
    }

    QPlainTextEdit& Composer() { return The<QPlainTextEdit>("_messageEdit"); }
    QString Counter() { return The<QLabel>("_Msg_char_count").text(); }
};

TEST_F(Templates_In_Composer, It_Stands_At_The_Cursor_Or_For_What_Is_Selected_And_Is_Counted)
{
    Store("new\n");
    Composer().setPlainText("one two");
    Composer().moveCursor(QTextCursor::Start);
    Use_The_First();
    EXPECT_EQ(Composer().toPlainText(), "newone two");
    EXPECT_EQ(Counter(), "10 Characters");
    Store("last|AP*|DX/line\n");
    Composer().moveCursor(QTextCursor::End);
    Composer().moveCursor(QTextCursor::StartOfWord, QTextCursor::KeepAnchor);
    Use_The_First();
    EXPECT_EQ(Composer().toPlainText(), "newone last\nline");
    EXPECT_EQ(Counter(), "16 Characters");
}

TEST_F(Templates_In_Composer, One_That_Makes_The_Message_Long_Opens_The_Notice_Once)
{
    Store(QByteArray(161, 'x') + '\n');
    Will_Be_Told_Of_The_Length("Templates");
    Use_The_First();
    EXPECT_EQ(Counter(), "161 Characters (Each Message will now consume 2 SMS)");
    Use_The_First();
    EXPECT_EQ(Counter(), "322 Characters (Each Message will now consume 3 SMS)");
}

TEST_F(Templates_In_Composer, With_A_Text_Too_Long_Yes_Leaves_Exactly_Its_First_1600_Characters)
{
    Store(QByteArray(1000, 't') + '\n');
    Will_Be_Told_Of_The_Length("CorvaneAppDelegate");
    Composer().setPlainText(QString(700, u'c'));
    Composer().moveCursor(QTextCursor::End);
    user.Will_Press("Yes");
    Use_The_First();
    EXPECT_EQ(Composer().toPlainText(), QString(700, u'c') + QString(900, u't'));
    EXPECT_EQ(Counter(), "1600 Characters (Each Message will now consume 10 SMS)");
}

TEST_F(Templates_In_Composer, The_Main_Window_Finds_A_Text_That_Is_A_Template_Already)
{
    Store("one\n\n two |AP*|DX/three\n");
    EXPECT_TRUE(m_delegate->Check_Duplicate_Template("one"));
    EXPECT_TRUE(m_delegate->Check_Duplicate_Template(" two \nthree"));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Template("two \nthree"));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Template(""));
}

TEST_F(Templates_In_Composer, The_Button_Beside_It_Opens_The_Sent_Items)
{
    EXPECT_TRUE(Replace_File(Sent_Item_Path, "\a1\vone\ad\v\n"));
    When_Filled(user, "Sent_Items", [](QWidget& window) {
        EXPECT_EQ(window.findChild<QLabel*>("_sent_list_count")->text(), "Total Items : 1");
        window.close();
    });
    Click("Sent_Item_Btn");
    EXPECT_NE(SENT_WND, nullptr);
}
