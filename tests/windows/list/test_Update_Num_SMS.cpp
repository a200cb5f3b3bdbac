#include "windows/list/Update_Num_SMS.h"

#include "windows/list/Dialogs_Test.h"

const char* const Not_A_Number = "\nPlease enter a valid phone number.";
const char* const Exists = "\nEntered number already exists.";
const char* const Excluded = "\nEntered number is in exclusion list.";

class Update_Num_SMS_Test : public Dialogs_Test
{
protected:
    Update_Num_SMS_Test() : Dialogs_Test("Update_Num_SMS", [this] { Open_Edit_Dialog(m_window, m_row); })
    {
        Add("111", "one");
        Add("12345", "two");
        Add("333", "three");
    }

    int Edit(int row, const std::function<void()>& steps)
    {
        m_row = row;
        return Run(steps);
    }
    QString Line(const char* name) const { return In<QLineEdit>(name).text(); }

    int m_row = 0;
};

TEST_F(Update_Num_SMS_Test, It_Opens_With_What_The_Row_Holds_And_Not_For_A_Row_That_The_List_Does_Not_Have)
{
    Edit(1, [&] {
        EXPECT_EQ(Line("m_num_str"), "12345");
        EXPECT_EQ(Line("m_s_str"), "12345");
        EXPECT_EQ(Line("m_s_indx_str"), "1");
        EXPECT_EQ(Message(), "two");
        EXPECT_EQ(Counter(), "3 counted");
        for (const char* field : {"m_s_str", "m_s_indx_str"})
            EXPECT_FALSE(In<QLineEdit>(field).isVisible()) << field;
        Click("CancelPressed");
    });
    for (const int row : {-1, 3})
        Open_Edit_Dialog(m_window, row);
    m_window.m_recipients.Clear();
    Open_Edit_Dialog(m_window, 0);
    ASSERT_EQ(m_window.m_counted.size(), 1U) << "it opened for a row that the list does not have";
    EXPECT_EQ(m_window.m_counted[0].length, 3);
    EXPECT_EQ(m_window.m_counted[0].counter_before, "0 Characters");
    EXPECT_FALSE(m_window.m_counted[0].open_dialog);
}

