#include "device/MFCSMS.h"
#include "engine/Confirmed_Test.h"
#include "engine/Fixed_Wait_Manner.h"
#include "engine/Job_Order.h"
#include "engine/Job_Receipt.h"
#include "list/Table_File.h"
#include "platform/Interface_Thread.h"
#include "records/Data_Paths.h"
#include "support/Files.h"

using testing::ElementsAre;
using testing::Pair;

namespace {

/// Jobs with a list whose recipients have fields.
class Filled_Jobs : public Confirmed_Test
{
protected:
    Filled_Jobs()
    {
        const auto table = std::make_shared<const Contact_Table>(
            Table_Of_Bytes("Tel,Name,Town\n0700900100,Ann,Bath\n0700900101,,Ely\n0700900102,Cem,\n0700900101,Dee,Ely\n"
                           "0700900104," +
                               QByteArray(1600, 'x') + ",Ayr\n",
                           QStringLiteral("a.csv"), {})
                .table);
        for (int row = 0; row < table->Row_Count(); ++row)
            m_order.recipients.Append_From_Table(table->Field(row, 0), QStringLiteral("Dear {{Name}}!"), table, row);
        m_order.recipients.Append(QStringLiteral("0700900105"), QStringLiteral("{{Nmae}} {{{{"));
        m_order.recipients.Replace(2, QStringLiteral("0700900102"), QStringLiteral("{{Town|}}"));
        m_options.hands_out_record = true;
    }

    void Run_With_Fixed_Waits()
    {
        {
            MFCSMS session;
            Fixed_Wait_Manner manner(m_order, session);
            Send_Job(m_order, manner, m_witness, m_witness, Stop_SMS_Sending_Now).Send_SMS_Func();
        }
        Finish_Workers();
    }
};

} // namespace

TEST_F(Filled_Jobs, Each_Gets_A_Text_Of_Their_Own_And_Nobody_One_With_Gaps)
{
    Run();
    EXPECT_THAT(Texts(), ElementsAre("Dear Ann!", "Dear Dee!"));
    EXPECT_THAT(m_witness.m_outcomes,
                ElementsAre(Pair(0, Row_State::Sent), Pair(1, Row_State::Not_Filled), Pair(2, Row_State::Not_Filled),
                            Pair(3, Row_State::Sent), Pair(4, Row_State::Not_Filled), Pair(5, Row_State::Not_Filled)));
    EXPECT_EQ(m_witness.m_rows[1].reason, "{{Name}} is empty");
    EXPECT_EQ(m_witness.m_rows[2].reason, "its text is empty");
    EXPECT_EQ(m_witness.m_rows[4].reason, "its text is too long");
    EXPECT_EQ(m_witness.m_rows[5].reason, "{{Nmae}} is unknown");
    EXPECT_EQ(m_witness.m_told.size(), 1);
}

TEST_F(Filled_Jobs, Fixed_Waits_Send_The_Same_Texts)
{
    Run_With_Fixed_Waits();
    EXPECT_THAT(Texts(), ElementsAre("Dear Ann!", "Dear Dee!"));
    ASSERT_EQ(m_witness.m_outcomes.size(), 6U);
    EXPECT_EQ(m_witness.m_outcomes[1], std::pair(1, Row_State::Not_Filled));
    EXPECT_EQ(m_witness.m_shown, (QStringList{"0700900101 is Skipped.", "0700900102 is Skipped.",
                                              "0700900104 is Skipped.", "0700900105 is Skipped."}));
}

TEST_F(Filled_Jobs, Records_Hold_What_Was_Sent)
{
    Set_Data_Paths(m_folder.path());
    Check_Path_And_Create_Files();
    m_order.choices.save_sent_items = true;
    m_order.choices.save_templates = true;
    Run_With_Fixed_Waits();
    for (const QString& path : {Sent_Item_Path, Templates_Path}) {
        const std::string records = Bytes_Of(path).toStdString();
        EXPECT_THAT(records, testing::HasSubstr("Dear Ann!"));
        EXPECT_THAT(records, testing::HasSubstr("Dear Dee!"));
        EXPECT_THAT(records, testing::Not(testing::HasSubstr("{{")));
    }
}

TEST_F(Filled_Jobs, The_Journal_Freezes_The_Filled_Texts_And_Says_What_Was_Skipped)
{
    m_witness.m_on_row = [this] { m_stop = 1; };
    Run();
    ASSERT_TRUE(m_record);
    EXPECT_EQ(m_record->Row(1)->text, "Dear Ann!");
    EXPECT_EQ(m_record->Row(4)->text, "Dear Dee!");
    const char* skips[] = {"", "empty-field", "empty-field", "", "too-long", "unknown-field"};
    for (int row = 1; row <= 6; ++row)
        EXPECT_EQ(m_record->Row(row)->skipped, skips[row - 1]) << row;
    const Job_Receipt receipt(*m_record);
    EXPECT_EQ(receipt.Row(2).outcome, "skipped: a placeholder is empty");
    EXPECT_EQ(receipt.Row(6).outcome, "skipped: a placeholder is unknown");
    const auto of_journal = Recipients_Of(*m_record);
    ASSERT_TRUE(of_journal);
    EXPECT_TRUE(Are_The_Same(m_order.recipients, *of_journal))
        << "the list is known again when the job is gone on with";
}

TEST_F(Filled_Jobs, What_Was_Stopped_Goes_On_With_The_Texts_Of_The_Journal)
{
    m_witness.m_on_row = [this] { m_stop = 1; };
    Run();
    m_witness = {};
    m_options.resumed_path = Job_Journal_Path(m_options.folder, m_job);
    ASSERT_TRUE(m_record);
    m_order.recipients = *Recipients_Of(*m_record);
    Run();
    EXPECT_THAT(Texts(), ElementsAre("Dear Ann!", "Dear Dee!"));
    EXPECT_THAT(m_witness.m_outcomes,
                ElementsAre(Pair(0, Row_State::Sent), Pair(1, Row_State::Not_Filled), Pair(2, Row_State::Not_Filled),
                            Pair(3, Row_State::Sent), Pair(4, Row_State::Not_Filled), Pair(5, Row_State::Not_Filled)));
}

TEST_F(Filled_Jobs, Only_Who_Gets_A_Message_Makes_Later_Ones_Repeats)
{
    m_order.choices.skip_duplicates = true;
    m_order.recipients.Append(QStringLiteral("0700900100"), QStringLiteral("again"));
    Run();
    EXPECT_THAT(Texts(), ElementsAre("Dear Ann!", "Dear Dee!"));
    EXPECT_EQ(m_witness.m_outcomes[3], std::pair(3, Row_State::Sent)) << "row 2, with the same number, was not filled";
    EXPECT_EQ(m_witness.m_outcomes[6], std::pair(6, Row_State::Repeated));
}

TEST(Lists_Without_Fields, Are_Sent_As_They_Are_Written)
{
    Recipient_List list;
    list.Append(QStringLiteral("1"), QStringLiteral("{{Name}} {{{{") + QString(1700, u'x'));
    list.Append(QStringLiteral("1"), {});
    EXPECT_EQ(Text_To_Send(list, 0).text, list.Message_At(0).left(1600));
    EXPECT_EQ(Text_To_Send(list, 0).fault, "");
    EXPECT_EQ(Text_To_Send(list, 1).fault, "");
    Send_Order order;
    order.recipients = list;
    order.choices.skip_duplicates = true;
    Find_Repeats(order);
    EXPECT_TRUE(order.repeats.empty());
    EXPECT_EQ(Reason_To_Skip(order, 1), Skip_Reason::Repeated);
}
