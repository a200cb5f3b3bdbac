#pragma once

#include <QByteArray>
#include <QDateTime>
#include <string>

/// A delivery report's frame (3GPP TS 23.040, 9.2.2.3): the part with this reference, to +447700900100 and submitted at
/// a time, was delivered.
inline std::string Report_Frame(int reference, const QDateTime& time)
{
    const std::string digits = time.toString(QStringLiteral("yyMMddhhmmss")).toStdString();
    std::string swapped;
    for (std::size_t at = 0; at < digits.size(); at += 2)
        swapped += {digits[at + 1], digits[at]};
    return "0006" + QByteArray::number(reference, 16).rightJustified(2, '0').toStdString() + "0C91447700091000" +
           swapped + "00" + swapped + "0000";
}
