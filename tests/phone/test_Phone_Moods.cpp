// Each mood as it is met on the line.
#include "phone/Line_Peer.h"
#include "phone/Phone_Talk.h"
#include "phone/Virtual_Phone.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstring>
#include <string>
#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

TEST(Phone_Moods, Without_Echo_The_Answer_Stands_Alone)
{
    Virtual_Phone phone(Quiet());
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT"), "\r\nOK\r\n");
}

TEST(Phone_Moods, Echo_Only_Answers_Nothing)
{
    Phone_Moods moods;
    moods.m_echo_only = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT\r\n");
    EXPECT_EQ(peer.Hears("\r"), "AT\r");
    EXPECT_TRUE(peer.Hears_Nothing());
    EXPECT_EQ(phone.Heard(), Lines("AT"));
}

TEST(Phone_Moods, A_Silent_Phone_Hears_And_Says_Nothing)
{
    Phone_Moods moods;
    moods.m_silent = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT\r\nAT+CMGS=19\r\n");
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT+CMGS=19"));
    EXPECT_TRUE(peer.Hears_Nothing());
}

TEST(Phone_Moods, Pdu_Only_Offers_And_Takes_Format_0_Alone)
{
    Phone_Moods moods = Quiet();
    moods.m_pdu_only = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT+CMGF=?"), "\r\n+CMGF: (0)\r\n\r\nOK\r\n");
    EXPECT_EQ(peer.Asks("AT+CMGF=1"), "\r\nERROR\r\n");
    EXPECT_EQ(peer.Asks("AT+CMGF=0"), "\r\nOK\r\n");
}

TEST(Phone_Moods, Text_Only_Starts_In_And_Takes_Format_1_Alone)
{
    Phone_Moods moods = Quiet();
    moods.m_text_only = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT+CMGF=?"), "\r\n+CMGF: (1)\r\n\r\nOK\r\n");
    EXPECT_EQ(peer.Asks("AT+CMGF=0"), "\r\nERROR\r\n");
    peer.Says("AT+CMGS=\"0123\"\r\n");
    EXPECT_EQ(peer.Hears("> "), "\r\n> ");
    peer.Says("hello\x1A\r\n");
    EXPECT_EQ(peer.Hears("OK\r\n"), "\r\n+CMGS: 0\r\n\r\nOK\r\n");
    EXPECT_EQ(phone.Inbox().front().m_text, "hello");
}

TEST(Phone_Moods, A_Phone_That_Sends_No_Sms_Refuses_The_Question)
{
    Phone_Moods moods = Quiet();
    moods.m_no_sms_sending = true;
    Virtual_Phone phone(moods);
    EXPECT_EQ(Line_Peer(phone.Path()).Asks("AT+CMGS=?"), "\r\nERROR\r\n");
}

TEST(Phone_Moods, The_Listed_Charsets_Are_Those_It_Takes)
{
    Phone_Moods moods = Quiet();
    moods.m_charsets = "\"IRA\",\"UCS2\"";
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT+CSCS=?"), "\r\n+CSCS: (\"IRA\",\"UCS2\")\r\n\r\nOK\r\n");
    EXPECT_EQ(peer.Asks("AT+CSCS=\"HEX\""), "\r\nERROR\r\n");
    EXPECT_EQ(peer.Asks("AT+CSCS=\"UCS2\""), "\r\nOK\r\n");
}

TEST(Phone_Moods, Without_A_Service_Centre_Only_Frames_That_Bring_One_Are_Taken)
{
    Phone_Moods moods = Quiet();
    moods.m_no_smsc = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT+CSCA?"), "\r\n+CSCA: \"\",129\r\n\r\nOK\r\n");
    peer.Says("AT+CMGS=19\r");
    peer.Hears("> ");
    peer.Says(Hello + "\x1A");
    EXPECT_EQ(peer.Hears("330\r\n"), "\r\n+CMS ERROR: 330\r\n");
    peer.Says("AT+CMGS=18\r");
    peer.Hears("> ");
    peer.Says("07915155009099F911000A8110325476980010FF05E8329BFD06\x1A");
    EXPECT_EQ(peer.Hears("OK\r\n"), "\r\n+CMGS: 0\r\n\r\nOK\r\n") << "the frame brings its own";
}

