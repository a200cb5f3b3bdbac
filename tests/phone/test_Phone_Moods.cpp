// Each mood as it is met on the line.
#include "phone/Phone_Talk.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

struct Row
{
    std::string m_name;
    Phone_Moods m_moods;
    std::string m_heard, m_said; // all that the phone says to these bytes
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.m_name;
}

using Phone_Mood = testing::TestWithParam<Row>;

const std::string A_Message = "AT+CMGS=19\r" + Hello + "\x1A";

const Row Rows[] = {
    {"Without_Echo", {}, "AT\r", Ok},
    {"Silent", {.m_silent = true}, "AT\rAT+CMGS=19\r", ""},
    {"Pdu_Only", {.m_pdu_only = true}, "AT+CMGF=?\rAT+CMGF=1\rAT+CMGF=0\r", With_Ok("+CMGF: (0)") + Error + Ok},
    {"Text_Only",
     {.m_text_only = true},
     "AT+CMGF=?\rAT+CMGF=0\rAT+CMGS=\"0123\"\rhello\x1A",
     With_Ok("+CMGF: (1)") + Error + Prompt + With_Ok("+CMGS: 0")},
    {"No_Sms_Sending", {.m_no_sms_sending = true}, "AT+CMGS=?\r", Error},
    {"Charsets",
     {.m_charsets = "\"IRA\",\"UCS2\""},
     "AT+CSCS=?\rAT+CSCS=\"HEX\"\rAT+CSCS=\"UCS2\"\r",
     With_Ok("+CSCS: (\"IRA\",\"UCS2\")") + Error + Ok},
    {"No_Smsc", // only a frame that brings its own is taken
     {.m_no_smsc = true},
     "AT+CSCA?\r" + A_Message + "AT+CMGS=18\r07915155009099F911000A8110325476980010FF05E8329BFD06\x1A",
     With_Ok("+CSCA: \"\",129") + Prompt + Cms_Error(330) + Prompt + With_Ok("+CMGS: 0")},
    {"Smsc_In_Ucs2",
     {.m_smsc = "+155", .m_smsc_in_ucs2 = true},
     "AT+CSCA?\r",
     With_Ok("+CSCA: \"002B003100350035\",145")},
    {"Smsc_Not_Supported", {.m_smsc_not_supported = true}, "AT+CSCA?\r", With_Ok("COMMAND NOT SUPPORT")},
    {"Undefined_Identity",
     {.m_undefined_identity = true},
     "AT+GMI\rAT+GMM\rAT+CGSN\rAT+GMR\rAT+CGMI\rAT+CGMM\rAT+GSN\rAT+CGMR\r",
     With_Ok("Undefined") + With_Ok("Undefined") + With_Ok("Undefined") + With_Ok("Undefined") + With_Ok("Corvane") +
         With_Ok("Virtual Phone") + With_Ok("490154203237518") + With_Ok("1.0")},
    {"Battery_And_Signal",
     {.m_battery_status = 1, .m_battery_charge = 40, .m_signal = 99},
     "AT+CBC\rAT+CSQ\r",
     With_Ok("+CBC: 1,40") + With_Ok("+CSQ: 99,99")},
    {"No_Prompt", {.m_no_prompt = true}, A_Message, With_Ok("+CMGS: 0")},
    {"Prompt_Without_Blank", {.m_prompt_without_blank = true}, "AT+CMGS=19\r", "\r\n>"},
    {"Split_Answers",
     {.m_split_answers = true},
     A_Message + "ATE1\rAT+CSQ\r",
     Prompt + With_Ok("+CMGS: 0") + Ok + "AT+CSQ\r" + With_Ok("+CSQ: 20,99")},
    {"One_Answer_Behind", {.m_one_answer_behind = true}, "AT+CSQ\rAT\r", With_Ok("+CSQ: 20,99")},
    {"Unsolicited",
     {.m_unsolicited = true},
     "AT\rAT\rAT\rAT\r",
     Ok + "\r\nRING\r\n" + Ok + "\r\n+CMTI: \"SM\",1\r\n" + Ok + "\r\n+CREG: 1\r\n" + Ok + "\r\nRING\r\n"},
    {"Cr_Only", {.m_cr_only = true}, "AT+CSQ\rAT+CMGS=19\r", "\r+CSQ: 20,99\r\rOK\r\r> "},
    {"Error_For", {.m_error_for = {{"AT+CSMS=0", "not here"}}}, "AT+CSMS=0\rAT\r", "\r\nERROR: not here\r\n" + Ok},
    {"Cms_Error_At",
     {.m_cms_error_at = {{2, 500}}},
     A_Message + A_Message + A_Message,
     Prompt + With_Ok("+CMGS: 0") + Prompt + Cms_Error(500) + Prompt + With_Ok("+CMGS: 1")},
};

} // namespace

