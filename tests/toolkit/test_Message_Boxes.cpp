#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "support/Serve_Until.h"
#include "support/User.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"

#include <QDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <atomic>
#include <gtest/gtest.h>

namespace {

class Message_Boxes : public testing::Test
{
protected:
    ~Message_Boxes() override
    {
        Forget_Program_Exit();
        Finish_Workers();
    }

    User m_user;
};

QStringList Buttons_Of(const QMessageBox& box)
{
    QStringList texts;
    const auto buttons = box.buttons();
    for (const auto* button : buttons)
        texts += button->text().remove(u'&');
    texts.sort();
    return texts;
}

} // namespace

TEST_F(Message_Boxes, What_Is_Told_Stands_Under_An_Empty_Line_Over_One_Button)
{
    QStringList buttons;
    m_user.Will_Handle([&](QMessageBox& box) {
        buttons = Buttons_Of(box);
        box.buttons().constFirst()->click();
    });
    Show_MessageBox(QStringLiteral("Please enter a valid phone number."));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QStringLiteral("\nPlease enter a valid phone number.")});
    EXPECT_EQ(buttons, QStringList{QStringLiteral("OK")});
}

TEST_F(Message_Boxes, A_Question_Stands_As_It_Is_Over_Yes_And_No)
{
    QStringList buttons;
    QString default_button;
    m_user.Will_Handle([&](QMessageBox& box) {
        buttons = Buttons_Of(box);
        default_button = box.defaultButton()->text();
        box.reject();
    });
    Show_YES_NO_MessageBox(QStringLiteral("\nDo you really want to exit from 'Corvane'?"));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QStringLiteral("\nDo you really want to exit from 'Corvane'?")});
    EXPECT_EQ(buttons, (QStringList{QStringLiteral("No"), QStringLiteral("Yes")}));
    EXPECT_EQ(default_button, QLatin1String("Yes"));
}

TEST_F(Message_Boxes, Only_Yes_Means_Yes)
{
    m_user.Will_Press(QStringLiteral("Yes"));
    EXPECT_TRUE(Show_YES_NO_MessageBox(QStringLiteral("Sure?")));
    m_user.Will_Press(QStringLiteral("No"));
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Sure?")));
    m_user.Will_Press_Escape();
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Sure?")));
    m_user.Will_Close_It();
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("Sure?")));
    m_user.Will_Handle([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_TRUE(Show_YES_NO_MessageBox(QStringLiteral("Sure?")));
}

TEST_F(Message_Boxes, Escape_And_The_Close_Button_End_What_Is_Told)
{
    m_user.Will_Press_Escape();
    Show_MessageBox(QStringLiteral("one"));
    m_user.Will_Close_It();
    Show_MessageBox(QStringLiteral("two"));
    EXPECT_EQ(m_user.Was_Shown().size(), 2);
}

TEST_F(Message_Boxes, Markup_Is_Text_Like_Any_Other)
{
    const QString text = QStringLiteral("<b>bold</b> &amp; <img src='x'> %1");
    Qt::TextFormat format = Qt::AutoText;
    m_user.Will_Handle([&](QMessageBox& box) {
        format = box.textFormat();
        box.reject();
    });
    Show_MessageBox(text);
    EXPECT_EQ(format, Qt::PlainText);
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QLatin1Char('\n') + text});
}

TEST_F(Message_Boxes, A_Worker_Tells_And_Asks_And_Waits_For_The_Answer)
{
    m_user.Will_Press(QStringLiteral("OK"));
    m_user.Will_Press(QStringLiteral("Yes"));
    m_user.Will_Press(QStringLiteral("No"));
    std::atomic<int> answers{0};
    Start_Worker("asks", [&] {
        Show_MessageBox(QStringLiteral("Device Connection Error!"));
        answers += Show_YES_NO_MessageBox(QStringLiteral("first")) ? 1 : 10;
        answers += Show_YES_NO_MessageBox(QStringLiteral("second")) ? 100 : 1000;
    });
    Finish_Workers();
    EXPECT_EQ(answers, 1001);
    EXPECT_EQ(m_user.Was_Shown().join(u'|'), QLatin1String("\nDevice Connection Error!|first|second"));
}

TEST_F(Message_Boxes, Once_The_Program_Exits_No_Box_Opens_And_Every_Answer_Is_No)
{
    Begin_Program_Exit();
    Show_MessageBox(QStringLiteral("told to nobody"));
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("asked of nobody")));
    std::atomic<bool> answer{true};
    Start_Worker("asks", [&] { answer = Show_YES_NO_MessageBox(QStringLiteral("asked by a worker")); });
    Finish_Workers();
    EXPECT_FALSE(answer);
    EXPECT_EQ(m_user.Was_Shown(), QStringList());
}

TEST_F(Message_Boxes, Open_Ones_Close_With_No_When_They_Are_Told_To)
{
    for (int i = 0; i < 2; ++i)
        m_user.Will_Handle([](QMessageBox&) { QTimer::singleShot(0, qApp, [] { Close_Message_Boxes(); }); });
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("open at the exit")));
    Show_MessageBox(QStringLiteral("open at the exit as well"));
    EXPECT_EQ(m_user.Was_Shown().size(), 2);
}

TEST_F(Message_Boxes, A_Windows_Boxes_Close_And_Those_Of_Others_Stay)
{
    QDialog first;
    QDialog second;
    first.setModal(true);
    first.show();
    bool was_open = false;
    m_user.Will_Handle([&](QMessageBox& box) {
        EXPECT_EQ(box.parentWidget(), &first);
        Close_Message_Boxes(&second);
        was_open = box.isVisible();
        Close_Message_Boxes(&first);
        EXPECT_FALSE(box.isVisible());
    });
    EXPECT_FALSE(Show_YES_NO_MessageBox(QStringLiteral("over the first")));
    EXPECT_TRUE(was_open);
}

TEST_F(Message_Boxes, A_Box_Belongs_To_The_Modal_Window_On_Top)
{
    QDialog below;
    below.setModal(true);
    below.show();
    QDialog top(&below);
    top.setModal(true);
    top.show();
    const QWidget* owner = nullptr;
    const auto look = [&](QMessageBox& box) {
        owner = box.parentWidget();
        box.reject();
    };
    m_user.Will_Handle(look);
    Show_MessageBox(QStringLiteral("over the top"));
    EXPECT_EQ(owner, &top);
    top.hide();
    m_user.Will_Handle(look);
    Show_MessageBox(QStringLiteral("over the other"));
    EXPECT_EQ(owner, &below);
    below.hide();
    m_user.Will_Handle(look);
    Show_MessageBox(QStringLiteral("over nothing"));
    EXPECT_EQ(owner, nullptr) << "there is no main window here";
}

TEST_F(Message_Boxes, A_Box_Opens_During_A_Wait_That_Holds_Input_Back)
{
    m_user.Will_Press(QStringLiteral("Yes"));
    bool answer = false;
    Run_On_Worker([&] { answer = Show_YES_NO_MessageBox(QStringLiteral("while waiting")); });
    EXPECT_TRUE(answer);
}
