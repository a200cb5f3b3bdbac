#pragma once

#include "plan/Row_Verdict.h"
#include "plan/Text_Measure.h"

#include <QHash>
#include <memory>

/// What a plan knows of a row besides its number.
struct Judged_Text
{
    Row_Verdict verdict = Row_Verdict::Send; ///< or what its text is not sent for
    quint16 parts = 1;
    bool is_unicode = false;
};

// Judges the texts of rows one after another: fast where they share a message, or at least a table. One thread.
class Row_Judge
{
public:
    explicit Row_Judge(const Plan_Manner& manner) : m_manner(manner) {}

    /// From here on the rows have this message; with a table its placeholders are filled, without one braces mean
    /// nothing. The table lives as long as rows are judged.
    void Take_Message(const QString& message, const Contact_Table* table);
    /// Judges the text of a row of the table, or of a recipient without values for -1. number is called where the
    /// length of a frame decides.
    template <typename Get_Number>
    Judged_Text Judge(int row, Get_Number number)
    {
        Text_Measure::Cost cost = m_measure->Cost_For(*m_table, row);
        if (cost.parts < 0)
            cost.parts = Parts_With_Frame(row, m_manner.fixed_waits ? number() : QStringLiteral("1"));
        return Judged(cost);
    }
    /// The characters of the row's text that are the reason for Unicode.
    std::vector<char32_t> Causes(int row) const { return m_measure->Outsiders(*m_table, row); }

private:
    int Parts_With_Frame(int row, const QString& number);
    Judged_Text Judged(const Text_Measure::Cost& cost) const;

    Plan_Manner m_manner;
    QString m_message;
    const Contact_Table* m_table = nullptr;
    const Contact_Table* m_asked_table = nullptr;
    std::unique_ptr<Text_Measure> m_measure;
    QHash<qsizetype, int> m_parts_by_digits; // of a text for all, whose frames differ in the length of a number alone
};
