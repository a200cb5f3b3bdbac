#include "support/Serve_Until.h"
#include "toolkit/Input_Hold.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

class Input_Hold_Window : public testing::Test
{
protected:
    Input_Hold_Window()
    {
        auto* layout = new QVBoxLayout(&m_window);
        for (QWidget* widget : std::initializer_list<QWidget*>{m_button, m_field, m_choice})
            layout->addWidget(widget);
        m_choice->addItems({"one", "two"});
        auto* action = new QAction(&m_window);
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_G));
        m_window.addAction(action);
        QObject::connect(action, &QAction::triggered, [this] { ++m_actions; });
        QObject::connect(m_button, &QPushButton::clicked, [this] { ++m_clicks; });
        m_window.show();
        m_window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
        m_field->setFocus();
    }

    void Do_Everything()
    {
        QTest::mouseClick(m_button, Qt::LeftButton);
        m_field->setFocus();
        QTest::keyClick(m_window.windowHandle(), Qt::Key_A);
        QTest::keyClick(m_window.windowHandle(), Qt::Key_G, Qt::ControlModifier);
        QTest::keyClick(m_window.windowHandle(), Qt::Key_P, Qt::AltModifier); // the button's mnemonic
    }

    QWidget m_window;
    QPushButton* m_button = new QPushButton("&Press");
    QLineEdit* m_field = new QLineEdit;
    QComboBox* m_choice = new QComboBox;
    int m_clicks = 0;
    int m_actions = 0;
};

TEST_F(Input_Hold_Window, Clicks_Keys_And_Shortcuts_Are_Dropped_While_It_Lives)
{
    {
        const Input_Hold hold(&m_window);
        Do_Everything();
        EXPECT_TRUE(m_button->isEnabled()) << "nothing is greyed";
        EXPECT_FALSE(m_button->isDown()) << "a mnemonic would press it for a moment";
    }
    EXPECT_EQ(m_clicks, 0);
    EXPECT_EQ(m_actions, 0);
    EXPECT_EQ(m_field->text(), QString());

    Do_Everything();
    EXPECT_TRUE(Serve_Until([this] { return m_clicks == 2; }));
    EXPECT_EQ(m_actions, 1);
    EXPECT_EQ(m_field->text(), "a");
}

TEST_F(Input_Hold_Window, A_Dialog_Over_The_Window_Works_As_Ever)
{
    const Input_Hold hold(&m_window);
    QDialog dialog(&m_window);
    auto* button = new QPushButton("Go on", &dialog);
    int clicks = 0;
    QObject::connect(button, &QPushButton::clicked, [&] { ++clicks; });
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&dialog));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(Input_Hold_Window, A_List_Already_Dropped_Down_Is_Held_As_Well)
{
    m_choice->showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_choice->view()->window()));
    const QRect second = m_choice->view()->visualRect(m_choice->model()->index(1, 0));
    {
        const Input_Hold hold(&m_window);
        QTest::mouseClick(m_choice->view()->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
        EXPECT_EQ(m_choice->currentIndex(), 0);
    }
    m_choice->hidePopup();
}

TEST_F(Input_Hold_Window, The_Window_May_Go_First)
{
    auto window = std::make_unique<QWidget>();
    const Input_Hold hold(window.get());
    window.reset();
    QTest::mouseClick(m_button, Qt::LeftButton);
    EXPECT_EQ(m_clicks, 1);
}
