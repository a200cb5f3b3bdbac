#pragma once

#include <QString>

// One template, as the templates window shows it. The field is what the column is called.
struct Template_Item
{
    QString Message;

    /// The value under a column's identifier; empty for any other.
    QString Value(const QString& identifier) const
    {
        return identifier == QStringLiteral("Message") ? Message : QString();
    }

    bool operator==(const Template_Item&) const = default;
};
