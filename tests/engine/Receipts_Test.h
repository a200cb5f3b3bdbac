#pragma once

#include "engine/Job_Receipt.h"
#include "records/Job_Samples.h"

#include <QDir>
#include <memory>

// What is done to one row of a job that is made for a receipt, in letters: H handed over, S accepted, E refused, U
// unknown, K skipped in the course of the job; each once for each part in its turn. C: a person counts it as sent.
struct Receipt_Job_Row
{
    Job_Row row;
    QString letters;
    QString words = QStringLiteral("cms:500"); ///< of a refusal, a doubt or a skip
};

// Makes real journals of jobs, and reads them.
class Receipts_Test : public Job_Test
{
protected:
    static Job_Row Row_To(const QString& number, const QString& text = QStringLiteral("Dear Ann,"), int parts = 1)
    {
        static int source_row = 0;
        Job_Row row = Plain_Row(number, parts);
        row.source_row = ++source_row;
        row.text = text;
        return row;
    }

    /// Part n of row m is accepted with the reference 10 * m + n.
    std::unique_ptr<Job_Journal> Make(const QList<Receipt_Job_Row>& rows, bool asks_for_reports = true,
                                      const QString& id = Sample_Id) const
    {
        QList<Job_Row> frozen;
        for (const Receipt_Job_Row& each : rows)
            frozen.append(each.row);
        Job_Start start = Sample_Start();
        start.id = id;
        start.options.report_seconds = asks_for_reports ? 60 : -1;
        auto made = Job_Journal::Create(m_folder, start, Each_Of(frozen), Sample_Clock());
        EXPECT_TRUE(made.journal);
        for (int row = 1; made.journal && row <= rows.size(); ++row)
            Treat(*made.journal, row, rows.at(row - 1));
        return std::move(made.journal);
    }

    Job_Record Record(const QString& id = Sample_Id) const
    {
        Job_Reading reading = Read_Job(Path(id));
        if (!reading.record)
            qFatal("%s", qPrintable(Job_Trouble_Sentence(reading.trouble)));
        return *reading.record;
    }
    std::shared_ptr<const Job_Receipt> Receipt() const { return std::make_shared<const Job_Receipt>(Record()); }

private:
    static void Treat(Job_Journal& journal, int row, const Receipt_Job_Row& job)
    {
        int part = 0;
        for (const QChar letter : job.letters) {
            if (letter == u'C') {
                EXPECT_TRUE(journal.Decide(row, Job_Decision::Count_As_Sent, QStringLiteral("user")));
                continue;
            }
            part = std::min(part + 1, job.row.parts);
            if (letter == u'K') {
                EXPECT_TRUE(journal.Skipped(row, job.words));
                continue;
            }
            EXPECT_TRUE(journal.Hand_Over(row, part, job.row.parts));
            EXPECT_TRUE(letter != u'S' || journal.Accepted(row, part, (10 * row + part) % 256));
            EXPECT_TRUE(letter != u'E' || journal.Refused(row, part, job.words));
            EXPECT_TRUE(letter != u'U' || journal.Unknown(row, part, job.words));
        }
    }
};
