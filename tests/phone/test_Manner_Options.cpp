// The options of corvane-phone for its manners.
#include "phone/Phone_Options.h"
#include "phone/Phone_Voice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Handset;
using Kind = Message_Manner::Kind;

TEST(Manner_Options, Every_Switch_Turns_On_Its_Mood_Alone)
{
    const std::vector<std::pair<std::string, bool Phone_Moods::*>> switches = {
        {"--puk", &Phone_Moods::m_puk_needed},
        {"--memory-full", &Phone_Moods::m_memory_full},
        {"--no-network", &Phone_Moods::m_no_network},
        {"--prompt-with-line-end", &Phone_Moods::m_prompt_with_line_end},
        {"--error-words", &Phone_Moods::m_error_words},
        {"--command-not-support", &Phone_Moods::m_command_not_support},
        {"--cpin-without-ok", &Phone_Moods::m_cpin_without_ok},
        {"--no-reports", &Phone_Moods::m_no_reports},
        {"--reports-out-of-order", &Phone_Moods::m_reports_out_of_order},
        {"--reports-twice", &Phone_Moods::m_reports_twice},
        {"--stray-reports", &Phone_Moods::m_stray_reports},
        {"--reports-in-memory", &Phone_Moods::m_reports_in_memory_alone},
        {"--report-comma", &Phone_Moods::m_report_comma},
    };
    for (const auto& [given, wanted] : switches) {
        const auto options = Read_Options({given});
        EXPECT_EQ(options.m_error, "");
        for (const auto& [name, mood] : switches)
            EXPECT_EQ(options.m_moods.*mood, mood == wanted) << given << " " << name;
    }
}

TEST(Manner_Options, Every_Value_Goes_To_Its_Mood)
{
    const auto options =
        Read_Options({"--pace", "12.5", "--pin=0123", "--network-lost-at=3", "--network-back-after-queries=2",
                      "--network-back-after=1.5", "--byte-gap=300", "--between-lines=ring,cds", "--report-after=30",
                      "--report-status", "123", "70", "--report-status", "+49123", "0", "--first-reference=250",
                      "--hang-up-after-heard=7", "--hang-up-after-said=0"});
    EXPECT_EQ(options.m_error, "");
    EXPECT_EQ(options.m_moods.m_pace, 12.5);
    EXPECT_EQ(options.m_moods.m_pin, "0123");
    EXPECT_EQ(options.m_moods.m_network_lost_at, 3);
    EXPECT_EQ(options.m_moods.m_network_back_after_queries, 2);
    EXPECT_EQ(options.m_moods.m_network_back_after_seconds, 1.5);
    EXPECT_EQ(options.m_moods.m_byte_gap_ms, 300);
    EXPECT_EQ(options.m_moods.m_between_lines, Unsolicited_Lines("ring,cds"));
    EXPECT_EQ(options.m_moods.m_report_after_seconds, 30);
    EXPECT_EQ(options.m_moods.m_report_status, (std::vector<std::pair<std::string, int>>{{"123", 70}, {"+49123", 0}}));
    EXPECT_EQ(options.m_moods.m_first_reference, 250);
    EXPECT_EQ(options.m_moods.m_hang_up_after_heard, 7);
    EXPECT_EQ(options.m_moods.m_hang_up_after_said, 0);
}

