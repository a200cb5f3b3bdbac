#pragma once

#include <QByteArray>
#include <QList>
#include <optional>

/// One entry of a search: the path under which a port is called out, as the system gives it. An entry without one is
/// passed over.
struct Modem_Entry
{
    std::optional<QByteArray> m_callout_path;
};

/// The entries of one search, taken one after the other. Belongs to the searching thread.
class Modem_Iterator
{
public:
    Modem_Iterator() = default;
    explicit Modem_Iterator(QList<Modem_Entry> entries) : m_entries(std::move(entries)) {}

    /// The next entry, or nothing at the end.
    std::optional<Modem_Entry> Next()
    {
        return m_next < m_entries.size() ? std::optional(m_entries[m_next++]) : std::nullopt;
    }

private:
    QList<Modem_Entry> m_entries;
    qsizetype m_next = 0;
};

/// Finds the serial ports of this computer: those the serial-port library knows, without the placeholders of the kernel
/// that have no hardware behind them, then Bluetooth serial ports, then the extra paths. Stateless; any thread.
class Port_Finder
{
public:
    virtual ~Port_Finder() = default;

    /// Whether the system keeps a register of serial devices to ask.
    virtual bool Can_Ask() const;

    /// Puts the entries into the iterator. Returns 0, or the system's status when the search failed.
    virtual int Find_Ports(Modem_Iterator& iterator) const;
};

Port_Finder& System_Port_Finder();

/// Whether a port named ttyS<n> is a placeholder: the kernel's type for it is 0 (unknown), or nothing at all is known
/// of it.
bool Is_Phantom_Port(const QString& port_name, bool is_described, const std::optional<int>& kernel_type);
