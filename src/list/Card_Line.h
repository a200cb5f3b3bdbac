#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <optional>

// One content line of a vCard, unfolded: RFC 6350, 3.3, and what versions 3.0 (RFC 2425) and 2.1 wrote.
struct Card_Line
{
    QString name;      ///< in upper case, without its group
    QStringList types; ///< of TYPE, and those that stand alone, in upper case
    bool is_preferred = false;
    bool is_quoted_printable = false;
    QString charset;
    QByteArray value; ///< as it stands

    /// Takes a line apart; nothing when it is none.
    static std::optional<Card_Line> Of(QByteArrayView line);

    bool Has_Type(const char* type) const { return types.contains(QLatin1String(type)); }
    /// The value as text with its escapes: in its own encoding, else UTF-8, else windows-1252.
    QString Text() const;
    /// The value's components, which semicolons divide, without escapes.
    QStringList Components() const;
};

/// The bytes that quoted-printable text stands for (RFC 2045, 6.7); what is malformed stays as it is.
QByteArray From_Quoted_Printable(QByteArrayView text);
