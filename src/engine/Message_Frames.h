#pragma once

#include "device/Confirmed_Session.h"
#include "handset/Submit_Encoder.h"
#include "records/Job_Row.h"

#include <vector>

// What a confirmed job hands the device for one message. Any thread.

/// A recipient's message as it is frozen before a job: its alphabet, its parts and the reference that joins them. In
/// text mode parts are messages of their own and have none. skipped says why where it cannot be sent.
Job_Row Frozen_Row(int source_row, const QString& number, const QString& text, Job_Alphabet_Choice choice,
                   bool is_flash, int reference, bool is_text_mode);

/// Why a row is skipped whose number no frame can carry.
inline constexpr char Invalid_Number[] = "invalid-number";

/// The parts of a frozen row, one command and body each; the same whenever they are made. Empty where none can be made.
std::vector<Part_To_Send> Parts_Of(const Job_Row& row, const QString& service_centre, bool asks_for_report,
                                   bool is_text_mode);

/// TP-DCS of the row's parts (3GPP TS 23.038, 4).
int Data_Coding_Of(const Job_Row& row);
