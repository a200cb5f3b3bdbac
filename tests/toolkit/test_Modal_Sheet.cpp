#include "toolkit/Modal_Sheet.h"

#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

class Paint_Counter : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int m_paints = 0;
};

class Modal_Sheets : public testing::Test
{
protected:
    Modal_Sheets()
    {
        m_window.resize(600, 400);
        m_window.show();
    }
    ~Modal_Sheets() override
    {
        m_sheet.End_Sheet();
        m_sheet.setParent(nullptr);
    }

    QPushButton m_window{"Below"};
    Modal_Sheet m_sheet;
};

TEST_F(Modal_Sheets, It_Is_Drawn_When_Begin_Returns_And_Gone_When_End_Returns)
{
    Paint_Counter counter;
    m_sheet.installEventFilter(&counter);
    m_sheet.Begin_Sheet(&m_window);
    EXPECT_TRUE(m_sheet.isVisible());
    EXPECT_GT(counter.m_paints, 0);
    EXPECT_EQ(m_sheet.parentWidget(), &m_window);
    EXPECT_EQ(m_sheet.windowModality(), Qt::WindowModal);
    for (int end = 0; end < 2; ++end) {
        m_sheet.End_Sheet();
        EXPECT_FALSE(m_sheet.isVisible());
    }
}

TEST_F(Modal_Sheets, Begun_Again_It_Moves_Over_The_Other_Window)
{
    QWidget second;
    second.setGeometry(700, 500, 300, 200);
    second.show();
    m_sheet.Begin_Sheet(&m_window);
    m_sheet.Begin_Sheet(&second);
    EXPECT_TRUE(m_sheet.isVisible());
    EXPECT_EQ(m_sheet.parentWidget(), &second);
    EXPECT_TRUE(second.geometry().contains(m_sheet.geometry().center()));
    m_sheet.End_Sheet();
    m_sheet.setParent(nullptr);
}

TEST_F(Modal_Sheets, Neither_Escape_Nor_Enter_Nor_The_Close_Button_Ends_It)
{
    m_sheet.Begin_Sheet(&m_window);
    QTest::keyClick(&m_sheet, Qt::Key_Escape);
    QTest::keyClick(&m_sheet, Qt::Key_Return);
    EXPECT_FALSE(m_sheet.close());
    m_sheet.reject();
    EXPECT_TRUE(m_sheet.isVisible());
}

TEST_F(Modal_Sheets, It_Keeps_Clicks_From_The_Window_Below)
{
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_window));
    int clicks = 0;
    QObject::connect(&m_window, &QPushButton::clicked, [&] { ++clicks; });
    m_sheet.Begin_Sheet(&m_window);
    QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(clicks, 0);
    m_sheet.End_Sheet();
    m_sheet.setParent(nullptr);
    QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(clicks, 1);
}
