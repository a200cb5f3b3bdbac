#include "engine/Receipt_Csv.h"
#include "engine/Receipt_Html.h"
#include "engine/Receipt_Text.h"
#include "records/Job_Reader.h"
#include "support/In_Language.h"
#include "windows/main/Confirmed_Sending_Test.h"
#include "windows/main/Sending_Test.h"

// Files outlive the language that a program is read in: what a job writes is the same in every one.

namespace {

using testing::ElementsAre;

class Job_In_German : public Sending_Test
{
protected:
    const In_Language m_german{"de"};
};

TEST_F(Job_In_German, Keeps_The_Records_That_It_Keeps_In_English)
{
    Add("111", "first");
    Add("222", "second\nand a line");
    Add("111", "first again");
    Exclude("333");
    Add("333", "never");
    m_window.m_choices.save_sent_items = m_window.m_choices.save_templates = true;
    m_window.m_choices.exclusion = m_window.m_choices.skip_duplicates = true;
    Send_And_Read({"\nDer Versand ist abgeschlossen."});
    EXPECT_EQ(Received(), (QStringList{"111: first", "222: second\nand a line"}));
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), Record("111", "first") + Record("222", "second|AP*|DX/and a line"));
    EXPECT_EQ(Bytes_Of(Templates_Path), "first\nsecond|AP*|DX/and a line\n");
}

/// The state of each row, and the words that the journal has of it.
QStringList States_In(const Job_Record& record)
{
    QStringList states;
    for (int row = 1; row <= record.Row_Count(); ++row) {
        const Job_Row_State state = record.State_Of(row);
        states.append(QString::number(static_cast<int>(state.state)) + u' ' + state.words);
    }
    return states;
}

/// The three files that can be made of a job.
QList<QByteArray> Receipts_Of(const Job_Record& record)
{
    const auto receipt = std::make_shared<const Job_Receipt>(record);
    QList<QByteArray> files;
    for (const Export_Content& content : {Receipt_Text(receipt), Receipt_Html(receipt), Receipt_Csv(receipt)}) {
        QByteArray file = content.header;
        for (qsizetype index = 0; index < content.count; ++index)
            file += content.piece(index);
        files.append(file);
    }
    return files;
}

class Confirmed_Job_In_German : public Confirmed_Sending_Test
{
protected:
    /// Sends the list, and reads the journal that the job leaves.
    Job_Record Record_Of_The_Job()
    {
        QDir(Jobs_Folder_Path).removeRecursively();
        Send_With_One_Box();
        const auto jobs = Kept_Jobs(Jobs_Folder_Path);
        if (jobs.size() != 1)
            qFatal("there are %d journals", static_cast<int>(jobs.size()));
        return Read_Job(jobs.first().job.path).record.value();
    }
};

TEST_F(Confirmed_Job_In_German, Has_The_Journal_And_The_Receipts_Of_One_In_English)
{
    Tick("_Keep_Receipt_Chk");
    Tick("_Skip_Duplicate_Chk");
    Add_All({"0700900101", "0700900102"});
    Have([](Phone_Moods& moods) { moods.m_cms_error_at = {{2, 500}, {4, 500}}; });
    const Job_Record english = Record_Of_The_Job();
    const auto receipts = Receipts_Of(english);
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("✓ sent", "✗ refused (500: unknown error)"));

    const In_Language reading("de");
    EXPECT_TRUE(Receipts_Of(english) == receipts); // hundreds of lines if printed
    const QStringList states = States_In(english);
    EXPECT_EQ(States_In(Record_Of_The_Job()), states);
    EXPECT_THAT(Shown_Outcomes(), ElementsAre("✓ gesendet", "✗ abgelehnt (500: unbekannter Fehler)"));
}

} // namespace
