#include "support/User.h"
#include "toolkit/Line_Edit_Limit.h"
#include "toolkit/Window_Look.h"
#include "windows/exclusion/Edited_Numbers.h"
#include "windows/exclusion/Update_Ex_Num.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace {

class Given_Numbers : public Edited_Numbers
{
public:
    bool Skip_Duplicate_Number(const QString& number) const override { return m_numbers.contains(number); }
    void Replace_Number(int row, const QString& number) override { m_numbers.replace(row, number); }

    QStringList m_numbers = {"123", "456", "004477"};
};

class Update_Ex_Num_Test : public testing::Test
{
protected:
    /// Opens the dialog on the number in row 1, does the steps, and cancels it when it is still open then.
    int Edit(const std::function<void()>& steps)
    {
        m_user.When_Opens("Update_Ex_Num", [this, steps](QWidget&) {
            steps();
            if (m_dialog.isVisible())
                m_dialog.CancelPressed();
        });
        return m_dialog.Edit(m_numbers.m_numbers.at(1), 1);
    }

    QLineEdit& Field(const char* name = "m_ex_num_str") { return *m_dialog.findChild<QLineEdit*>(name); }
    void Press_OK() { QTest::mouseClick(m_dialog.findChild<QPushButton*>("OKPressed"), Qt::LeftButton); }

    Given_Numbers m_numbers;
    User m_user;
    Update_Ex_Num m_dialog{m_numbers, nullptr};
};

TEST_F(Update_Ex_Num_Test, It_Shows_The_Number_And_Remembers_It_With_Its_Row)
{
    Edit([&] {
        EXPECT_EQ(Field().text(), "456");
        EXPECT_EQ(Field("m_s_number").text(), "456");
        EXPECT_EQ(Field("m_ex_num_index").text(), "1");
        EXPECT_FALSE(Field("m_s_number").isVisible());
        EXPECT_FALSE(Field("m_ex_num_index").isVisible());
        EXPECT_EQ(m_dialog.focusWidget(), &Field());
        EXPECT_TRUE(m_dialog.isModal());
    });
}

TEST_F(Update_Ex_Num_Test, A_New_Number_Is_Cleaned_And_Takes_The_Old_Ones_Place)
{
    const int result = Edit([&] {
        Field().setText(" +49-170 ");
        Press_OK();
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(m_numbers.m_numbers, QStringList({"123", "0049170", "004477"}));
    for (const char* field : {"m_ex_num_str", "m_s_number", "m_ex_num_index"})
        EXPECT_EQ(Field(field).text(), "") << field;
}

TEST_F(Update_Ex_Num_Test, The_Very_Same_Text_Ends_With_One_And_Changes_Nothing)
{
    EXPECT_EQ(Edit([&] { Press_OK(); }), 1);
    EXPECT_EQ(m_numbers.m_numbers.at(1), "456");
}

TEST_F(Update_Ex_Num_Test, A_Number_Longer_Than_Can_Be_Typed_Is_Shown_Whole_And_Kept_When_Unchanged)
{
    const QString long_number(25, u'7');
    m_numbers.m_numbers.replace(1, long_number);
    const int result = Edit([&] {
        EXPECT_EQ(Field().text(), long_number);
        Press_OK();
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(m_numbers.m_numbers.at(1), long_number);
}

TEST_F(Update_Ex_Num_Test, A_Refused_Number_Is_Told_About_And_The_Field_Focused)
{
    const struct
    {
        const char* number;
        const char* text;
    } cases[] = {
        {"", "\nPlease enter a valid phone number."},
        {" - ", "\nPlease enter a valid phone number."},
        {"4+4", "\nPlease enter a valid phone number."},
        {"++4", "\nPlease enter a valid phone number."},
        {"12,3", "\nPlease enter a valid phone number."},
        {"+1234567890123456789", "\nPlease enter a valid phone number."},
        {"123", "\nEntered number already exists."},
        {"+4477", "\nEntered number already exists."},
        {"4-56", "\nEntered number already exists."}, // its own number, typed in another way
    };
    for (const auto& each : cases) {
        const int result = Edit([&] {
            Field().setText(each.number);
            m_dialog.findChild<QPushButton*>("CancelPressed")->setFocus();
            m_user.Will_Press("OK");
            Press_OK();
            EXPECT_EQ(m_user.Was_Shown().last(), each.text) << each.number;
            EXPECT_EQ(m_dialog.focusWidget(), &Field());
            EXPECT_TRUE(m_dialog.isVisible());
        });
        EXPECT_EQ(result, 0);
    }
    EXPECT_EQ(m_numbers.m_numbers, QStringList({"123", "456", "004477"}));
}

TEST_F(Update_Ex_Num_Test, Every_Way_Of_Cancelling_Ends_With_Nought_And_Empties_The_Fields)
{
    const std::function<void()> ways[] = {
        [&] { QTest::mouseClick(m_dialog.findChild<QPushButton*>("CancelPressed"), Qt::LeftButton); },
        [&] { QTest::keyClick(&m_dialog, Qt::Key_Escape); },
        [&] { m_dialog.close(); },
    };
    for (const auto& way : ways) {
        EXPECT_EQ(Edit([&] {
                      Field().setText("789");
                      way();
                      EXPECT_FALSE(m_dialog.isVisible());
                  }),
                  0);
        EXPECT_EQ(Field().text(), "");
        EXPECT_EQ(Field("m_ex_num_index").text(), "");
    }
    EXPECT_EQ(m_numbers.m_numbers.at(1), "456");
}

TEST_F(Update_Ex_Num_Test, The_Number_Is_Cut_To_Twenty_Characters_And_Return_Is_OK)
{
    EXPECT_EQ(Edit([&] {
                  QTest::keyClicks(&Field(), "123456789012345678901");
                  EXPECT_EQ(Field().text(), "12345678901234567890");
                  QTest::keyClick(&Field(), Qt::Key_Return);
              }),
              1);
    EXPECT_EQ(m_numbers.m_numbers.at(1), "12345678901234567890");
}

TEST_F(Update_Ex_Num_Test, It_Has_The_Programs_Background_And_Names)
{
    EXPECT_EQ(m_dialog.palette().color(QPalette::Window), Window_Background());
    EXPECT_EQ(m_dialog.objectName(), "Update_Ex_Num");
}

} // namespace
