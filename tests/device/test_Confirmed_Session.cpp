#include "device/Confirmed_Session.h"
#include "device/Device_Test.h"

#include <algorithm>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Kind = Part_Result::Kind;
using Doubt = Part_Result::Doubt;
using Obstacle = Part_Result::Obstacle;

// Lets everything pass, and keeps what it was told.
class Witness : public Part_Watcher
{
public:
    bool May_Be_Handed_Over() override
    {
        ++m_asked;
        return m_permits;
    }
    bool Is_Asked_To_Stop() override { return m_stops; }
    void Still_Waiting(int seconds) override { m_notices.push_back(seconds); }

    bool m_permits = true;
    bool m_stops = false;
    int m_asked = 0;
    std::vector<int> m_notices;
};

// A frame to 0123456789 with the text "Hello".
const Part_To_Send Hello{"AT+CMGS=18", "0011000A8110325476980000AA05C8329BFD06"};

class Confirmed : public Device_Test
{
protected:
    Confirmed_Session::Opening Open() { return m_session.Open(); }

    Part_Result Submit(const Part_To_Send& part = Hello) { return m_session.Submit(part, m_witness); }

    void Open_With(const Phone_Moods& moods)
    {
        m_phone.Set_Moods(moods);
        ASSERT_EQ(Open(), Confirmed_Session::Opening::Ready);
        m_phone.Forget();
    }

    Virtual_Phone m_phone;
    Witness m_witness;
    Confirmed_Session m_session{QString::fromStdString(m_phone.Path())};
};

} // namespace

TEST_F(Confirmed, Opening_Calls_Off_What_Was_Begun_And_Turns_The_Echo_Off)
{
    ASSERT_EQ(Open(), Confirmed_Session::Opening::Ready);
    EXPECT_EQ(m_phone.Heard_Bytes().front(), '\x1B');
    const auto heard = m_phone.Heard();
    ASSERT_GE(heard.size(), 4U);
    EXPECT_THAT(std::vector(heard.begin(), heard.begin() + 4), ElementsAre("AT", "ATE0", "AT+CMEE=1", "AT+CMGF=0"));
    EXPECT_FALSE(m_session.Is_Text_Mode());
    EXPECT_FALSE(m_session.Maker().isEmpty());
    EXPECT_FALSE(m_session.Imsi().isEmpty());
}

TEST_F(Confirmed, A_Phone_Left_At_The_Prompt_Hears_Its_Commands_Again)
{
    const auto left = Open_Port(m_phone);
    left->writeData("AT+CMGS=18\r");
    left->readAndReturnError();
    left->close();
    EXPECT_EQ(Open(), Confirmed_Session::Opening::Ready);
    EXPECT_EQ(Submit().m_kind, Kind::Accepted);
}

TEST_F(Confirmed, Opening_Says_What_Is_In_The_Way)
{
    Phone_Moods silent;
    silent.m_silent = true;
    m_phone.Set_Moods(silent);
    EXPECT_EQ(Open(), Confirmed_Session::Opening::No_Modem);
    m_session.Close();
    m_phone.Set_Moods({});
    m_phone.Will_Answer("AT+CMGF=0", "\r\nERROR\r\n");
    m_phone.Will_Answer("AT+CMGF=1", "\r\nERROR\r\n");
    EXPECT_EQ(Open(), Confirmed_Session::Opening::No_Messages);
    EXPECT_EQ(Confirmed_Session(QStringLiteral("/dev/nothing-here")).Open(), Confirmed_Session::Opening::Does_Not_Open);
}

TEST_F(Confirmed, A_Part_Is_Accepted_With_Its_Reference)
{
    Open_With({});
    const Part_Result first = Submit();
    EXPECT_EQ(first.m_kind, Kind::Accepted);
    EXPECT_EQ(Submit().m_reference, first.m_reference + 1);
    ASSERT_TRUE(m_phone.Wait_For_Messages(2, std::chrono::seconds(5)));
    EXPECT_EQ(m_phone.Inbox().front().m_text, "Hello");
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CMGS=18\r" + (Hello.m_body + "\x1A").toStdString() + "AT+CMGS=18\r" +
                                         (Hello.m_body + "\x1A").toStdString());
    EXPECT_EQ(m_witness.m_asked, 2);
}

TEST_F(Confirmed, Nothing_Is_Written_Before_The_Result)
{
    Open_With({});
    Phone_Moods slow;
    slow.m_answer_delay_ms = 300;
    m_phone.Set_Moods(slow);
    std::thread submission([this] { EXPECT_EQ(Submit().m_kind, Kind::Accepted); });
    while (!m_phone.Wait_For_Messages(1, std::chrono::milliseconds(10))) {
    }
    EXPECT_TRUE(QByteArray::fromStdString(m_phone.Heard_Bytes()).endsWith('\x1A'));
    submission.join();
    EXPECT_TRUE(QByteArray::fromStdString(m_phone.Heard_Bytes()).endsWith('\x1A'));
}

