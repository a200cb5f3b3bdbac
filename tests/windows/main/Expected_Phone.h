#pragma once

#include "phone/Phone_Mind.h"

#include <QString>
#include <QStringList>
#include <map>

// One SMS on its way: the whole message, or a part of it.
struct Expected_Part
{
    QString number;
    QString text;
    int part = 1;
    int parts = 1;
};

/// The text's UTF-16 in hexadecimal digits.
QString Hex_Utf16_Of(const QString& text);

// What a phone in given moods makes of what is written to it: its mind, whose tests are those of the phone, without a
// line or a clock. An answer that comes within a read is said at once, one that comes later than any read keeps
// everything behind it back. A value for the thread that made it.
class Expected_Phone
{
public:
    explicit Expected_Phone(const Phone_Moods& moods) : m_mind(moods) {}

    /// One write. False when the line takes no more.
    bool Hears(const QByteArray& bytes);
    /// The write of a body in PDU mode of so many octets behind the service centre, which bears this part.
    bool Hears_Pdu(int octets, const Expected_Part& part);

    /// What a read gets: everything said since the last one.
    QByteArray Says();

    /// The cable is pulled.
    void Hangs_Up();
    /// The line is closed: what was not read is lost.
    void Is_Left();

    bool Is_Hung_Up() const { return m_is_hung_up; }
    /// Hung up, or reading no further.
    bool Is_Lost() const { return m_is_hung_up || m_mind.Has_Stopped_Reading(); }

    const QStringList& Commands() const { return m_commands; }
    /// Messages as a handset shows them, "number: text".
    const QStringList& Inbox() const { return m_inbox; }
    int Parts() const { return m_parts; }

private:
    void Shows(const Expected_Part& part);

    Handset::Phone_Mind m_mind;
    QStringList m_commands;
    QStringList m_inbox;
    int m_parts = 0;
    QByteArray m_said;
    bool m_is_hung_up = false;
    bool m_is_kept_back = false; // behind an answer that comes too late
    std::optional<Expected_Part> m_pdu;
    std::map<QString, std::map<int, QString>> m_joined; // by number
};
