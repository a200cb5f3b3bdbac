#pragma once

#include "records/Job_Journal.h"
#include "support/Files.h"

#include <QTemporaryDir>
#include <memory>

// A small job of four rows, and what its two files are.

inline const QString Sample_Id = QStringLiteral("20261121-101500-3f9a");

inline const QByteArray Sample_List = "L1\t20261121-101500-3f9a\n"
                                      "O\t00447785016005\t60\t50\t2.5\tauto\n"
                                      "R\t1\t00447700900100\tgsm\t-\t1\t-\t\tDear Ann,\\nsee you\\tsoon.\n"
                                      "R\t2\t00447700900101\tgsm\t-\t2\t200\t\tA long one\n"
                                      "R\t4\t00447700900102\tucs2\t0\t1\t-\t\tZażółć \\\\ 🙂 \\ud83d\n"
                                      "R\t5\t00447700900100\tgsm\t-\t1\t-\tduplicate\tDear Ann,\n"
                                      "Z\t4\t4\n";

inline const QByteArrayList Sample_Lines = {
    // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): the first line of the journal is a long one
    "J1 20261121-101500-3f9a 2026-11-21T09:15:00Z 234150000000001 /dev/ttyUSB0 4 4 "
    "80f696860828ac4b90e12133d0809d931194a2cef7660a9e23722420a29bc152 f7e94d76\n",
    "H 1 1 1 2026-11-21T09:15:01Z 803fabd9\n",
    "S 1 1 17 2026-11-21T09:15:02Z b5bd48fa\n",
    "H 2 1 2 2026-11-21T09:15:03Z 792689e3\n",
    "S 2 1 18 26/11/21,10:15:04+04 2026-11-21T09:15:04Z 59c97b18\n",
    "D 234150000000001 17 00447700900100 0 2026-11-21T09:15:09Z 24a3fa70\n",
    "H 2 2 2 2026-11-21T09:15:05Z 7762874d\n",
    "E 2 2 cms:500 2026-11-21T09:15:06Z 7de8eb67\n",
    "H 3 1 1 2026-11-21T09:15:07Z c32f4730\n",
    "U 3 1 no%20word%20in%20180%20s 2026-11-21T09:15:08Z c058f9bb\n",
    "R 3 send-again:Ann%20B. 2026-11-21T09:15:09Z 98befd4b\n",
    "H 3 1 1 2026-11-21T09:15:10Z 8dacbbc0\n",
    "S 3 1 - 2026-11-21T09:15:11Z cc8c4bdf\n",
    "K 4 person 4c05024c\n",
    "Z 2026-11-21T09:15:12Z ec937c18\n",
};

/// The states of the sample's parts after so many of its lines, as States_Of tells them.
inline const QStringList Sample_States = {"",         "W WW W K", "H WW W K", "S WW W K",      "S HW W K", "S SW W K",
                                          "S SW W K", "S SH W K", "S SE W K", "S SE H K",      "S SE U K", "S SE W K",
                                          "S SE H K", "S SE S K", "S SE S K", "S SE S K ended"};

inline Job_Row Plain_Row(const QString& number, int parts = 1)
{
    Job_Row row;
    row.number = number;
    row.text = QStringLiteral("Dear Ann,");
    row.parts = parts;
    return row;
}

inline QList<Job_Row> Sample_Rows()
{
    const QChar half_a_pair(0xD83D);
    return {
        {1, "00447700900100", "Dear Ann,\nsee you\tsoon.", Job_Alphabet::Gsm, -1, 1, -1, ""},
        {2, "00447700900101", "A long one", Job_Alphabet::Gsm, -1, 2, 200, ""},
        {4, "00447700900102", QStringLiteral("Zażółć \\ 🙂 ") + half_a_pair, Job_Alphabet::Ucs2, 0, 1, -1, ""},
        {5, "00447700900100", "Dear Ann,", Job_Alphabet::Gsm, -1, 1, -1, "duplicate"}};
}

inline Job_Options Sample_Options()
{
    return {"00447785016005", 60, 50, 2.5, Job_Alphabet_Choice::Auto};
}

inline Job_Start Sample_Start()
{
    return {Sample_Id, "234150000000001", "/dev/ttyUSB0", Sample_Options()};
}

inline Next_Job_Row Each_Of(const QList<Job_Row>& rows)
{
    return [rows, next = qsizetype{0}]() mutable {
        return next < rows.size() ? std::optional(rows.at(next++)) : std::nullopt;
    };
}

/// A clock an hour east of Greenwich that shows a quarter past ten when it is first asked, and then a second more every
/// time.
inline Job_Clock Sample_Clock()
{
    const QDateTime begin(QDate(2026, 11, 21), QTime(10, 15), Qt::OffsetFromUTC, 3600);
    return [begin, seconds = 0]() mutable { return begin.addSecs(seconds++); };
}

/// A letter for each part and a blank between rows; K for a row that is skipped.
inline QString States_Of(const Job_Record& record)
{
    QStringList rows;
    for (int row = 1; row <= record.Row_Count(); ++row) {
        QString letters;
        for (int part = 1; part <= record.Parts_Of(row); ++part)
            letters += QStringLiteral("SKWEHU").at(static_cast<int>(record.Part(row, part).state));
        rows += record.State_Of(row).state == Sending_State::Skipped ? QStringLiteral("K") : letters;
    }
    return rows.join(u' ') + (record.Has_Ended() ? " ended" : "");
}

// A folder for jobs that is not there yet.
class Job_Test : public testing::Test
{
protected:
    QString Path(const QString& id = Sample_Id) const { return Job_Journal_Path(m_folder, id); }
    QString List_Path(const QString& id = Sample_Id) const { return Job_List_Path(Path(id)); }

    Job_Journal::Opened Create(const QList<Job_Row>& rows = Sample_Rows()) const
    {
        return Job_Journal::Create(m_folder, Sample_Start(), Each_Of(rows), Sample_Clock());
    }

    /// Puts the sample's list there, and this beside it as its journal.
    void Put(const QByteArray& journal) const
    {
        ASSERT_TRUE(QDir().mkpath(m_folder));
        Write_Bytes(List_Path(), Sample_List);
        Write_Bytes(Path(), journal);
    }
    void Put(const QByteArrayList& lines) const { Put(lines.join()); }

    /// The sample's states, or the trouble.
    QString Read() const
    {
        const Job_Reading reading = Read_Job(Path());
        return reading.record ? States_Of(*reading.record) : Job_Trouble_Sentence(reading.trouble);
    }

    QStringList Names() const
    {
        return QDir(m_folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    QTemporaryDir m_home;
    QString m_folder = m_home.filePath(QStringLiteral("Jobs"));
};
