#include "support/In_Windows.h"
#include "windows/exclusion/Edited_Numbers.h"
#include "windows/exclusion/Update_Ex_Num.h"

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

    QLineEdit& Field(const char* name = "m_ex_num_str") { return In<QLineEdit>(m_dialog, name); }
    void Press_OK() { Click_In(m_dialog, "OKPressed"); }
    void Expect_Empty_Fields()
    {
        for (const char* field : {"m_ex_num_str", "m_s_number", "m_ex_num_index"})
            EXPECT_EQ(Field(field).text(), "") << field;
    }

    Given_Numbers m_numbers;
    User m_user;
    Update_Ex_Num m_dialog{m_numbers, nullptr};
};

TEST_F(Update_Ex_Num_Test, It_Shows_The_Number_And_Remembers_It_With_Its_Row)
{
    EXPECT_EQ(m_dialog.objectName(), "Update_Ex_Num");
    Edit([&] {
        EXPECT_EQ(Field().text(), "456");
        EXPECT_EQ(Field("m_s_number").text(), "456");
        EXPECT_EQ(Field("m_ex_num_index").text(), "1");
        EXPECT_FALSE(Field("m_s_number").isVisible() || Field("m_ex_num_index").isVisible());
        EXPECT_EQ(m_dialog.focusWidget(), &Field());
        EXPECT_TRUE(m_dialog.isModal());
    });
}

TEST_F(Update_Ex_Num_Test, A_New_Number_Is_Cut_To_Twenty_Characters_Cleaned_And_Takes_The_Old_Ones_Place)
{
    EXPECT_EQ(Edit([&] {
                  Field().setText(" +49-170 ");
                  Press_OK();
              }),
              1);
    EXPECT_EQ(m_numbers.m_numbers, QStringList({"123", "0049170", "004477"}));
    Expect_Empty_Fields();
    EXPECT_EQ(Edit([&] {
                  QTest::keyClicks(&Field(), "123456789012345678901");
                  EXPECT_EQ(Field().text(), "12345678901234567890");
                  QTest::keyClick(&Field(), Qt::Key_Return);
              }),
              1);
    EXPECT_EQ(m_numbers.m_numbers.at(1), "12345678901234567890");
}

TEST_F(Update_Ex_Num_Test, The_Very_Same_Text_Is_Kept_And_Shown_Whole_Though_It_Is_Longer_Than_Can_Be_Typed)
{
    for (const QString& number : {QStringLiteral("456"), QString(25, u'7')}) {
        m_numbers.m_numbers.replace(1, number);
        EXPECT_EQ(Edit([&] {
                      EXPECT_EQ(Field().text(), number);
                      Press_OK();
                  }),
                  1);
        EXPECT_EQ(m_numbers.m_numbers.at(1), number);
    }
}

TEST_F(Update_Ex_Num_Test, A_Refused_Number_Is_Told_About_And_The_Field_Focused)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", "\nPlease enter a valid phone number."},
        {"4+4", "\nPlease enter a valid phone number."},
        {"+1234567890123456789", "\nPlease enter a valid phone number."},
        {"123", "\nEntered number already exists."},
        {"+4477", "\nEntered number already exists."},
        {"4-56", "\nEntered number already exists."}, // its own number, typed in another way
    };
    for (const auto& [number, text] : cases) {
        EXPECT_EQ(Edit([&, number = number, text = text] {
                      Field().setText(number);
                      In<QPushButton>(m_dialog, "CancelPressed").setFocus();
                      m_user.Will_Press("OK");
                      Press_OK();
                      EXPECT_EQ(m_user.Was_Shown().last(), text) << number;
                      EXPECT_EQ(m_dialog.focusWidget(), &Field());
                      EXPECT_TRUE(m_dialog.isVisible());
                  }),
                  0);
    }
    EXPECT_EQ(m_numbers.m_numbers, QStringList({"123", "456", "004477"}));
}

TEST_F(Update_Ex_Num_Test, Every_Way_Of_Cancelling_Ends_With_Nought_And_Empties_The_Fields)
{
    const std::function<void()> ways[] = {
        [&] { Click_In(m_dialog, "CancelPressed"); },
        [&] { QTest::keyClick(&m_dialog, Qt::Key_Escape); },
        [&] { m_dialog.close(); },
    };
    for (const auto& leave : ways) {
        EXPECT_EQ(Edit([&] {
                      Field().setText("789");
                      leave();
                      EXPECT_FALSE(m_dialog.isVisible());
                  }),
                  0);
        Expect_Empty_Fields();
    }
    EXPECT_EQ(m_numbers.m_numbers.at(1), "456");
}
