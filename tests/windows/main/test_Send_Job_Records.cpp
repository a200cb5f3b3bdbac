#include "device/Chosen_Device.h"
#include "device/Stop_Flag.h"
#include "engine/Job_State.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "windows/list/Send_Msg_Info.h"
#include "windows/main/Sending_Test.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <stdexcept>

namespace {

// Jobs with everything that surrounds a message: records, templates, exclusions, batches.
class Job_With_Records : public Sending_Test
{
protected:
    explicit Job_With_Records(const Phone_Moods& moods = {}) : Sending_Test(moods) {}

    static QByteArray Record(const QByteArray& number, const QByteArray& message)
    {
        return "\a" + number + "\v" + message + "\a" + Today().toString("dd/MM/yyyy").toUtf8() + "\v\n";
    }
};

class Text_Mode_Records : public Job_With_Records
{
protected:
    static Phone_Moods Only_Text()
    {
        Phone_Moods moods;
        moods.m_text_only = true;
        return moods;
    }
    Text_Mode_Records() : Job_With_Records(Only_Text()) {}
};

TEST_F(Job_With_Records, Every_Message_Sent_Is_A_Record_With_An_Empty_Status)
{
    Add("111", "first");
    Add("222", "second\nand a line");
    m_window.m_choices.save_sent_items = true;
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "first") + Record("222", "second|AP*|DX/and a line"));
    EXPECT_EQ(Bytes_Of(Templates_Path), "");
}

TEST_F(Job_With_Records, Without_The_Option_Nothing_Is_Recorded)
{
    Add("111", "first");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), "");
    EXPECT_EQ(Bytes_Of(Templates_Path), "");
}

TEST_F(Job_With_Records, The_Same_Message_Is_One_Template)
{
    Add("111", "the same");
    Add("222", "the same");
    Add("333", " the same");
    Add("444", "   ");
    m_window.m_choices.save_templates = true;
    m_user.Will_Press("OK");
    Send();
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Bytes_Of(Templates_Path), "the same\n the same\n");
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), "");
}

TEST_F(Job_With_Records, A_Message_Of_1601_Characters_Is_Sent_And_Kept_With_1600)
{
    const QString cut = QString(1600, u'a');
    Add("111", cut + u'b');
    m_window.m_choices.save_sent_items = true;
    m_window.m_choices.save_templates = true;
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"111: " + cut});
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", cut.toUtf8()));
    EXPECT_EQ(Bytes_Of(Templates_Path), cut.toUtf8() + '\n');
}

TEST_F(Job_With_Records, A_Store_That_Went_Missing_Is_Made_Again)
{
    Add("111", "first");
    m_window.m_choices.save_sent_items = true;
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "first"));
}

TEST_F(Job_With_Records, A_Store_That_Can_Not_Be_Written_To_Holds_Nothing_Up)
{
    Add("111", "first");
    Add("222", "second");
    m_window.m_choices.save_sent_items = true;
    m_window.m_choices.save_templates = true;
    for (const auto& path : {Sent_Item_Path, Templates_Path}) {
        ASSERT_TRUE(QFile::remove(path));
        ASSERT_TRUE(QDir().mkdir(path)); // a folder stands where the file belongs
    }
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: first", "222: second"}));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
}

TEST_F(Job_With_Records, A_Failure_On_The_Third_Of_Five_Leaves_Two_Records_And_No_Completion)
{
    for (const char* number : {"111", "222", "333", "444", "555"})
        Add(QString::fromLatin1(number), "hello");
    m_window.m_choices.save_sent_items = true;
    m_progress.m_at_step = [this](const QString& step) {
        if (step == QStringLiteral("3 / 5 333"))
            m_phone.Hang_Up();
    };
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Connection_Error});
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "hello") + Record("222", "hello"));
}

