#include "device/Sim_State.h"

#include <gtest/gtest.h>

namespace {

struct Case
{
    const char* line; ///< of the device
    Sim_State state;
};

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.line;
}

class Sim_States : public testing::TestWithParam<Case>
{
};

} // namespace

TEST_P(Sim_States, Are_Read_From_Codes_Numbers_And_Words)
{
    At_Answer answer;
    answer.m_cause = Cause_Of_Line(GetParam().line);
    if (!answer.m_cause)
        answer.m_lines = {GetParam().line};
    EXPECT_EQ(Sim_State_Of(answer), GetParam().state);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, Sim_States,
    testing::Values(Case{"+CPIN: READY", Sim_State::Ready}, Case{"+CPIN:READY", Sim_State::Ready},
                    Case{"+CPIN: \"READY\"", Sim_State::Ready}, Case{"+CPIN: SIM PIN", Sim_State::Pin_Needed},
                    Case{"+CPIN: SIM PIN2", Sim_State::Pin_Needed}, Case{"+CPIN: SIM PUK", Sim_State::Puk_Needed},
                    Case{"+CPIN: SIM PUK2", Sim_State::Puk_Needed}, Case{"+CPIN: PH-SIM PIN", Sim_State::Locked},
                    Case{"+CPIN: PH-NET PUK", Sim_State::Locked}, Case{"+CPIN: BLOCKED", Sim_State::Unknown},
                    Case{"+CPIN:", Sim_State::Unknown}, Case{"+CME ERROR: 5", Sim_State::Locked},
                    Case{"+CME ERROR: 10", Sim_State::Missing}, Case{"+CME ERROR: 11", Sim_State::Pin_Needed},
                    Case{"+CME ERROR: 12", Sim_State::Puk_Needed}, Case{"+CME ERROR: 13", Sim_State::Failed},
                    Case{"+CME ERROR: 14", Sim_State::Busy}, Case{"+CME ERROR: 15", Sim_State::Failed},
                    Case{"+CMS ERROR: 310", Sim_State::Missing}, Case{"+CMS ERROR: 311", Sim_State::Pin_Needed},
                    Case{"+CMS ERROR: 312", Sim_State::Locked}, Case{"+CMS ERROR: 313", Sim_State::Failed},
                    Case{"+CMS ERROR: 314", Sim_State::Busy}, Case{"+CMS ERROR: 316", Sim_State::Puk_Needed},
                    Case{"+CME ERROR: SIM not inserted", Sim_State::Missing},
                    Case{"+CME ERROR: 100", Sim_State::Unknown}, Case{"ERROR", Sim_State::Unknown}));

TEST(Sim_State, Of_No_Answer_Is_Unknown)
{
    EXPECT_EQ(Sim_State_Of({}), Sim_State::Unknown);
}
