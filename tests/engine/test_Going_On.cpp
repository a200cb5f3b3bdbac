#include "engine/Confirmed_Test.h"
#include "engine/Job_Receipt.h"
#include "engine/Outcome_Words.h"
#include "texts/Confirmed_Texts.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

/// Jobs whose rest is sent later, and what lists of recipients show of them.
class Going_On : public Confirmed_Test
{
protected:
    Going_On()
    {
        for (const char* number : {"0700900100", "0700900101", "0700900102", "0700900103"})
            Add(QString::fromLatin1(number), QStringLiteral("Hello"));
    }

    /// Stops after so many rows, and begins anew with what the journal knows.
    void Run_And_Stop_After(std::size_t rows)
    {
        m_witness.m_on_row = [this, rows] { m_stop = m_witness.m_rows.size() == rows ? 1 : 0; };
        Run();
        m_witness = {};
        const auto unfinished = Unfinished_Jobs(m_options.folder);
        ASSERT_EQ(unfinished.size(), 1);
        m_options.resumed_path = unfinished.first().path;
        m_options.skipped.clear();
    }

    void Give_No_Prompt()
    {
        Set_Pace(2000);
        Phone_Moods moods;
        moods.m_no_prompt = true;
        m_phone.Set_Moods(moods);
    }
};

} // namespace

TEST_F(Going_On, Rows_That_Were_Skipped_Stay_So_And_Say_Why)
{
    m_order.recipients.Replace(1, QStringLiteral("0700900100"), QStringLiteral("Hello"));
    m_order.choices.skip_duplicates = true;
    m_options.skipped.insert(2, QStringLiteral("empty-field"));
    Run_And_Stop_After(1);
    m_order.choices.skip_duplicates = false;
    Run();
    EXPECT_THAT(m_witness.m_outcomes, ElementsAre(Pair(0, Row_State::Sent), Pair(1, Row_State::Repeated),
                                                  Pair(2, Row_State::Not_Filled), Pair(3, Row_State::Sent)));
    EXPECT_EQ(Texts().size(), 2U);
    EXPECT_THAT(Unfinished_Jobs(m_options.folder), IsEmpty());
}

TEST_F(Going_On, What_Was_Sent_Before_Is_Not_Called_Skipped_Because_Of_A_Choice_That_Came_Later)
{
    m_order.recipients.Replace(2, QStringLiteral("0700900100"), QStringLiteral("Hello"));
    m_order.recipients.Replace(3, QStringLiteral("0700900100"), QStringLiteral("Hello"));
    Run_And_Stop_After(3);
    m_order.choices.skip_duplicates = true; // rows 3 and 4 have the number of row 1
    m_options.hands_out_record = true;
    Run();
    EXPECT_THAT(m_witness.m_outcomes, ElementsAre(Pair(0, Row_State::Sent), Pair(1, Row_State::Sent),
                                                  Pair(2, Row_State::Sent), Pair(3, Row_State::Repeated)));
    EXPECT_EQ(Texts().size(), 3U);
    ASSERT_TRUE(m_record);
    EXPECT_EQ(m_record->State_Of(4).state, Sending_State::Skipped);
    EXPECT_EQ(m_record->State_Of(4).words, QStringLiteral("duplicate"));
}

TEST_F(Going_On, A_Row_That_The_Journal_Says_Is_Skipped_Is_Never_Sent)
{
    Run_And_Stop_After(1);
    {
        const auto opened = Job_Journal::Open_To_Go_On(m_options.resumed_path);
        ASSERT_TRUE(opened.journal);
        ASSERT_TRUE(opened.journal->Skipped(3, QStringLiteral("by hand")) && opened.journal->Sync());
    }
    Run();
    EXPECT_EQ(Texts().size(), 3U);
    EXPECT_THAT(m_witness.m_outcomes, testing::Contains(Pair(2, Row_State::Skipped)));
}

TEST_F(Going_On, A_Message_Refused_Between_Its_Parts_Is_None_That_Was_Not_Taken)
{
    m_order.recipients.Replace(0, QStringLiteral("0700900100"), QString(200, u'x'));
    Phone_Moods moods;
    moods.m_cms_error_at = {{2, 195}};
    m_phone.Set_Moods(moods);
    const auto expect_the_same_of_its_list_and_its_details = [this] {
        ASSERT_FALSE(m_witness.m_outcomes.empty());
        EXPECT_EQ(m_witness.m_outcomes[0].second, Row_State::Partly_Taken);
        EXPECT_EQ(m_witness.m_rows[0].outcome.state, Row_State::Refused);
        EXPECT_EQ(m_witness.m_rows[0].parts_sent, 1);
    };
    m_witness.m_on_row = [this] { m_stop = m_witness.m_rows.size() == 2 ? 1 : 0; };
    Run();
    expect_the_same_of_its_list_and_its_details();
    m_witness = {};
    m_options.resumed_path = Unfinished_Jobs(m_options.folder).first().path;
    Run();
    expect_the_same_of_its_list_and_its_details();
    EXPECT_EQ(m_phone.Parts().size(), 4U);
    EXPECT_FALSE(Was_Not_Taken(Row_State::Partly_Taken));
}

