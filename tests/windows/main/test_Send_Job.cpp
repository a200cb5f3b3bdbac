#include "device/Chosen_Device.h"
#include "device/Stop_Flag.h"
#include "engine/Job_State.h"
#include "windows/main/Sending_Test.h"

#include "platform/System_Log.h"

#include <gmock/gmock.h>

namespace {

using testing::Each;
using testing::Field;

class Send_Job_Test : public Sending_Test
{
protected:
    using Sending_Test::Sending_Test;
};

class Text_Mode_Job_Test : public Sending_Test
{
protected:
    static Phone_Moods Only_Text()
    {
        Phone_Moods moods;
        moods.m_text_only = true;
        return moods;
    }
    Text_Mode_Job_Test() : Sending_Test(Only_Text()) {}
};

TEST_F(Send_Job_Test, Every_Recipient_Gets_His_Own_Message_In_The_Order_Of_The_List)
{
    Add(QStringLiteral("111"), QStringLiteral("first"));
    Add(QStringLiteral("222"), QStringLiteral("second"));
    Add(QStringLiteral("333"), QStringLiteral("third"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: first", "222: second", "333: third"}));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
    EXPECT_EQ(m_phone.Heard(),
              Lines("AT", "AT", "AT+CMGF=?", "AT", "AT+CSMS=0", "AT+CMGF=0", "AT+CMGS=15", "AT+CMGS=16", "AT+CMGS=15"));
}

TEST_F(Send_Job_Test, The_Progress_Window_Is_Taken_Through_Its_Steps)
{
    Add(QStringLiteral("111"));
    Add(QStringLiteral("222"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_progress.Steps(), (QStringList{"preparing 2", "timer on", "sending", "1 / 2 111", "2 / 2 222",
                                               "timer off", "end", "timer off", "end"}));
}

TEST_F(Send_Job_Test, The_List_Is_Not_Changed)
{
    Add(QStringLiteral("111"), QStringLiteral("first"));
    m_user.Will_Press("OK");
    Send();
    ASSERT_EQ(m_window.m_recipients.Count(), 1);
    EXPECT_EQ(m_window.m_recipients.At(0).Number, QStringLiteral("111"));
    EXPECT_EQ(m_window.m_recipients.At(0).Message, QStringLiteral("first"));
}

TEST_F(Send_Job_Test, What_Happens_To_The_List_Meanwhile_Changes_Nothing)
{
    Add(QStringLiteral("111"));
    Add(QStringLiteral("222"));
    m_progress.m_at_step = [this](const QString& step) {
        if (step == QStringLiteral("sending"))
            Run_On_Interface_Thread([this] {
                m_window.m_recipients.Clear();
                m_window.m_choices.unicode = true;
                Cus_SMS_Num_STR = QStringLiteral("+1999");
            });
    };
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "222: Hello"}));
    EXPECT_EQ(m_phone.Parts().at(1).m_alphabet, "GSM 7-bit");
    EXPECT_EQ(m_phone.Parts().at(1).m_smsc, "+15550009999");
}

TEST_F(Send_Job_Test, A_Number_Three_Times_Is_Sent_Once_With_Skip_Duplicates)
{
    for (int item = 0; item < 3; ++item)
        Add(QStringLiteral("111"));
    m_window.m_choices.skip_duplicates = true;
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
    EXPECT_EQ(m_progress.Steps().mid(3, 5),
              (QStringList{"1 / 3 111", "2 / 3 111", "111 is Skipped.", "3 / 3 111", "111 is Skipped."}));
}

TEST_F(Send_Job_Test, A_Number_Three_Times_Is_Sent_Three_Times_Without_Skip_Duplicates)
{
    for (int item = 0; item < 3; ++item)
        Add(QStringLiteral("111"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "111: Hello", "111: Hello"}));
}

