#pragma once

// Kept by name; nothing in the program calls what stands here.

#include <QList>
#include <memory>

class KVSerialPort;

/// Goes through a list of ports once, in order. Keeps its ports alive.
class KVStandardEnumerator
{
public:
    explicit KVStandardEnumerator(QList<std::shared_ptr<KVSerialPort>> ports) : m_ports(std::move(ports)) {}

    /// The next port, none at the end.
    std::shared_ptr<KVSerialPort> nextObject() { return m_next < m_ports.size() ? m_ports[m_next++] : nullptr; }

    /// The ports not handed out yet; there are none afterwards.
    QList<std::shared_ptr<KVSerialPort>> allObjects()
    {
        const auto rest = m_ports.mid(m_next);
        m_next = m_ports.size();
        return rest;
    }

private:
    QList<std::shared_ptr<KVSerialPort>> m_ports;
    qsizetype m_next = 0;
};
