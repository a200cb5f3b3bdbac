#include "engine/Outcome_Codes.h"
#include "engine/Outcome_Words.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using Kind = Device_Cause::Kind;

Row_Outcome Refused(Kind kind, int number, const QString& words = {})
{
    return {Row_State::Refused, {kind, number, words}};
}

Row_Outcome Refused_With(int number)
{
    return Refused(Kind::Cms, number);
}

} // namespace

TEST(Outcome_Codes, Every_State_Comes_Back_From_Its_Code_And_One_That_Was_Not_Tried_Is_Zero)
{
    Outcome_Codes codes;
    std::set<int> given;
    for (int state = 0; state <= static_cast<int>(Row_State::Not_Filled); ++state) {
        const Row_Outcome outcome{static_cast<Row_State>(state), {}};
        const quint8 code = codes.Code_Of(outcome);
        EXPECT_EQ(codes.Outcome_Of(code), outcome) << state;
        EXPECT_EQ(Outcome_Codes::State_Of(code), outcome.state) << state;
        EXPECT_TRUE(given.insert(code).second) << state;
    }
    EXPECT_EQ(codes.Code_Of({}), 0);
}

TEST(Outcome_Codes, Each_Cause_Has_A_Code_Of_Its_Own_And_Keeps_It)
{
    const Row_Outcome outcomes[] = {Refused_With(500),
                                    Refused_With(38),
                                    Refused(Kind::Cme, 38),
                                    Refused(Kind::Words, -1, "SIM busy"),
                                    Refused(Kind::Words, -1, "SIM full"),
                                    Refused(Kind::Error, -1),
                                    {Row_State::Partly_Taken, {Kind::Cms, 500, {}}},
                                    {Row_State::Partly_Taken, {Kind::Cms, 21, {}}},
                                    {Row_State::Not_Filled, {Kind::Words, -1, "{{Name}} is empty"}},
                                    {Row_State::Not_Filled, {Kind::Words, -1, "{{City}} is empty"}}};
    Outcome_Codes codes;
    std::set<int> given;
    for (const Row_Outcome& outcome : outcomes)
        EXPECT_TRUE(given.insert(codes.Code_Of(outcome)).second);
    for (const Row_Outcome& outcome : outcomes) {
        const quint8 code = codes.Code_Of(outcome);
        EXPECT_TRUE(given.contains(code));
        EXPECT_EQ(codes.Outcome_Of(code), outcome);
        EXPECT_EQ(Outcome_Codes::State_Of(code), outcome.state);
    }
}

TEST(Outcome_Codes, Only_A_Refusal_Has_A_Cause)
{
    Outcome_Codes codes;
    const quint8 code = codes.Code_Of({Row_State::Taken, {Kind::Cms, 500, {}}});
    EXPECT_EQ(codes.Outcome_Of(code), (Row_Outcome{Row_State::Taken, {}}));
}

TEST(Outcome_Codes, Where_There_Are_More_Causes_Than_Codes_The_Last_Are_Refusals_Without_One)
{
    Outcome_Codes codes;
    std::set<int> given;
    for (int number = 0; number < Outcome_Codes::Most_Causes; ++number)
        EXPECT_TRUE(given.insert(codes.Code_Of(Refused_With(number))).second) << number;
    const Row_Outcome refused{Row_State::Refused, {}};
    for (int number = Outcome_Codes::Most_Causes; number < 1000; ++number)
        EXPECT_EQ(codes.Outcome_Of(codes.Code_Of(Refused_With(number))), refused) << number;
    for (int number = 0; number < Outcome_Codes::Most_Causes; ++number)
        EXPECT_EQ(codes.Outcome_Of(codes.Code_Of(Refused_With(number))), Refused_With(number));
    EXPECT_EQ(codes.Outcome_Of(codes.Code_Of({Row_State::May_Have_Been_Sent, {}})).state,
              Row_State::May_Have_Been_Sent);
}

TEST(Outcome_Codes, Causes_Of_Parts_And_Faults_Take_No_Codes_From_Those_Of_Whole_Messages)
{
    Outcome_Codes codes;
    std::set<int> given;
    for (int number = 0; number < 1000; ++number) {
        given.insert(codes.Code_Of({Row_State::Partly_Taken, {Kind::Cms, number, {}}}));
        given.insert(codes.Code_Of(Refused_With(number)));
        given.insert(codes.Code_Of({Row_State::Not_Filled, {Kind::Words, -1, QString::number(number)}}));
    }
    EXPECT_EQ(given.size(),
              Outcome_Codes::Most_Causes + Outcome_Codes::Most_Causes_Of_Parts + Outcome_Codes::Most_Faults + 3U);
    for (const int code : given)
        EXPECT_EQ(Was_Not_Taken(Outcome_Codes::State_Of(static_cast<quint8>(code))),
                  codes.Outcome_Of(static_cast<quint8>(code)).state == Row_State::Refused);
}

TEST(Outcome_Codes, A_Copy_Knows_What_Was_Given_Before_It_Was_Made)
{
    Outcome_Codes codes;
    const quint8 before = codes.Code_Of(Refused_With(1));
    const Outcome_Codes copy = codes;
    const quint8 after = codes.Code_Of(Refused_With(2));
    EXPECT_EQ(copy.Outcome_Of(before), Refused_With(1));
    EXPECT_EQ(copy.Outcome_Of(after), (Row_Outcome{Row_State::Refused, {}}));
}
