#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>

/// Where the two message buses of the desktop are. None where an address is empty.
struct Desktop_Buses
{
    QString session;
    QString system;

    /// As the environment says, or where they usually are. An address at which a bus would first have to be started
    /// counts as none. Nothing is opened.
    static Desktop_Buses Of_This_Session();
};

// A connection to a message bus, of its own, so that its end disturbs nobody. Whoever is asked is never started for it,
// unless that is asked for, and an answer is awaited for two seconds at most, or until the program exits. Blocks; for a
// worker.
class Desktop_Bus
{
public:
    explicit Desktop_Bus(const QString& address);
    ~Desktop_Bus();
    Desktop_Bus(const Desktop_Bus&) = delete;
    Desktop_Bus& operator=(const Desktop_Bus&) = delete;

    bool Is_Open() const { return m_connection.isConnected(); }

    enum class If_Not_Running
    {
        Leave,
        Start
    };
    /// The first value of the answer if it has this signature; otherwise, and without an answer, an invalid value.
    QVariant Ask(QDBusMessage question, const char* signature, If_Not_Running what = If_Not_Running::Leave);
    /// Tells everybody who listens.
    void Tell(const QDBusMessage& signal) { m_connection.send(signal); }

private:
    const QString m_name;
    QDBusConnection m_connection;
};
