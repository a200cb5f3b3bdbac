#include "gui/Open_Program.h"
#include "support/Heartbeat.h"

// A million recipients in the real window: what is done with each of them must not keep the window from its events.
class Large_List : public Open_Program
{
protected:
    static constexpr int Many = 1'000'000;

    Large_List()
    {
        const QString message = QStringLiteral("the same for all");
        for (int i = 0; i < Many; ++i)
            m_delegate->Create_Num_Msg_List(QString::number(10'000'000'000 + i), message);
        m_delegate->Redisplay_Recipients();
    }

    struct Measured
    {
        double whole;       // seconds that the click took
        double longest_gap; // the longest of them without an event
    };

    Measured Measure_Click(const char* button)
    {
        Heartbeat heartbeat;
        Click(button);
        const double longest_gap = heartbeat.Longest_Gap();
        return {heartbeat.Whole(), longest_gap};
    }
};

TEST_F(Large_List, The_Window_Goes_On_With_Its_Events_While_Half_Of_The_Rows_Are_Removed)
{
    auto& table = The<QTableView>("idTableView");
    table.selectionModel()->select(QItemSelection(table.model()->index(0, 0), table.model()->index(Many / 2 - 1, 1)),
                                   QItemSelectionModel::ClearAndSelect);
    const Measured click = Measure_Click("Clear_Sel_Btn");
    EXPECT_LT(click.longest_gap, click.whole / 2);
    EXPECT_EQ(m_delegate->Recipients().Count(), Many / 2);
    EXPECT_EQ(Shown(0, 0), QStringLiteral("10000500000"));
}

TEST_F(Large_List, A_Reset_Leaves_Nothing_Of_It)
{
    Click("Reset_Btn");
    EXPECT_EQ(m_delegate->Recipients().Count(), 0);
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number(QStringLiteral("10000000000")));
    EXPECT_EQ(The<QTableView>("idTableView").model()->rowCount(), 0);
}
