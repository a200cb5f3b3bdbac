#pragma once

#include "windows/main/Expected_Phone.h"

// A session's exchanges with a phone in given moods: commands, and answers that are judged by an expected text.
class Expected_Session
{
protected:
    explicit Expected_Session(const Phone_Moods& moods) : m_phone(moods) {}
    virtual ~Expected_Session() = default;

    /// Whether the line took the command.
    virtual bool Writes(const QByteArray& command) { return m_phone.Hears(command); }

    /// Whether the expected text came, and no error.
    bool Reads(const char* expected)
    {
        m_answer = QString::fromUtf8(m_phone.Says()).trimmed();
        return !m_answer.isEmpty() && !m_answer.contains(QLatin1String("ERROR")) &&
               m_answer.contains(QLatin1String(expected));
    }

    /// A device that echoes, but does not answer, passes as well.
    bool Checks_Connection()
    {
        if (!Writes("AT\r\n"))
            return false;
        return Reads("OK") || m_answer == u"AT";
    }

    Expected_Phone m_phone;
    QString m_answer; // to the last command, without white space around it
};
