#include "support/Heartbeat.h"
#include "windows/main/Outcome_Post.h"
#include "windows/main/Outcomes_Test.h"

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double Slowness = 10;
#else
constexpr double Slowness = 1;
#endif

// Of the interface thread from its events, in seconds: less than a frame, and where a person waits.
constexpr double Longest_Away = 0.016 * Slowness;
constexpr double Longest_Away_In_A_Click = 0.05 * Slowness;

// A million recipients, as a job goes through them that skips as fast as it can.
class Many_Outcomes : public Outcomes_Test
{
protected:
    static constexpr int Many = 1'000'000;

    Many_Outcomes()
    {
        Recipient_List list;
        const QString message = QStringLiteral("the same for all");
        for (int row = 0; row < Many; ++row)
            list.Append(QString::number(10'000'000'000 + row), message);
        m_delegate->Replace_Recipients(std::move(list));
        m_delegate->Update_List_Count();
        QCoreApplication::processEvents();
    }

    /// How long the interface thread is away at its longest while a job hands over the outcome of each row.
    double Longest_Gap_In_A_Job(const std::function<Row_Outcome(int)>& outcome_of)
    {
        Outcome_Post post(*m_delegate);
        Heartbeat heartbeat;
        Start_Worker("job", [&] {
            Run_On_Interface_Thread([this] { m_delegate->Begin_Outcomes(); });
            for (int row = 0; row < Many; ++row)
                post.Add(row, outcome_of(row));
            Run_On_Interface_Thread([&] { post.End(); });
        });
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }, 60));
        return heartbeat.Longest_Gap();
    }
};

TEST_F(Many_Outcomes, Keep_The_Window_From_Its_Events_For_Less_Than_A_Frame)
{
    The<QTableView>("idTableView").scrollToBottom();
    Longest_Gap_In_A_Job([](int) { return Row_Outcome{Row_State::Excluded, {}}; });
    EXPECT_EQ(Shown(Many - 1, Outcome_Column), QStringLiteral("– skipped: excluded"));
    EXPECT_EQ(Shown(0, Outcome_Column), QStringLiteral("– skipped: excluded"));
    EXPECT_EQ(Buttons(), "off");
    // The first job also opens the window's fonts, and on a busy machine the same work takes now more, now less.
    double longest_gap = Longest_Away;
    for (int job = 0; job < 10 && longest_gap >= Longest_Away; ++job)
        longest_gap = Longest_Gap_In_A_Job([](int) { return Row_Outcome{Row_State::Repeated, {}}; });
    EXPECT_LT(longest_gap, Longest_Away);
    EXPECT_EQ(Shown(Many - 1, Outcome_Column), QStringLiteral("– skipped: repeated"));
}

TEST_F(Many_Outcomes, Are_Selected_And_Kept_Without_A_Scan_For_Each)
{
    Longest_Gap_In_A_Job([](int row) {
        return Row_Outcome{row < Many / 2   ? Row_State::Taken
                           : row % 100 == 0 ? Row_State::Refused
                                            : Row_State::Sent,
                           {}};
    });
    EXPECT_EQ(Buttons(), "on");
    const auto longest_gap_in = [this](const char* button) {
        Heartbeat heartbeat;
        Click(button);
        QCoreApplication::processEvents(); // what it has drawn is its own, not the next one's
        return heartbeat.Longest_Gap();
    };
    double longest_gap = Longest_Away_In_A_Click; // on a busy machine the same work takes now more, now less
    for (int click = 0; click < 10 && longest_gap >= Longest_Away_In_A_Click; ++click)
        longest_gap = longest_gap_in("Select_Not_Taken");
    EXPECT_LT(longest_gap, Longest_Away_In_A_Click);
    EXPECT_EQ(m_delegate->Selected_Recipient_Rows().size(), Many / 200U);
    EXPECT_LT(longest_gap_in("Keep_Not_Taken"), Longest_Away_In_A_Click);
    EXPECT_EQ(m_delegate->Recipients().Count(), Many / 200);
    EXPECT_EQ(Shown(0, 0), QString::number(10'000'000'000 + Many / 2));
    for (const int row : {0, Many / 400, Many / 200 - 1})
        EXPECT_EQ(Shown(row, Outcome_Column), QStringLiteral("✗ refused")) << row;
}

} // namespace
