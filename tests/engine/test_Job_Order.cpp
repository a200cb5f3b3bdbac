#include "engine/Job_Order.h"

#include "records/Job_Journal.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

struct Case
{
    const char* name;
    Send_Choices choices;
    Job_Options options;
};

void PrintTo(const Case& row, std::ostream* stream)
{
    *stream << row.name;
}

class Options_Of_A_Job : public testing::TestWithParam<Case>
{
};

Send_Choices Delayed(const char* batch_size, const char* pause)
{
    Send_Choices choices;
    choices.delayed_delivery = true;
    choices.batch_size = batch_size;
    choices.pause_choice = pause;
    return choices;
}

Send_Choices With_Reports(bool confirms)
{
    Send_Choices choices;
    choices.confirm = {confirms, true, false};
    return choices;
}

Send_Choices In_Unicode()
{
    Send_Choices choices;
    choices.unicode = true;
    return choices;
}

} // namespace

TEST_P(Options_Of_A_Job, Follow_The_Choices_And_Lead_Back_To_An_Order)
{
    const Send_Order order{"/dev/modem", "+15550001111", GetParam().choices, {}, {}};
    Job_Options options = GetParam().options;
    options.service_centre = order.service_centre;
    EXPECT_EQ(Job_Options_Of(order), options);
    Send_Order again = Order_Of(options, "/dev/modem");
    EXPECT_EQ(again.device_path, order.device_path);
    EXPECT_EQ(again.recipients.Count(), 0);
    again.choices.confirm.asks_for_reports = options.report_seconds >= 0;
    EXPECT_EQ(Job_Options_Of(again), options);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Each, Options_Of_A_Job, testing::Values(
    Case{"Nothing", {}, {{}, -1, 0, 0, Job_Alphabet_Choice::Auto}},
    Case{"Unicode", In_Unicode(), {{}, -1, 0, 0, Job_Alphabet_Choice::Unicode}},
    Case{"Reports", With_Reports(true), {{}, 60, 0, 0, Job_Alphabet_Choice::Auto}},
    Case{"Pauses", Delayed("15", " 2  Minutes"), {{}, -1, 15, 120, Job_Alphabet_Choice::Auto}},
    Case{"Pauses_That_Are_Typed", Delayed("7", "90 Seconds"), {{}, -1, 7, 90, Job_Alphabet_Choice::Auto}},
    Case{"Pauses_Without_A_Length", Delayed("7", "No pause"), {{}, -1, 0, 0, Job_Alphabet_Choice::Auto}},
    Case{"Pauses_Without_A_Number", Delayed("-3", " 2  Minutes"), {{}, -1, 0, 0, Job_Alphabet_Choice::Auto}}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(Job_Order, Has_Everybody_Of_The_Record_As_Long_As_That_Can_Be_Read)
{
    const QTemporaryDir folder;
    int rows = 0;
    const auto opened =
        Job_Journal::Create(folder.path(), {"job", {}, "/dev/modem", {}}, [&]() -> std::optional<Job_Row> {
            if (++rows > 2)
                return std::nullopt;
            Job_Row row;
            row.number = QString::number(rows);
            row.text = QStringLiteral("Hello");
            row.skipped = rows == 2 ? QStringLiteral("excluded") : QString();
            return row;
        });
    ASSERT_TRUE(opened.journal);
    const auto reading = Read_Job(opened.journal->Path());
    ASSERT_TRUE(reading.record);
    const auto recipients = Recipients_Of(*reading.record);
    ASSERT_TRUE(recipients);
    Recipient_List expected;
    expected.Append("1", "Hello");
    EXPECT_FALSE(Are_The_Same(*recipients, expected));
    expected.Append("2", "Hello");
    EXPECT_TRUE(Are_The_Same(*recipients, expected));
    expected.Replace(1, "2", "Good-bye");
    EXPECT_FALSE(Are_The_Same(*recipients, expected));
    expected.Replace(1, "3", "Hello");
    EXPECT_FALSE(Are_The_Same(*recipients, expected));

    QFile list(Job_List_Path(opened.journal->Path()));
    ASSERT_TRUE(list.open(QIODevice::ReadWrite) && list.resize(0));
    EXPECT_EQ(Recipients_Of(*reading.record), std::nullopt);
}
