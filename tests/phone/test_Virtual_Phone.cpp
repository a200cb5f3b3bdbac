// The phone as it is met on its line.
#include "phone/Phone_Talk.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <termios.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {

std::chrono::microseconds Processor_Time()
{
    rusage used{};
    ::getrusage(RUSAGE_SELF, &used);
    return std::chrono::seconds(used.ru_utime.tv_sec + used.ru_stime.tv_sec) +
           std::chrono::microseconds(used.ru_utime.tv_usec + used.ru_stime.tv_usec);
}

} // namespace

TEST(Virtual_Phone, A_Conversation_Reads_As_The_Line_Looks)
{
    auto [phone, peer] = Call();
    int exclusive = 0;
    EXPECT_EQ(::ioctl(peer.Number(), TIOCEXCL), 0);
    EXPECT_EQ(::ioctl(peer.Number(), TIOCGEXCL, &exclusive), 0);
    EXPECT_EQ(exclusive, 1) << "exclusive use can be claimed";
    peer.Says("AT\r\n");
    EXPECT_EQ(peer.Hears("OK\r\n"), "AT\r" + Ok);
    peer.Says("AT+CMGF=?\r\n");
    EXPECT_EQ(peer.Hears("OK\r\n"), "AT+CMGF=?\r" + With_Ok("+CMGF: (0,1)"));
    EXPECT_EQ(phone.Heard(), Lines("AT", "AT+CMGF=?"));
    EXPECT_EQ(phone.Heard_Bytes(), "AT\r\nAT+CMGF=?\r\n");
    EXPECT_TRUE(phone.Is_Silent());
    phone.Will_Answer("AT+CMGF=?", "\r\nmine\r\n" + Ok);
    EXPECT_EQ(peer.Asks("AT+CMGF=?"), "AT+CMGF=?\r\r\nmine\r\n" + Ok);
}

TEST(Virtual_Phone, A_Message_Comes_To_The_Inbox_Until_It_Is_Forgotten)
{
    auto [phone, peer] = Call();
    EXPECT_FALSE(phone.Wait_For_Messages(1, 1ms));
    EXPECT_NE(Send_Hello(peer).find(With_Ok("+CMGS: 0")), std::string::npos);
    ASSERT_TRUE(phone.Wait_For_Messages(1, 10s));
    EXPECT_EQ(phone.Inbox().front().m_text, "hello");
    EXPECT_EQ(phone.Inbox().front().m_number, "+15550001234");
    ASSERT_EQ(phone.Parts().size(), 1u);
    EXPECT_EQ(phone.Parts().front().m_pdu, Hello);
    EXPECT_EQ(phone.Heard(), Lines("AT+CMGS=19")) << "bodies are no command lines";
    phone.Forget();
    EXPECT_TRUE(phone.Heard().empty());
    EXPECT_EQ(phone.Heard_Bytes(), "");
    EXPECT_TRUE(phone.Inbox().empty());
    EXPECT_TRUE(phone.Parts().empty());
    Send_Hello(peer);
    EXPECT_EQ(phone.Inbox().size(), 1u);
}

TEST(Virtual_Phone, Unsolicited_Bytes_Go_Out_As_They_Are)
{
    Virtual_Phone phone;
    phone.Says("nobody has the line open\r\n");
    Line_Peer peer(phone.Path());
    phone.Says("\r\nRING\r\n");
    EXPECT_EQ(peer.Hears("RING\r\n"), "\r\nRING\r\n");
    const std::string much(5000, 'x');
    phone.Says(much + ".");
    EXPECT_EQ(peer.Hears("."), much + ".");
}

TEST(Virtual_Phone, What_Was_Written_Before_The_Question_Has_Been_Heard)
{
    auto [phone, peer] = Call(Quiet);
    for (int i = 0; i < 200; ++i) {
        peer.Says("AT+CSQ\r\n");
        ASSERT_EQ(phone.Heard().size(), std::size_t(i + 1));
    }
}

