#include "support/Log_Lines.h"
#include "windows/main/Sending_Test.h"

namespace {

using Send_Job_Test = Sending_Test;

// With everything switched on: two are sent to, with a pause between them; one is excluded and one repeated.
TEST_F(Send_Job_Test, Takes_Every_Step_In_Its_Order)
{
    Set_Pace(100);
    Add("111", "one");
    Add("999", "excluded");
    Add("111", "repeated");
    Add("222", "two");
    Exclude("999");
    auto& choices = m_window.m_choices;
    Pause_After_Each("1", "5  Seconds");
    choices.exclusion = choices.skip_duplicates = choices.save_sent_items = choices.save_templates = true;
    choices.composer_text = m_window.m_previous_message = "composed";
    Send_And_Read({Completed});
    EXPECT_EQ(Message_IS, "composed");
    EXPECT_EQ(m_window.m_exclusions_taken, 1);
    const QString pausing = "Pausing the process for %1 Seconds.";
    EXPECT_EQ(m_progress.Steps(),
              (QStringList{
                  "preparing 4",      "timer on",     "sending",         "1 / 4 111",    "pause",      pausing.arg(5),
                  pausing.arg(4),     pausing.arg(3), pausing.arg(2),    pausing.arg(1), "pause over", "2 / 4 999",
                  "999 is Excluded.", "3 / 4 111",    "111 is Skipped.", "4 / 4 222",    "timer off",  "end",
                  "timer off",        "end"}));
    EXPECT_EQ(Received(), (QStringList{"111: one", "222: two"}));
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "one") + Record("222", "two"));
    EXPECT_EQ(Bytes_Of(Templates_Path), "one\ntwo\n");
    EXPECT_EQ(m_phone.Heard(),
              Lines("AT", "AT", "AT+CMGF=?", "AT", "AT+CSMS=0", "AT+CMGF=0", "AT+CMGS=13", "AT+CMGS=13"));
    ASSERT_EQ(m_window.m_recipients.Count(), 4);
    EXPECT_EQ(m_window.m_recipients.At(1).Number, "999");
    EXPECT_EQ(m_window.m_recipients.At(1).Message, "excluded");
}

struct Way
{
    const char* name;
    bool text_mode;
    bool unicode_and_flash;
    const char* message;
    const char* alphabet;
    int message_class;
};

class Ways_To_Send : public Sending_Test, public testing::WithParamInterface<Way>
{
};

TEST_P(Ways_To_Send, A_Message_Goes_As_The_Window_And_The_Phone_Have_It)
{
    const Way& way = GetParam();
    Put([&](Phone_Moods& moods) { moods.m_text_only = way.text_mode; });
    Cus_SMS_Num_STR = "+15551112222";
    m_window.m_choices.unicode = m_window.m_choices.flash = way.unicode_and_flash;
    Add_Each({"111", "111"}, QString::fromUtf8(way.message));
    Send_And_Read({Completed});
    EXPECT_EQ(Received(), QStringList(2, QString::fromUtf8(way.message).prepend("111: ")));
    for (const Handset_Part& part : m_phone.Parts()) {
        EXPECT_EQ(part.m_text_mode, way.text_mode);
        EXPECT_EQ(part.m_smsc, "+15551112222");
        EXPECT_EQ(part.m_alphabet, way.alphabet);
        EXPECT_EQ(part.m_class, way.message_class);
    }
}

INSTANTIATE_TEST_SUITE_P(By, Ways_To_Send,
                         testing::Values(Way{"PDU", false, false, "Hello", "GSM 7-bit", -1},
                                         Way{"Flash_PDU", false, true, "Привет", "UCS2", 0},
                                         Way{"Text", true, false, "Hello", "GSM 7-bit", -1},
                                         Way{"Flash_Text", true, true, "Привет", "UCS2", 0}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Send_Job_Test, What_Happens_To_The_List_Meanwhile_Changes_Nothing)
{
    Add_Each({"111", "222"});
    At_Step("sending", [this] {
        Run_On_Interface_Thread([this] {
            m_window.m_recipients.Clear();
            m_window.m_choices.unicode = true;
            Cus_SMS_Num_STR = "+1999";
        });
    });
    Send_And_Read({Completed});
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "222: Hello"}));
    EXPECT_EQ(m_phone.Parts().at(1).m_alphabet, "GSM 7-bit");
    EXPECT_EQ(m_phone.Parts().at(1).m_smsc, "+15550009999");
}

TEST_F(Send_Job_Test, A_List_That_Is_Empty_By_Then_Ends_Without_A_Completion_Message)
{
    Add("111", "");
    m_user.Will_Handle([this](QMessageBox& box) {
        m_window.m_recipients.Clear();
        EXPECT_TRUE(Click_First(box, {"Yes"}));
    });
    Send();
    EXPECT_EQ(m_user.Was_Shown().size(), 1);
    EXPECT_TRUE(m_progress.Steps().contains("preparing 0"));
}