TEST_F(Update_Num_SMS_Test, A_Number_That_The_Rules_Would_Refuse_Is_Shown_Whole_And_Kept_While_Unchanged)
{
    m_window.m_choices.exclusion = true;
    m_window.m_choices.skip_duplicates = true;
    for (const QString& number : {QString("12,34"), QString("  "), QString(25, u'7')}) {
        m_window.m_exclusions.Append(number);
        const int row = m_window.m_recipients.Count();
        Add(number, "four");
        Add(number, "five");
        for (const char* message : {"four", "new"}) {
            Edit(row, [&] {
                EXPECT_EQ(Line("m_num_str"), number);
                Type_Message(message);
                Click("OKPressed");
            });
            EXPECT_EQ(List().mid(row), (QStringList{number + ": " + message, number + ": five"}));
        }
    }
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Update_Num_SMS_Test, A_Changed_Number_Is_Cut_To_20_Characters_And_Saved_Normalised_In_The_Same_Place)
{
    const QString* const first = &std::as_const(m_window.m_recipients).Message_At(0);
    const int result = Edit(1, [&] {
        Type_Number("+44-20-7946");
        Click("OKPressed");
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(List(), (QStringList{"111: one", "0044207946: two", "333: three"}));
    EXPECT_EQ(m_window.m_recipients.Numbers().First_Index_Of("0044207946"), 1);
    EXPECT_EQ(m_window.m_recipients.Numbers().Count_Of("12345"), 0);
    EXPECT_EQ(&std::as_const(m_window.m_recipients).Message_At(0), first) << "a copy of a million takes its time";
    EXPECT_GT(m_window.m_redisplays, 0);
    Edit(1, [&] {
        Type_Number("123456789012345678901");
        EXPECT_EQ(Line("m_num_str"), "12345678901234567890");
        Click("OKPressed");
    });
    EXPECT_EQ(List()[1], "12345678901234567890: two");
}

TEST_F(Update_Num_SMS_Test, An_Unchanged_Message_Is_Saved_Byte_For_Byte_And_Cut)
{
    const QString longest(1600, u'a');
    const QString exact = " two\u00A0words\n\n \U0001F600 ";
    for (const auto& [held, saved] : {std::pair(longest + u'b', longest), {exact, exact}}) {
        m_window.m_recipients.Set_Messages({1}, held);
        Edit(1, [&] { Click("OKPressed"); });
        EXPECT_EQ(m_window.m_recipients.At(1).Message, saved);
    }
    EXPECT_EQ(m_window.m_recipients.At(0).Message, "one");
}

TEST_F(Update_Num_SMS_Test, A_Number_That_Is_Not_Wanted_Is_Refused_And_Gets_The_Focus)
{
    m_window.m_choices.exclusion = true;
    m_window.m_choices.skip_duplicates = true;
    m_window.m_exclusions.Append("777");
    m_window.m_exclusions.Append("333");
    const struct
    {
        int row;
        const char *number, *text;
    } rows[] = {
        {1, "+44+20", Not_A_Number}, {1, "", Not_A_Number},
        {1, "333", Exists},  // duplicates are found before exclusions
        {0, "1-11", Exists}, // its own, written otherwise
        {1, "777", Excluded},
    };
    const QStringList before = List();
    for (const auto& row : rows) {
        SCOPED_TRACE(row.number);
        m_user.Will_Press("OK");
        Edit(row.row, [&] {
            Type_Number(row.number);
            In<QWidget>("m_msg_str").setFocus();
            Click("OKPressed");
            EXPECT_TRUE(m_dialog->isVisible());
            EXPECT_EQ(Focused(), "m_num_str");
            EXPECT_EQ(Line("m_num_str"), row.number);
            Click("CancelPressed");
        });
        EXPECT_EQ(m_user.Was_Shown().last(), row.text);
        EXPECT_EQ(List(), before);
    }
}

TEST_F(Update_Num_SMS_Test, A_Box_Switched_Off_Lets_The_Number_In)
{
    m_window.m_choices.exclusion = true;
    m_window.m_choices.skip_duplicates = true;
    m_window.m_exclusions.Append("777");
    for (const auto& [box, number] : {std::pair("_Skip_Duplicate_Chk", "333"), {"_Exclusion_Chk", "777"}}) {
        Edit(1, [&, box = box, number = number] {
            In<QCheckBox>(box).click();
            Type_Number(number);
            Click("OKPressed");
        });
        EXPECT_EQ(List()[1], QString(number) + ": two");
    }
}

TEST_F(Update_Num_SMS_Test, Its_Own_Exclusion_Box_Heeds_The_Applied_Lists_While_The_Main_Windows_Is_Off)
{
    m_window.m_applied_exclusions.Append("777");
    m_window.m_exclusions.Append("888"); // left from before that was switched off
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    Edit(1, [&] {
        EXPECT_EQ(m_window.m_exclusion_reads, 0);
        In<QCheckBox>("_Exclusion_Chk").click();
        for (const char* number : {"777", "888"}) {
            Type_Number(number);
            Click("OKPressed");
        }
        EXPECT_EQ(m_user.Was_Shown(), QStringList(2, Excluded));
        In<QCheckBox>("_Exclusion_Chk").click();
        Type_Number("777");
        Click("OKPressed");
    });
    EXPECT_EQ(List()[1], "777: two");
    EXPECT_EQ(m_window.m_exclusion_reads, 1);
    EXPECT_EQ(m_window.m_exclusion_fills, 0);
    EXPECT_EQ(m_window.m_exclusions.Count(), 1) << "the main window's set keeps what it held";

    m_window.m_choices.exclusion = true;
    Edit(1, [&] {
        In<QCheckBox>("_Exclusion_Chk").click();
        In<QCheckBox>("_Exclusion_Chk").click();
        Click("CancelPressed");
    });
    EXPECT_EQ(m_window.m_exclusion_reads, 1) << "the main window's set will do while its box is on";
}

TEST_F(Update_Num_SMS_Test, Its_Check_Boxes_Begin_As_The_Main_Windows_And_Are_Never_Written_Back)
{
    auto& choices = m_window.m_choices;
    for (const bool exclusion : {true, false}) {
        choices.exclusion = exclusion;
        choices.skip_duplicates = !exclusion;
        Edit(0, [&] {
            EXPECT_EQ(In<QCheckBox>("_Exclusion_Chk").isChecked(), exclusion);
            EXPECT_EQ(In<QCheckBox>("_Skip_Duplicate_Chk").isChecked(), !exclusion);
            In<QCheckBox>("_Exclusion_Chk").click();
            In<QCheckBox>("_Skip_Duplicate_Chk").click();
            Click("OKPressed");
        });
        EXPECT_EQ(choices.exclusion, exclusion);
        EXPECT_EQ(choices.skip_duplicates, !exclusion);
    }
}

TEST_F(Update_Num_SMS_Test, Each_Change_Of_The_Message_Is_Counted_With_The_Counter_Before_It)
{
    Edit(1, [&] {
        auto& message = In<QPlainTextEdit>("m_msg_str");
        message.moveCursor(QTextCursor::End);
        QTest::keyClicks(&message, "ab");
        EXPECT_EQ(Counter(), "5 counted");
        Click("CancelPressed");
    });
    ASSERT_EQ(m_window.m_counted.size(), 3U);
    EXPECT_EQ(m_window.m_counted[1].length, 4);
    EXPECT_EQ(m_window.m_counted[1].counter_before, "3 counted");
    EXPECT_EQ(m_window.m_counted[2].counter_before, "4 counted");
    EXPECT_TRUE(m_window.m_counted[2].open_dialog);
    EXPECT_EQ(m_window.m_counters_meanwhile, (QStringList{"4 Characters", "5 Characters"}));
}

TEST_F(Update_Num_SMS_Test, Enter_In_The_Number_Field_Saves_And_In_The_Message_Begins_A_Line_And_That_May_Be_Emptied)
{
    Edit(1, [&] {
        Type_Message("a");
        QTest::keyClick(&In<QWidget>("m_msg_str"), Qt::Key_Return);
        ASSERT_TRUE(m_dialog->isVisible());
        QTest::keyClick(&In<QWidget>("m_num_str"), Qt::Key_Return);
    });
    EXPECT_EQ(List()[1], "12345: a\n");
    Edit(1, [&] {
        In<QPlainTextEdit>("m_msg_str").selectAll();
        QTest::keyClick(&In<QWidget>("m_msg_str"), Qt::Key_Backspace);
        Click("OKPressed");
    });
    EXPECT_EQ(List()[1], "12345: ");
}
