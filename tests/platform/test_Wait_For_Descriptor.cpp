#include "platform/Waiting.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/eventfd.h>
#include <sys/resource.h>
#include <sys/time.h>
#include <thread>
#include <unistd.h>

namespace {

class Wait_For_A_Line : public testing::Test
{
protected:
    Wait_For_A_Line() { EXPECT_EQ(pipe2(m_ends, O_NONBLOCK | O_CLOEXEC), 0); }

    ~Wait_For_A_Line() override
    {
        Forget_Program_Exit();
        Close_End(0);
        Close_End(1);
        close(m_wake);
    }

    int Reading_End() const { return m_ends[0]; }
    int Writing_End() const { return m_ends[1]; }

    void Close_End(int end)
    {
        if (m_ends[end] >= 0)
            close(m_ends[end]);
        m_ends[end] = -1;
    }

    void Say_OK() const { EXPECT_EQ(write(Writing_End(), "OK", 2), 2); }

    Line_Event Wait_For_Input(double seconds) const { return Wait_For_Descriptor(Reading_End(), POLLIN, seconds); }

    int m_ends[2]{-1, -1};
    const int m_wake = eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC);
};

std::atomic<int> Alarms{0};

} // namespace

TEST_F(Wait_For_A_Line, Silence_Lasts_The_Whole_Time_And_Input_Is_Ready_At_Once)
{
    const double start = Now_Seconds();
    EXPECT_EQ(Wait_For_Input(0.05), Line_Event::Timed_Out);
    EXPECT_GE(Now_Seconds() - start, 0.05);
    EXPECT_EQ(Wait_For_Input(0), Line_Event::Timed_Out);
    std::thread speaker([this] { Say_OK(); });
    EXPECT_EQ(Wait_For_Input(-1), Line_Event::Ready);
    speaker.join();
    for (const double seconds : {3600, 0, -1})
        EXPECT_EQ(Wait_For_Input(seconds), Line_Event::Ready) << seconds;
}

TEST_F(Wait_For_A_Line, A_Part_Of_A_Millisecond_Is_Not_Rounded_Up)
{
    double shortest = 3600; // of many: a loaded computer may be late every now and then
    for (int round = 0; round < 200; ++round) {
        const double start = Now_Seconds();
        EXPECT_EQ(Wait_For_Input(0.0011), Line_Event::Timed_Out);
        shortest = std::min(shortest, Now_Seconds() - start);
    }
    EXPECT_GE(shortest, 0.0011);
    EXPECT_LT(shortest, 0.0019);
}

TEST_F(Wait_For_A_Line, A_Second_Descriptor_Wakes_It)
{
    std::thread waker([this] { eventfd_write(m_wake, 1); });
    EXPECT_EQ(Wait_For_Descriptor(Reading_End(), POLLIN, -1, m_wake), Line_Event::Woken);
    waker.join();
    Say_OK();
    EXPECT_EQ(Wait_For_Descriptor(Reading_End(), POLLIN, -1, m_wake), Line_Event::Ready) << "the line goes first";
}

TEST_F(Wait_For_A_Line, Room_To_Write_Is_Waited_For_With_An_End)
{
    EXPECT_EQ(Wait_For_Descriptor(Writing_End(), POLLOUT, 3600), Line_Event::Ready);
    char block[4096] = {};
    while (write(Writing_End(), block, sizeof block) > 0) {
    }
    EXPECT_EQ(Wait_For_Descriptor(Writing_End(), POLLOUT, 0.02), Line_Event::Timed_Out);
    EXPECT_GT(read(Reading_End(), block, sizeof block), 0);
    EXPECT_EQ(Wait_For_Descriptor(Writing_End(), POLLOUT, 3600), Line_Event::Ready);
}

TEST_F(Wait_For_A_Line, A_Hang_Up_Is_For_The_Next_Read_To_Tell_And_A_Closed_Descriptor_Fails)
{
    const int gone = Reading_End();
    EXPECT_FALSE(Program_Is_Exiting()); // its own descriptor is made now, so that it does not take the number set free
    Close_End(1);
    EXPECT_EQ(Wait_For_Input(-1), Line_Event::Ready);
    Close_End(0);
    EXPECT_EQ(Wait_For_Descriptor(gone, POLLIN, -1), Line_Event::Failed);
    EXPECT_EQ(errno, EBADF);
}

TEST_F(Wait_For_A_Line, A_Descriptor_Beyond_The_Size_Of_A_Set_Is_Fine)
{
    rlimit limit{};
    ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &limit), 0);
    limit.rlim_cur = limit.rlim_max;
    ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    const int high = fcntl(Reading_End(), F_DUPFD_CLOEXEC, FD_SETSIZE + 100);
    ASSERT_GT(high, FD_SETSIZE) << strerror(errno);
    EXPECT_EQ(Wait_For_Descriptor(high, POLLIN, 0.01), Line_Event::Timed_Out);
    Say_OK();
    EXPECT_EQ(Wait_For_Descriptor(high, POLLIN, -1), Line_Event::Ready);
    close(high);
}

TEST_F(Wait_For_A_Line, An_Interrupted_Wait_Goes_On_With_What_Remains_And_Still_Finds_Its_Input)
{
    struct sigaction action = {};
    struct sigaction action_before = {};
    action.sa_handler = [](int) { ++Alarms; };
    sigaction(SIGALRM, &action, &action_before); // without SA_RESTART
    const itimerval every_two_milliseconds{{0, 2000}, {0, 2000}};
    setitimer(ITIMER_REAL, &every_two_milliseconds, nullptr);
    const double start = Now_Seconds();
    EXPECT_EQ(Wait_For_Input(0.1), Line_Event::Timed_Out);
    EXPECT_GE(Now_Seconds() - start, 0.1);
    EXPECT_LT(Now_Seconds() - start, 20);
    EXPECT_GT(Alarms, 1);
    std::thread speaker([this, enough = Alarms + 3] {
        sigset_t all;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, nullptr);
        while (Alarms < enough)
            std::this_thread::yield();
        Say_OK();
    });
    EXPECT_EQ(Wait_For_Input(-1), Line_Event::Ready);
    speaker.join();
    const itimerval none{};
    setitimer(ITIMER_REAL, &none, nullptr);
    sigaction(SIGALRM, &action_before, nullptr);
}

TEST_F(Wait_For_A_Line, The_Exit_Ends_A_Wait_Without_End)
{
    std::thread waiter([this] { EXPECT_EQ(Wait_For_Input(-1), Line_Event::Timed_Out); });
    Begin_Program_Exit();
    waiter.join();
    EXPECT_EQ(Wait_For_Input(3600), Line_Event::Timed_Out);
    Forget_Program_Exit();
    EXPECT_FALSE(Program_Is_Exiting());
    Say_OK();
    EXPECT_EQ(Wait_For_Input(3600), Line_Event::Ready);
}
