#include "engine/Confirmed_Test.h"
#include "engine/Patient_Line.h"

// Results that come when nobody waits for them any longer: at the next command, in the midst of the next message, or
// behind it. None may be taken for another message's, and none may have a message sent twice.

using testing::ElementsAre;

namespace {

using Kind = Message_Manner::Kind;

constexpr auto Sent = Row_State::Sent;
constexpr auto Refused = Row_State::Refused;
constexpr auto Doubtful = Row_State::May_Have_Been_Sent;

class Late_Results : public Confirmed_Test
{
protected:
    Late_Results()
    {
        Set_Pace(5'000);
        m_options.keeps_journal = true;
        for (const char* text : {"One", "Two", "Three"})
            Add(QStringLiteral("070090010%1").arg(m_order.recipients.Count()), QString::fromLatin1(text));
    }

    void Run_Patiently()
    {
        Patient_Line line([this] { return Counts_Of(m_phone); });
        Confirmed_Manner manner(m_order, m_options, m_witness, m_witness, m_stop, line);
        Send_Job(m_order, manner, m_witness, m_witness, m_stop).Send_SMS_Func();
        m_job = manner.Job_Id();
    }

    void Behave(std::vector<Message_Manner> manners)
    {
        Phone_Moods moods;
        moods.m_pace = 5'000;
        moods.m_message_manners = std::move(manners);
        m_phone.Set_Moods(moods);
    }

    // To AT.
    void Answer_From_The_Next_Part_On(const char* answer)
    {
        Virtual_Phone::Listeners listeners;
        listeners.m_on_part = [this, answer](const Handset_Part&) { m_phone.Will_Answer("AT", answer); };
        m_phone.Set_Listeners(listeners);
    }

    // What the journal says of parts, without times and checksums.
    std::string Journal() const
    {
        QFile file(m_options.folder + QLatin1Char('/') + m_job + QLatin1String(".journal"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList lines;
        for (const QByteArray& line : file.readAll().split('\n')) {
            const QByteArrayList fields = line.split(' ');
            if (fields.size() > 2 && QByteArrayView("SEUZ").contains(fields[0].front()))
                lines.append(QString::fromUtf8(fields.first(fields.size() - 2).join(' ')));
        }
        return lines.join(QStringLiteral(", ")).toStdString();
    }
};

struct Case
{
    const char* name;
    std::vector<Message_Manner> manners;
    std::vector<Row_State> told;
    std::string journal;
    std::vector<std::string> received;
};

Message_Manner At(int message, Kind kind, const char* text = "")
{
    return {kind, message, message, {}, text, 0};
}

class Late_Result_Orders : public Late_Results, public testing::WithParamInterface<Case>
{
};

} // namespace

TEST_P(Late_Result_Orders, Are_Told_Apart_Or_Leave_A_Doubt)
{
    const Case& order = GetParam();
    Behave(order.manners);
    Run_Patiently();
    EXPECT_EQ(m_witness.States(), order.told);
    EXPECT_EQ(Journal(), order.journal);
    EXPECT_EQ(Texts(), order.received);
}

TEST_F(Late_Results, A_Device_That_Is_Busy_Until_Its_Result_Settles_The_Message_It_Is_About)
{
    for (const bool is_accepted : {true, false}) {
        m_witness = {};
        m_phone.Forget();
        Behave({At(1, Kind::Without_Result), At(2, Kind::Without_Reference)});
        m_phone.Will_Answer("AT", "\r\nOK\r\n");
        Answer_From_The_Next_Part_On("");
        m_witness.m_on_held = [&] {
            Answer_From_The_Next_Part_On("\r\nOK\r\n");
            m_phone.Will_Answer("AT", is_accepted ? "\r\n+CMGS: 77\r\n\r\nOK\r\n\r\nOK\r\n"
                                                  : "\r\n+CMS ERROR: 195\r\n\r\nOK\r\n");
        };
        Run_Patiently();
        EXPECT_THAT(m_witness.States(), ElementsAre(is_accepted ? Sent : Refused, Doubtful, Sent));
        EXPECT_EQ(Journal(), std::string("U 1 1 no-result, ") + (is_accepted ? "S 1 1 77" : "E 1 1 cms:195") +
                                 ", U 2 1 ok-alone, S 3 1 " + (is_accepted ? "2" : "5"));
        EXPECT_EQ(Texts().size(), 3U);
    }
}

TEST_F(Late_Results, The_Answer_Of_Another_Command_Is_Nobodys_Result)
{
    Behave({At(1, Kind::Without_Reference), At(2, Kind::Without_Reference)});
    m_options.job.report_seconds = 1;
    m_phone.Will_Answer("AT+CMGR=3", "\r\n+CMS ERROR: 321\r\n");
    m_witness.m_on_row = [this] { m_phone.Says("\r\n+CDSI: \"SR\",3\r\n"); };
    Run_Patiently();
    EXPECT_THAT(m_witness.States(), ElementsAre(Doubtful, Doubtful, Sent));
    EXPECT_EQ(Journal(), "U 1 1 ok-alone, U 2 1 ok-alone, S 3 1 2");
}

TEST_F(Late_Results, A_Result_After_The_Last_Message_Is_Noted_At_The_End)
{
    Behave({At(3, Kind::Without_Result)});
    m_witness.m_on_row = [this] {
        if (m_witness.m_rows.size() == 3)
            m_phone.Says("\r\n+CMGS: 2\r\n\r\nOK\r\n");
    };
    Run_Patiently();
    EXPECT_THAT(m_witness.States(), ElementsAre(Sent, Sent, Doubtful));
    EXPECT_EQ(Journal(), "S 1 1 0, S 2 1 1, U 3 1 no-result, S 3 1 2, Z");
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(
    Orders, Late_Result_Orders,
    testing::Values(
        Case{"Accepted_At_The_Look", {At(1, Kind::At_The_Next_Command)}, {Sent, Sent, Sent},
             "S 1 1 0, S 2 1 1, S 3 1 2, Z", {"One", "Two", "Three"}},
        Case{"Refused_At_The_Look", {At(1, Kind::At_The_Next_Command), At(1, Kind::Refused, "+CMS ERROR: 41")},
             {Sent, Sent, Sent}, "E 1 1 again:cms:41, S 1 1 0, S 2 1 1, S 3 1 2, Z", {"One", "Two", "Three"}},
        Case{"Accepted_Before_The_Next_Prompt", {At(1, Kind::At_The_Next_Command, "AT+CMGS")}, {Doubtful, Sent, Sent},
             "U 1 1 no-result, S 1 1 0, S 2 1 1, S 3 1 2, Z", {"One", "Two", "Three"}},
        Case{"Refused_Before_The_Next_Prompt",
             {At(1, Kind::At_The_Next_Command, "AT+CMGS"), At(1, Kind::Refused, "+CMS ERROR: 195")},
             {Doubtful, Sent, Sent}, "U 1 1 no-result, E 1 1 cms:195, S 2 1 0, S 3 1 1, Z", {"Two", "Three"}},
        Case{"Refused_For_A_While_Before_The_Next_Prompt",
             {At(1, Kind::At_The_Next_Command, "AT+CMGS"), At(1, Kind::Refused, "+CMS ERROR: 41")},
             {Doubtful, Sent, Sent}, "U 1 1 no-result, E 1 1 again:cms:41, S 2 1 0, S 3 1 1", {"Two", "Three"}},
        Case{"Accepted_Behind_The_Next_Prompt", {At(1, Kind::Behind_The_Next_Prompt)}, {Doubtful, Sent, Sent},
             "U 1 1 no-result, S 1 1 0, S 2 1 1, S 3 1 2, Z", {"One", "Two", "Three"}},
        Case{"Accepted_Behind_The_Next_Message", {At(1, Kind::Behind_The_Next_Message)}, {Doubtful, Sent, Sent},
             "U 1 1 no-result, S 1 1 0, S 2 1 1, S 3 1 2, Z", {"One", "Two", "Three"}},
        Case{"Refused_Behind_The_Next_Message",
             {At(1, Kind::Behind_The_Next_Message), At(1, Kind::Refused, "+CMS ERROR: 41")}, {Doubtful, Doubtful, Sent},
             "U 1 1 no-result, U 2 1 not-told-apart, S 3 1 1", {"Two", "Three"}},
        Case{"Accepted_In_Front_Of_A_Refusal",
             {At(1, Kind::Behind_The_Next_Message), At(2, Kind::Refused, "+CMS ERROR: 41")}, {Doubtful, Doubtful, Sent},
             "U 1 1 no-result, U 2 1 not-told-apart, S 3 1 1", {"One", "Three"}},
        Case{"None_And_Then_A_Refusal", {At(1, Kind::Without_Result), At(2, Kind::Refused, "+CMS ERROR: 41")},
             {Doubtful, Doubtful, Sent}, "U 1 1 no-result, U 2 1 not-told-apart, S 3 1 1", {"One", "Three"}},
        Case{"None_And_Then_A_Refusal_At_Once",
             {At(1, Kind::Without_Result), At(2, Kind::Refused_At_Once, "+CMS ERROR: 500")}, {Doubtful, Refused, Sent},
             "U 1 1 no-result, E 2 1 cms:500, S 3 1 1", {"One", "Three"}},
        Case{"None_And_Then_Ok_Alone", {At(1, Kind::Without_Result), At(2, Kind::Without_Reference)},
             {Doubtful, Doubtful, Sent}, "U 1 1 no-result, U 2 1 not-told-apart, S 3 1 2", {"One", "Two", "Three"}},
        Case{"None_And_After_Another_A_Refusal", {At(1, Kind::Without_Result), At(3, Kind::Refused, "+CMS ERROR: 41")},
             {Doubtful, Sent, Sent}, "U 1 1 no-result, S 2 1 1, E 3 1 again:cms:41, S 3 1 2", {"One", "Two", "Three"}},
        Case{"One_Of_Two", {At(1, Kind::Without_Result), At(2, Kind::At_The_Next_Command, "AT+CMGS")},
             {Doubtful, Doubtful, Sent}, "U 1 1 no-result, U 2 1 no-result, S 3 1 2", {"One", "Two", "Three"}},
        Case{"Each_Behind_The_Next", {At(1, Kind::Behind_The_Next_Message), At(2, Kind::Behind_The_Next_Message)},
             {Doubtful, Sent, Sent}, "U 1 1 no-result, S 2 1 0, S 1 1 2, S 3 1 1, Z", {"One", "Two", "Three"}}),
    [](const testing::TestParamInfo<Case>& row) { return std::string(row.param.name); });
// clang-format on
