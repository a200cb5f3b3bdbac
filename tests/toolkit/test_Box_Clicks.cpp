#include "toolkit/Box_Clicks.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

// What an assistive tool knows of a box and can do with it.
class Box_Clicks : public testing::Test
{
protected:
    Box_Clicks() { Tick_Boxes_By_Clicks(); }

    static QAccessibleInterface& Told_Of(QAbstractButton& box) { return *QAccessible::queryAccessibleInterface(&box); }
    static void Toggle(QAbstractButton& box)
    {
        Told_Of(box).actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    }

    QWidget m_window;
};

TEST_F(Box_Clicks, A_Tick_By_An_Assistive_Tool_Is_A_Click)
{
    auto* box = new QCheckBox("Delay", &m_window);
    QSignalSpy clicks(box, &QCheckBox::clicked);
    Toggle(*box);
    ASSERT_TRUE(clicks.count() == 1 || clicks.wait());
    EXPECT_TRUE(box->isChecked());
    EXPECT_TRUE(Told_Of(*box).state().checked);
    Toggle(*box);
    EXPECT_TRUE(clicks.wait());
    EXPECT_FALSE(Told_Of(*box).state().checked);
}

TEST_F(Box_Clicks, One_That_Is_Switched_Off_Stays_As_It_Is)
{
    auto* box = new QCheckBox("Delay", &m_window);
    box->setEnabled(false);
    QSignalSpy clicks(box, &QCheckBox::clicked);
    Toggle(*box);
    EXPECT_FALSE(clicks.wait(300));
    EXPECT_TRUE(Told_Of(*box).actionInterface()->actionNames().isEmpty());
    EXPECT_TRUE(Told_Of(*box).state().disabled);
}

TEST_F(Box_Clicks, The_Other_Of_Two_Radio_Buttons_Is_Let_Go)
{
    auto* text = new QRadioButton("Text", &m_window);
    auto* page = new QRadioButton("Page", &m_window);
    text->setChecked(true);
    QSignalSpy clicks(page, &QRadioButton::clicked);
    Toggle(*page);
    ASSERT_TRUE(clicks.count() == 1 || clicks.wait());
    EXPECT_FALSE(Told_Of(*text).state().checked);
    EXPECT_EQ(Told_Of(*page).role(), QAccessible::RadioButton);
}

TEST_F(Box_Clicks, A_Box_Is_Told_By_Its_Caption_Without_The_Mark_Of_Its_Key_Or_By_A_Name_Of_Its_Own)
{
    auto* group = new QGroupBox("Sandwiches", &m_window);
    auto* box = new QCheckBox("Bread && &butter", group);
    EXPECT_EQ(Told_Of(*box).text(QAccessible::Name), "Bread & butter");
    EXPECT_EQ(Told_Of(*box).text(QAccessible::Accelerator), "Alt+B");
    EXPECT_EQ(Told_Of(*box).actionInterface()->keyBindingsForAction(QAccessibleActionInterface::toggleAction()),
              QStringList("Alt+B"));
    EXPECT_EQ(Told_Of(*box).role(), QAccessible::CheckBox);
    EXPECT_TRUE(Told_Of(*box).state().checkable && Told_Of(*box).state().focusable);
    box->setAccessibleName("Both");
    EXPECT_EQ(Told_Of(*box).text(QAccessible::Name), "Both");
    QCheckBox plain("Bread");
    EXPECT_EQ(Told_Of(plain).text(QAccessible::Accelerator), QString());
}

} // namespace
