#include "phone/Phone_Options.h"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using namespace Handset;

TEST(Phone_Options, Nothing_Given_Leaves_Good_Manners)
{
    const auto options = Read_Options({});
    EXPECT_EQ(options.m_error, "");
    EXPECT_FALSE(options.m_moods.m_no_echo);
    EXPECT_FALSE(options.m_until_stdin_closes);
    EXPECT_EQ(options.m_moods.m_stop_reading_after, -1);
}

TEST(Phone_Options, Every_Switch_Turns_On_Its_Mood_Alone)
{
    const std::vector<std::pair<std::string, bool Phone_Moods::*>> switches = {
        {"--no-echo", &Phone_Moods::m_no_echo},
        {"--echo-only", &Phone_Moods::m_echo_only},
        {"--silent", &Phone_Moods::m_silent},
        {"--pdu-only", &Phone_Moods::m_pdu_only},
        {"--text-only", &Phone_Moods::m_text_only},
        {"--no-sms-sending", &Phone_Moods::m_no_sms_sending},
        {"--no-smsc", &Phone_Moods::m_no_smsc},
        {"--smsc-in-ucs2", &Phone_Moods::m_smsc_in_ucs2},
        {"--smsc-not-supported", &Phone_Moods::m_smsc_not_supported},
        {"--undefined-identity", &Phone_Moods::m_undefined_identity},
        {"--no-prompt", &Phone_Moods::m_no_prompt},
        {"--prompt-without-blank", &Phone_Moods::m_prompt_without_blank},
        {"--split-answers", &Phone_Moods::m_split_answers},
        {"--one-answer-behind", &Phone_Moods::m_one_answer_behind},
        {"--unsolicited", &Phone_Moods::m_unsolicited},
        {"--cr-only", &Phone_Moods::m_cr_only},
        {"--garbage", &Phone_Moods::m_garbage},
        {"--never-stops-talking", &Phone_Moods::m_never_stops_talking},
    };
    for (const auto& [given, wanted] : switches) {
        const auto options = Read_Options({given});
        EXPECT_EQ(options.m_error, "");
        for (const auto& [name, mood] : switches)
            EXPECT_EQ(options.m_moods.*mood, mood == wanted) << given << " " << name;
    }
}

TEST(Phone_Options, Every_Value_Goes_To_Its_Mood)
{
    std::istringstream given(
        "--charsets UCS2,\"IRA\" --smsc=+1777 --battery 1,40 --signal 99 --late-prompt 120 "
        "--answer-delay=30 --cms-error 3 500 --cms-error 4 38 --hang-up-at 2 --hang-up-in-body-at 5 "
        "--stop-reading-after 100 --stop-reading-at 6 --error-for AT+CSQ no-radio "
        "--answer AT+CMGF=? \\r\\nOK\\r\\n --link /tmp/x --until-stdin-closes");
    const auto options = Read_Options({std::istream_iterator<std::string>(given), {}});
    const auto& moods = options.m_moods;
    EXPECT_EQ(options.m_error, "");
    EXPECT_EQ(moods.m_charsets, "\"UCS2\",\"IRA\"");
    EXPECT_EQ(moods.m_smsc, "+1777");
    EXPECT_EQ(moods.m_battery_status, 1);
    EXPECT_EQ(moods.m_battery_charge, 40);
    EXPECT_EQ(moods.m_signal, 99);
    EXPECT_EQ(moods.m_late_prompt_ms, 120);
    EXPECT_EQ(moods.m_answer_delay_ms, 30);
    EXPECT_EQ(moods.m_cms_error_at, (std::map<int, int>{{3, 500}, {4, 38}}));
    EXPECT_EQ(moods.m_hang_up_at, 2);
    EXPECT_EQ(moods.m_hang_up_in_body_at, 5);
    EXPECT_EQ(moods.m_stop_reading_after, 100);
    EXPECT_EQ(moods.m_stop_reading_at, 6);
    EXPECT_EQ(moods.m_error_for.at("AT+CSQ"), "no-radio");
    ASSERT_EQ(options.m_answers.size(), 1u);
    EXPECT_EQ(options.m_answers.front(), std::pair(std::string("AT+CMGF=?"), std::string("\r\nOK\r\n")));
    EXPECT_EQ(options.m_link, "/tmp/x");
    EXPECT_TRUE(options.m_until_stdin_closes);
}

TEST(Phone_Options, What_Is_Wrong_Is_Said_In_One_Line)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"--loud"}, "unknown option: --loud"},
        {{"phone"}, "unknown option: phone"},
        {{""}, "unknown option: "},
        {{"--loud=1"}, "unknown option: --loud"},
        {{"--silent=1"}, "--silent takes no value"},
        {{"--signal"}, "--signal needs N"},
        {{"--cms-error", "3"}, "--cms-error needs K N"},
        {{"--signal", "much"}, "--signal does not take \"much\" as its N"},
        {{"--signal", "-1"}, "--signal does not take \"-1\" as its N"},
        {{"--battery", "5"}, "--battery does not take \"5\" as its STATUS,CHARGE"},
        {{"--cms-error", "0", "500"}, "--cms-error does not take \"0\" as its K N"},
        {{"--charsets", "A,,B"}, "--charsets does not take \"A,,B\" as its LIST"},
        {{"--link", ""}, "--link does not take \"\" as its PATH"},
        {{"--silent", "--nope", "--worse"}, "unknown option: --nope"},
        {{"--no\nsuch\x1B[2J\r\x7F"}, "unknown option: --no?such?[2J??"},
        {{"--signal", "1\n2"}, "--signal does not take \"1?2\" as its N"},
        {{"--signal", "\xC3\xA9"}, "--signal does not take \"\xC3\xA9\" as its N"},
    };
    for (const auto& [arguments, error] : cases)
        EXPECT_EQ(Read_Options(arguments).m_error, error);
}

TEST(Phone_Options, Escapes_Stand_For_Their_Bytes)
{
    EXPECT_EQ(Unescaped("\\r\\n\\t\\e\\\\"), "\r\n\t\x1B\\");
    EXPECT_EQ(Unescaped("\\x1A\\xfF"), "\x1A\xFF");
    EXPECT_EQ(Unescaped("\\q\\x1\\"), "\\q\\x1\\") << "anything else stays";
    EXPECT_EQ(Unescaped("\\x00"), std::string(1, '\0'));
}

TEST(Phone_Options, The_Help_Names_Every_Option_And_Fits_A_Wide_Terminal)
{
    const std::string help = Help_Text();
    for (const char* name : {"--link PATH", "--until-stdin-closes", "--silent", "--cms-error K N",
                             "--answer COMMAND ANSWER", "--stop-reading-at K", "--help", "--version", "Exit status"})
        EXPECT_NE(help.find(name), std::string::npos) << name;
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(line.size(), 120u) << line;
}
