#include "support/Heartbeat.h"
#include "windows/main/Confirmed_Sending_Test.h"

#include <QTemporaryDir>

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double Slowness = 10;
#else
constexpr double Slowness = 1;
#endif

// Of the interface thread from its events, in seconds: less than a frame.
constexpr double Longest_Away = 0.016 * Slowness;

struct Large_Job
{
    const char* name;
    bool confirms;
    int recipients;
    int numbers; ///< different ones; the others are repeated and skipped, which takes its second with fixed waits
};

void PrintTo(const Large_Job& job, std::ostream* out)
{
    *out << job.name;
}

// Thousands of recipients in the main window, and a phone that is as fast as it can be.
class Large_Jobs_In_The_Window : public Confirmed_Sending_Test, public testing::WithParamInterface<Large_Job>
{
protected:
    Large_Jobs_In_The_Window()
    {
        Jobs_Folder_Path = m_quick_folder.filePath(QStringLiteral("Jobs"));
        The<QCheckBox>("_Confirm_Chk").setChecked(GetParam().confirms);
        Tick("_Skip_Duplicate_Chk");
        Have_Recipients(2);
        Send_With_One_Box(); // the first job opens the windows and their fonts
        Have_Recipients(GetParam().recipients);
    }

    void Have_Recipients(int count)
    {
        Recipient_List list;
        for (int row = 0; row < count; ++row)
            list.Append(QString::number(10'000'000'000 + row % GetParam().numbers), QStringLiteral("Hello"));
        m_delegate->Replace_Recipients(std::move(list));
        m_delegate->Update_List_Count();
        m_delegate->Set_Previous_Composer_Message(QStringLiteral("Hello")); // it is in the list
        QCoreApplication::processEvents();
        m_phone.Forget();
    }

    /// How long the interface thread is away at its longest, from the press of Send until everything is over.
    double Longest_Gap_In_A_Job()
    {
        m_phone.Forget();
        Heartbeat heartbeat;
        Send_With_One_Box();
        return heartbeat.Longest_Gap();
    }

    // In memory where there is such a place: the disk's time is not what is measured.
    QTemporaryDir m_quick_folder{(QFileInfo("/dev/shm").isWritable() ? QStringLiteral("/dev/shm") : QDir::tempPath()) +
                                 QStringLiteral("/large-job-XXXXXX")};
};

} // namespace

TEST_P(Large_Jobs_In_The_Window, Keep_It_From_Its_Events_For_Less_Than_A_Frame)
{
    // On a busy machine the same work takes now more, now less.
    double longest_gap = Longest_Away;
    for (int job = 0; job < 3 && longest_gap >= Longest_Away; ++job) {
        longest_gap = Longest_Gap_In_A_Job();
        ASSERT_EQ(Submissions(), GetParam().numbers);
    }
    EXPECT_LT(longest_gap, Longest_Away);
    const QString outcome = GetParam().confirms ? QStringLiteral("✓ sent") : QStringLiteral("✓ taken by the phone");
    EXPECT_EQ(Shown(0, Outcome_Column), outcome);
    EXPECT_EQ(Shown(GetParam().recipients - 1, Outcome_Column),
              GetParam().numbers == GetParam().recipients ? outcome : QStringLiteral("– skipped: repeated"));
}

INSTANTIATE_TEST_SUITE_P(Manners, Large_Jobs_In_The_Window,
                         testing::Values(Large_Job{"Confirming", true, 10'000, 10'000},
                                         Large_Job{"By_Fixed_Waits", false, 2000, 30}),
                         [](const auto& job) { return std::string(job.param.name); });