// Handed to the phone is what a record means: nobody judges what became of the message there.
TEST_F(Job_With_Records, What_Was_Refused_Or_Cut_Short_Has_Its_Record_All_The_Same)
{
    const QString one_part(60, u'a');
    const QString three_parts(400, u'b');
    for (const QString& message : {one_part, three_parts, one_part})
        Add("111", message);
    m_window.m_choices.save_sent_items = true;
    auto moods = m_phone.Moods();
    moods.m_cms_error_at[1] = 21; // the network refuses the first message
    m_phone.Set_Moods(moods);
    int submissions = 0;
    m_calls.m_before_write = [&](const QByteArray& bytes) {
        if (bytes.startsWith("AT+CMGS=") && ++submissions == 3)
            Stop_SMS_Sending_Now = 1; // while the second part of three goes out
    };
    Send();
    EXPECT_EQ(submissions, 3);
    EXPECT_EQ(Received(), QStringList());
    EXPECT_EQ(m_user.Was_Shown(), QStringList()) << "a stopped job ends without a word";
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", one_part.toUtf8()) + Record("111", three_parts.toUtf8()));
}

TEST_F(Text_Mode_Records, A_Message_That_An_Exception_Cut_Short_Has_Its_Record_All_The_Same)
{
    Add("111", "first");
    Add("222", "second");
    m_window.m_choices.save_sent_items = true;
    int submissions = 0;
    m_calls.m_before_write = [&](const QByteArray& bytes) {
        if (bytes.startsWith("AT+CMGS=") && ++submissions == 1)
            throw std::runtime_error("the line broke");
    };
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"222: second"});
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "first") + Record("222", "second"));
}

TEST_F(Job_With_Records, A_Phone_That_Falls_Silent_Ends_No_Job_And_Leaves_Every_Record)
{
    for (const char* number : {"111", "222", "333"})
        Add(QString::fromLatin1(number), "hello");
    m_window.m_choices.save_sent_items = true;
    m_progress.m_at_step = [this](const QString& step) {
        auto moods = m_phone.Moods();
        moods.m_silent = step == QStringLiteral("2 / 3 222") || moods.m_silent;
        m_phone.Set_Moods(moods);
    };
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
    EXPECT_EQ(Received(), QStringList{"111: hello"});
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "hello") + Record("222", "hello") + Record("333", "hello"));
}

TEST_F(Job_With_Records, What_Is_Excluded_Or_Skipped_Is_Neither_Sent_Nor_Recorded)
{
    for (const char* number : {"111", "222", "111", "333", "111"})
        Add(QString::fromLatin1(number), "hello");
    Exclude("222");
    m_window.m_choices.exclusion = true;
    m_window.m_choices.skip_duplicates = true;
    m_window.m_choices.save_sent_items = true;
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: hello", "333: hello"}));
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "hello") + Record("333", "hello"));
    EXPECT_THAT(m_progress.Steps(),
                testing::IsSupersetOf({QStringLiteral("222 is Excluded."), QStringLiteral("111 is Skipped.")}));
    EXPECT_EQ(m_progress.Steps().count(QStringLiteral("111 is Skipped.")), 2);
}

TEST_F(Job_With_Records, The_Exclusions_Are_Read_Again_Once_The_Device_Has_Opened)
{
    Add("111", "hello");
    Add("222", "hello");
    m_window.m_choices.exclusion = true;
    Exclude("222");
    m_window.m_exclusions.Clear(); // as they were before somebody else changed the list
    sel_port_bsd_str = QStringLiteral("/dev/null/none");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_window.m_exclusions_taken, 0);
    sel_port_bsd_str = QString::fromStdString(m_phone.Path());
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_window.m_exclusions_taken, 1);
    EXPECT_EQ(m_window.m_exclusions.Count(), 1) << "the main window shows them, too";
    EXPECT_EQ(Received(), QStringList{"111: hello"});
}

TEST_F(Job_With_Records, Without_The_Option_The_Exclusions_Are_Left_Alone)
{
    Add("111", "hello");
    Exclude("111");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_window.m_exclusions_taken, 0);
    EXPECT_EQ(Received(), QStringList{"111: hello"});
}

