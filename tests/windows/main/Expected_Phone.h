#pragma once

#include "phone/Phone_Moods.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>
#include <optional>

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

// What a phone in given moods makes of what is written to it, worked out from the meaning of the moods and from 3GPP TS
// 27.005 alone. No line, no clock: an answer that comes within a read is said at once, one that comes later than any
// read keeps everything behind it back. A value for the thread that made it.
class Expected_Phone
{
public:
    explicit Expected_Phone(const Phone_Moods& moods);

    /// One write. False when the line takes no more.
    bool Hears(const QByteArray& bytes);
    /// The write of a body in PDU mode, which bears this part.
    bool Hears_Pdu(const QByteArray& bytes, const Expected_Part& part);

    /// What a read gets: everything said since the last one.
    QByteArray Says();

    /// The cable is pulled.
    void Hangs_Up();
    /// The line is closed: what was not read is lost.
    void Is_Left();

    bool Is_Hung_Up() const { return m_is_hung_up; }
    /// Hung up, or reading no further.
    bool Is_Lost() const { return m_is_hung_up || Has_Stopped_Reading(); }

    const QStringList& Commands() const { return m_commands; }
    /// Messages as a handset shows them, "number: text".
    const QStringList& Inbox() const { return m_inbox; }
    int Parts() const { return m_parts; }

private:
    bool Has_Stopped_Reading() const;
    void Takes(char byte);
    void Takes_Line();
    void Obeys(const QString& command);
    void Asks_For_Body(const QString& argument);
    void Takes_Body(char byte);
    void Ends_Message();
    std::optional<QString> Shown_Text() const;
    void Shows(const Expected_Part& part);
    std::optional<QString> Error_For(const QString& command) const;
    QString Answer_To(const QString& command);
    QString Value_For(const QString& command) const;
    QString Takes_Charset(const QString& charset);
    void Says_Now(const QByteArray& text);
    void Answers(const QByteArray& text);

    const Phone_Moods m_moods;
    QStringList m_commands;
    QStringList m_inbox;
    int m_parts = 0;

    QByteArray m_said;
    QByteArray m_line;
    bool m_is_in_body = false;
    bool m_was_line_end = false; // a line feed behind it is nothing of its own
    bool m_is_text_format;
    bool m_is_hung_up = false;
    bool m_is_kept_back = false; // behind an answer that comes too late
    QString m_charset;
    bool m_is_ucs2 = false; // by AT+CSMP
    int m_count = 0;        // messages asked for
    int m_announced = 0;
    int m_status_lines = 0;
    long m_taken = 0;
    int m_stopped_at = 0;
    QString m_number;
    Expected_Part m_pdu;
    std::map<QString, std::map<int, QString>> m_joined; // by number
};
