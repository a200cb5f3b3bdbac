#include "device/Submission_Test.h"

namespace {

// What is the same in both modes.
class Submission : public Submission_Test, public testing::WithParamInterface<Submission_Mode>
{
protected:
    Submission() : Submission_Test(GetParam()) {}
};

INSTANTIATE_TEST_SUITE_P(Mode, Submission, testing::Values(In_Pdu_Mode, In_Text_Mode),
                         [](const auto& mode) { return std::string(mode.param.m_name); });

} // namespace

TEST_P(Submission, A_Stop_During_Part_Two_Of_Three_Keeps_Part_Three_Back)
{
    std::thread stopper([&] {
        while (!m_log.Has(Marker(2, 3)))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        Stop_SMS_Sending_Now = 1;
    });
    EXPECT_TRUE(Send(QString(400, u'A')));
    stopper.join();
    EXPECT_TRUE(Serve_Until([&] { return m_phone.Parts().size() == 2; }));
    EXPECT_FALSE(m_log.Has(Marker(3, 3)));
}

TEST_P(Submission, A_Stop_Does_Not_Keep_A_Single_Message_Back)
{
    Stop_SMS_Sending_Now = 1;
    EXPECT_TRUE(Send("hello"));
    Inbox(1);
    m_phone.Forget();
    EXPECT_TRUE(Send(QString(161, u'A')));
    EXPECT_EQ(m_phone.Heard_Bytes().find("AT+CMGS"), std::string::npos);
}

TEST_P(Submission, Two_Seconds_Pass_After_Each_Part)
{
    Set_Pace(4);
    m_session.port()->setReadTimeout(0.2);
    const double start = Now_Seconds();
    EXPECT_TRUE(Send(QString(161, u'A')));
    EXPECT_GE(Now_Seconds() - start, 2 * (2.0 / 4) + 4 * (0.2 / 4));
}

TEST_P(Submission, A_Hang_Up_Fails_It_And_Sent_Parts_Stay_Sent)
{
    Wears(Mood(&Phone_Moods::m_hang_up_at, 2));
    EXPECT_FALSE(Send(QString(400, u'A')));
    EXPECT_EQ(m_phone.Parts().size(), 1u);
}

TEST_P(Submission, Without_A_Port_Nothing_Is_Sent)
{
    m_session.port()->close();
    m_session.setPort(nullptr);
    EXPECT_FALSE(Send("hello"));
    EXPECT_FALSE(Send(QString(161, u'A')));
}

TEST_P(Submission, Percent_Signs_Of_A_Message_Stay_What_They_Are)
{
    EXPECT_TRUE(Send("100%1 %s %n"));
    EXPECT_EQ(Inbox(1)[0].m_text, "100%1 %s %n");
}