// ---- Batches

TEST_F(Job_With_Records, Twelve_Items_In_Batches_Of_Five_Pause_After_The_Fifth_And_The_Tenth)
{
    for (int item = 1; item <= 12; ++item)
        Add(QString::number(100 + item), "hello");
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = QStringLiteral("5");
    m_window.m_choices.pause_choice = QStringLiteral("5  Seconds");
    m_user.Will_Press("OK");
    Send();
    QStringList before_pauses;
    const QStringList steps = m_progress.Steps();
    for (int step = 1; step < steps.size(); ++step) {
        if (steps.at(step) == QStringLiteral("pause"))
            before_pauses.append(steps.at(step - 1));
    }
    EXPECT_EQ(before_pauses, (QStringList{"5 / 12 105", "10 / 12 110"}));
    EXPECT_EQ(m_phone.Inbox().size(), 12U);
}

TEST_F(Job_With_Records, Batches_Of_One_Pause_After_Every_Item_But_The_Last)
{
    Add("111", "hello");
    Add("222", "hello");
    Add("333", "hello");
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = QStringLiteral("1");
    m_window.m_choices.pause_choice = QStringLiteral("5  Seconds");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_progress.Steps().count(QStringLiteral("pause")), 2);
    EXPECT_EQ(m_progress.Steps().count(QStringLiteral("Pausing the process for 1 Seconds.")), 2);
}

TEST_F(Job_With_Records, Skipped_And_Excluded_Items_Do_Not_Count_Towards_A_Batch)
{
    for (const char* number : {"111", "111", "999", "222", "333"})
        Add(QString::fromLatin1(number), "hello");
    Exclude("999");
    m_window.m_choices.exclusion = true;
    m_window.m_choices.skip_duplicates = true;
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = QStringLiteral("2");
    m_window.m_choices.pause_choice = QStringLiteral("5  Seconds");
    m_user.Will_Press("OK");
    Send();
    const QStringList steps = m_progress.Steps();
    ASSERT_EQ(steps.count(QStringLiteral("pause")), 1);
    EXPECT_EQ(steps.at(steps.indexOf(QStringLiteral("pause")) - 1), QStringLiteral("4 / 5 222"));
}

TEST_F(Job_With_Records, A_Pause_Choice_Without_A_Unit_Makes_No_Pause)
{
    Add("111", "hello");
    Add("222", "hello");
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = QStringLiteral("1");
    m_window.m_choices.pause_choice = QStringLiteral("7 Seconds");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_progress.Steps().count(QStringLiteral("pause")), 0);
    EXPECT_EQ(m_phone.Inbox().size(), 2U);
}

TEST_F(Job_With_Records, A_Stop_In_A_Pause_Ends_The_Job_Within_A_Second_And_Without_A_Word)
{
    Add("111", "hello");
    Add("222", "hello");
    m_window.m_choices.save_sent_items = true;
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = QStringLiteral("1");
    m_window.m_choices.pause_choice = QStringLiteral(" 1  Hour");
    m_user.Will_Press("Yes");
    double stopped_at = 0;
    m_progress.m_at_step = [&](const QString& step) {
        if (step != QStringLiteral("Pausing the process for 1 Hour 0 Minute 0 Seconds."))
            return;
        Set_Pace(1); // what a person would wait
        Press_Stop();
        stopped_at = Now_Seconds();
    };
    Send();
    EXPECT_GT(stopped_at, 0);
    EXPECT_LT(Now_Seconds() - stopped_at, 1.5);
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Stop_Sending});
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "hello"));
    EXPECT_EQ(Received(), QStringList{"111: hello"});
}

// ---- The composer's text, offered before sending

class Job_With_A_Composer_Text : public Job_With_Records
{
protected:
    Job_With_A_Composer_Text()
    {
        Add("111", "old");
        Add("222", QString());
        m_window.m_choices.composer_text = QStringLiteral("new");
    }