TEST_P(Phone_Mood, Is_Met_On_The_Line)
{
    Phone_Moods moods = GetParam().m_moods;
    moods.m_no_echo = true;
    auto [phone, peer] = Call(moods);
    peer.Says(GetParam().m_heard);
    EXPECT_EQ(peer.Hears(GetParam().m_said), GetParam().m_said);
    EXPECT_EQ(phone.Said(1s), GetParam().m_said.size());
}

INSTANTIATE_TEST_SUITE_P(Moods, Phone_Mood, testing::ValuesIn(Rows), [](const auto& row) { return row.param.m_name; });

TEST(Phone_Moods, Echo_Only_Answers_Nothing)
{
    auto [phone, peer] = Call({.m_echo_only = true});
    peer.Says("AT\r\n");
    EXPECT_EQ(peer.Hears("\r"), "AT\r");
    EXPECT_TRUE(peer.Hears_Nothing());
    EXPECT_EQ(phone.Heard(), Lines("AT"));
}

TEST(Phone_Moods, A_Late_Prompt_Comes_Late)
{
    auto [phone, peer] = Call({.m_no_echo = true, .m_late_prompt_ms = 80});
    const auto begin = Clock::now();
    peer.Says("AT+CMGS=19\r\n");
    EXPECT_EQ(peer.Hears("> "), Prompt);
    EXPECT_GE(Clock::now() - begin, 80ms);
}

TEST(Phone_Moods, Delayed_Answers_Come_Late_And_Their_Echo_At_Once)
{
    auto [phone, peer] = Call({.m_answer_delay_ms = 80});
    const auto begin = Clock::now();
    peer.Says("AT\r");
    EXPECT_EQ(peer.Hears("\r"), "AT\r") << "the echo is not late";
    EXPECT_EQ(peer.Hears("OK\r\n"), Ok);
    EXPECT_GE(Clock::now() - begin, 80ms);
}

TEST(Phone_Moods, A_Hang_Up_Comes_At_Its_Message_And_Once_And_Is_Told)
{
    std::atomic<bool> is_told = false;
    auto [phone, peer] = Call({.m_hang_up_at = 2});
    phone.Set_Listeners({{}, {}, [&] { is_told = true; }});
    Send_Hello(peer);
    EXPECT_FALSE(is_told);
    peer.Says("AT+CMGS=19\r\n");
    EXPECT_TRUE(peer.Is_Cut_Off());
    EXPECT_TRUE(phone.Is_Hung_Up());
    EXPECT_EQ(phone.Inbox().size(), 1u);
    for (const auto end = Clock::now() + 10s; !is_told && Clock::now() < end;)
        std::this_thread::yield();
    EXPECT_TRUE(is_told);
    Line_Peer again(phone.Plug_In_Again());
    EXPECT_NE(Send_Hello(again).find("OK"), std::string::npos) << "it happens once";
}

TEST(Phone_Moods, A_Hang_Up_In_Mid_Pdu_Comes_Half_Way)
{
    auto [phone, peer] = Call({.m_hang_up_in_body_at = 1});
    peer.Says("AT+CMGS=19\r\n");
    peer.Hears("> ");
    peer.Says(Hello.substr(0, 18));
    EXPECT_TRUE(peer.Hears(Hello.substr(0, 18)).ends_with(Hello.substr(0, 18)));
    EXPECT_FALSE(phone.Is_Hung_Up());
    peer.Says(Hello.substr(18));
    EXPECT_TRUE(peer.Is_Cut_Off());
    EXPECT_TRUE(phone.Inbox().empty());
}

