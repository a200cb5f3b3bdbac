#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "windows/main/Sending_Test.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gmock/gmock.h>
#include <stdexcept>

namespace {

// One job with everything switched on, as one long walk; then the same walk again for each way out of it. Two
// recipients are sent to, with a pause between them; one is excluded and one is repeated.
class Send_Job_Walk : public Sending_Test
{
protected:
    struct Way_Out
    {
        const char* name;
        std::function<void(Send_Job_Walk&)> prepare;
        QStringList answers; ///< to the boxes, in their order
        QStringList boxes;
        QStringList received;
        QString last_step; ///< of the progress window before it is taken down; none when it never showed
    };

    Send_Job_Walk()
    {
        Set_Pace(100);
        Start_Anew();
    }

    void Start_Anew()
    {
        for (const auto& path : {Sent_Item_Path, Templates_Path})
            EXPECT_TRUE(QFile::resize(path, 0));
        if (m_phone.Is_Hung_Up())
            m_phone.Plug_In_Again();
        m_phone.Set_Moods({});
        m_phone.Forget();
        sel_port_bsd_str = QString::fromStdString(m_phone.Path());
        m_calls.m_before_write = nullptr;
        m_progress.m_at_step = nullptr;
        m_window.m_recipients.Clear();
        Exclude_Nobody();
        m_window.m_focused.clear();
        Add("111", "one");
        Add("999", "excluded");
        Add("111", "repeated");
        Add("222", "two");
        Exclude("999");
        Send_Choices choices;
        choices.composer_text = QStringLiteral("composed");
        choices.batch_size = QStringLiteral("1");
        choices.pause_choice = QStringLiteral("5  Seconds");
        choices.delayed_delivery = choices.exclusion = choices.skip_duplicates = true;
        choices.save_sent_items = choices.save_templates = true;
        m_window.m_choices = choices;
        m_window.m_previous_message = choices.composer_text;
    }

    /// The records and templates of what was received, which is what a job keeps.
    void Expect_Records_Of(const QStringList& received)
    {
        QByteArray records;
        QByteArray templates;
        for (const QString& each : received) {
            const QByteArray message = each.section(": ", 1).toUtf8();
            records += "\a" + each.section(": ", 0, 0).toUtf8() + "\v" + message + "\a" +
                       Today().toString("dd/MM/yyyy").toUtf8() + "\v\n";
            templates += message + '\n';
        }
        EXPECT_EQ(Bytes_Of(Sent_Item_Path), records);
        EXPECT_EQ(Bytes_Of(Templates_Path), templates);
    }

    void At_Step(const QString& step, const std::function<void()>& happens)
    {
        m_progress.m_at_step = [=](const QString& present) {
            if (present == step)
                happens();
        };
    }

    void Before_Write(const QByteArray& beginning, int which, const std::function<void()>& happens)
    {
        auto seen = std::make_shared<int>(0);
        m_calls.m_before_write = [=](const QByteArray& bytes) {
            if (bytes.startsWith(beginning) && ++*seen == which)
                happens();
        };
    }

    void Have_Moods(const std::function<void(Phone_Moods&)>& change)
    {
        auto moods = m_phone.Moods();
        change(moods);
        m_phone.Set_Moods(moods);
    }

