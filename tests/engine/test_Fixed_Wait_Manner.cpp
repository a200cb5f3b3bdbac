#include "engine/Fixed_Wait_Manner.h"

#include "device/MFCSMS.h"
#include "engine/Confirmed_Test.h"
#include "platform/Interface_Thread.h"

using testing::ElementsAre;
using testing::Pair;

TEST_F(Confirmed_Test, A_Long_Message_That_Is_Stopped_Half_Way_May_Have_Been_Sent)
{
    Add(QStringLiteral("0700900100"), QString(400, u'x'));
    m_order.device_path = QString::fromStdString(m_phone.Path());
    Virtual_Phone::Listeners listeners;
    listeners.m_on_part = [](const Handset_Part&) { Stop_SMS_Sending_Now = 1; };
    m_phone.Set_Listeners(listeners);
    {
        MFCSMS session;
        Fixed_Wait_Manner manner(m_order, session);
        Send_Job(m_order, manner, m_witness, m_witness, Stop_SMS_Sending_Now).Send_SMS_Func();
    }
    Finish_Workers();
    Stop_SMS_Sending_Now = 0;
    EXPECT_EQ(m_phone.Parts().size(), 1U);
    EXPECT_THAT(m_witness.m_outcomes, ElementsAre(Pair(0, Row_State::May_Have_Been_Sent)));
}

TEST(Answers_To_The_Parts_Of_A_Message, Say_Whether_Any_Part_Was_Taken)
{
    const QString taken = QStringLiteral("\r\n+CMGS: 1\r\n\r\nOK\r\n");
    const QString refused = QStringLiteral("\r\n+CMS ERROR: 500\r\n");
    EXPECT_EQ(Outcome_Of_Answers({refused}).state, Row_State::Refused);
    EXPECT_EQ(Outcome_Of_Answers({refused, refused}).state, Row_State::Refused);
    EXPECT_EQ(Outcome_Of_Answers({taken, refused}).state, Row_State::Partly_Taken);
    EXPECT_EQ(Outcome_Of_Answers({refused, taken}).state, Row_State::Partly_Taken);
    EXPECT_EQ(Outcome_Of_Answers({taken, refused}).cause.number, 500);
    EXPECT_EQ(Outcome_Of_Answers({taken, refused, {}}).state, Row_State::No_Answer);
}
