#pragma once

#include "records/Job_Record.h"

#include <optional>
#include <vector>

// What delivery reports in a job's journal say of its parts. A report counts for the part with its reference and its
// number on the SIM card that it went through; nothing that comes behind the last word about a part counts. Made by
// a worker; a value.
class Part_Deliveries
{
public:
    explicit Part_Deliveries(const Job_Record& record);

    /// The TP-ST that decides about a row, counted from 1: one that failed before one that is still tried, and that
    /// before one that was delivered. Nothing where no report came, and where those that were delivered are not all.
    std::optional<quint8> Status_Of(int row) const;

private:
    void Take(const Job_Record& record, const std::vector<bool>& references);

    std::vector<int> m_first_part;  // of each row, and behind the last
    std::vector<qint16> m_statuses; // of each part; -1 without a report
};
