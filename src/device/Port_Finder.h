#pragma once

#include <QByteArray>
#include <QList>
#include <optional>

/// One entry of a search: a port's call-out path as the system gives it. Entries without one are skipped.
struct Modem_Entry
{
    std::optional<QByteArray> m_callout_path;
};

/// The entries of one search, in order. Searching thread only.
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

/// Finds this computer's serial ports: those the library knows except kernel placeholders without hardware, then
/// Bluetooth serial ports, then the extra paths. Stateless; any thread.
class Port_Finder
{
public:
    virtual ~Port_Finder() = default;

    /// Whether the system has a registry of serial devices.
    virtual bool Can_Ask() const;

    /// Fills the iterator. Returns 0, or the system's status on failure.
    virtual int Find_Ports(Modem_Iterator& iterator) const;
};

Port_Finder& System_Port_Finder();

/// Whether a port named ttyS<n> is a placeholder: the kernel's type for it is 0 (unknown), or nothing is known about
/// it.
bool Is_Phantom_Port(const QString& port_name, bool is_described, const std::optional<int>& kernel_type);
