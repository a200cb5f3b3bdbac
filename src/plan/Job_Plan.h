#pragma once

#include "list/Number_List.h"
#include "list/Recipient_List.h"
#include "plan/Plan_Number.h"
#include "plan/Plan_Sums.h"
#include "plan/Planned_Row.h"

#include <QHash>
#include <functional>
#include <memory>
#include <vector>

class Row_Judge;

/// What a plan is made by.
struct Plan_Terms
{
    Plan_Manner manner;
    Number_List excluded;
    bool skip_duplicates = false;
    const Country* country = nullptr; ///< null to leave numbers as they are written
    Number_List present;              ///< besides earlier rows, duplicates are looked for here
    Plan_Numbers numbers = Plan_Numbers::In_A_Table;
    bool judges_numbers = false; ///< of a list that no job has yet, whatever the manner
};

/// For whoever waits while a plan is made; either may be missing. Called on its thread, now and then.
struct Plan_Watch
{
    std::function<void(int done, int of)> progress;
    std::function<bool()> is_stopped; ///< the plan then holds the rows so far
};

// A job before it is sent: for every row whether it is sent and why not, its number, its text and its parts. Keeps
// sixteen bytes a row besides the table or the list, and makes texts when they are asked for. A value: made on a
// worker, read on any thread, changed by one.
class Job_Plan
{
public:
    Job_Plan() = default;

    /// Of the rows of a table, all of which get the message. Where the numbers are typed or on lines, the table is only
    /// what holds them, and there are no fields. An empty message is one that is written later.
    static Job_Plan Of_Table(std::shared_ptr<const Contact_Table> table, int number_column, const QString& message,
                             const Plan_Terms& terms, const Plan_Watch& watch = {});
    /// Of the recipients of a list, as a job would send them: their numbers are as the list holds them.
    static Job_Plan Of_List(const Recipient_List& list, const Plan_Terms& terms, const Plan_Watch& watch = {});

    // Rows count from 0 to Count() - 1.

    int Count() const { return static_cast<int>(m_entries.size()); }
    Row_Verdict Verdict_Of(int row) const { return Entry_At(row).verdict; }
    int Parts_Of(int row) const { return Entry_At(row).parts; }
    bool Is_Unicode(int row) const { return Entry_At(row).is_unicode; }
    /// Where the row stands in its file; in a list its place, counted from 1.
    int Source_Row(int row) const { return m_table ? m_table->Source_Row(row) : row + 1; }
    /// The number as it stood there, or as it was put right.
    QString Written_Number(int row) const;
    /// The number as it will be dialled; empty for an invalid one.
    QString Number_Of(int row) const;
    /// The text with its placeholders filled; one that stands for nothing stays in it.
    QString Text_Of(int row) const { return Filled_At(row).text; }
    /// What is to be said about the row, in a sentence: what was made of its number, or why it is not sent. Mostly
    /// empty.
    QString Reason_Of(int row) const;
    /// The text with what keeps it from being sent, if that is in it; its fault is one of Skip_Words.
    Filled_Message Fault_Of(int row) const;
    /// The row as lists of planned rows show it.
    Planned_Row At(int row) const;

    /// Puts a number right. The row is judged again, and so is what hung on its number before, and now hangs on it. A
    /// list holds no number that cannot be dialled: the row of one then stays as it was, and the answer is no.
    bool Set_Number(int row, const QString& written);

    /// Looks at every row: a millisecond for some hundred thousand.
    Plan_Sums Sums() const;
    /// Appends the rows that are to be sent, with their fields and with the message as it is given.
    void Add_To(Recipient_List& recipients, const QString& message) const;

private:
    struct Entry
    {
        Packed_Number number; ///< empty for one that cannot be used, and for one of a list that has other characters
        quint16 parts = 1;
        Row_Verdict verdict = Row_Verdict::Send;
        bool is_unicode = false;
    };

    class Maker;

    const Entry& Entry_At(int row) const { return m_entries[static_cast<std::size_t>(row)]; }
    Entry& Entry_At(int row) { return m_entries[static_cast<std::size_t>(row)]; }
    bool Is_Of_List() const { return !m_table; }
    bool Has_Fields() const { return m_table && m_terms.numbers == Plan_Numbers::In_A_Table; }
    Read_Number Reading_Of(int row) const;
    Packed_Number Packed_At(int row) const;
    QString Number_Read(int row) const;
    QString Shown_Number(int row) const;
    bool Is_Usable(int row) const;
    QString Note_For(int row) const;
    QString Clause_For(int row) const;
    Filled_Message Filled_At(int row) const;
    void Take_Message_Of(int row, Row_Judge& judge) const;
    int Row_For_Filling(int row) const;
    void Judge(int row, Row_Judge& judge);
    void Count_Causes(int row, const Row_Judge& judge, int by);
    void Settle_Equals(const QString& number, Row_Judge& judge);

    Plan_Terms m_terms;
    std::shared_ptr<const Contact_Table> m_table; // null for a plan of a list
    int m_number_column = 0;
    QString m_message;                                // of all rows of the table
    std::shared_ptr<const Message_Filling> m_filling; // the same, taken apart
    Recipient_List m_list;
    std::vector<Entry> m_entries;
    QHash<int, QString> m_written; // numbers that were put right
    QHash<char32_t, int> m_causes; // in how many rows that are to be sent
};
