#include "toolkit/Window_Look.h"
#include "windows/list/Dialogs_Test.h"
#include "windows/list/Update_Num_SMS.h"

namespace {

const QString Not_A_Number = QStringLiteral("Please enter a valid phone number.");
const QString Exists = QStringLiteral("Entered number already exists.");
const QString Excluded = QStringLiteral("Entered number is in exclusion list.");

class Update_Num_SMS_Test : public Dialogs_Test
{
protected:
    Update_Num_SMS_Test()
    {
        Add("111", "one");
        Add("12345", "two");
        Add("333", "three");
    }

    void Edit(int row, const std::function<void(QWidget&)>& meanwhile)
    {
        m_user.When_Opens(QStringLiteral("Update_Num_SMS"), meanwhile);
        Open_Edit_Dialog(m_window, row);
        Expect_All_Empty();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    static void Expect_All_Empty()
    {
        auto& dialog = *Update_Num_SMS::defaultInstance();
        EXPECT_FALSE(dialog.isVisible());
        for (const char* field : {"m_num_str", "m_s_str", "m_s_indx_str"})
            EXPECT_EQ(In<QLineEdit>(dialog, field).text(), QString()) << field;
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), QString());
        EXPECT_EQ(In<QLabel>(dialog, "m_st_msg_cnt").text(), QStringLiteral("0 Characters"));
    }

    static void Type_Number(QWidget& dialog, const QString& number)
    {
        auto& field = In<QLineEdit>(dialog, "m_num_str");
        field.clear();
        QTest::keyClicks(&field, number);
    }

    static void Type_Message(QWidget& dialog, const QString& message)
    {
        auto& field = In<QPlainTextEdit>(dialog, "m_msg_str");
        field.selectAll();
        QTest::keyClicks(&field, message);
    }

    /// Types a number that is to be refused, and leaves.
    void Expect_Refused(int row, const QString& number, const QString& text)
    {
        m_user.Will_Press("OK");
        const QStringList before = List();
        Edit(row, [&](QWidget& dialog) {
            Type_Number(dialog, number);
            In<QWidget>(dialog, "m_msg_str").setFocus();
            Click(dialog, "OKPressed");
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(Focused(dialog), QStringLiteral("m_num_str"));
            EXPECT_EQ(In<QLineEdit>(dialog, "m_num_str").text(), number);
            Click(dialog, "CancelPressed");
        });
        EXPECT_EQ(m_user.Was_Shown().last(), Boxed(text));
        EXPECT_EQ(List(), before);
    }
};

TEST_F(Update_Num_SMS_Test, It_Opens_With_What_The_Row_Holds)
{
    Edit(1, [&](QWidget& dialog) {
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(dialog.parentWidget(), &m_window);
        EXPECT_EQ(In<QLineEdit>(dialog, "m_num_str").text(), QStringLiteral("12345"));
        EXPECT_EQ(In<QLineEdit>(dialog, "m_s_str").text(), QStringLiteral("12345"));
        EXPECT_EQ(In<QLineEdit>(dialog, "m_s_indx_str").text(), QStringLiteral("1"));
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), QStringLiteral("two"));
        EXPECT_EQ(In<QLabel>(dialog, "m_st_msg_cnt").text(), QStringLiteral("3 counted"));
        EXPECT_EQ(Focused(dialog), QStringLiteral("m_num_str"));
        for (const char* field : {"m_s_str", "m_s_indx_str"})
            EXPECT_FALSE(In<QLineEdit>(dialog, field).isVisible()) << field;
        Click(dialog, "CancelPressed");
    });
    ASSERT_EQ(m_window.m_counted.size(), 1U);
    EXPECT_EQ(m_window.m_counted[0].length, 3);
    EXPECT_EQ(m_window.m_counted[0].counter_before, QStringLiteral("0 Characters"));
    EXPECT_FALSE(m_window.m_counted[0].open_dialog);
}

TEST_F(Update_Num_SMS_Test, It_Does_Not_Open_For_A_Row_That_The_List_Does_Not_Have)
{
    for (const int row : {-1, 3})
        Open_Edit_Dialog(m_window, row);
    m_window.m_recipients.Clear();
    Open_Edit_Dialog(m_window, 0);
    EXPECT_TRUE(m_window.m_counted.empty());
}