TEST(Phone_Moods, The_Service_Centre_May_Be_Answered_In_Ucs2)
{
    Phone_Moods moods = Quiet();
    moods.m_smsc = "+155";
    moods.m_smsc_in_ucs2 = true;
    Virtual_Phone phone(moods);
    EXPECT_EQ(Line_Peer(phone.Path()).Asks("AT+CSCA?"), "\r\n+CSCA: \"002B003100350035\",145\r\n\r\nOK\r\n");
}

TEST(Phone_Moods, The_Question_For_The_Centre_May_Not_Be_Supported)
{
    Phone_Moods moods = Quiet();
    moods.m_smsc_not_supported = true;
    Virtual_Phone phone(moods);
    EXPECT_EQ(Line_Peer(phone.Path()).Asks("AT+CSCA?"), "\r\nCOMMAND NOT SUPPORT\r\n\r\nOK\r\n");
}

TEST(Phone_Moods, An_Undefined_Identity_Is_Known_By_Its_Other_Spelling)
{
    Phone_Moods moods = Quiet();
    moods.m_undefined_identity = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    for (const char* command : {"AT+GMI", "AT+GMM", "AT+CGSN", "AT+GMR"})
        EXPECT_EQ(peer.Asks(command), "\r\nUndefined\r\n\r\nOK\r\n") << command;
    EXPECT_EQ(peer.Asks("AT+CGMI"), "\r\nCorvane\r\n\r\nOK\r\n");
    EXPECT_EQ(peer.Asks("AT+CGMM"), "\r\nVirtual Phone\r\n\r\nOK\r\n");
    EXPECT_EQ(peer.Asks("AT+GSN"), "\r\n490154203237518\r\n\r\nOK\r\n");
    EXPECT_EQ(peer.Asks("AT+CGMR"), "\r\n1.0\r\n\r\nOK\r\n");
}

TEST(Phone_Moods, Battery_And_Signal_Are_As_Set)
{
    Phone_Moods moods = Quiet();
    moods.m_battery_status = 1;
    moods.m_battery_charge = 40;
    moods.m_signal = 99;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT+CBC"), "\r\n+CBC: 1,40\r\n\r\nOK\r\n");
    EXPECT_EQ(peer.Asks("AT+CSQ"), "\r\n+CSQ: 99,99\r\n\r\nOK\r\n");
}

TEST(Phone_Moods, Without_A_Prompt_The_Message_Is_Taken_All_The_Same)
{
    Phone_Moods moods = Quiet();
    moods.m_no_prompt = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT+CMGS=19\r\n");
    EXPECT_TRUE(peer.Hears_Nothing());
    peer.Says(Hello + "\x1A");
    EXPECT_EQ(peer.Hears("OK\r\n"), "\r\n+CMGS: 0\r\n\r\nOK\r\n");
}

TEST(Phone_Moods, A_Late_Prompt_Comes_Late)
{
    Phone_Moods moods = Quiet();
    moods.m_late_prompt_ms = 80;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    const auto begin = Clock::now();
    peer.Says("AT+CMGS=19\r\n");
    EXPECT_EQ(peer.Hears("> "), "\r\n> ");
    EXPECT_GE(Clock::now() - begin, 80ms);
}

TEST(Phone_Moods, A_Prompt_May_Lack_Its_Blank)
{
    Phone_Moods moods = Quiet();
    moods.m_prompt_without_blank = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT+CMGS=19\r\n");
    EXPECT_EQ(peer.Hears(">"), "\r\n>");
    EXPECT_TRUE(peer.Hears_Nothing());
}

