#pragma once

#include "engine/Send_Order.h"
#include "records/Job_Record.h"

#include <optional>

// Between the order of a confirmed job and what its journal holds. Any thread; what reads a record's rows is for a
// worker.

/// How long delivery reports are awaited at the end of a job where nobody says otherwise.
inline constexpr int Usual_Report_Seconds = 60;

/// What holds for all rows of a new job.
Job_Options Job_Options_Of(const Send_Order& order);

/// The order that such options stand for, with nobody in its list.
Send_Order Order_Of(const Job_Options& options, const QString& device_path);

/// Everybody in a job's list, those that are skipped included; nothing when the list cannot be read any more.
std::optional<Recipient_List> Recipients_Of(const Job_Record& record);

/// Whether two lists have the same numbers and the same messages, as far as a message is sent and as it is filled, in
/// the same order.
bool Are_The_Same(const Recipient_List& one, const Recipient_List& other);
