#include "support/Heartbeat.h"
#include "windows/contacts/Contacts_Test.h"

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double Slowness = 10;
#else
constexpr double Slowness = 1;
#endif

constexpr double Longest_Work = 0.016 * Slowness; // of the interface thread between events, in seconds of the processor
constexpr int Many = 1'000'000;

QByteArray People()
{
    QByteArray lines = "Name,Phone\n";
    lines.reserve(Many * 20);
    for (int row = 0; row < Many; ++row)
        lines += "Ann," + QByteArray::number(447'700'000'000 + row) + '\n';
    return lines;
}

} // namespace

// What is looked at in each of a million rows is looked at behind the sheet.
TEST_F(Contacts_Test, A_Million_People_Are_Read_Judged_Filtered_And_Added_While_The_Window_Goes_On)
{
    m_window.m_choices.composer_text = QStringLiteral("Hi {{Name}}");
    const QString path = File(QStringLiteral("people.csv"), People());
    Heartbeat heartbeat;
    m_sheet->Import({path});
    Await(120);
    EXPECT_EQ(Text_Of("_Words"), "people.csv: 1000000 rows in 2 columns.");
    In<QComboBox>(*m_sheet, "_Country").setCurrentIndex(0);
    Click_In(*m_sheet, "Continue_Btn");
    Await(120);
    EXPECT_TRUE(Text_Of("_Sums").startsWith("1000000 messages to be sent, 1000000 parts"));
    EXPECT_TRUE(Serve_Until([this] { return Rows().model()->rowCount() == Many; }, 20)); // which come bit by bit
    Rows().scrollToBottom();
    QCoreApplication::processEvents();
    EXPECT_EQ(Row(Rows(), Many - 1).section(u'|', 1, 3), "447700999999|447700999999|Hi Ann");
    Choose("_Filter", "\u2713 to be sent");
    EXPECT_EQ(Rows().model()->rowCount(), Many);
    Press("Longest_Btn");
    EXPECT_EQ(Rows_Selected_In(Rows()), std::vector<int>{0});
    EXPECT_LT(heartbeat.Longest_Work(), Longest_Work);
    Click_In(*m_sheet, "Add_To_List");
    Await(120);
    EXPECT_EQ(m_window.m_recipients.Count(), Many);
    EXPECT_EQ(m_window.m_recipients.Text_At(Many - 1).text, "Hi Ann");
    EXPECT_EQ(m_added, std::make_pair(Many, 0));
}