TEST(Phone_Moods, Split_Answers_Are_Whole_In_The_End)
{
    Phone_Moods moods;
    moods.m_split_answers = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT+CSQ\r");
    EXPECT_EQ(peer.Hears("OK\r\n"), "AT+CSQ\r\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
    EXPECT_NE(Send_Hello(peer).find("+CMGS: 0"), std::string::npos);
}

TEST(Phone_Moods, An_Answer_Behind_Comes_With_The_Next_Command)
{
    Phone_Moods moods;
    moods.m_one_answer_behind = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT+CSQ\r");
    EXPECT_EQ(peer.Hears("\r"), "AT+CSQ\r");
    EXPECT_EQ(phone.Said(), strlen("AT+CSQ\r")) << "nothing but the echo";
    peer.Says("AT\r");
    EXPECT_EQ(peer.Hears("OK\r\n"), "AT\r\r\n+CSQ: 20,99\r\n\r\nOK\r\n");
}

TEST(Phone_Moods, Delayed_Answers_Come_Late_And_Their_Echo_At_Once)
{
    Phone_Moods moods;
    moods.m_answer_delay_ms = 80;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    const auto begin = Clock::now();
    peer.Says("AT\r");
    EXPECT_EQ(peer.Hears("\r"), "AT\r") << "the echo is not late";
    EXPECT_EQ(peer.Hears("OK\r\n"), "\r\nOK\r\n");
    EXPECT_GE(Clock::now() - begin, 80ms);
}

TEST(Phone_Moods, Unsolicited_Lines_Stand_Between_Answers)
{
    Phone_Moods moods = Quiet();
    moods.m_unsolicited = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT\rAT\rAT\rAT\r");
    const std::string ok = "\r\nOK\r\n";
    const std::string all =
        ok + "\r\nRING\r\n" + ok + "\r\n+CMTI: \"SM\",1\r\n" + ok + "\r\n+CREG: 1\r\n" + ok + "\r\nRING\r\n";
    EXPECT_EQ(peer.Hears(all), all);
}

TEST(Phone_Moods, Line_Ends_May_Be_A_Carriage_Return_Alone)
{
    Phone_Moods moods = Quiet();
    moods.m_cr_only = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT+CSQ\r\n");
    EXPECT_EQ(peer.Hears("OK\r"), "\r+CSQ: 20,99\r\rOK\r");
    peer.Says("AT+CMGS=19\r\n");
    EXPECT_EQ(peer.Hears("> "), "\r> ");
}

TEST(Phone_Moods, A_Named_Command_Gets_Its_Error_Text)
{
    Phone_Moods moods = Quiet();
    moods.m_error_for["AT+CSMS=0"] = "not here";
    Virtual_Phone phone(moods);
    EXPECT_EQ(Line_Peer(phone.Path()).Asks("AT+CSMS=0"), "\r\nERROR: not here\r\n");
}

TEST(Phone_Moods, A_Cms_Error_Comes_On_Its_Message_Alone)
{
    Phone_Moods moods = Quiet();
    moods.m_cms_error_at[2] = 500;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    const std::string both = "AT+CMGS=19\r" + Hello + "\x1A";
    peer.Says(both + both + both);
    EXPECT_EQ(peer.Hears("+CMGS: 1\r\n\r\nOK\r\n"),
              "\r\n> \r\n+CMGS: 0\r\n\r\nOK\r\n\r\n> \r\n+CMS ERROR: 500\r\n\r\n> \r\n+CMGS: 1\r\n\r\nOK\r\n");
    EXPECT_EQ(phone.Inbox().size(), 2u);
}

TEST(Phone_Moods, A_Hang_Up_Comes_At_Its_Message_And_Once)
{
    Phone_Moods moods;
    moods.m_hang_up_at = 2;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    Send_Hello(peer);
    peer.Says("AT+CMGS=19\r\n");
    EXPECT_TRUE(peer.Is_Cut_Off());
    EXPECT_TRUE(phone.Is_Hung_Up());
    EXPECT_EQ(phone.Inbox().size(), 1u);
    Line_Peer again(phone.Plug_In_Again());
    EXPECT_NE(Send_Hello(again).find("OK"), std::string::npos) << "it happens once";
}

TEST(Phone_Moods, A_Hang_Up_In_Mid_Pdu_Comes_Half_Way)
{
    Phone_Moods moods;
    moods.m_hang_up_in_body_at = 1;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
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
    Phone_Moods moods;
    moods.m_text_only = true;
    moods.m_hang_up_in_body_at = 1;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT+CMGS=\"1\"\r\n");
    peer.Hears("> ");
    peer.Says("hello\x1A");
    EXPECT_TRUE(peer.Is_Cut_Off());
    EXPECT_TRUE(phone.Inbox().empty());
}

