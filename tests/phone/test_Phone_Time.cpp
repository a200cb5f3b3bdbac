// Manners that take time or end the line, on a real pseudo-terminal.
#include "phone/Line_Peer.h"
#include "phone/Phone_Talk.h"
#include "phone/Virtual_Phone.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

TEST(Phone_Time, A_Report_Comes_By_Itself_And_Keeps_No_Answer_Waiting)
{
    Phone_Moods moods = Quiet;
    moods.m_report_after_seconds = 2;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT+CNMI=2,1,0,1,0"), "\r\nOK\r\n");
    peer.Says("AT+CMGS=19\r");
    peer.Hears("> ");
    peer.Says("0031" + Hello.substr(4) + "\x1A");
    EXPECT_EQ(peer.Hears("OK\r\n"), "\r\n+CMGS: 0\r\n\r\nOK\r\n");
    EXPECT_EQ(peer.Asks("AT"), "\r\nOK\r\n") << "at once, in front of the report";
    const std::string report = peer.Hears("00\r\n");
    EXPECT_TRUE(report.starts_with("\r\n+CDS: 25\r\n")) << report;
    EXPECT_EQ(phone.Inbox().size(), 1u);
}

TEST(Phone_Time, A_Late_Result_Comes_In_Its_Time)
{
    Phone_Moods moods = Quiet;
    moods.m_pace = 100;
    moods.m_message_manners = {{Message_Manner::Kind::Delayed, 1, 1, {}, {}, 10}};
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    const auto begin = Clock::now();
    EXPECT_EQ(Send_Hello(peer), "\r\n+CMGS: 0\r\n\r\nOK\r\n");
    EXPECT_GE(Clock::now() - begin, 100ms);
    EXPECT_EQ(phone.Inbox().size(), 1u);
}

TEST(Phone_Time, A_Slow_Phone_Says_A_Byte_At_A_Time)
{
    Phone_Moods moods = Quiet;
    moods.m_byte_gap_ms = 20;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    const auto begin = Clock::now();
    EXPECT_EQ(peer.Asks("AT"), "\r\nOK\r\n");
    EXPECT_GE(Clock::now() - begin, 120ms);
}

TEST(Phone_Time, It_Hangs_Up_Behind_A_Byte_That_It_Says)
{
    for (const long bytes : {1L, 4L, 7L}) {
        std::atomic<bool> is_told = false;
        Phone_Moods moods = Quiet;
        moods.m_hang_up_after_said = bytes;
        Virtual_Phone phone(moods);
        phone.Set_Listeners({{}, {}, [&] { is_told = true; }});
        Line_Peer peer(phone.Path());
        peer.Says("AT\rAT\r");
        EXPECT_EQ(peer.Hears("never", 5s), std::string("\r\nOK\r\n\r\nOK\r\n").substr(0, std::size_t(bytes)));
        EXPECT_TRUE(phone.Is_Hung_Up());
        for (const auto end = Clock::now() + 10s; !is_told && Clock::now() < end;)
            std::this_thread::yield();
        EXPECT_TRUE(is_told);
        Line_Peer again(phone.Plug_In_Again());
        EXPECT_EQ(again.Asks("AT"), "\r\nOK\r\n") << "it happens once";
    }
}

TEST(Phone_Time, It_Hangs_Up_At_A_Byte_That_It_Hears)
{
    Phone_Moods moods;
    moods.m_hang_up_after_heard = 4;
    Virtual_Phone phone(moods);
    Line_Peer peer(phone.Path());
    EXPECT_EQ(peer.Asks("AT"), "AT\r\r\nOK\r\n");
    peer.Says("A");
    EXPECT_TRUE(peer.Is_Cut_Off());
    Line_Peer again(phone.Plug_In_Again());
    EXPECT_EQ(again.Asks("AT"), "AT\r\r\nOK\r\n");
}