TEST_F(Send_Job_Test, An_Excluded_Number_Is_Never_Sent_While_The_Exclusion_Option_Is_On)
{
    Add(QStringLiteral("111"));
    Add(QStringLiteral("222"));
    Exclude(QStringLiteral("111"));
    m_window.m_choices.exclusion = true;
    for (const bool skip_duplicates : {false, true}) {
        m_window.m_choices.skip_duplicates = skip_duplicates;
        m_phone.Forget();
        m_user.Will_Press("OK");
        Send();
        EXPECT_EQ(Received(), QStringList{"222: Hello"});
        EXPECT_TRUE(m_progress.Steps().contains(QStringLiteral("111 is Excluded.")));
    }
}

TEST_F(Send_Job_Test, An_Excluded_Number_Is_Sent_While_The_Exclusion_Option_Is_Off)
{
    Add(QStringLiteral("111"));
    Exclude(QStringLiteral("111"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

TEST_F(Send_Job_Test, A_List_Of_Skipped_Numbers_Only_Is_Completed_All_The_Same)
{
    Add(QStringLiteral("111"));
    Exclude(QStringLiteral("111"));
    m_window.m_choices.exclusion = true;
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{});
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
}

TEST_F(Send_Job_Test, A_Message_Of_1601_Characters_Is_Sent_With_1600)
{
    Set_Pace(200);
    Add(QStringLiteral("111"), QString(1600, u'a') + u'b');
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{QStringLiteral("111: ") + QString(1600, u'a')});
}

TEST_F(Send_Job_Test, Unicode_And_Flash_Are_Taken_From_The_Window)
{
    m_window.m_choices.unicode = true;
    m_window.m_choices.flash = true;
    Add(QStringLiteral("111"), QStringLiteral("Привет"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{QStringLiteral("111: Привет")});
    ASSERT_EQ(m_phone.Inbox().size(), 1U);
    EXPECT_EQ(m_phone.Inbox().front().m_alphabet, "UCS2");
    EXPECT_EQ(m_phone.Inbox().front().m_class, 0);
}

TEST_F(Send_Job_Test, Without_Them_A_Message_Is_Seven_Bit_And_Of_No_Class)
{
    Add(QStringLiteral("111"));
    m_user.Will_Press("OK");
    Send();
    ASSERT_EQ(m_phone.Inbox().size(), 1U);
    EXPECT_EQ(m_phone.Inbox().front().m_alphabet, "GSM 7-bit");
    EXPECT_EQ(m_phone.Inbox().front().m_class, -1);
}

TEST_F(Send_Job_Test, The_Chosen_Service_Centre_Goes_With_Every_Message)
{
    Cus_SMS_Num_STR = QStringLiteral("+15551112222");
    Add(QStringLiteral("111"));
    Add(QStringLiteral("222"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_phone.Parts().size(), 2U);
    EXPECT_THAT(m_phone.Parts(), Each(Field(&Handset_Part::m_smsc, "+15551112222")));
}

TEST_F(Send_Job_Test, A_Long_Message_Arrives_As_One)
{
    const QString message = QString(200, u'a') + QString(161, u'b');
    Add(QStringLiteral("111"), message);
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{QStringLiteral("111: ") + message});
    EXPECT_EQ(m_phone.Parts().size(), 3U);
}

TEST_F(Send_Job_Test, A_Blank_Message_Is_Sent_When_It_Is_Meant)
{
    Add(QStringLiteral("111"), QString());
    m_user.Will_Press("Yes");
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"111: "});
}

TEST_F(Send_Job_Test, A_List_That_Is_Empty_By_Then_Ends_Without_A_Completion_Message)
{
    Add(QStringLiteral("111"), QString());
    m_user.Will_Handle([this](QMessageBox& box) {
        m_window.m_recipients.Clear();
        const auto buttons = box.buttons();
        for (QAbstractButton* button : buttons) {
            if (box.buttonRole(button) == QMessageBox::YesRole)
                button->click();
        }
    });
    Send();
    EXPECT_EQ(m_user.Was_Shown().size(), 1);
    EXPECT_TRUE(m_progress.Steps().contains(QStringLiteral("preparing 0")));
}