TEST_F(Send_Job_Test, What_Was_Left_By_Others_Is_Forgotten)
{
    const Virtual_Phone other;
    Add("111");
    m_session.initPort(sel_port_bsd_str);
    ASSERT_TRUE(m_session.port());
    m_session.port()->close();
    Send_And_Read({Completed});
    m_session.initPort(QString::fromStdString(other.Path()));
    ASSERT_TRUE(m_session.port());
    Stop_SMS_Sending_Now = 1;
    Send_And_Read({Completed});
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "111: Hello"}));
    EXPECT_TRUE(other.Heard().empty());
}

// ---- What goes wrong

TEST_F(Send_Job_Test, A_Device_That_Does_Not_Open_Is_Told_Of_Before_Anything_Is_Shown)
{
    Add("111");
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    const Virtual_Phone held;
    const QString held_path = QString::fromStdString(held.Path());
    KVSerialPort other(held_path, "other", "other");
    ASSERT_TRUE(other.openExclusively());
    for (const QString& path :
         {QString("/dev/no-such-device"), QString("/dev/null"), QString("/"), file.fileName(), held_path}) {
        sel_port_bsd_str = path;
        Send_And_Read({Does_Not_Open});
    }
    EXPECT_TRUE(held.Heard_Bytes().empty()) << "something was written to a port of another";
    EXPECT_FALSE(m_progress.Steps().contains("preparing 1"));
}

struct Failure
{
    const char* name;
    void (*put)(Phone_Moods& moods);
    QString box;
    int steps; ///< of all
    int kept;  ///< records, of the first numbers
    const char* received;
    int exception_at = 0; ///< which message
};

class Failing_Job : public Sending_Test, public testing::WithParamInterface<Failure>
{
protected:
    const QStringList m_numbers{"111", "222", "333", "444", "555"};
    const QStringList m_all_steps{"preparing 5", "timer on",  "sending",   "1 / 5 111",
                                  "2 / 5 222",   "3 / 5 333", "4 / 5 444", "5 / 5 555"};
};

TEST_P(Failing_Job, Tells_And_Records_And_Goes_As_Far_As_It_Can)
{
    const Failure& failure = GetParam();
    Add_Each(m_numbers);
    m_window.m_choices.save_sent_items = true;
    Put(failure.put);
    Before_Write("AT+CMGS=", failure.exception_at, Raise);
    m_user.Will_Handle([&](QMessageBox& box) {
        EXPECT_EQ(box.text(), failure.box);
        EXPECT_EQ(Progress_Window().isVisible(), failure.box != Completed);
        EXPECT_EQ(In_Progress_Window<QTimer>("msend_modTimer").isActive(), failure.box != Completed);
        EXPECT_EQ(sms_thread_var, 1);
        EXPECT_TRUE(m_session.port() && m_session.port()->isOpen());
        box.accept();
    });
    Send();
    QStringList steps = m_progress.Steps();
    steps.removeAll("timer off");
    steps.removeAll("end");
    EXPECT_EQ(steps, m_all_steps.mid(0, failure.steps));
    EXPECT_EQ(Received().join(u' ').remove(": Hello"), failure.received);
    QByteArray records;
    for (const QString& number : m_numbers.mid(0, failure.kept))
        records += Record(number, "Hello");
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), records);
}

using Moods = Phone_Moods;
void Text_Alone_And_A_Hang_Up(Moods& m)
{
    m.m_text_only = true;
    m.m_hang_up_at = 2;
}
// Handed to the phone is what a record means: nobody judges what became of the message there.
const Failure Failures[] = {
    {"Silent", [](Moods& m) { m.m_silent = true; }, No_Modem, 2, 0, ""},
    {"Only_Echoing", [](Moods& m) { m.m_echo_only = true; }, No_Modem, 3, 0, ""},
    {"Without_A_Mode", [](Moods& m) { m.m_error_for["AT+CMGF=?"] = ""; }, No_Modem, 3, 0, ""},
    {"Lost", [](Moods& m) { m.m_hang_up_at = 3; }, Connection_Error, 6, 2, "111 222"},
    {"Lost_In_Text_Mode", Text_Alone_And_A_Hang_Up, Connection_Error, 5, 1, "111"},
    {"Refused", [](Moods& m) { m.m_cms_error_at[1] = 500; }, Completed, 8, 5, "222 333 444 555"},
    {"Exception_In_PDU_Mode", [](Moods&) {}, Completed, 5, 1, "111", 2},
    {"Exception_In_Text_Mode", [](Moods& m) { m.m_text_only = true; }, Completed, 8, 5, "111 333 444 555", 2},
};
INSTANTIATE_TEST_SUITE_P(When, Failing_Job, testing::ValuesIn(Failures),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Send_Job_Test, An_Exception_Outside_A_Submission_Is_Told_And_Leaves_Everything_Tidy)
{
    Add("111");
    const Log_Lines log;
    for (const char* command : {"AT\r\n", "AT+CMGF=?", "AT+CSMS=0"}) {
        Before_Write(command, 1, Raise);
        Send_And_Read({"\nSending has ended early because of an unexpected error. The sent items show which messages "
                       "were sent."});
    }
    EXPECT_EQ(log.Count("The send job ended early: the line broke"), 3);
}

} // namespace