    void Will_Answer_The_Offer(const char* button)
    {
        m_window.m_previous_message = QStringLiteral("another one");
        m_user.When_Opens("Send_Msg_Info", [button](QWidget& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
    }

    static std::vector<Way_Out> Ways_Out();
};

[[noreturn]] void Raise()
{
    throw std::runtime_error("the line broke");
}

TEST_F(Send_Job_Walk, Takes_Every_Step_In_Its_Order)
{
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
    EXPECT_EQ(Message_IS, QStringLiteral("composed"));
    EXPECT_EQ(m_window.m_exclusions_taken, 1);
    EXPECT_EQ(m_progress.Steps(), (QStringList{"preparing 4",
                                               "timer on",
                                               "sending",
                                               "1 / 4 111",
                                               "pause",
                                               "Pausing the process for 5 Seconds.",
                                               "Pausing the process for 4 Seconds.",
                                               "Pausing the process for 3 Seconds.",
                                               "Pausing the process for 2 Seconds.",
                                               "Pausing the process for 1 Seconds.",
                                               "pause over",
                                               "2 / 4 999",
                                               "999 is Excluded.",
                                               "3 / 4 111",
                                               "111 is Skipped.",
                                               "4 / 4 222",
                                               "timer off",
                                               "end",
                                               "timer off",
                                               "end"}));
    EXPECT_EQ(Received(), (QStringList{"111: one", "222: two"}));
    Expect_Records_Of(Received());
    EXPECT_EQ(m_phone.Heard(),
              Lines("AT", "AT", "AT+CMGF=?", "AT", "AT+CSMS=0", "AT+CMGF=0", "AT+CMGS=13", "AT+CMGS=13"));
}

std::vector<Send_Job_Walk::Way_Out> Send_Job_Walk::Ways_Out()
{
    using Walk = Send_Job_Walk;
    const QString no_device = QStringLiteral(
        "\nEither Mobile Device is not connected properly or No Mobile Phone Device is selected.\n\nPlease use Mobile "
        "Phone Connection Wizard for finding device or establishing connection.");
    const QString no_values = QStringLiteral("\nNo values have been selected in 'Delayed Delivery Options'.");
    const QString blank = QStringLiteral(
        "\nYou have composed no text message yet for any of the contacts in the entire list. This action will send "
        "blank message to all the contacts in list.\n\nAre you sure you want to continue?");
    const QString does_not_open = QStringLiteral(
        "\n\nSelected device is not working properly. Please use Mobile Phone Connection Wizard for finding device or "
        "establishing connection.");
    return {
        {"no device", [](Walk&) { sel_port_bsd_str.clear(); }, {"OK"}, {no_device}, {}, {}},
        {"a number left over",
         [](Walk& walk) { walk.m_window.m_choices.number_text = "5"; },
         {"OK"},
         {"\nPlease insert entered number to the list."},
         {},
         {}},
        {"an empty list",
         [](Walk& walk) { walk.m_window.m_recipients.Clear(); },
         {"OK"},
         {"\nPhone numbers-Messages list is empty."},
         {},
         {}},
        {"no batch size", [](Walk& walk) { walk.m_window.m_choices.batch_size = " "; }, {"OK"}, {no_values}, {}, {}},
        {"no pause", [](Walk& walk) { walk.m_window.m_choices.pause_choice.clear(); }, {"OK"}, {no_values}, {}, {}},
        {"blank messages that are not meant",
         [](Walk& walk) {
             walk.m_window.m_choices.composer_text.clear();
             walk.m_window.m_recipients.Clear();
             walk.Add("111", QString());
         },
         {"No"},
         {blank},
         {},
         {}},
        {"the offer cancelled", [](Walk& walk) { walk.Will_Answer_The_Offer("CancelPressed"); }, {}, {}, {}, {}},
        {"a device that does not open",
         [](Walk&) { sel_port_bsd_str = "/dev/no-such-device"; },
         {"OK"},
         {does_not_open},
         {},
         {}},
        {"a device that does not answer",
         [](Walk& walk) { walk.Have_Moods([](Phone_Moods& moods) { moods.m_silent = true; }); },
         {"OK"},
         {No_Modem},
         {},
         "timer on"},
        {"a device without a mode",
         [](Walk& walk) { walk.Have_Moods([](Phone_Moods& moods) { moods.m_echo_only = true; }); },
         {"OK"},
         {No_Modem},
         {},
         "sending"},
        {"a stop before the second recipient",
         [](Walk& walk) { walk.At_Step("pause over", [] { Press_Stop(); }); },
         {"Yes"},
         {Stop_Sending},
         {"111: one"},
         "pause over"},
        {"a stop that is taken back",
         [](Walk& walk) { walk.At_Step("2 / 4 999", [] { Press_Stop(); }); },
         {"No", "OK"},
         {Stop_Sending, Completed},
         {"111: one", "222: two"},
         "4 / 4 222"},
        {"a write that fails",
         [](Walk& walk) { walk.At_Step("4 / 4 222", [&walk] { walk.m_phone.Hang_Up(); }); },
         {"OK"},
         {Connection_Error},
         {"111: one"},
         "4 / 4 222"},
        {"an exception in PDU mode",
         [](Walk& walk) { walk.Before_Write("AT+CMGS=", 2, Raise); },
         {"OK"},
         {Completed},
         {"111: one"},
         "4 / 4 222"},
        {"an exception while preparing",
         [](Walk& walk) { walk.Before_Write("AT+CSMS=0", 1, Raise); },
         {"OK"},
         {QStringLiteral("\nSending has ended early because of an unexpected error. The sent items show which messages "
                         "were sent.")},
         {},
         "timer on"},
        {"the offer taken",
         [](Walk& walk) { walk.Will_Answer_The_Offer("OKPressed"); },
         {"OK"},
         {Completed},
         {"111: composed", "222: composed"},
         "4 / 4 222"},
    };
}

TEST_F(Send_Job_Walk, Leaves_Everything_Tidy_By_Every_Way_Out)
{
    QStringList boxes;
    for (const Way_Out& way : Ways_Out()) {
        SCOPED_TRACE(way.name);
        Start_Anew();
        way.prepare(*this);
        for (const QString& answer : way.answers)
            m_user.Will_Press(answer);
        const auto steps_before = m_progress.Steps().size();
        Send();
        boxes.append(way.boxes);
        EXPECT_EQ(m_user.Was_Shown(), boxes);
        boxes = m_user.Was_Shown();
        EXPECT_EQ(Received(), way.received);
        QStringList steps = m_progress.Steps().mid(steps_before);
        for (const auto& tidying : {QStringLiteral("timer off"), QStringLiteral("end")})
            steps.removeAll(tidying);
        EXPECT_EQ(steps.isEmpty() ? QString() : steps.last(), way.last_step);
        if (way.received.size() < 2 || way.received.front().section(": ", 1) != way.received.back().section(": ", 1))
            Expect_Records_Of(way.received);
        else
            EXPECT_EQ(Bytes_Of(Templates_Path), "composed\n");
    }
}

TEST_F(Send_Job_Walk, An_Exception_In_Text_Mode_Counts_As_Handled_And_Is_Recorded)
{
    Have_Moods([](Phone_Moods& moods) { moods.m_text_only = true; });
    Before_Write("AT+CMGS=", 1, Raise);
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList{"222: two"});
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
    Expect_Records_Of({"111: one", "222: two"});                       // the first as well, which nobody received
    EXPECT_TRUE(m_progress.Steps().contains(QStringLiteral("pause"))); // and it makes its batch full
}

TEST_F(Send_Job_Walk, An_Exception_In_Pdu_Mode_Is_Not_Recorded)
{
    Before_Write("AT+CMGS=", 1, Raise);
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), QStringList());
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Completed});
    Expect_Records_Of({});
}

TEST_F(Send_Job_Walk, Pressing_Send_While_A_Job_Runs_Does_Nothing)
{
    At_Step("1 / 4 111", [this] { Run_On_Interface_Thread([this] { m_runner.Send_SMS_Btn(); }); });
    m_user.Will_Press("OK");
    Send();
    EXPECT_EQ(Received(), (QStringList{"111: one", "222: two"}));
    EXPECT_EQ(m_progress.Steps().count(QStringLiteral("preparing 4")), 1);
}

} // namespace
