#pragma once

#include "device/Device_Cause.h"

#include <QString>
#include <optional>

/// The cause with a number that stands for words, as devices say them that were asked for words rather than numbers
/// (AT+CMEE=2). Case, blanks, signs and the U of a USIM do not matter. Where both kinds of numbers have the same words,
/// the one of a message's causes (Cms). Nothing for words that are not known. Any thread.
std::optional<Device_Cause> Numbered_Cause(const QString& words);
