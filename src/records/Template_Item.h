#pragma once

#include <QString>

// One template, as the templates window shows it. The field is named like the column.
struct Template_Item
{
    QString Message;

    /// The value for a column's identifier; empty for any other.
    QString Value(const QString& identifier) const
    {
        return identifier == QStringLiteral("Message") ? Message : QString();
    }

    bool operator==(const Template_Item&) const = default;
};
