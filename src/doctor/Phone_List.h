#pragma once

#include <QHash>
#include <QString>
#include <limits>
#include <vector>

// The rows of the wizard's device table, one text dictionary per device, in the order in which a search found them.
// Owned by the wizard's window and used on the interface thread.
class Phone_List
{
public:
    /// The index that means no row.
    static constexpr unsigned No_Row = std::numeric_limits<unsigned>::max();

    void Clear() { m_rows.clear(); }

    /// Adds a row unless the name, trimmed, is empty. Returns whether it did.
    bool Create_Port_List(const QString& name, const QString& Port_Det, const QString& Port_stat,
                          const QString& Port_IMEI);

    int Count() const { return static_cast<int>(m_rows.size()); }
    bool Is_Row(unsigned index) const { return index < m_rows.size(); }

    /// A row's value for a key: "COM_PORT" the display name, "PORT_DETAL" the device path, "PORT_STATUS" or "IMEI".
    /// Empty for an unknown row or key.
    QString Value(const QString& identifier, int row) const;
    QString Name(unsigned index) const { return Value(QStringLiteral("COM_PORT"), static_cast<int>(index)); }
    QString Path(unsigned index) const { return Value(QStringLiteral("PORT_DETAL"), static_cast<int>(index)); }

    /// A device's display name: its path from the ninth character on, trimmed, or the file name if that is empty or the
    /// path is not under /dev/.
    static QString Display_Name(const QString& path);

private:
    std::vector<QHash<QString, QString>> m_rows;
};
