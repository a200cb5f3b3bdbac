#pragma once

#include <QString>
#include <optional>

/// Why a device refuses a command. A value.
struct Device_Cause
{
    enum class Kind
    {
        Cms,   ///< "+CMS ERROR: <number>" (3GPP TS 27.005, 3.2.5)
        Cme,   ///< "+CME ERROR: <number>" (3GPP TS 27.007, 9.2)
        Error, ///< "ERROR", or either of them without anything behind it
        Words  ///< either with words instead of a number, or a device's own final line
    };

    Kind kind = Kind::Error;
    int number = -1; ///< of Cms and Cme
    QString words;   ///< of Words: what stands behind the colon, or the whole line

    bool operator==(const Device_Cause&) const = default;
};

/// The cause in a line that ends a refused command, with or without its line end. Nothing for any other line: "OK",
/// what a device says unasked, and "NO CARRIER" or "BUSY", which are about calls.
std::optional<Device_Cause> Cause_Of_Line(const QString& line);
