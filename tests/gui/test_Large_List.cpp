#include "gui/Open_Program.h"
#include "support/Heartbeat.h"

// What is done with each of a million recipients must not keep the window from its events.
class Large_List : public Open_Program
{
protected:
    static constexpr int Many = 1'000'000;

    Large_List()
    {
        const QString message = "the same for all";
        for (int i = 0; i < Many; ++i)
            m_delegate->Create_Num_Msg_List(QString::number(10'000'000'000 + i), message);
        m_delegate->Redisplay_Recipients();
    }
};

TEST_F(Large_List, The_Window_Goes_On_With_Its_Events_While_Half_Of_The_Rows_Are_Removed)
{
    auto& table = The<QTableView>("idTableView");
    EXPECT_EQ(Count_Label(), "Total Numbers : 1000000");
    table.scrollToBottom();
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown(Many - 1, 0), "10000999999");
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number("10000123456"));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number("10001000000"));
    table.selectionModel()->select(QItemSelection(table.model()->index(0, 0), table.model()->index(Many / 2 - 1, 1)),
                                   QItemSelectionModel::ClearAndSelect);
    Heartbeat heartbeat;
    Click("Clear_Sel_Btn");
    const double longest_gap = heartbeat.Longest_Gap();
    EXPECT_LT(longest_gap, heartbeat.Whole() / 2);
    EXPECT_EQ(m_delegate->Recipients().Count(), Many / 2);
    EXPECT_EQ(Shown(0, 0), "10000500000");
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number("10000123456"));
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number("10000999999"));
    EXPECT_EQ(m_delegate->Selected_Recipient_Rows(), std::vector<int>{0});
    Click("Reset_Btn");
    EXPECT_EQ(m_delegate->Recipients().Count(), 0);
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number("10000999999"));
    EXPECT_EQ(table.model()->rowCount(), 0);
}