TEST_F(Send_Job_Test, What_The_Device_Answers_To_A_Message_Is_Not_Judged)
{
    auto moods = m_phone.Moods();
    moods.m_cms_error_at[1] = 500;
    m_phone.Set_Moods(moods);
    Add(QStringLiteral("111"));
    Add(QStringLiteral("222"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"222: Hello"});
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
}

TEST_F(Send_Job_Test, At_The_End_The_Window_Is_Hidden_Then_The_Box_Shown_Then_The_Port_Closed)
{
    Add(QStringLiteral("111"));
    m_user.Will_Handle([this](QMessageBox& box) {
        EXPECT_EQ(box.text(), Completed);
        EXPECT_FALSE(Progress_Window().isVisible());
        EXPECT_FALSE(Progress_Window().findChild<QTimer*>(QStringLiteral("msend_modTimer"))->isActive());
        EXPECT_EQ(sms_thread_var, 1);
        ASSERT_TRUE(m_session.port());
        EXPECT_TRUE(m_session.port()->isOpen());
        box.accept();
    });
    Send();
}

TEST_F(Send_Job_Test, A_Closed_Port_Of_The_Session_Is_Opened_Anew)
{
    m_session.initPort(sel_port_bsd_str);
    ASSERT_TRUE(m_session.port());
    m_session.port()->close();
    Add(QStringLiteral("111"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

TEST_F(Send_Job_Test, A_Port_Left_On_Another_Device_Is_Dropped)
{
    Virtual_Phone other;
    m_session.initPort(QString::fromStdString(other.Path()));
    ASSERT_TRUE(m_session.port());
    Add(QStringLiteral("111"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
    EXPECT_TRUE(other.Heard().empty());
}

TEST_F(Send_Job_Test, A_Second_Job_Works_As_The_First_Did)
{
    Add(QStringLiteral("111"));
    for (int job = 0; job < 2; ++job) {
        m_user.Will_Press("OK");
        Send();
    }
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "111: Hello"}));
}

TEST_F(Send_Job_Test, A_Stop_Asked_For_In_The_Job_Before_Is_Forgotten)
{
    Stop_SMS_Sending_Now = 1;
    Add(QStringLiteral("111"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

TEST_F(Text_Mode_Job_Test, A_Phone_That_Knows_Text_Mode_Only_Is_Sent_Text)
{
    Cus_SMS_Num_STR = QStringLiteral("+15551112222");
    Add(QStringLiteral("111"), QStringLiteral("first"));
    Add(QStringLiteral("222"), QStringLiteral("second"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: first", "222: second"}));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
    EXPECT_THAT(m_phone.Parts(), Each(Field(&Handset_Part::m_text_mode, true)));
    EXPECT_THAT(m_phone.Parts(), Each(Field(&Handset_Part::m_smsc, "+15551112222")));
    EXPECT_THAT(m_phone.Heard(), testing::Contains("AT+CMGF=1"));
}

TEST_F(Text_Mode_Job_Test, Unicode_And_Flash_Work_In_Text_Mode)
{
    m_window.m_choices.unicode = true;
    m_window.m_choices.flash = true;
    Add(QStringLiteral("111"), QStringLiteral("Привет"));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{QStringLiteral("111: Привет")});
    ASSERT_EQ(m_phone.Inbox().size(), 1U);
    EXPECT_EQ(m_phone.Inbox().front().m_class, 0);
}

TEST_F(Text_Mode_Job_Test, A_Long_Message_Goes_As_Messages_Of_160_Characters)
{
    Add(QStringLiteral("111"), QString(160, u'a') + QString(5, u'b'));
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{QStringLiteral("111: ") + QString(160, u'a'), QStringLiteral("111: bbbbb")}));
}

} // namespace
