#include "engine/Outcome_Words.h"

#include <gtest/gtest.h>

namespace {

using Kind = Device_Cause::Kind;

struct Case
{
    const char* name;
    Row_State state;
    Device_Cause cause;
    const char* words;
    const char* sign;
    bool was_not_taken;
};

void PrintTo(const Case& row, std::ostream* stream)
{
    *stream << row.name;
}

class Outcome_In_Words : public testing::TestWithParam<Case>
{
};

} // namespace

TEST_P(Outcome_In_Words, Is_What_The_Table_Shows)
{
    const Row_Outcome outcome{GetParam().state, GetParam().cause};
    EXPECT_EQ(Outcome_Words(outcome), QString::fromUtf8(GetParam().words));
    EXPECT_EQ(Signed_Outcome(outcome), QString::fromUtf8(GetParam().sign) + ' ' + Outcome_Words(outcome));
    EXPECT_EQ(Was_Not_Taken(outcome.state), GetParam().was_not_taken);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Each, Outcome_In_Words, testing::Values(
    Case{"Not_Tried", Row_State::Not_Tried, {}, "not tried", "·", true},
    Case{"Written", Row_State::Written, {}, "written", "→", false},
    Case{"Taken", Row_State::Taken, {}, "taken by the phone", "✓", false},
    Case{"Sent", Row_State::Sent, {}, "sent", "✓", false},
    Case{"Refused", Row_State::Refused, {}, "refused", "✗", true},
    Case{"Refused_Message", Row_State::Refused, {Kind::Cms, 500, {}}, "refused (500: unknown error)", "✗", true},
    Case{"Refused_By_Device", Row_State::Refused, {Kind::Cme, 30, {}}, "refused (CME 30: there is no network)", "✗", true},
    Case{"Refused_In_Words", Row_State::Refused, {Kind::Words, -1, "SIM busy"}, "refused (SIM busy)", "✗", true},
    Case{"Refused_In_Lines", Row_State::Refused, {Kind::Words, -1, "SIM\r\nbusy"}, "refused (SIM busy)", "✗", true},
    Case{"Refused_By_The_Maker", Row_State::Refused, {Kind::Cms, 1234, {}}, "refused (1234: the modem gives a reason of its own)", "✗", true},
    Case{"Partly_Taken", Row_State::Partly_Taken, {Kind::Cms, 195, {}}, "partly taken (195: the recipient's number is invalid)", "✗", false},
    Case{"Partly_Taken_At_A_Stop", Row_State::Partly_Taken, {}, "partly taken", "✗", false},
    Case{"No_Answer", Row_State::No_Answer, {}, "no answer", "?", false},
    Case{"May_Have_Been_Sent", Row_State::May_Have_Been_Sent, {}, "may have been sent", "?", false},
    Case{"Excluded", Row_State::Excluded, {}, "skipped: excluded", "–", false},
    Case{"Repeated", Row_State::Repeated, {}, "skipped: repeated", "–", false},
    Case{"Skipped", Row_State::Skipped, {}, "skipped", "–", false},
    Case{"Invalid_Number", Row_State::Invalid_Number, {}, "skipped: invalid number", "–", false},
    Case{"Not_Filled", Row_State::Not_Filled, {}, "skipped: not filled", "–", false},
    Case{"Not_Filled_For_A_Reason", Row_State::Not_Filled, {Kind::Words, -1, "{{Name}}\nis empty"}, "skipped: {{Name}} is empty", "–", false},
    Case{"A_Cause_Without_A_Refusal", Row_State::Sent, {Kind::Cms, 500, {}}, "sent", "✓", false}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(Outcome_Words, The_Usual_Ones_Are_One_Of_Each_State)
{
    const QStringList usual = Usual_Signed_Outcomes();
    ASSERT_EQ(usual.size(), static_cast<int>(Row_State::Not_Filled) + 1);
    for (int state = 0; state < usual.size(); ++state)
        EXPECT_TRUE(usual.at(state).startsWith(Signed_Outcome({static_cast<Row_State>(state), {}}))) << state;
    EXPECT_TRUE(usual.contains(QStringLiteral("✗ refused (500: unknown error)")));
}