namespace {

// Where a wait is over in vain, waits on until something has come: the line of a busy machine.
class Slow_Calls : public Serial_Calls
{
public:
    Line_Event Wait(int descriptor, short events, double seconds, int wake_descriptor) override
    {
        const Line_Event event = Serial_Calls::Wait(descriptor, events, seconds, wake_descriptor);
        return event == Line_Event::Timed_Out && m_is_slow ? Serial_Calls::Wait(descriptor, events, 10, wake_descriptor)
                                                           : event;
    }

    bool m_is_slow = false;
};

} // namespace

TEST_F(Confirmed, What_Has_Come_When_The_Time_Is_Over_Is_Heard_To_Its_End)
{
    Slow_Calls calls;
    Confirmed_Session session(QString::fromStdString(m_phone.Path()), calls);
    ASSERT_EQ(session.Open(), Confirmed_Session::Opening::Ready);
    Phone_Moods slow;
    slow.m_answer_delay_ms = 60;
    slow.m_late_prompt_ms = 60;
    slow.m_between_lines = {"RING"};
    m_phone.Set_Moods(slow);
    calls.m_is_slow = true;
    Set_Pace(1e6); // every time is over before anything comes
    const Part_Result result = session.Submit(Hello, m_witness);
    EXPECT_EQ(result.m_kind, Kind::Accepted);
    EXPECT_TRUE(session.Answers());
}

namespace {

struct Outcome_Row
{
    const char* name;
    std::function<void(Phone_Moods&)> set;
    Kind kind;
    Doubt doubt;
    Obstacle obstacle;
    size_t messages;
};

std::ostream& operator<<(std::ostream& out, const Outcome_Row& row)
{
    return out << row.name;
}

class Confirmed_Outcome : public Confirmed, public testing::WithParamInterface<Outcome_Row>
{
};

} // namespace

TEST_P(Confirmed_Outcome, Is_What_The_Device_Said)
{
    const Outcome_Row& row = GetParam();
    Phone_Moods moods;
    row.set(moods);
    Open_With(moods);
    const Part_Result result = Submit();
    EXPECT_EQ(result.m_kind, row.kind);
    EXPECT_EQ(result.m_doubt, row.doubt);
    EXPECT_EQ(result.m_obstacle, row.obstacle);
    EXPECT_EQ(m_phone.Inbox().size(), row.messages);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Confirmed_Outcome,
    testing::Values(Outcome_Row{"Plain", [](Phone_Moods&) {}, Kind::Accepted, Doubt::None, Obstacle::None, 1},
                    Outcome_Row{"Without_Echo", [](Phone_Moods& moods) { moods.m_no_echo = true; }, Kind::Accepted,
                                Doubt::None, Obstacle::None, 1},
                    Outcome_Row{"Late_Prompt", [](Phone_Moods& moods) { moods.m_late_prompt_ms = 100; }, Kind::Accepted,
                                Doubt::None, Obstacle::None, 1},
                    Outcome_Row{"Bare_Prompt", [](Phone_Moods& moods) { moods.m_prompt_without_blank = true; },
                                Kind::Accepted, Doubt::None, Obstacle::None, 1},
                    Outcome_Row{"Split_Answers", [](Phone_Moods& moods) { moods.m_split_answers = true; },
                                Kind::Accepted, Doubt::None, Obstacle::None, 1},
                    Outcome_Row{"Carriage_Returns_Alone", [](Phone_Moods& moods) { moods.m_cr_only = true; },
                                Kind::Accepted, Doubt::None, Obstacle::None, 1},
                    Outcome_Row{"Unsolicited_Lines", [](Phone_Moods& moods) { moods.m_unsolicited = true; },
                                Kind::Accepted, Doubt::None, Obstacle::None, 1},
                    Outcome_Row{"Never_Stops_Talking", [](Phone_Moods& moods) { moods.m_never_stops_talking = true; },
                                Kind::Accepted, Doubt::None, Obstacle::None, 1},
                    Outcome_Row{"Refused",
                                [](Phone_Moods& moods) {
                                    moods.m_cms_error_at = {{1, 500}};
                                },
                                Kind::Refused, Doubt::None, Obstacle::None, 0},
                    Outcome_Row{"Hangs_Up_Instead_Of_A_Prompt", [](Phone_Moods& moods) { moods.m_hang_up_at = 1; },
                                Kind::Not_Handed_Over, Doubt::None, Obstacle::Line_Lost, 0},
                    Outcome_Row{"Hangs_Up_In_The_Message", [](Phone_Moods& moods) { moods.m_hang_up_in_body_at = 1; },
                                Kind::Unknown, Doubt::Line_Lost, Obstacle::None, 0}),
    [](const auto& row) { return row.param.name; });

