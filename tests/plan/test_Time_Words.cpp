#include "plan/Time_Words.h"

#include <gmock/gmock.h>

namespace {

const QDateTime Now(QDate(2026, 11, 22), QTime(21, 44, 10));
constexpr double Minute = 60;
constexpr double Hour = 3600;

struct Length
{
    double seconds;
    const char* about;
    const char* until;
};

class Lengths_In_Words : public testing::TestWithParam<Length>
{
};

struct Kept
{
    Send_Choices choices;
    const char* words;
};

class Records_In_Words : public testing::TestWithParam<Kept>
{
};

} // namespace

TEST_P(Lengths_In_Words, Are_Rounded_Up_To_Minutes_And_Name_The_Day_Where_It_Is_Another)
{
    EXPECT_EQ(Time_Words::About(GetParam().seconds), GetParam().about);
    EXPECT_EQ(Time_Words::Until(GetParam().seconds, Now), GetParam().until);
}

INSTANTIATE_TEST_SUITE_P(Of, Lengths_In_Words,
                         testing::Values(Length{0, "less than a minute", "until 21:44"},
                                         Length{59.9, "less than a minute", "until 21:45"},
                                         Length{Minute, "about 1 min", "until 21:45"},
                                         Length{2448, "about 41 min", "until 22:24"},
                                         Length{90 * Minute, "about 90 min", "until 23:14"},
                                         Length{91 * Minute, "about 1 h 31 min", "until 23:15"},
                                         Length{3 * Hour, "about 3 h 0 min", "until tomorrow, 00:44"},
                                         Length{24 * Hour, "about 24 h", "until tomorrow, 21:44"},
                                         Length{30.5 * Hour, "about 31 h", "until 24 November 2026, 04:14"},
                                         Length{1e300, "about 277778 h", "until 31 July 2058, 23:30"}));

TEST_P(Records_In_Words, Say_What_Stays_When_The_Job_Is_Done)
{
    EXPECT_EQ(Time_Words::Promise({1, 2, 3}, Minute, GetParam().choices, Now),
              QString("1 recipient, 2 messages, about 1 min, until 21:45, ") + GetParam().words);
}

Send_Choices Chosen(bool sent_items, bool templates, const Confirm_Choices& confirm = {})
{
    Send_Choices choices;
    choices.save_sent_items = sent_items;
    choices.save_templates = templates;
    choices.confirm = confirm;
    return choices;
}

INSTANTIATE_TEST_SUITE_P(
    That, Records_In_Words,
    testing::Values(Kept{Chosen(false, false), "no record will be kept"},
                    Kept{Chosen(true, false), "to be kept: sent items"},
                    Kept{Chosen(true, true), "to be kept: sent items and templates"},
                    Kept{Chosen(false, false, {true, false, false}), "the record goes when all is done"},
                    Kept{Chosen(false, true, {true, false, true}), "to be kept: templates and a receipt"},
                    Kept{Chosen(false, false, {false, false, true}), "no record will be kept"}));

TEST(Time_Words, A_List_Of_Which_Nobody_Is_Left_Says_So)
{
    EXPECT_EQ(Time_Words::Promise({0, 0, 7}, 7, {}, Now), "Nobody in the list will be sent anything.");
}

TEST(Time_Words, What_Is_Left_Has_No_End_While_It_Is_Held)
{
    EXPECT_EQ(Time_Words::Left({700, false}, Now), "about 12 min left, until 21:55");
    EXPECT_EQ(Time_Words::Left({700, true}, Now), "about 12 min left once it goes on");
}
