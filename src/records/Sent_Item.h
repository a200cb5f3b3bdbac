#pragma once

#include <QString>

// One message that was handed to a device, as the sent items window shows it. The fields are named like the columns.
struct Sent_Item
{
    QString Number;
    QString Message;
    QString Date; ///< "dd/MM/yyyy"
    QString Status;

    /// The value for a column's identifier; empty for any other.
    QString Value(const QString& identifier) const;

    bool operator==(const Sent_Item&) const = default;
};