TEST(Virtual_Phone, Silence_Ends_With_The_First_Byte)
{
    auto [phone, peer] = Call();
    EXPECT_TRUE(phone.Is_Silent(1));
    peer.Says("A");
    EXPECT_FALSE(phone.Is_Silent(1));
    EXPECT_FALSE(phone.Is_Silent(1)) << "nobody has asked yet what it was";
    EXPECT_EQ(phone.Heard_Bytes(), "A");
    EXPECT_TRUE(phone.Is_Silent(1));
    std::thread writer([&peer = peer] { peer.Says("T"); });
    EXPECT_FALSE(phone.Is_Silent(10'000));
    writer.join();
}

TEST(Virtual_Phone, Listeners_Are_Told_Every_Part_And_Message_Even_At_The_End)
{
    std::vector<std::string> told;
    {
        Virtual_Phone phone;
        phone.Set_Listeners({[&](const Handset_Part& part) { told.push_back("part " + part.m_text); },
                             [&](const Handset_Message& message) { told.push_back("message " + message.m_text); },
                             [&] { told.emplace_back("hang-up"); }});
        Line_Peer peer(phone.Path());
        EXPECT_TRUE(peer.Says("AT+CMGS=19\r" + Hello + "\x1A" + "AT+CMGS=19\r" + Hello + "\x1A"));
    }
    EXPECT_EQ(told, Lines("part hello", "message hello", "part hello", "message hello"));
}

// -- the line as a device

TEST(Virtual_Phone, Each_Phone_Has_A_Line_Of_Its_Own_That_Comes_Up_As_A_Terminal_And_Not_Raw)
{
    Virtual_Phone one;
    Virtual_Phone other;
    EXPECT_NE(one.Path(), other.Path());
    EXPECT_TRUE(one.Path().starts_with("/dev/pts/"));
    const Handset::Descriptor line(::open(one.Path().c_str(), O_RDWR | O_NOCTTY));
    termios settings{};
    ASSERT_EQ(::tcgetattr(line.Number(), &settings), 0);
    EXPECT_TRUE(settings.c_lflag & ECHO);
    EXPECT_TRUE(settings.c_lflag & ICANON);
}

TEST(Virtual_Phone, The_Line_Can_Be_Closed_And_Opened_Again_And_What_Was_Written_Before_Is_Heard)
{
    Virtual_Phone phone(Quiet);
    Line_Peer(phone.Path()).Says("AT+CSQ\r");
    EXPECT_EQ(phone.Heard(), Lines("AT+CSQ"));
    for (int i = 0; i < 20; ++i) {
        Line_Peer peer(phone.Path());
        EXPECT_EQ(peer.Asks("AT"), Ok) << "answers that nobody was there to hear are gone";
    }
    EXPECT_EQ(phone.Heard().size(), 21u);
}

TEST(Virtual_Phone, A_Hang_Up_Cuts_The_Line)
{
    auto [phone, peer] = Call();
    phone.Hang_Up();
    EXPECT_TRUE(peer.Is_Cut_Off());
    EXPECT_FALSE(peer.Says("AT\r"));
    EXPECT_TRUE(phone.Is_Hung_Up());
    EXPECT_EQ(phone.Path(), "");
    phone.Hang_Up();
    phone.Says("into the air");
    EXPECT_TRUE(phone.Is_Silent(1));
}

TEST(Virtual_Phone, A_Phone_Plugged_In_Again_Begins_Afresh)
{
    auto [phone, before] = Call();
    before.Asks("ATE0");
    before.Says("AT+CMGS=19\r");
    EXPECT_EQ(before.Hears("> "), Prompt);
    phone.Hang_Up();
    const std::string path = phone.Plug_In_Again();
    EXPECT_EQ(path, phone.Path());
    Line_Peer after(path);
    EXPECT_EQ(after.Asks("AT"), "AT\r" + Ok) << "echo is on again and no message is awaited";
    EXPECT_TRUE(before.Is_Cut_Off());
    Line_Peer last(phone.Plug_In_Again());
    EXPECT_TRUE(after.Is_Cut_Off()) << "without a hang-up the old cable is pulled";
    EXPECT_EQ(last.Asks("AT"), "AT\r" + Ok);
}

TEST(Virtual_Phone, Knows_Whether_Anybody_Has_Its_Line_Open_And_Costs_Nothing_When_Nobody_Has)
{
    Virtual_Phone phone;
    EXPECT_FALSE(phone.Somebody_Is_There());
    {
        Line_Peer peer(phone.Path());
        EXPECT_TRUE(phone.Somebody_Is_There());
        phone.Hang_Up();
        EXPECT_FALSE(phone.Somebody_Is_There());
    }
    {
        const Line_Peer returned(phone.Plug_In_Again());
    }
    EXPECT_FALSE(phone.Somebody_Is_There());
    const auto before = Processor_Time();
    std::this_thread::sleep_for(300ms);
    EXPECT_LT(Processor_Time() - before, 60ms);
}

TEST(Virtual_Phone, Many_Threads_May_Ask_At_Once)
{
    auto [phone, peer] = Call(Quiet);
    std::atomic<bool> is_over = false;
    std::vector<std::thread> askers;
    for (int i = 0; i < 3; ++i)
        askers.emplace_back([&is_over, &phone = phone] {
            while (!is_over) {
                phone.Heard();
                phone.Inbox();
                phone.Set_Moods(phone.Moods());
                phone.Will_Answer("AT+X", "x");
                phone.Path();
            }
        });
    for (int i = 0; i < 50; ++i)
        EXPECT_EQ(peer.Asks("AT"), Ok);
    is_over = true;
    for (auto& asker : askers)
        asker.join();
}

TEST(Virtual_Phone, Counts_What_It_Has_Said_And_Waits_For_What_Is_Due_In_Time)
{
    auto [phone, peer] = Call({.m_no_echo = true, .m_answer_delay_ms = 10});
    peer.Says("AT\r");
    EXPECT_EQ(phone.Said(10s), Ok.size());
    EXPECT_EQ(peer.Hears("OK\r\n"), Ok);

    phone.Set_Moods({.m_no_echo = true, .m_answer_delay_ms = 600'000});
    peer.Says("AT\r");
    EXPECT_EQ(phone.Said(10ms), Ok.size()) << "what is due in ten minutes is not waited for";
}
