#include "platform/Interface_Thread.h"
#include "support/User.h"
#include "toolkit/Message_Boxes.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace {

int Run_Dialog(const char* object_name)
{
    QDialog dialog;
    dialog.setObjectName(QLatin1String(object_name));
    return dialog.exec();
}

void Meet_An_Unexpected_Box()
{
    const User user;
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Send to all?")));
}

void Wait_For_A_Box_In_Vain()
{
    User user;
    user.Will_Press(QStringLiteral("Yes"));
}

void Wait_For_A_Window_In_Vain()
{
    User user;
    user.When_Opens(QStringLiteral("Connection_Info"), [](QWidget&) {});
}

void Press_What_Is_Not_There()
{
    User user;
    user.Will_Press(QStringLiteral("Maybe"));
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Send to all?")));
}

void Ask_Nobody()
{
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Is anybody there?")));
}

} // namespace

TEST(User, An_Unexpected_Box_Fails_The_Test_With_Its_Text_And_Is_Closed)
{
    EXPECT_NONFATAL_FAILURE(Meet_An_Unexpected_Box(), "An unexpected box: \"Send to all?\"");
}

TEST(User, An_Answer_That_Nobody_Asked_For_Fails_The_Test)
{
    EXPECT_NONFATAL_FAILURE(Wait_For_A_Box_In_Vain(), "No box ever asked for this answer: \"Yes\"");
    EXPECT_NONFATAL_FAILURE(Wait_For_A_Window_In_Vain(), "No window ever opened by this name: \"Connection_Info\"");
}

TEST(User, A_Button_That_Is_Not_There_Cannot_Be_Pressed)
{
    EXPECT_NONFATAL_FAILURE(Press_What_Is_Not_There(), "No button \"Maybe\" to press in the box \"Send to all?\"");
}

TEST(User, A_Box_Without_A_User_Fails_The_Test_And_Is_Closed)
{
    EXPECT_NONFATAL_FAILURE(Ask_Nobody(), "A box opened with nobody to answer it: \"Is anybody there?\"");
}

TEST(User, Answers_Are_Given_In_Order_And_Texts_Remembered)
{
    User user;
    user.Will_Press(QStringLiteral("No"));
    user.Will_Press(QStringLiteral("Yes"));
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("one")));
    EXPECT_TRUE(Show_YES_NO_MessageBox(QStringLiteral("two")));
    EXPECT_EQ(user.Was_Shown(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
}

TEST(User, A_Box_Over_A_Dialog_Is_Answered_Before_The_Dialog_Goes_On)
{
    User user;
    QStringList way;
    user.When_Opens(QStringLiteral("Edit"), [&](QWidget& window) {
        way += QStringLiteral("dialog");
        way += Show_YES_NO_MessageBox(QStringLiteral("Save?")) ? QStringLiteral("yes") : QStringLiteral("no");
        static_cast<QDialog&>(window).done(7);
    });
    user.Will_Press(QStringLiteral("Yes"));
    EXPECT_EQ(Run_Dialog("Edit"), 7);
    EXPECT_EQ(way.join(u' '), QLatin1String("dialog yes"));
}

TEST(User, Windows_Are_Known_By_Name_And_Dialogs_Without_One_By_Their_Turn)
{
    User user;
    user.When_Opens(QStringLiteral("Second"), [](QWidget& window) { static_cast<QDialog&>(window).done(2); });
    user.Will_Do([](QDialog* dialog) { dialog->done(1); });
    EXPECT_EQ(Run_Dialog("First"), 1);
    EXPECT_EQ(Run_Dialog("Second"), 2);
}

TEST(User, A_Box_A_Worker_Asks_For_During_A_Dialog_Waits_For_Nothing_Else)
{
    User user;
    bool answer = false;
    user.When_Opens(QStringLiteral("Wizard"), [&](QWidget& window) {
        Run_On_Worker([&] { answer = Show_YES_NO_MessageBox(QStringLiteral("Use this phone?")); });
        static_cast<QDialog&>(window).accept();
    });
    user.Will_Press(QStringLiteral("Yes"));
    EXPECT_EQ(Run_Dialog("Wizard"), QDialog::Accepted);
    EXPECT_TRUE(answer);
}

TEST(User, A_Box_Left_Open_Is_For_The_Program_To_Close)
{
    User user;
    user.Will_Leave_It_Open();
    QTimer::singleShot(20, qApp, [] { Close_Message_Boxes(); });
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Stop?")));
    EXPECT_EQ(user.Was_Shown(), QStringList{QStringLiteral("Stop?")});
}
