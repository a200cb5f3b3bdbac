#include "device/Device_Test.h"

namespace {

// Many sessions at once, each with a phone and a background reader of its own, checking their connections over and
// over.
class Endurance : public Device_Test
{
protected:
    Endurance() { Set_Pace(10); } // each check reads for a tenth of a second: time enough on a crowded machine

    void Run(int sessions, int checks, const Phone_Moods& moods)
    {
        std::atomic<int> sessions_left{sessions};
        std::vector<std::thread> threads;
        for (int index = 0; index < sessions; ++index)
            threads.emplace_back([&] {
                Virtual_Phone phone(moods);
                MFCSMS session;
                Connect(session, phone);
                for (int check = 0; check < checks; ++check) {
                    m_readers_alive += session.port()->numberOfReadInBackgroundThreads() > 0 ? 1 : 0;
                    m_successes += session.Check_Connection(No_Descriptor) ? 1 : 0;
                }
                --sessions_left;
            });
        EXPECT_TRUE(Serve_Until([&] { return sessions_left == 0; }, 250));
        for (auto& thread : threads)
            thread.join();
    }

    std::atomic<int> m_successes{0};
    std::atomic<int> m_readers_alive{0};
};

} // namespace

TEST_F(Endurance, Ten_Thousand_Connection_Checks_With_The_Background_Reader_Alive_Never_Fail)
{
    Run(50, 200, {});
    EXPECT_EQ(m_successes, 10000);
    EXPECT_EQ(m_readers_alive, 10000);
    EXPECT_EQ(m_log.Joined().find("serialPortReadData"), std::string::npos);
}

TEST_F(Endurance, Unsolicited_Lines_Between_The_Answers_Fail_No_Connection_Check)
{
    Run(20, 50, Mood(&Phone_Moods::m_unsolicited));
    EXPECT_EQ(m_successes, 1000);
}

TEST_F(Endurance, Ringing_All_The_While_Fails_No_Connection_Check)
{
    Virtual_Phone phone;
    MFCSMS session;
    Connect(session, phone);
    std::atomic<bool> is_over{false};
    std::thread caller([&] {
        while (!is_over) {
            phone.Says("\r\nRING\r\n");
            std::this_thread::sleep_for(std::chrono::milliseconds(7));
        }
    });
    std::thread checker([&] {
        for (int check = 0; check < 100; ++check) {
            m_successes += session.Check_Connection(No_Descriptor) ? 1 : 0;
            Wait_Seconds(0.1); // so that some of the ringing comes while no answer is awaited
        }
        is_over = true;
    });
    EXPECT_TRUE(Serve_Until([&] { return is_over.load(); }, 100));
    caller.join();
    checker.join();
    EXPECT_EQ(m_successes, 100);
    EXPECT_NE(m_log.Joined().find("serialPortReadData ("), std::string::npos);
}
