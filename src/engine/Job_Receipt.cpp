#include "engine/Job_Receipt.h"

#include "engine/Job_Details.h"
#include "engine/Outcome_Words.h"
#include "engine/Part_Deliveries.h"
#include "handset/Delivery_Status.h"
#include "platform/One_Line.h"
#include "texts/Reading_Language.h"
#include "texts/Receipt_Texts.h"

#include <QDateTime>
#include <algorithm>
#include <iterator>

namespace {

namespace T = Texts::Receipts;

constexpr int Digits_Of_The_Card = 4;

Receipt_Kind Kind_Of(Sending_State state)
{
    switch (state) {
    case Sending_State::Accepted:
        return Receipt_Kind::Sent;
    case Sending_State::Skipped:
        return Receipt_Kind::Skipped;
    case Sending_State::Refused:
        return Receipt_Kind::Refused;
    case Sending_State::Handing_Over:
    case Sending_State::Unknown:
        return Receipt_Kind::May_Have_Been_Sent;
    case Sending_State::Waiting:
        break;
    }
    return Receipt_Kind::Not_Tried;
}

// Why a row was skipped, as jobs write it, where the table of recipients has a state for it.
struct Skip_Row
{
    const char* field;
    Row_State state;
};
constexpr Skip_Row Skip_States[] = {{"duplicate", Row_State::Repeated},
                                    {"excluded", Row_State::Excluded},
                                    {"invalid-number", Row_State::Invalid_Number}};

void Tell_Outcome(Receipt_Row& row, const Row_Outcome& outcome)
{
    row.state = outcome.state;
    row.outcome = Outcome_Words(outcome);
    row.signed_outcome = Signed_Outcome(outcome);
}

void Tell_Skip(Receipt_Row& row, const QString& reason)
{
    const auto* const known = std::find_if(std::begin(Skip_States), std::end(Skip_States),
                                           [&](const Skip_Row& each) { return reason == QLatin1String(each.field); });
    const bool has_state = known != std::end(Skip_States);
    Tell_Outcome(row, {has_state ? known->state : Row_State::Excluded, {}});
    if (has_state)
        return;
    const QString words = Words_For_Skip(reason);
    const QString before = row.outcome;
    row.outcome = QString(T::Skipped_Because) + (words.isEmpty() ? On_One_Line(reason) : words);
    row.signed_outcome = row.signed_outcome.chopped(before.size()) + row.outcome;
}

QString Local_Time_Of(qint64 seconds)
{
    return seconds == 0 ? QString()
                        : QDateTime::fromSecsSinceEpoch(seconds).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace

Job_Receipt::Job_Receipt(Job_Record record) : m_record(std::move(record))
{
    m_entries.resize(static_cast<std::size_t>(Row_Count()));
    for (int row = 1; row <= Row_Count(); ++row)
        m_entries[static_cast<std::size_t>(row - 1)].outcome = Kind_Of(m_record.State_Of(row).state);
    if (Asks_For_Reports())
        Match_Reports();
    Add_Up();
}

void Job_Receipt::Match_Reports()
{
    const Part_Deliveries deliveries(m_record);
    for (int row = 1; row <= Row_Count(); ++row) {
        Entry& entry = m_entries[static_cast<std::size_t>(row - 1)];
        if (entry.outcome != Receipt_Kind::Sent)
            continue;
        const std::optional<quint8> status = deliveries.Status_Of(row);
        entry.delivery = Receipt_Kind::No_Report;
        if (!status)
            continue;
        entry.status = *status;
        switch (Handset::Delivery_Status_Of(*status).m_delivery) {
        case Handset::Delivery::Delivered:
            entry.delivery = Receipt_Kind::Delivered;
            break;
        case Handset::Delivery::Still_Trying:
            entry.delivery = Receipt_Kind::Still_Trying;
            break;
        case Handset::Delivery::Not_Delivered:
            entry.delivery = Receipt_Kind::Not_Delivered;
            break;
        }
    }
}

void Job_Receipt::Add_Up()
{
    for (const Entry& entry : m_entries) {
        ++m_counts[static_cast<std::size_t>(entry.outcome)];
        ++m_counts[static_cast<std::size_t>(entry.delivery)];
    }
    m_counts[static_cast<std::size_t>(Receipt_Kind::All)] = Row_Count();
}

QList<std::pair<QString, QString>> Job_Receipt::Facts() const
{
    const Job_Header& header = m_record.Header();
    QList<std::pair<QString, QString>> facts{{T::Job, header.id}, {T::Began, Moment_In_Words(header.seconds)}};
    if (!header.device.isEmpty())
        facts.append({T::Device, On_One_Line(header.device)});
    QStringList ends;
    for (const QString& card : m_record.Cards())
        ends.append(On_One_Line(card.right(Digits_Of_The_Card)));
    if (!ends.isEmpty())
        facts.append({T::Card, T::Card_Ends_With + ends.join(QLatin1String(", "))});
    facts.append({T::State, m_record.Has_Ended() ? T::Has_Ended : T::Has_Not_Ended});
    return facts;
}

QList<Receipt_Kind> Job_Receipt::Kinds() const
{
    QList<Receipt_Kind> kinds{Receipt_Kind::All,       Receipt_Kind::Sent,    Receipt_Kind::May_Have_Been_Sent,
                              Receipt_Kind::Not_Tried, Receipt_Kind::Refused, Receipt_Kind::Skipped};
    if (Asks_For_Reports())
        kinds +=
            {Receipt_Kind::Delivered, Receipt_Kind::Still_Trying, Receipt_Kind::Not_Delivered, Receipt_Kind::No_Report};
    return kinds;
}

std::vector<int> Job_Receipt::Rows_Of(Receipt_Kind kind) const
{
    std::vector<int> rows;
    rows.reserve(static_cast<std::size_t>(Count_Of(kind)));
    for (int row = 1; row <= Row_Count(); ++row) {
        const Entry& entry = m_entries[static_cast<std::size_t>(row - 1)];
        if (kind == Receipt_Kind::All || entry.outcome == kind || entry.delivery == kind)
            rows.push_back(row);
    }
    return rows;
}

Receipt_Row Job_Receipt::Row(int row) const
{
    const Job_Row_State state = m_record.State_Of(row);
    const Row_Details details = Details_Of_State(state);
    const Entry& entry = m_entries[static_cast<std::size_t>(row - 1)];
    const auto frozen = m_record.Row(row);
    Receipt_Row told;
    told.source_row = frozen ? frozen->source_row : row;
    told.number = frozen ? frozen->number : QString();
    told.message = frozen ? frozen->text : QString();
    told.parts = details.parts;
    told.parts_sent = details.parts_sent;
    told.reason = details.reason;
    if (state.state == Sending_State::Skipped)
        Tell_Skip(told, state.words);
    else
        Tell_Outcome(told, Shown_Outcome(details));
    if (!frozen)
        told.reason = T::Cannot_Be_Read;
    else if (state.state == Sending_State::Waiting && details.parts_sent > 0)
        told.reason = T::Some_Parts_Were_Sent;
    told.delivery = Delivery_Of(entry);
    told.time = Local_Time_Of(details.parts > 0 ? m_record.Part(row, 1).handed_over_at : 0);
    return told;
}

QString Job_Receipt::Delivery_Of(const Entry& entry) const
{
    if (entry.delivery == Receipt_Kind::All)
        return {};
    if (entry.delivery == Receipt_Kind::No_Report)
        return T::No_Report_Came;
    const auto [delivery, reason] = Handset::Delivery_Status_Of(entry.status);
    const auto text = [](std::string_view words) {
        return QString(Fixed_Text(words.data())); // a literal
    };
    return reason.empty() ? text(Handset::Name_Of(delivery))
                          : text(Handset::Name_Of(delivery)) + QStringLiteral(": ") + text(reason);
}

QString Name_Of(Receipt_Kind kind)
{
    static constexpr Fixed_Text Names[] = {T::All,           T::Sent,     T::Refused,   T::May_Have_Been_Sent,
                                           T::Not_Tried,     T::Skipped,  T::Delivered, T::Still_Trying,
                                           T::Not_Delivered, T::No_Report};
    return Names[static_cast<std::size_t>(kind)];
}

QString Sums_In_Words(const Job_Receipt& receipt)
{
    QStringList sums;
    for (const Receipt_Kind kind : receipt.Kinds()) {
        if (kind == Receipt_Kind::All || kind == Receipt_Kind::Sent || receipt.Count_Of(kind) > 0)
            sums.append(QString(T::Sum).arg(Name_Of(kind), QString::number(receipt.Count_Of(kind))));
    }
    return sums.join(u' ');
}

QString Moment_In_Words(qint64 seconds)
{
    return Reading_Language::Locale().toString(QDateTime::fromSecsSinceEpoch(seconds), T::Moment);
}
