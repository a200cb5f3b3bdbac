#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>

// In which encoding a file of text is, and its text in UTF-8. Any thread.

struct Encoding_Guess
{
    QString name;          ///< as the decoder takes it
    QString trouble = {};  ///< why it is no text, or no encoding suits it; empty for none
    bool is_valid = false; ///< the bytes were found to be in it
    bool is_told = true;   ///< by the bytes; otherwise somebody should look whether the letters are right
};

/// By a byte-order mark; else UTF-8 where all of it is that; else UTF-16 where every other byte is 0; else the usual
/// one, if the text fits it; else windows-1252, which every text in a western language fits. A text that is UTF-8 in
/// some places alone is refused.
Encoding_Guess Guess_Encoding(const QByteArray& bytes, const QString& usual = {});

/// The encoding that old programs for a locale's language mostly write.
QString Usual_Encoding(const QLocale& locale);

struct Utf8_Text
{
    QByteArray bytes; ///< without a byte-order mark
    QString trouble;  ///< why there are none; empty for none
};

/// The text of bytes in the encoding of this name, in UTF-8. Refuses what holds characters that no text has. Bytes that
/// are known to be in the encoding are not looked through again.
Utf8_Text Text_In_Utf8(QByteArray bytes, const QString& encoding, bool is_valid = false);
