#include "desktop/Held_Window_Manager.h"
#include "desktop/Other_Program.h"
#include "support/Serve_Until.h"
#include "support/User.h"
#include "support/Window_For_Tests.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Shared_Instance.h"
#include "windows/main/Send_Modeless.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QVBoxLayout>
#include <functional>
#include <gtest/gtest.h>
#include <thread>

namespace {

// CORVANE_OPENINGS=200 asks for more of each kind than the ordinary run has time for.
int Openings()
{
    const int asked_for = qEnvironmentVariableIntValue("CORVANE_OPENINGS");
    return asked_for > 0 ? asked_for : 12;
}

// A dialog over the main window, and what opens over the dialog: whenever that has gone, the keyboard belongs to the
// dialog again.
class Active_Window : public testing::Test
{
protected:
    Active_Window()
    {
        m_dialog.setParent(&m_window, m_dialog.windowFlags());
        m_dialog.setModal(true);
        (new QVBoxLayout(&m_dialog))->addWidget(m_field);
        m_dialog.resize(500, 300);
        m_dialog.show();
        m_below->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_dialog));
    }
    ~Active_Window() override { End_Shared_Instances(); }

    /// Whether the window is the active one, and still is when the window manager has had time for a late word.
    static ::testing::AssertionResult Is_Active_Again(const QWidget& window)
    {
        constexpr int late_word = 40; // milliseconds
        const auto is_active = [&] { return window.isActiveWindow(); };
        Serve_Until(is_active, 2);
        QTest::qWait(late_word);
        Serve_Until(is_active, 2); // on a busy machine the word itself may have come late
        if (window.isActiveWindow() && QApplication::focusWidget())
            return ::testing::AssertionSuccess();
        const auto* active = QApplication::activeWindow();
        return ::testing::AssertionFailure()
               << "the active window is " << (active ? active->objectName().toStdString() : "none");
    }

    /// Both have gone, and what happens meanwhile has happened, before the window manager comes to anything.
    void End_Sheet_And_Dialog(const std::function<void()>& meanwhile)
    {
        PleaseWait_Modeless sheet;
        ASSERT_TRUE(Is_Active_Again(m_dialog));
        sheet.Begin_Sheet(&m_dialog);
        ASSERT_TRUE(Serve_Until([&] { return sheet.isActiveWindow(); }));
        const Held_Window_Manager held;
        sheet.End_Sheet();
        m_dialog.hide();
        sheet.setParent(nullptr);
        meanwhile();
    }

    Window_For_Tests m_window;
    QLineEdit* m_below = new QLineEdit(&m_window);
    QDialog m_dialog;
    QLineEdit* m_field = new QLineEdit;
};

TEST_F(Active_Window, Comes_Back_After_A_Sheet_Of_Any_Length)
{
    PleaseWait_Modeless sheet;
    for (int opening = 0; opening < Openings(); ++opening) {
        for (const int work : {0, 1, 3, 7, 60}) { // milliseconds, which the work takes away from the events
            sheet.Begin_Sheet(&m_dialog);
            QThread::msleep(static_cast<unsigned long>(work));
            sheet.End_Sheet();
            ASSERT_TRUE(Is_Active_Again(m_dialog)) << "opening " << opening << ", " << work << " ms of work";
        }
    }
    sheet.setParent(nullptr);
}

// The window manager would give the keyboard to the dialog, which has gone as well before it comes to that.
TEST_F(Active_Window, Is_The_One_Below_When_A_Sheet_And_Its_Dialog_End_At_Once)
{
    for (int opening = 0; opening < Openings(); ++opening) {
        End_Sheet_And_Dialog([&] { QTest::qWait(opening); }); // milliseconds
        ASSERT_TRUE(Is_Active_Again(m_window)) << "opening " << opening;
        m_dialog.show();
    }
}

TEST_F(Active_Window, Is_Left_To_Another_Program)
{
    Other_Program other;
    End_Sheet_And_Dialog([&] { other.Show_Window(); });
    while (!other.Has_The_Keyboard()) // before this program has time for anything
        std::this_thread::yield();
    QTest::qWait(500); // milliseconds, more than twice what a window manager is given
    EXPECT_TRUE(other.Has_The_Keyboard());
}

TEST_F(Active_Window, Comes_Back_After_A_Box)
{
    User user;
    for (int opening = 0; opening < Openings(); ++opening) {
        user.Will_Press("OK");
        Show_MessageBox("Something is wrong.");
        ASSERT_TRUE(Is_Active_Again(m_dialog)) << "opening " << opening;
    }
}

TEST_F(Active_Window, Comes_Back_After_A_Dialog_Over_It)
{
    User user;
    QDialog over;
    over.setObjectName("Over");
    (new QVBoxLayout(&over))->addWidget(new QPushButton("Close"));
    for (int opening = 0; opening < Openings(); ++opening) {
        user.When_Opens("Over", [&](QWidget& window) {
            if (opening % 2 == 1) { // every other one is read before it is closed
                EXPECT_TRUE(Is_Active_Again(window));
            }
            window.close();
        });
        Run_Dialog_Over(over, &m_dialog);
        ASSERT_TRUE(Is_Active_Again(m_dialog)) << "opening " << opening;
    }
    over.setParent(nullptr);
}

TEST_F(Active_Window, Comes_Back_After_The_Progress_Window)
{
    m_dialog.hide();
    ASSERT_TRUE(Serve_Until([&] { return m_window.isActiveWindow(); }));
    auto& progress = *Send_Modeless::defaultInstance();
    m_below->setFocus();
    for (int opening = 0; opening < Openings(); ++opening) {
        progress.Begin_Preparing(1);
        progress.Begin_Sending();
        progress.End();
        ASSERT_TRUE(Is_Active_Again(m_window)) << "opening " << opening;
    }
}

} // namespace
