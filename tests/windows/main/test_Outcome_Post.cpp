#include "windows/main/Outcome_Post.h"

#include "engine/Outcome_Codes.h"
#include "support/Serve_Until.h"
#include "support/Window_For_Tests.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// A main window that keeps what it is handed, as "row: state state".
class Noting_Window : public Window_For_Tests
{
public:
    void Take_Outcomes(int first_row, const QByteArray& marks, const Outcome_Codes& codes) override
    {
        EXPECT_TRUE(Is_Interface_Thread());
        m_times.push_back(Now_Seconds());
        std::string note = std::to_string(first_row) + ":";
        for (const char mark : marks) {
            const Row_Outcome outcome = codes.Outcome_Of(static_cast<quint8>(mark));
            note += ' ' + std::to_string(static_cast<int>(outcome.state));
            if (outcome.state == Row_State::Refused)
                note += '/' + std::to_string(outcome.cause.number);
        }
        m_notes.push_back(note);
        m_marks += marks.size();
    }
    void End_Outcomes() override { m_notes.emplace_back("end"); }

    std::vector<std::string> m_notes;
    std::vector<double> m_times;
    qsizetype m_marks = 0;
};

constexpr double Least_Between = 0.045; // two deliveries, in seconds, less what a clock's reading takes

class Outcome_Post_Test : public testing::Test
{
protected:
    static Row_Outcome Refused(int number) { return {Row_State::Refused, {Device_Cause::Kind::Cms, number, {}}}; }

    /// Does something on a job's thread, meanwhile serving it here.
    static void On_A_Job(const std::function<void()>& work)
    {
        Start_Worker("job", work);
        ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }, 60));
    }

    Noting_Window m_window;
    Outcome_Post m_post{m_window};
};

TEST_F(Outcome_Post_Test, The_First_Outcome_Arrives_At_Once_And_The_Next_Ones_Together)
{
    m_post.Add(0, {Row_State::Taken, {}});
    EXPECT_THAT(m_window.m_notes, IsEmpty()); // nobody waits
    QCoreApplication::processEvents();
    EXPECT_THAT(m_window.m_notes, ElementsAre("0: 2"));
    m_post.Add(1, {Row_State::Written, {}});
    m_post.Add(2, Refused(500));
    ASSERT_TRUE(Serve_Until([this] { return m_window.m_notes.size() > 1; }));
    EXPECT_THAT(m_window.m_notes, ElementsAre("0: 2", "1: 1 4/500"));
    EXPECT_GE(m_window.m_times.at(1) - m_window.m_times.at(0), Least_Between);
}

TEST_F(Outcome_Post_Test, Outcomes_That_Do_Not_Follow_Each_Other_Keep_Their_Rows)
{
    m_post.Add(5, {Row_State::Taken, {}});
    m_post.Add(6, {Row_State::Taken, {}});
    m_post.Add(9, Refused(38));
    m_post.Deliver();
    EXPECT_THAT(m_window.m_notes, ElementsAre("5: 2 2", "9: 4/38"));
}

TEST_F(Outcome_Post_Test, Nothing_Is_Handed_Over_Twice_Or_After_The_End)
{
    m_post.Add(0, Refused(500));
    m_post.Deliver();
    m_post.Deliver();
    m_post.Add(1, Refused(500));
    m_post.End();
    const std::vector<std::string> all = {"0: 4/500", "1: 4/500", "end"};
    EXPECT_EQ(m_window.m_notes, all);
    ASSERT_FALSE(Serve_Until([this] { return m_window.m_notes.size() > 3; }, 0.2));
    EXPECT_EQ(m_window.m_notes, all);
}

TEST_F(Outcome_Post_Test, A_Quick_Job_Is_Told_Of_No_More_Than_Twenty_Times_A_Second_And_Completely)
{
    constexpr int Many = 200'000;
    On_A_Job([this] {
        for (int row = 0; row < Many; ++row)
            m_post.Add(row, row % 2 == 0 ? Row_Outcome{Row_State::Repeated, {}} : Refused(row % 100));
        Run_On_Interface_Thread([this] { m_post.End(); });
    });
    EXPECT_EQ(m_window.m_marks, Many);
    EXPECT_EQ(m_window.m_notes.back(), "end");
    ASSERT_GE(m_window.m_times.size(), 1U);
    for (std::size_t time = 1; time + 1 < m_window.m_times.size(); ++time) // the last one comes with the end
        EXPECT_GE(m_window.m_times.at(time) - m_window.m_times.at(time - 1), Least_Between) << time;
}

TEST_F(Outcome_Post_Test, What_Is_On_Its_Way_When_It_Goes_Is_Dropped)
{
    {
        Outcome_Post post(m_window);
        post.Add(0, {Row_State::Taken, {}});
    }
    QCoreApplication::processEvents();
    EXPECT_THAT(m_window.m_notes, IsEmpty());
}

} // namespace
