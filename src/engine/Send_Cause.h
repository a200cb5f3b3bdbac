#pragma once

#include "device/Device_Cause.h"
#include "texts/Fixed_Text.h"

#include <QString>
#include <array>

// What a job does about each cause for which a device refuses a message: a table, and nothing that acts. Any thread.

enum class Cause_Class
{
    Retry,           ///< try again after each of Retry_Waits
    Retry_Slowly,    ///< the same, and send what follows more slowly
    Hold,            ///< hold the job until the device's state is right, then send the same message
    This_Number,     ///< this message cannot be sent; go on with the next
    Stop,            ///< the next one would fare the same
    Protocol,        ///< the program's or the modem's fault; stop and offer the log
    Ask,             ///< not tried again by itself; a person may send it again
    Unknown_Outcome, ///< it may have been sent; never tried again by itself
    Counts_As_Sent,
    Ignore ///< it is not about a message
};

/// Seconds before each further attempt of Retry and Retry_Slowly.
inline constexpr std::array Retry_Waits{5, 30, 120};

/// One row of the table.
struct Send_Cause
{
    Device_Cause::Kind kind;
    int first; ///< the numbers that it is for, both included
    int last;
    Cause_Class cause_class;
    Fixed_Text sentence; ///< for a person, on one line

    /// How many messages in a row that end with this cause stop the job; 0 none does.
    int stops_at;
    bool offers_plain = false; ///< the same text without what is refused, its alphabet or its showing at once, may pass

    /// This_Number rather than Protocol when other messages of the job have passed.
    bool this_number_if_others_passed = false;
};

/// Every cause has a row; one that no row is for, and words that are not known, have that of Ask.
const Send_Cause& Cause_Row(const Device_Cause& cause);

/// The device's own words where it gave words, on one line, else the row's sentence.
QString Reason_Of(const Device_Cause& cause);
