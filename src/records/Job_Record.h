#pragma once

#include "records/Job_Line.h"
#include "records/Job_List.h"

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

/// What became of a part or a row of a job; from the best to the worst.
enum class Sending_State : quint8
{
    Accepted,     ///< by the network, or counted so by a person
    Skipped,      ///< will not be sent
    Waiting,      ///< was not handed over, or is to be sent again: may be sent
    Refused,      ///< was not sent
    Handing_Over, ///< the journal ends in the middle: may have been sent
    Unknown       ///< may have been sent
};

/// Whether only a person may decide if it is sent again.
constexpr bool May_Have_Been_Sent(Sending_State state)
{
    return state == Sending_State::Handing_Over || state == Sending_State::Unknown;
}

/// What there is to say of a part that was accepted by a person's word alone.
inline constexpr char16_t Counted_By_A_Person[] = u"counted";

struct Job_Part
{
    Sending_State state = Sending_State::Waiting;
    QString words; ///< the cause of a refusal (cms:500, cme:11, error, words:..., no-prompt), be it one after which
                   ///< it is Waiting again, why its state is unknown, or Counted_By_A_Person
    int reference = -1;        ///< that the network gave it; -1 for none
    QString stamp;             ///< the centre's time, if the device told it
    qint64 handed_over_at = 0; ///< seconds since 1970; 0 when it never was
    int tries = 0;             ///< 255 stand for that many or more
    QString imsi;              ///< of the SIM card that it went through, or would; empty where nobody knows
};

struct Job_Row_State
{
    Sending_State state = Sending_State::Waiting; ///< the worst of its parts
    QString words;                                ///< those of its worst part, or why it is skipped
    int parts = 0;
    int parts_sent = 0;
    QList<int> references; ///< of the parts that have one
    int tries = 0;         ///< of the part with the most
};

// A status report as it was received.
struct Job_Report
{
    QString imsi;
    int reference = 0;
    QString number;
    qint64 seconds = 0;              ///< since 1970, when it came
    int status = 0;                  ///< TP-ST, 3GPP TS 23.040 clause 9.2.3.15
    std::optional<qint64> submitted; ///< since 1970, when the centre got the part, if the report told it
};

struct Job_Header
{
    QString id;
    qint64 seconds = 0; ///< since 1970, when it began
    QString imsi;
    QString device;
    int rows = 0;
    int parts = 0; ///< of the rows that are not skipped
    /// Whether the job's files stay when it has ended; nothing where the journal does not say, as older ones do not.
    std::optional<bool> keeps_receipt = std::nullopt;
};

struct Job_Counts
{
    int rows = 0;
    int sent = 0;
    int refused = 0;
    int unknown = 0;
    int skipped = 0;
    int not_tried = 0;
};

// A job as its journal tells it. A value; copies share the list. Rows and parts count from 1, and must be there.
class Job_Record
{
public:
    Job_Record(Job_Header header, std::shared_ptr<const Job_List> list);

    const Job_Header& Header() const { return m_header; }
    const Job_Options& Options() const { return m_list->Options(); }
    int Row_Count() const { return m_list->Row_Count(); }
    int Parts_Of(int row) const { return m_list->Parts_Of(row); }
    /// Reads a row of the frozen list; nothing when it cannot be read any more.
    std::optional<Job_Row> Row(int row) const { return m_list->Row(row); }

    Job_Row_State State_Of(int row) const;
    Job_Part Part(int row, int part) const;
    Job_Counts Counts() const;
    /// How many parts are still to be sent.
    int Parts_Waiting() const;
    /// In the order in which they came.
    const QList<Job_Report>& Reports() const { return m_reports; }
    /// The IMSI of each SIM card that the job is known to have gone through, that of its beginning in front.
    QStringList Cards() const;
    bool Has_Ended() const { return m_has_ended; }

    /// For the reader: takes the next line after the header. Answers no when it does not fit the job.
    bool Take(const Job_Line::Fields& fields);

private:
    // A part in 24 bytes.
    struct Stored_Part
    {
        qint64 handed_over_at = 0;
        quint32 words = 0; // these are indexes into m_texts
        quint32 stamp = 0;
        quint32 card = 0;
        qint16 reference = -1;
        Sending_State state = Sending_State::Waiting;
        quint8 tries = 0;
    };

    bool Take_Hand_Over(const Job_Line::Fields& fields);
    bool Take_Accepted(const Job_Line::Fields& fields);
    bool Take_Not_Accepted(const Job_Line::Fields& fields, Sending_State state);
    bool Take_Skipped(const Job_Line::Fields& fields);
    bool Take_Report(const Job_Line::Fields& fields);
    bool Take_Decision(const Job_Line::Fields& fields);
    bool Take_End(const Job_Line::Fields& fields);
    int Row_In(QByteArrayView field) const;
    Stored_Part* Part_In(const Job_Line::Fields& fields);
    quint32 Text_Index(const QString& text);
    const Stored_Part* First_Part_Of(int row) const { return m_parts.data() + m_list->Parts_Before(row); }
    Sending_State Worst_Of(int row) const;

    Job_Header m_header;
    std::shared_ptr<const Job_List> m_list;
    std::vector<Stored_Part> m_parts; // of all rows
    QHash<int, quint32> m_skipped;    // rows that were skipped in the course of the job, and why
    QStringList m_texts{QString()};
    QHash<QString, quint32> m_text_indexes{{QString(), 0}};
    QList<Job_Report> m_reports;
    bool m_has_ended = false;
};