TEST(Phone_Moods, A_Hang_Up_In_The_Midst_Of_A_Text_Leaves_No_Message)
{
    auto [phone, peer] = Call({.m_text_only = true, .m_hang_up_in_body_at = 1});
    peer.Says("AT+CMGS=\"1\"\r\n");
    peer.Hears("> ");
    peer.Says("hello\x1A");
    EXPECT_TRUE(peer.Is_Cut_Off());
    EXPECT_TRUE(phone.Inbox().empty());
}

TEST(Phone_Moods, It_Stops_Reading_After_So_Many_Bytes_And_Reads_On_When_Let)
{
    auto [phone, peer] = Call({.m_no_echo = true, .m_stop_reading_after = 3});
    EXPECT_EQ(peer.Asks("AT"), Ok);
    EXPECT_EQ(phone.Heard_Bytes(), "AT\r");
    EXPECT_FALSE(peer.Says("AT\r")) << "the line takes nothing";
    EXPECT_TRUE(phone.Is_Silent());
    phone.Set_Moods(Quiet);
    EXPECT_EQ(peer.Asks("AT"), Ok) << "it reads on";
}

TEST(Phone_Moods, It_Stops_Reading_At_Its_Message)
{
    auto [phone, peer] = Call({.m_no_echo = true, .m_stop_reading_at = 2});
    Send_Hello(peer);
    peer.Says("AT+CMGS=19\r");
    EXPECT_EQ(peer.Hears("> "), Prompt);
    phone.Heard();
    EXPECT_FALSE(peer.Says(Hello));
    EXPECT_EQ(phone.Inbox().size(), 1u);
}

TEST(Phone_Moods, Garbage_Is_Neither_Answer_Nor_Text)
{
    auto [phone, peer] = Call({.m_no_echo = true, .m_garbage = true});
    peer.Says("AT\r");
    const std::string heard = peer.Hears("\x1F\xFF");
    EXPECT_EQ(heard.size(), 25u);
    EXPECT_EQ(heard.find("OK"), std::string::npos);
    EXPECT_NE(heard.find('\0'), std::string::npos);
    EXPECT_NE(heard.find("\xED\xA0\x80"), std::string::npos);
}

TEST(Phone_Moods, A_Phone_That_Never_Stops_Talking_Still_Answers)
{
    auto [phone, peer] = Call({.m_no_echo = true, .m_never_stops_talking = true});
    std::size_t heard = 0;
    for (int i = 0; i < 50; ++i)
        heard += peer.Hears("RING\r\n").size();
    EXPECT_GT(heard, 50u * 20u);
    peer.Says("AT\r");
    EXPECT_NE(peer.Hears("OK\r\n").find(Ok), std::string::npos);
}

TEST(Phone_Moods, A_Listener_That_Does_Not_Read_Does_Not_Stop_The_Phone)
{
    auto [phone, peer] = Call(Quiet);
    for (int i = 0; i < 100; ++i)
        phone.Says(std::string(5000, 'x'));
    peer.Says("AT+CSQ\r");
    EXPECT_EQ(phone.Heard(), Lines("AT+CSQ"));
    phone.Hang_Up();
    EXPECT_TRUE(peer.Is_Cut_Off());
}

TEST(Phone_Moods, Moods_May_Change_While_It_Runs_And_A_Silent_Phone_Hears)
{
    auto [phone, peer] = Call();
    EXPECT_EQ(peer.Asks("AT"), "AT\r" + Ok);
    Phone_Moods moods = phone.Moods();
    moods.m_silent = true;
    phone.Set_Moods(moods);
    peer.Says("AT\r\nAT+CMGS=19\r\n");
    EXPECT_TRUE(peer.Hears_Nothing());
    EXPECT_TRUE(phone.Moods().m_silent);
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT", "AT+CMGS=19"));
}
