#include "toolkit/Modal_Sheet.h"

#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

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

} // namespace

TEST(Modal_Sheet, It_Is_Drawn_When_Begin_Returns_And_Gone_When_End_Returns)
{
    QWidget window;
    window.resize(600, 400);
    window.show();
    Modal_Sheet sheet;
    Paint_Counter counter;
    sheet.installEventFilter(&counter);
    sheet.Begin_Sheet(&window);
    EXPECT_TRUE(sheet.isVisible());
    EXPECT_GT(counter.m_paints, 0);
    EXPECT_EQ(sheet.parentWidget(), &window);
    EXPECT_EQ(sheet.windowModality(), Qt::WindowModal);
    sheet.End_Sheet();
    EXPECT_FALSE(sheet.isVisible());
    sheet.End_Sheet();
    EXPECT_FALSE(sheet.isVisible());
    sheet.setParent(nullptr);
}

TEST(Modal_Sheet, Neither_Escape_Nor_Enter_Nor_The_Close_Button_Ends_It)
{
    QWidget window;
    window.show();
    Modal_Sheet sheet(&window);
    sheet.Begin_Sheet(&window);
    QTest::keyClick(&sheet, Qt::Key_Escape);
    QTest::keyClick(&sheet, Qt::Key_Return);
    EXPECT_FALSE(sheet.close());
    sheet.reject();
    EXPECT_TRUE(sheet.isVisible());
    sheet.End_Sheet();
    EXPECT_FALSE(sheet.isVisible());
}

TEST(Modal_Sheet, Begun_Again_It_Moves_Over_The_Other_Window)
{
    QWidget first;
    QWidget second;
    first.setGeometry(0, 0, 300, 200);
    second.setGeometry(400, 300, 300, 200);
    first.show();
    second.show();
    Modal_Sheet sheet;
    sheet.Begin_Sheet(&first);
    sheet.Begin_Sheet(&second);
    EXPECT_TRUE(sheet.isVisible());
    EXPECT_EQ(sheet.parentWidget(), &second);
    EXPECT_TRUE(second.geometry().contains(sheet.geometry().center()));
    sheet.End_Sheet();
    sheet.setParent(nullptr);
}

TEST(Modal_Sheet, It_Keeps_Clicks_From_The_Window_Below)
{
    QPushButton window(QStringLiteral("Below"));
    window.resize(300, 200);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    int clicks = 0;
    QObject::connect(&window, &QPushButton::clicked, [&] { ++clicks; });
    Modal_Sheet sheet;
    sheet.Begin_Sheet(&window);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(clicks, 0);
    sheet.End_Sheet();
    sheet.setParent(nullptr);
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(clicks, 1);
}