    void Answer(const char* button)
    {
        m_user.When_Opens("Send_Msg_Info", [button](QWidget& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
    }
};

TEST_F(Job_With_A_Composer_Text, Ok_Gives_It_To_Everybody)
{
    Answer("OKPressed");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: new", "222: new"}));
    EXPECT_EQ(m_window.m_previous_message, QStringLiteral("new"));
}

TEST_F(Job_With_A_Composer_Text, Continue_Sends_The_List_As_It_Stands)
{
    Answer("ContinuePressed");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: old", "222: "}));
}

TEST_F(Job_With_A_Composer_Text, Cancel_Sends_Nothing_And_The_Next_Send_Does_Not_Ask)
{
    Answer("CancelPressed");
    Send();
    EXPECT_EQ(Received(), QStringList());
    EXPECT_EQ(m_user.Was_Shown(), QStringList());
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: old", "222: "}));
}

TEST_F(Job_With_A_Composer_Text, It_Is_Offered_Once_For_Each_Change_Of_The_Composer)
{
    Answer("ContinuePressed");
    m_user.Will_Press("OK");
    Send();
    m_user.Will_Press("OK");
    Send();
    m_window.m_choices.composer_text = QStringLiteral("newer");
    Answer("OKPressed");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received().last(), QStringLiteral("222: newer"));
}

// ---- Everything at once

TEST_F(Job_With_Records, Five_Hundred_Messages_With_Everything_Switched_On)
{
    QStringList expected;
    QByteArray records;
    QByteArray templates;
    for (int item = 0; item < 500; ++item) {
        // Every tenth number is excluded, every seventh comes again, every message is one of fifty.
        const QString number = QStringLiteral("7%1").arg(item % 7 == 6 ? item - 1 : item, 4, 10, QChar(u'0'));
        const QString message = QStringLiteral("Message %1\nwith a line").arg(item % 50);
        Add(number, message);
        if (item % 10 == 0)
            Exclude(number);
    }
    QSet<QString> seen_numbers;
    QSet<QString> seen_messages;
    int handled = 0;
    for (int item = 0; item < 500; ++item) {
        const Recipient& recipient = m_window.m_recipients.At(item);
        const bool is_repeated = seen_numbers.contains(recipient.Number);
        seen_numbers.insert(recipient.Number);
        if (is_repeated || m_window.m_exclusions.Count_Of(recipient.Number) > 0)
            continue;
        ++handled;
        expected.append(recipient.Number + ": " + recipient.Message);
        const QByteArray line = QString(recipient.Message).replace('\n', "|AP*|DX/").toUtf8();
        records += Record(recipient.Number.toUtf8(), line);
        if (!seen_messages.contains(recipient.Message))
            templates += line + '\n';
        seen_messages.insert(recipient.Message);
    }
    m_window.m_choices.exclusion = true;
    m_window.m_choices.skip_duplicates = true;
    m_window.m_choices.save_sent_items = true;
    m_window.m_choices.save_templates = true;
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = QStringLiteral("50");
    m_window.m_choices.pause_choice = QStringLiteral("5  Seconds");
    Set_Pace(400);
    m_user.Will_Press("OK");
    m_runner.Send_SMS_Btn();
    ASSERT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 240));
    Expect_Everything_Tidy();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
    EXPECT_EQ(Received(), expected);
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), records);
    EXPECT_EQ(Bytes_Of(Templates_Path), templates);
    EXPECT_EQ(m_progress.Steps().count(QStringLiteral("pause")), (handled - 1) / 50);
}

TEST_F(Text_Mode_Records, Text_Mode_Keeps_The_Same_Records)
{
    Add("111", "first");
    Add("222", "second");
    m_window.m_choices.save_sent_items = true;
    m_window.m_choices.save_templates = true;
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "first") + Record("222", "second"));
    EXPECT_EQ(Bytes_Of(Templates_Path), "first\nsecond\n");
}

} // namespace