TEST_F(Confirmed, Without_A_Prompt_Nothing_Is_Handed_Over_And_The_Phone_Listens_Again)
{
    Open_With({});
    m_phone.Will_Answer("AT+CMGS=18", "\r\n");
    const Part_Result result = Submit();
    EXPECT_EQ(result.m_kind, Kind::Not_Handed_Over);
    EXPECT_EQ(result.m_obstacle, Obstacle::No_Prompt);
    EXPECT_EQ(m_witness.m_asked, 0);
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CMGS=18\r\x1B");
    EXPECT_TRUE(m_session.Answers());
}

TEST_F(Confirmed, A_Phone_That_Never_Stops_Talking_And_Never_Answers_Costs_No_More_Than_The_Time)
{
    Open_With({});
    m_phone.Will_Answer("AT", "\r\n");
    m_phone.Will_Answer("AT+CMGS=18", "\r\n");
    Phone_Moods talkative;
    talkative.m_never_stops_talking = true;
    m_phone.Set_Moods(talkative);
    EXPECT_FALSE(m_session.Answers());
    EXPECT_EQ(Submit().m_obstacle, Obstacle::No_Prompt);
}

TEST_F(Confirmed, A_Cause_In_Place_Of_The_Prompt_Refuses_The_Part)
{
    Open_With({});
    m_phone.Will_Answer("AT+CMGS=18", "\r\n+CME ERROR: 11\r\n");
    const Part_Result result = Submit();
    EXPECT_EQ(result.m_kind, Kind::Refused);
    ASSERT_TRUE(result.m_cause);
    EXPECT_EQ(result.m_cause->number, 11);
    EXPECT_EQ(m_witness.m_asked, 0);
}

TEST_F(Confirmed, A_Part_That_Cannot_Be_Recorded_Is_Called_Off_At_The_Prompt)
{
    Open_With({});
    m_witness.m_permits = false;
    EXPECT_EQ(Submit().m_obstacle, Obstacle::Not_Recorded);
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT+CMGS=18\r\x1B");
    m_witness.m_permits = true;
    EXPECT_EQ(Submit().m_kind, Kind::Accepted);
    EXPECT_EQ(m_phone.Inbox().size(), 1U);
}

TEST_F(Confirmed, A_Stop_Before_The_Prompt_Leaves_The_Part)
{
    Open_With({});
    m_phone.Will_Answer("AT+CMGS=18", "\r\n");
    m_witness.m_stops = true;
    EXPECT_EQ(Submit().m_obstacle, Obstacle::Stopped);
    EXPECT_EQ(m_witness.m_asked, 0);
}

TEST_F(Confirmed, The_Programs_Exit_At_The_Prompt_Frees_The_Phone)
{
    Open_With({});
    m_phone.Will_Answer("AT+CMGS=18", "\r\n");
    Begin_Program_Exit();
    EXPECT_EQ(Submit().m_obstacle, Obstacle::Stopped);
    Forget_Program_Exit();
    EXPECT_EQ(m_phone.Heard_Bytes().back(), '\x1B');
}

TEST_F(Confirmed, A_Long_Wait_Is_Told_From_The_Tenth_Second_On)
{
    Open_With({});
    Phone_Moods slow;
    slow.m_answer_delay_ms = 650; // 13 seconds at this pace
    m_phone.Set_Moods(slow);
    EXPECT_EQ(Submit().m_kind, Kind::Accepted);
    ASSERT_FALSE(m_witness.m_notices.empty());
    EXPECT_GE(m_witness.m_notices.front(), 10);
}

TEST_F(Confirmed, The_Condition_Names_Card_And_Network)
{
    Open_With({});
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: SIM PIN\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+CREG?", "\r\n+CREG: 0,2\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+CGREG?", "\r\nERROR\r\n");
    m_phone.Will_Answer("AT+CEREG?", "\r\nERROR\r\n");
    Device_Condition condition = m_session.Condition();
    EXPECT_TRUE(condition.m_answers);
    EXPECT_EQ(condition.m_sim, Sim_State::Pin_Needed);
    EXPECT_EQ(condition.m_registration, Registration::Searching);
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: READY\r\n"); // and no OK
    m_phone.Will_Answer("AT+CGREG?", "\r\n+CGREG: 2,5,\"00C3\",\"1A2B\"\r\n\r\nOK\r\n");
    condition = m_session.Condition();
    EXPECT_EQ(condition.m_sim, Sim_State::Ready);
    EXPECT_EQ(condition.m_registration, Registration::Registered);
}

TEST_F(Confirmed, A_Wait_That_Is_Called_Off_Ends_As_If_The_Device_Were_Gone)
{
    Open_With({});
    const double pace = Pace();
    m_phone.Will_Answer("AT", "");
    Set_Pace(0.001); // five seconds are more than an hour
    int asked = 0;
    m_session.Set_End([&asked] { return ++asked == 3; });
    EXPECT_FALSE(m_session.Answers());
    EXPECT_EQ(asked, 3);
    m_session.Set_End({});
    m_phone.Will_Answer("AT", "\r\nOK\r\n");
    Set_Pace(pace);
    EXPECT_TRUE(m_session.Answers());
}
