#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// Turns a device's answers to queries into what a person reads. Pure functions on text.

enum class Quotes
{
    Removed,
    Kept ///< for values that stand between quotes
};

/// The answer without "?", "<", ">", "OK", the printed line ends "\r\n", "\n" and "\r" (a backslash and a letter), the
/// words given, in their order, white space at its ends, and one leading colon. "NOKIA" loses its "OK".
QString Clean_Answer(const QString& answer, const QStringList& words, Quotes quotes = Quotes::Removed);

/// The text between the first two double quotes; nothing when there are no two.
std::optional<QString> Quoted_Text(const QString& text);

/// Drops a word that the value begins with, and white space at the ends of what remains.
QString Without_Leading_Word(const QString& value, const QString& word);

/// The name alone where the value says "MODEL", a separator and the name; else the value.
QString Model_Text(const QString& value);

/// What +CBC's "<status>,<charge>" means (3GPP TS 27.007, 8.4).
QString Battery_Text(const QString& value);

/// What +CSQ's "<rssi>,<ber>" means (3GPP TS 27.007, 8.5).
QString Signal_Text(const QString& value);

/// The operator's name in +COPS's answer.
QString Operator_Text(const QString& value);

/// The number in +CSCA's answer, decoded from UCS2 unless it begins with "+". Quotes must have been kept.
QString Service_Centre_Text(const QString& value);

/// That there is none.
QString No_Battery();
