#pragma once

#include "engine/Row_Outcome.h"
#include "records/Job_Record.h"

#include <QList>
#include <QString>
#include <array>
#include <utility>
#include <vector>

/// What a row of a receipt counts among: all, one of the outcomes, and one of the deliveries where reports were asked
/// for and the message was sent.
enum class Receipt_Kind : quint8
{
    All,
    Sent,
    Refused,
    May_Have_Been_Sent,
    Not_Tried,
    Skipped,
    Delivered, ///< each of its parts
    Still_Trying,
    Not_Delivered, ///< one of its parts, for good
    No_Report      ///< on one of its parts at least, and on the others nothing but that they were delivered
};

// One message of a receipt, in words.
struct Receipt_Row
{
    int source_row = 0; ///< the row of the input
    QString number;     ///< as the list holds it
    QString message;
    Row_State state = Row_State::Not_Tried;
    QString outcome;        ///< in a few words on one line
    QString signed_outcome; ///< behind its sign
    QString reason;         ///< one sentence; empty where there is nothing to say
    int parts = 0;
    int parts_sent = 0;
    QString delivery; ///< empty where no report was asked for, and where not all of it was sent
    QString time;     ///< when its first part was handed over, in local time; empty when it never was
};

// What became of a job's messages: sums, and the rows in words. Keeps the record and three bytes a row, so that a
// million rows can be looked at; each is put into words when it is asked for. A value that never changes; any thread.
class Job_Receipt
{
public:
    /// Adds everything up and matches the reports. For a worker: a large job takes a while.
    explicit Job_Receipt(Job_Record record);

    const QString& Id() const { return m_record.Header().id; }
    int Row_Count() const { return m_record.Row_Count(); }
    bool Asks_For_Reports() const { return m_record.Options().report_seconds >= 0; }
    /// The facts about the job, each with what it is called: when it began, through what device, which SIM card.
    QList<std::pair<QString, QString>> Facts() const;

    /// The kinds that its rows may be of, all in front.
    QList<Receipt_Kind> Kinds() const;
    int Count_Of(Receipt_Kind kind) const { return m_counts[static_cast<std::size_t>(kind)]; }
    /// The rows of a kind, counted from 1.
    std::vector<int> Rows_Of(Receipt_Kind kind) const;
    /// Counted from 1, too.
    Receipt_Row Row(int row) const;

private:
    struct Entry
    {
        Receipt_Kind outcome = Receipt_Kind::Not_Tried;
        Receipt_Kind delivery = Receipt_Kind::All; ///< All where there is nothing to say
        quint8 status = 0;                         ///< the TP-ST that decides about the delivery
    };

    void Add_Up();
    void Match_Reports();
    QString Delivery_Of(const Entry& entry) const;

    Job_Record m_record;
    std::vector<Entry> m_entries;
    std::array<int, 10> m_counts{};
};

/// What a kind is called, in front of its sum.
QString Name_Of(Receipt_Kind kind);

/// "Recipients: 12. Sent: 11. Refused: 1." and so on: those of which there are some, and always the first two.
QString Sums_In_Words(const Job_Receipt& receipt);

/// A time in seconds since 1970 as a person reads it in a sentence, in local time: "21 November 2026, 10:15".
QString Moment_In_Words(qint64 seconds);
