#pragma once

#include "device/Confirmed_Session.h"
#include "records/Job_Trouble.h"

#include <QLatin1String>
#include <QString>
#include <optional>

// What a confirmed job's journal writes of causes and doubts, and what it is for a person. Any thread.

/// What the journal writes of a part that the device gave no prompt for, however often it was asked: nothing was sent.
inline constexpr QLatin1String No_Prompt_Field("no-prompt");

/// Why a part was refused, for a person, from what the journal writes.
QString Refusal_Sentence(const QString& field);

/// The cause as the journal writes it: cms:500, cme:11, error, or words: and the device's own.
QString Cause_Field(const Device_Cause& cause);
std::optional<Device_Cause> Cause_Of_Field(const QString& field);

/// What is told when the journal cannot be written.
QString Not_Recorded(Job_Trouble trouble);

/// Why there is no telling: as the journal writes it, and for a person.
QString Doubt_Field(Part_Result::Doubt doubt);
QString Doubt_Sentence(Part_Result::Doubt doubt);
/// The latter from what the journal writes about a part without a result; empty where that
/// is something else.
QString Doubt_Sentence(const QString& field);