TEST_F(Going_On, A_Message_That_A_Stop_Has_Cut_Is_Gone_On_With_From_Its_Next_Part)
{
    m_order.recipients.Replace(0, QStringLiteral("0700900100"), QString(200, u'x'));
    Phone_Moods moods;
    moods.m_network_lost_at = 2;
    m_phone.Set_Moods(moods);
    m_witness.m_on_held = [this] { m_stop = 1; };
    Run();
    EXPECT_THAT(m_witness.m_outcomes, ElementsAre(Pair(0, Row_State::Partly_Taken)));
    m_witness = {};
    m_phone.Set_Moods({});
    m_options.resumed_path = Unfinished_Jobs(m_options.folder).first().path;
    Run();
    EXPECT_THAT(Texts(), testing::Contains(std::string(200, 'x')));
    EXPECT_EQ(m_phone.Parts().size(), 5U);
    EXPECT_EQ(m_witness.m_rows[0].parts_sent, 2);
    EXPECT_EQ(m_witness.m_rows[0].references.size(), 2) << "of the part before the stop, too";
}

TEST_F(Going_On, A_Long_Message_That_Is_Counted_As_Sent_Is_Not_Gone_On_With)
{
    m_order.recipients.Replace(0, QStringLiteral("0700900100"), QString(200, u'x'));
    Phone_Moods moods;
    moods.m_cms_error_at = {{1, 332}};
    m_phone.Set_Moods(moods);
    Run_And_Stop_After(1);
    {
        const auto opened = Job_Journal::Open_To_Go_On(m_options.resumed_path);
        ASSERT_TRUE(opened.journal);
        ASSERT_TRUE(opened.journal->Decide(1, Job_Decision::Count_As_Sent, QStringLiteral("user")));
    }
    EXPECT_EQ(Unfinished_Jobs(m_options.folder).first().counts.not_tried, 3);
    Run();
    EXPECT_EQ(m_phone.Parts().size(), 3U) << "none of the first message";
    EXPECT_EQ(m_witness.m_rows[0].outcome.state, Row_State::Sent);
    EXPECT_EQ(m_witness.m_rows[0].parts_sent, 1);
    EXPECT_THAT(Unfinished_Jobs(m_options.folder), IsEmpty());
}

TEST_F(Going_On, The_Record_Of_A_Finished_Job_Stays_Readable_When_Its_Files_Are_Gone)
{
    m_options.hands_out_record = true;
    m_options.job.report_seconds = 60;
    Phone_Moods moods;
    moods.m_report_after_seconds = 0.01;
    m_phone.Set_Moods(moods);
    Run();
    EXPECT_THAT(QDir(m_options.folder).entryList(QDir::Files), IsEmpty());
    ASSERT_TRUE(m_record);
    EXPECT_TRUE(m_record->Has_Ended());
    EXPECT_EQ(m_record->Counts().sent, 4);
    EXPECT_EQ(m_record->Reports().size(), 4);
    ASSERT_TRUE(m_record->Row(4));
    EXPECT_EQ(m_record->Row(4)->number, QStringLiteral("0700900103"));
    EXPECT_THAT(m_witness.m_shown, testing::Contains(QStringLiteral("Waiting for delivery reports.")));
}

TEST_F(Going_On, A_Row_That_Got_No_Prompt_Was_Refused_And_Everybody_Knows)
{
    Give_No_Prompt();
    m_witness.m_on_row = [this] {
        m_phone.Set_Moods({});
        m_stop = m_witness.m_rows.size() == 2 ? 1 : 0;
    };
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Refused, Row_State::Sent));
    EXPECT_EQ(m_witness.m_rows[0].tries, 4);
    m_witness = {};
    const auto unfinished = Unfinished_Jobs(m_options.folder);
    ASSERT_EQ(unfinished.size(), 1);
    EXPECT_EQ(unfinished.first().counts.refused, 1);
    EXPECT_EQ(unfinished.first().counts.unknown, 0);
    const Job_Receipt receipt(*Read_Job(unfinished.first().path).record);
    EXPECT_EQ(receipt.Count_Of(Receipt_Kind::Refused), 1);
    EXPECT_EQ(receipt.Row(1).reason, QString(Texts::Confirmed::No_Prompt));
    m_options.resumed_path = unfinished.first().path;
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Refused, Row_State::Sent, Row_State::Sent, Row_State::Sent));
    EXPECT_TRUE(m_witness.m_rows[0].is_earlier);
    EXPECT_EQ(m_witness.m_rows[0].reason, QString(Texts::Confirmed::No_Prompt));
    EXPECT_EQ(Texts().size(), 3U);
    EXPECT_THAT(Unfinished_Jobs(m_options.folder), IsEmpty());
}

TEST_F(Going_On, A_Row_That_Was_Stopped_Between_Its_Tries_For_A_Prompt_Was_Not_Tried)
{
    Give_No_Prompt();
    m_witness.m_on_shown = [this] {
        m_stop = m_witness.m_shown.last() == QString(Texts::Confirmed::No_Prompt) ? 1 : 0;
    };
    Run();
    EXPECT_THAT(m_witness.m_outcomes, ElementsAre(Pair(0, Row_State::Not_Tried)));
    m_witness = {};
    m_stop = 0;
    m_phone.Set_Moods({});
    m_options.resumed_path = Unfinished_Jobs(m_options.folder).first().path;
    Run();
    EXPECT_EQ(Texts().size(), 4U);
}

TEST_F(Going_On, A_Wait_That_Is_Over_Is_Shown_No_Longer)
{
    Phone_Moods moods;
    moods.m_cms_error_at = {{1, 41}};
    m_phone.Set_Moods(moods);
    Run();
    EXPECT_THAT(m_witness.m_shown, ElementsAre(QStringLiteral("The network has a temporary failure."), "0700900100"));
}