TEST(Phone_Moods, A_Hang_Up_By_Mood_Is_Told)
{
    std::atomic<bool> is_told = false;
    Phone_Moods moods;
    moods.m_hang_up_at = 1;
    Virtual_Phone phone(moods);
    phone.Set_Listeners({{}, {}, [&] { is_told = true; }});
    Line_Peer peer(phone.Path());
    peer.Says("AT+CMGS=19\r\n");
    EXPECT_TRUE(peer.Is_Cut_Off());
    for (const auto end = Clock::now() + 10s; !is_told && Clock::now() < end;)
        std::this_thread::yield();
    EXPECT_TRUE(is_told);
}

TEST(Phone_Moods, It_Stops_Reading_After_So_Many_Bytes_And_Reads_On_When_Let)
{
    Phone_Moods moods = Quiet();
    moods.m_stop_reading_after = 3;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT"), "\r\nOK\r\n");
    EXPECT_EQ(phone.Heard_Bytes(), "AT\r");
    EXPECT_FALSE(peer.Says("AT\r")) << "the line takes nothing";
    EXPECT_TRUE(phone.Is_Silent());
    moods.m_stop_reading_after = -1;
    phone.Set_Moods(moods);
    EXPECT_EQ(peer.Asks("AT"), "\r\nOK\r\n") << "it reads on";
}

TEST(Phone_Moods, It_Stops_Reading_At_Its_Message)
{
    Phone_Moods moods = Quiet();
    moods.m_stop_reading_at = 2;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    Send_Hello(peer);
    peer.Says("AT+CMGS=19\r");
    EXPECT_EQ(peer.Hears("> "), "\r\n> ");
    phone.Heard();
    EXPECT_FALSE(peer.Says(Hello));
    EXPECT_EQ(phone.Inbox().size(), 1u);
}

TEST(Phone_Moods, Garbage_Is_Neither_Answer_Nor_Text)
{
    Phone_Moods moods = Quiet();
    moods.m_garbage = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    peer.Says("AT\r");
    const std::string heard = peer.Hears("\x1F\xFF");
    EXPECT_EQ(heard.size(), 25u);
    EXPECT_EQ(heard.find("OK"), std::string::npos);
    EXPECT_NE(heard.find('\0'), std::string::npos);
    EXPECT_NE(heard.find("\xED\xA0\x80"), std::string::npos);
}

TEST(Phone_Moods, A_Phone_That_Never_Stops_Talking_Still_Answers)
{
    Phone_Moods moods = Quiet();
    moods.m_never_stops_talking = true;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    std::size_t heard = 0;
    for (int i = 0; i < 50; ++i)
        heard += peer.Hears("RING\r\n").size();
    EXPECT_GT(heard, 50u * 20u);
    peer.Says("AT\r");
    EXPECT_NE(peer.Hears("OK\r\n").find("\r\nOK\r\n"), std::string::npos) << "it answers all the same";
}

TEST(Phone_Moods, A_Listener_That_Does_Not_Read_Does_Not_Stop_The_Phone)
{
    Virtual_Phone phone(Quiet());
    Line_Peer peer(phone.Path());
    for (int i = 0; i < 100; ++i)
        phone.Says(std::string(5000, 'x'));
    peer.Says("AT+CSQ\r");
    EXPECT_EQ(phone.Heard(), Lines("AT+CSQ"));
    phone.Hang_Up();
    EXPECT_TRUE(peer.Is_Cut_Off());
}

TEST(Phone_Moods, Moods_May_Change_While_It_Runs)
{
    Virtual_Phone phone;
    Line_Peer peer(phone.Path());
    peer.Says("AT\r");
    EXPECT_EQ(peer.Hears("OK\r\n"), "AT\r\r\nOK\r\n");
    Phone_Moods moods = phone.Moods();
    moods.m_silent = true;
    phone.Set_Moods(moods);
    peer.Says("AT\r");
    EXPECT_TRUE(peer.Hears_Nothing());
    EXPECT_TRUE(phone.Moods().m_silent);
}
