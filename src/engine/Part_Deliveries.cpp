#include "engine/Part_Deliveries.h"

#include "engine/Report_Desk.h"
#include "handset/Delivery_Status.h"

#include <algorithm>
#include <tuple>

namespace {

constexpr qint16 No_Report = -1;
constexpr std::size_t References = 256;

// The higher, the more it says about the whole message. Among those that were delivered, one with a reservation.
std::tuple<int, bool> Weight_Of(qint16 status)
{
    const auto [delivery, reason] = Handset::Delivery_Status_Of(static_cast<quint8>(status));
    return {static_cast<int>(delivery), !reason.empty()};
}
static_assert(Handset::Delivery::Delivered < Handset::Delivery::Still_Trying &&
              Handset::Delivery::Still_Trying < Handset::Delivery::Not_Delivered);

} // namespace

Part_Deliveries::Part_Deliveries(const Job_Record& record)
{
    m_first_part.reserve(static_cast<std::size_t>(record.Row_Count()) + 1);
    int parts = 0;
    for (int row = 1; row <= record.Row_Count(); ++row) {
        m_first_part.push_back(parts);
        parts += record.Parts_Of(row);
    }
    m_first_part.push_back(parts);
    m_statuses.assign(static_cast<std::size_t>(parts), No_Report);
    std::vector<bool> references(References);
    for (const Job_Report& report : record.Reports())
        references[static_cast<std::size_t>(report.reference)] = true;
    Take(record, references);
}

// Of several parts with one reference the one is meant that was handed over nearest to what the report tells.
void Part_Deliveries::Take(const Job_Record& record, const std::vector<bool>& references)
{
    if (record.Reports().isEmpty())
        return;
    Report_Desk desk;
    for (int row = 1; row <= record.Row_Count(); ++row) {
        QString number;
        for (int number_of_part = 1; number_of_part <= record.Parts_Of(row); ++number_of_part) {
            const Job_Part part = record.Part(row, number_of_part);
            if (part.reference < 0 || !references[static_cast<std::size_t>(part.reference)])
                continue;
            if (number.isEmpty())
                number = record.Row(row).value_or(Job_Row()).number;
            desk.Expect(number, {row, number_of_part, part.reference, part.handed_over_at, 0, part.imsi});
        }
    }
    for (const Job_Report& report : record.Reports()) {
        if (const auto part = desk.Match(Report_Of(report), report.imsi))
            m_statuses[static_cast<std::size_t>(m_first_part[static_cast<std::size_t>(part->index) - 1] + part->part -
                                                1)] = static_cast<qint16>(report.status);
    }
}

std::optional<quint8> Part_Deliveries::Status_Of(int row) const
{
    const auto* const begin = m_statuses.data() + m_first_part[static_cast<std::size_t>(row) - 1];
    const auto* const end = m_statuses.data() + m_first_part[static_cast<std::size_t>(row)];
    std::optional<qint16> decides;
    bool has_all = true;
    for (const auto* status = begin; status != end; ++status) {
        has_all = has_all && *status != No_Report;
        if (*status != No_Report && (!decides || Weight_Of(*decides) < Weight_Of(*status)))
            decides = *status;
    }
    if (!decides)
        return std::nullopt;
    const auto status = static_cast<quint8>(*decides);
    if (!has_all && Handset::Delivery_Status_Of(status).m_delivery == Handset::Delivery::Delivered)
        return std::nullopt;
    return status;
}