TEST(Manner_Options, Manners_Are_For_One_Message_For_Several_Or_For_Numbers)
{
    const auto options = Read_Options({"--refuse",
                                       "3",
                                       "+CMS ERROR: 500",
                                       "--refuse-at-once",
                                       "2-4",
                                       "ERROR",
                                       "--refuse-though-sent",
                                       "5-",
                                       "+CMS ERROR: 332",
                                       "--result-after",
                                       "*99",
                                       "170",
                                       "--result-at-next-command",
                                       "1",
                                       "--without-result",
                                       "6",
                                       "--without-reference",
                                       "7",
                                       "--second-prompt",
                                       "8",
                                       "--result-at-command",
                                       "9",
                                       "AT+CMGS",
                                       "--result-behind-next-prompt",
                                       "10",
                                       "--result-behind-next-message",
                                       "11"});
    EXPECT_EQ(options.m_error, "");
    struct Row
    {
        Kind m_kind;
        int m_from;
        int m_to;
        const char* m_number_end;
        const char* m_text;
        double m_seconds;
    };
    const std::vector<Row> rows = {
        {Kind::Refused, 3, 3, "", "+CMS ERROR: 500", 0},
        {Kind::Refused_At_Once, 2, 4, "", "ERROR", 0},
        {Kind::Refused_Though_Sent, 5, INT_MAX, "", "+CMS ERROR: 332", 0},
        {Kind::Delayed, 1, INT_MAX, "99", "", 170},
        {Kind::At_The_Next_Command, 1, 1, "", "", 0},
        {Kind::Without_Result, 6, 6, "", "", 0},
        {Kind::Without_Reference, 7, 7, "", "", 0},
        {Kind::Second_Prompt, 8, 8, "", "", 0},
        {Kind::At_The_Next_Command, 9, 9, "", "AT+CMGS", 0},
        {Kind::Behind_The_Next_Prompt, 10, 10, "", "", 0},
        {Kind::Behind_The_Next_Message, 11, 11, "", "", 0},
    };
    ASSERT_EQ(options.m_moods.m_message_manners.size(), rows.size());
    for (std::size_t at = 0; at < rows.size(); ++at) {
        const Message_Manner& manner = options.m_moods.m_message_manners[at];
        EXPECT_EQ(manner.m_kind, rows[at].m_kind) << at;
        EXPECT_EQ(manner.m_from, rows[at].m_from) << at;
        EXPECT_EQ(manner.m_to, rows[at].m_to) << at;
        EXPECT_EQ(manner.m_number_end, rows[at].m_number_end) << at;
        EXPECT_EQ(manner.m_text, rows[at].m_text) << at;
        EXPECT_EQ(manner.m_seconds, rows[at].m_seconds) << at;
    }
}

TEST(Manner_Options, What_Is_No_Value_Is_Refused)
{
    const std::vector<std::vector<std::string>> cases = {
        {"--refuse", "0", "ERROR"},
        {"--refuse", "3-2", "ERROR"},
        {"--refuse", "-3", "ERROR"},
        {"--refuse", "", "ERROR"},
        {"--refuse", "*", "ERROR"},
        {"--refuse", "*1x", "ERROR"},
        {"--refuse", "1-2-3", "ERROR"},
        {"--result-after", "1", "0"},
        {"--result-after", "1", "-1"},
        {"--result-after", "1", "soon"},
        {"--between-lines", "ring,bell"},
        {"--between-lines", ""},
        {"--pace", "0"},
        {"--pace", "fast"},
        {"--pace", "1e3"},
        {"--pace", "nan"},
        {"--pin", "12a4"},
        {"--report-status", "12", "256"},
        {"--report-status", "x", "1"},
        {"--first-reference", "256"},
        {"--byte-gap", "x"},
        {"--network-back-after", ""},
        {"--hang-up-after-said", "-1"},
        {"--refuse", "1"},
    };
    for (const auto& arguments : cases)
        EXPECT_NE(Read_Options(arguments).m_error, "") << arguments[0] << " " << arguments.back();
}

TEST(Manner_Options, The_Pace_Of_The_Environment_Is_Taken_Where_None_Is_Given)
{
    EXPECT_EQ(Read_Options({}).m_moods.m_pace, 1);
    EXPECT_EQ(Read_Options({}, "40").m_moods.m_pace, 40);
    EXPECT_EQ(Read_Options({"--pace", "2"}, "40").m_moods.m_pace, 2);
    EXPECT_EQ(Read_Options({}, "quick").m_error, "CORVANE_PACE must be a positive number, not \"quick\"");
}