TEST_F(Update_Num_SMS_Test, OK_Without_Changes_Keeps_A_Number_That_The_Rules_Would_Refuse)
{
    m_window.m_choices.exclusion = true;
    m_window.m_choices.skip_duplicates = true;
    m_window.m_exclusions.Append(QStringLiteral("12,34"));
    Add("12,34", "four");
    Add("12,34", "five");
    Edit(3, [](QWidget& dialog) { Click(dialog, "OKPressed"); });
    EXPECT_EQ(List().mid(3), (QStringList{"12,34: four", "12,34: five"}));
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Update_Num_SMS_Test, A_Number_Longer_Than_Can_Be_Typed_Is_Shown_Whole_And_Kept_When_Unchanged)
{
    const QString long_number(25, u'7');
    Add(long_number, "long");
    Edit(3, [&](QWidget& dialog) {
        EXPECT_EQ(In<QLineEdit>(dialog, "m_num_str").text(), long_number);
        Type_Message(dialog, "new");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List().last(), long_number + QStringLiteral(": new"));
}

TEST_F(Update_Num_SMS_Test, A_Number_Of_Blanks_Put_In_Directly_Is_Kept_When_Unchanged)
{
    Add("  ", "blank");
    Edit(3, [](QWidget& dialog) {
        Type_Message(dialog, "new");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List().last(), QStringLiteral("  : new"));
}

TEST_F(Update_Num_SMS_Test, A_Changed_Number_Is_Saved_Normalised_In_The_Same_Place)
{
    Edit(1, [](QWidget& dialog) {
        Type_Number(dialog, "+44-20-7946");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List(), (QStringList{"111: one", "0044207946: two", "333: three"}));
    EXPECT_EQ(Update_Num_SMS::defaultInstance()->result(), 1);
    EXPECT_EQ(m_window.m_recipients.Numbers().First_Index_Of(QStringLiteral("0044207946")), 1);
    EXPECT_EQ(m_window.m_recipients.Numbers().Count_Of(QStringLiteral("12345")), 0);
    EXPECT_GT(m_window.m_redisplays, 0);
}

TEST_F(Update_Num_SMS_Test, A_Changed_Message_Is_Saved_Byte_For_Byte)
{
    const QString message = QStringLiteral(" two\u00A0words\n\n \U0001F600 ");
    Edit(1, [&](QWidget& dialog) {
        In<QPlainTextEdit>(dialog, "m_msg_str").selectAll();
        Paste(dialog, "m_msg_str", message);
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(m_window.m_recipients.At(1).Message, message);
    Edit(1, [](QWidget& dialog) { Click(dialog, "OKPressed"); });
    EXPECT_EQ(m_window.m_recipients.At(1).Message, message);
    EXPECT_EQ(m_window.m_recipients.At(0).Message, QStringLiteral("one"));
}

TEST_F(Update_Num_SMS_Test, A_Message_May_Be_Emptied)
{
    Edit(1, [](QWidget& dialog) {
        Type_Message(dialog, "x");
        QTest::keyClick(&In<QWidget>(dialog, "m_msg_str"), Qt::Key_Backspace);
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List()[1], QStringLiteral("12345: "));
}

TEST_F(Update_Num_SMS_Test, What_Is_No_Number_Is_Refused)
{
    for (const auto* number : {"+44+20", "+44 20", "", "-", "12,34", "12a", "+1234567890123456789"})
        Expect_Refused(1, QLatin1String(number), Not_A_Number);
}

TEST_F(Update_Num_SMS_Test, A_Number_That_Another_Recipient_Has_Is_Refused_While_Duplicates_Are)
{
    m_window.m_choices.skip_duplicates = true;
    Expect_Refused(1, QStringLiteral("333"), Exists);
    Edit(1, [](QWidget& dialog) {
        In<QCheckBox>(dialog, "_Skip_Duplicate_Chk").click();
        Type_Number(dialog, "333");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List()[1], QStringLiteral("333: two"));
}

TEST_F(Update_Num_SMS_Test, The_Recipients_Own_Number_Written_Otherwise_Is_Refused_As_Existing)
{
    m_window.m_choices.skip_duplicates = true;
    Expect_Refused(0, QStringLiteral("1-11"), Exists);
}

TEST_F(Update_Num_SMS_Test, An_Excluded_Number_Is_Refused_While_Exclusions_Are_Heeded)
{
    m_window.m_choices.exclusion = true;
    m_window.m_exclusions.Append(QStringLiteral("777"));
    Expect_Refused(1, QStringLiteral("777"), Excluded);
    Edit(1, [](QWidget& dialog) {
        In<QCheckBox>(dialog, "_Exclusion_Chk").click();
        Type_Number(dialog, "777");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List()[1], QStringLiteral("777: two"));
}

TEST_F(Update_Num_SMS_Test, Its_Own_Exclusion_Box_Heeds_The_Applied_Lists_While_The_Main_Windows_Is_Off)
{
    m_window.m_applied_exclusions.Append(QStringLiteral("777"));
    m_window.m_exclusions.Append(QStringLiteral("888")); // left from before that was switched off
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    Edit(1, [&](QWidget& dialog) {
        EXPECT_EQ(m_window.m_exclusion_reads, 0);
        In<QCheckBox>(dialog, "_Exclusion_Chk").click();
        for (const char* number : {"777", "888"}) {
            Type_Number(dialog, QLatin1String(number));
            Click(dialog, "OKPressed");
            EXPECT_EQ(m_user.Was_Shown().last(), Boxed(Excluded)) << number;
        }
        In<QCheckBox>(dialog, "_Exclusion_Chk").click();
        Type_Number(dialog, "777");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(m_user.Was_Shown().size(), 2);
    EXPECT_EQ(List()[1], QStringLiteral("777: two"));
    EXPECT_EQ(m_window.m_exclusion_reads, 1);
    EXPECT_EQ(m_window.m_exclusion_fills, 0);
    EXPECT_EQ(m_window.m_exclusions.Count(), 1) << "the main window's set keeps what it held";
}

TEST_F(Update_Num_SMS_Test, The_Main_Windows_Exclusions_Will_Do_While_Its_Box_Is_On)
{
    m_window.m_choices.exclusion = true;
    Edit(1, [](QWidget& dialog) {
        In<QCheckBox>(dialog, "_Exclusion_Chk").click();
        In<QCheckBox>(dialog, "_Exclusion_Chk").click();
        Click(dialog, "CancelPressed");
    });
    EXPECT_EQ(m_window.m_exclusion_reads, 0);
}

TEST_F(Update_Num_SMS_Test, Duplicates_Are_Found_Before_Exclusions)
{
    m_window.m_choices.exclusion = true;
    m_window.m_choices.skip_duplicates = true;
    m_window.m_exclusions.Append(QStringLiteral("333"));
    Expect_Refused(1, QStringLiteral("333"), Exists);
}

TEST_F(Update_Num_SMS_Test, Its_Check_Boxes_Begin_As_The_Main_Windows_And_Are_Never_Written_Back)
{
    for (const auto& [exclusion, skip_duplicates] : {std::pair(true, false), std::pair(false, true)}) {
        m_window.m_choices.exclusion = exclusion;
        m_window.m_choices.skip_duplicates = skip_duplicates;
        Edit(0, [&, exclusion = exclusion, skip_duplicates = skip_duplicates](QWidget& dialog) {
            EXPECT_EQ(In<QCheckBox>(dialog, "_Exclusion_Chk").isChecked(), exclusion);
            EXPECT_EQ(In<QCheckBox>(dialog, "_Skip_Duplicate_Chk").isChecked(), skip_duplicates);
            In<QCheckBox>(dialog, "_Exclusion_Chk").click();
            In<QCheckBox>(dialog, "_Skip_Duplicate_Chk").click();
            Click(dialog, "OKPressed");
        });
        EXPECT_EQ(m_window.m_choices.exclusion, exclusion);
        EXPECT_EQ(m_window.m_choices.skip_duplicates, skip_duplicates);
    }
}

TEST_F(Update_Num_SMS_Test, The_Number_Field_Keeps_Its_First_20_Characters)
{
    Edit(1, [](QWidget& dialog) {
        In<QLineEdit>(dialog, "m_num_str").clear();
        Paste(dialog, "m_num_str", "1234567890123456789012345");
        EXPECT_EQ(In<QLineEdit>(dialog, "m_num_str").text(), QStringLiteral("12345678901234567890"));
        QTest::keyClicks(&In<QLineEdit>(dialog, "m_num_str"), "9");
        EXPECT_EQ(In<QLineEdit>(dialog, "m_num_str").text(), QStringLiteral("12345678901234567890"));
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List()[1], QStringLiteral("12345678901234567890: two"));
}

TEST_F(Update_Num_SMS_Test, A_Pasted_Message_Of_1700_Characters_Is_Cut_At_Once)
{
    Edit(1, [](QWidget& dialog) {
        In<QPlainTextEdit>(dialog, "m_msg_str").selectAll();
        Paste(dialog, "m_msg_str", QString(1600, u'a') + QString(100, u'b'));
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), QString(1600, u'a'));
        EXPECT_EQ(In<QLabel>(dialog, "m_st_msg_cnt").text(), QStringLiteral("1600 counted"));
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(m_window.m_recipients.At(1).Message, QString(1600, u'a'));
    ASSERT_EQ(m_window.m_counted.size(), 2U);
    EXPECT_EQ(m_window.m_counted[1].length, 1600);
    EXPECT_TRUE(m_window.m_counted[1].open_dialog);
}

TEST_F(Update_Num_SMS_Test, A_Message_Of_1601_Characters_In_The_List_Is_Saved_Cut)
{
    Add("444", QString(1600, u'a') + u'b');
    Edit(3, [](QWidget& dialog) { Click(dialog, "OKPressed"); });
    EXPECT_EQ(m_window.m_recipients.At(3).Message, QString(1600, u'a'));
}

TEST_F(Update_Num_SMS_Test, Each_Change_Of_The_Message_Is_Counted_With_The_Counter_Before_It)
{
    Edit(1, [](QWidget& dialog) {
        auto& message = In<QPlainTextEdit>(dialog, "m_msg_str");
        message.moveCursor(QTextCursor::End);
        QTest::keyClicks(&message, "ab");
        EXPECT_EQ(In<QLabel>(dialog, "m_st_msg_cnt").text(), QStringLiteral("5 counted"));
        Click(dialog, "CancelPressed");
    });
    ASSERT_EQ(m_window.m_counted.size(), 3U);
    EXPECT_EQ(m_window.m_counted[1].length, 4);
    EXPECT_EQ(m_window.m_counted[1].counter_before, QStringLiteral("3 counted"));
    EXPECT_EQ(m_window.m_counted[2].counter_before, QStringLiteral("4 counted"));
    EXPECT_TRUE(m_window.m_counted[2].open_dialog);
}

TEST_F(Update_Num_SMS_Test, While_The_Counting_Waits_The_Counter_Shows_Only_The_Characters)
{
    class Window_That_Looks : public Window_For_Tests
    {
    public:
        QString Long_SMS_Calculation(int length, const QString& before, bool open_dlg) override
        {
            m_seen.append(In<QLabel>(*Update_Num_SMS::defaultInstance(), "m_st_msg_cnt").text());
            return Window_For_Tests::Long_SMS_Calculation(length, before, open_dlg);
        }
        QStringList m_seen;
    } window;
    window.m_recipients.Append(QStringLiteral("1"), QStringLiteral("a"));
    m_user.When_Opens(QStringLiteral("Update_Num_SMS"), [](QWidget& dialog) {
        QTest::keyClicks(&In<QPlainTextEdit>(dialog, "m_msg_str"), "b");
        Click(dialog, "CancelPressed");
    });
    Open_Edit_Dialog(window, 0);
    EXPECT_EQ(window.m_seen.last(), QStringLiteral("2 Characters"));
}

TEST_F(Update_Num_SMS_Test, Cancel_Escape_And_The_Close_Button_End_It_With_Zero_And_Change_Nothing)
{
    const std::function<void(QWidget&)> ways[] = {
        [](QWidget& dialog) { Click(dialog, "CancelPressed"); },
        [](QWidget& dialog) { QTest::keyClick(&In<QWidget>(dialog, "m_msg_str"), Qt::Key_Escape); },
        [](QWidget& dialog) { dialog.close(); },
    };
    for (const auto& way : ways) {
        Edit(1, [&](QWidget& dialog) {
            Type_Number(dialog, "777");
            Type_Message(dialog, "new");
            way(dialog);
        });
        EXPECT_EQ(Update_Num_SMS::defaultInstance()->result(), 0);
        EXPECT_EQ(List(), (QStringList{"111: one", "12345: two", "333: three"}));
        EXPECT_EQ(m_window.m_redisplays, 0);
    }
}

TEST_F(Update_Num_SMS_Test, Enter_In_The_Number_Field_Saves_And_In_The_Message_Begins_A_Line)
{
    Edit(1, [](QWidget& dialog) {
        Type_Message(dialog, "a");
        QTest::keyClick(&In<QWidget>(dialog, "m_msg_str"), Qt::Key_Return);
        ASSERT_TRUE(dialog.isVisible());
        QTest::keyClick(&In<QWidget>(dialog, "m_num_str"), Qt::Key_Return);
    });
    EXPECT_EQ(List()[1], QStringLiteral("12345: a\n"));
}

TEST_F(Update_Num_SMS_Test, Saving_One_Of_Many_Recipients_Leaves_The_Others_Where_They_Are)
{
    constexpr int Many = 1000;
    for (int row = 0; row < Many; ++row)
        Add(QString::number(10'000'000'000 + row));
    const QString* const first = &std::as_const(m_window.m_recipients).Message_At(0);
    Edit(Many, [&](QWidget& dialog) {
        Type_Number(dialog, "777");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(&std::as_const(m_window.m_recipients).Message_At(0), first) << "a copy of a million takes its time";
    EXPECT_EQ(m_window.m_recipients.At(Many).Number, QStringLiteral("777"));
    EXPECT_EQ(m_window.m_recipients.Numbers().First_Index_Of(QStringLiteral("777")), Many);
}

TEST_F(Update_Num_SMS_Test, It_Has_The_Programs_Background_And_One_Shared_Instance)
{
    const auto* dialog = Update_Num_SMS::defaultInstance();
    EXPECT_EQ(dialog, Update_Num_SMS::defaultInstance());
    EXPECT_EQ(dialog->objectName(), QStringLiteral("Update_Num_SMS"));
    EXPECT_EQ(dialog->palette().color(QPalette::Window), Window_Background());
}

} // namespace
