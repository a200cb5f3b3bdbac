#include "support/Serve_Until.h"
#include "support/User.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"

#include <QtTest>
#include <QtWidgets>
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
    const QString markup = "<b>bold</b> &amp; <img src='x'> %1"; // text like any other
    m_user.Will_Handle([](QMessageBox& box) {
        EXPECT_EQ(Buttons_Of(box), QStringList{"OK"});
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        box.buttons().constFirst()->click();
    });
    Show_MessageBox(markup);
    m_user.Will_Press_Escape();
    Show_MessageBox("one");
    m_user.Will_Close_It();
    Show_MessageBox("two");
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{'\n' + markup, "\none", "\ntwo"}));
}

TEST_F(Message_Boxes, A_Question_Stands_As_It_Is_And_Only_Yes_Means_Yes)
{
    m_user.Will_Handle([](QMessageBox& box) {
        EXPECT_EQ(Buttons_Of(box), (QStringList{"No", "Yes"}));
        EXPECT_EQ(box.defaultButton()->text(), "Yes");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_TRUE(Show_YES_NO_MessageBox("\nSure?"));
    m_user.Will_Press("Yes");
    EXPECT_TRUE(Show_YES_NO_MessageBox("Sure?"));
    m_user.Will_Press("No");
    EXPECT_FALSE(Show_YES_NO_MessageBox("Sure?"));
    m_user.Will_Press_Escape();
    EXPECT_FALSE(Show_YES_NO_MessageBox("Sure?"));
    m_user.Will_Close_It();
    EXPECT_FALSE(Show_YES_NO_MessageBox("Sure?"));
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{"\nSure?", "Sure?", "Sure?", "Sure?", "Sure?"}));
}

TEST_F(Message_Boxes, A_Worker_Tells_And_Asks_And_Waits_For_The_Answer)
{
    m_user.Will_Press("OK");
    m_user.Will_Press("Yes");
    m_user.Will_Press("No");
    std::atomic<int> answers{0};
    Start_Worker("asks", [&] {
        Show_MessageBox("Device Connection Error!");
        answers += Show_YES_NO_MessageBox("first") ? 1 : 10;
        answers += Show_YES_NO_MessageBox("second") ? 100 : 1000;
    });
    Finish_Workers();
    EXPECT_EQ(answers, 1001);
    EXPECT_EQ(m_user.Was_Shown().join(u'|'), "\nDevice Connection Error!|first|second");
    m_user.Will_Press("Yes");
    bool answer = false;
    Run_On_Worker([&] { answer = Show_YES_NO_MessageBox("during a wait that holds input back"); });
    EXPECT_TRUE(answer);
}

TEST_F(Message_Boxes, Once_The_Program_Exits_No_Box_Opens_And_Every_Answer_Is_No)
{
    Begin_Program_Exit();
    Show_MessageBox("told to nobody");
    EXPECT_FALSE(Show_YES_NO_MessageBox("asked of nobody"));
    std::atomic<bool> answer{true};
    Start_Worker("asks", [&] { answer = Show_YES_NO_MessageBox("asked by a worker"); });
    Finish_Workers();
    EXPECT_FALSE(answer);
    EXPECT_EQ(m_user.Was_Shown(), QStringList());
}

TEST_F(Message_Boxes, Open_Ones_Close_With_No_When_They_Are_Told_To)
{
    for (int i = 0; i < 2; ++i)
        m_user.Will_Handle([](QMessageBox&) { QTimer::singleShot(0, qApp, [] { Close_Message_Boxes(); }); });
    EXPECT_FALSE(Show_YES_NO_MessageBox("open at the exit"));
    Show_MessageBox("open at the exit as well");
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
    EXPECT_FALSE(Show_YES_NO_MessageBox("over the first"));
    EXPECT_TRUE(was_open);
}

TEST_F(Message_Boxes, A_Box_Belongs_To_The_Modal_Window_On_Top)
{
    QDialog below;
    QDialog top(&below);
    for (QDialog* dialog : {&below, &top}) {
        dialog->setModal(true);
        dialog->show();
    }
    const auto expect_owner = [this](const QWidget* owner) {
        m_user.Will_Handle([owner](QMessageBox& box) {
            EXPECT_EQ(box.parentWidget(), owner);
            box.reject();
        });
        Show_MessageBox("over it");
    };
    expect_owner(&top);
    top.hide();
    expect_owner(&below);
    below.hide();
    expect_owner(nullptr); // there is no main window here
}
