#include "Reference_Codec.h"

#include <algorithm>
#include <cstdio>

#include "Expected_Alphabet.h"

namespace {

QString Reference_Hex(unsigned value)
{
    char digits[16];
    std::snprintf(digits, sizeof digits, "%02X", value);
    const QString text = QString::fromLatin1(digits);
    return text.size() == 2 && text[0] == u'0' ? text.mid(1) : text;
}

QString Padded(QString text, int length)
{
    while (text.size() < length)
        text = u'0' + text;
    return text;
}

QString Last_Two(unsigned value)
{
    return (QStringLiteral("00") + Reference_Hex(value)).right(2);
}

QString Reversed(const QString& text)
{
    QString reversed;
    reversed.reserve(text.size());
    for (qsizetype place = text.size() - 1; place >= 0; --place)
        reversed += text[place];
    return reversed;
}

QString Binary(unsigned value)
{
    QString digits;
    digits.reserve(8);
    for (unsigned mask = 0x80; mask != 0; mask >>= 1)
        digits += (value & mask) != 0 ? u'1' : u'0';
    return digits;
}

QString Nibble(const QString& digits)
{
    unsigned value = 0;
    for (const QChar digit : digits)
        value = value * 2 + (digit == u'1' ? 1 : 0);
    return Reference_Hex(value);
}

QString Dcs(bool flash, bool unicode)
{
    if (unicode)
        return flash ? QStringLiteral("18") : QStringLiteral("08");
    return flash ? QStringLiteral("10") : QStringLiteral("00");
}

} // namespace

int Reference_Codec::MapChar(char16_t character, bool& escape)
{
    for (const Expected_Row& row : Expected_Alphabet) {
        if (row.character == character) {
            escape = row.escape;
            return row.code;
        }
    }
    escape = false;
    return character % 256;
}

QString Reference_Codec::MapTo7BitAlphabet(const QString& text)
{
    QString mapped;
    for (const QChar character : text) {
        bool escape = false;
        const int code = MapChar(character.unicode(), escape);
        QChar carried = QChar(static_cast<char16_t>(code));
        if (code == 0)
            carried = u'@';
        else if (code == 64 && escape)
            carried = u'|';
        if (escape)
            mapped += QChar(27);
        mapped += carried;
    }
    return mapped;
}

QString Reference_Codec::EncodeUserData(const QString& text)
{
    QString bits;
    for (const QChar character : text) {
        unsigned value = character.unicode() % 256;
        if (character == u'@')
            value = 0;
        else if (character == u'|')
            value = 64;
        bits += Reversed(Binary(value).right(7));
    }
    while (bits.size() % 8 != 0)
        bits += u'0';
    QString hex;
    for (qsizetype first = 0; first < bits.size(); first += 8) {
        const QString octet = Reversed(bits.mid(first, 8));
        hex += Nibble(octet.left(4)) + Nibble(octet.right(4));
    }
    return hex;
}

QString Reference_Codec::EncodeUserData_16_bit(const QString& text)
{
    QString hex;
    for (const QChar character : text)
        hex += Padded(Reference_Hex(character.unicode()), 4);
    return hex;
}

QString Reference_Codec::EncodeAddress(QString address, bool bInCountBytes)
{
    if (address.isEmpty())
        return QStringLiteral("00");
    unsigned type = 129;
    if (address.startsWith(u'+')) {
        address = address.mid(1);
        type = 145;
    }
    auto length = static_cast<unsigned>(address.size());
    if (address.size() % 2 == 1)
        address += u'F';
    QString swapped;
    for (qsizetype first = 0; first < address.size(); first += 2)
        swapped += Reversed(address.mid(first, 2));
    if (bInCountBytes)
        length = static_cast<unsigned>(swapped.size()) / 2 + 1;
    return Padded(Reference_Hex(length), 2) + Padded(Reference_Hex(type), 2) + swapped;
}

QString Reference_Codec::EncodePDU(const QString& message, const QString& destination, const QString& smsc, bool flash,
                                   bool unicode)
{
    const QString mapped = MapTo7BitAlphabet(message);
    const auto length = static_cast<unsigned>(unicode ? message.size() * 2 : std::max(mapped.size(), message.size()));
    const QString user_data = unicode ? EncodeUserData_16_bit(message) : EncodeUserData(mapped);
    return EncodeAddress(smsc, true) + QStringLiteral("1100") + EncodeAddress(destination, false) +
           QStringLiteral("00") + Dcs(flash, unicode) + QStringLiteral("FF") + Last_Two(length) + user_data;
}

QString Reference_Codec::Encode_UDH_PDU(const QString& message, const QString& destination, const QString& smsc,
                                        bool flash, int total, int part, bool unicode)
{
    if (part == 1)
        m_user_data = unicode ? EncodeUserData_16_bit(message) : EncodeUserData(message);
    const qsizetype count = unicode ? 264 : 266;
    const QString slice = m_user_data.mid((part - 1) * count, count);
    const auto length = static_cast<unsigned>(unicode ? slice.size() / 2 + 7 : (slice.size() * 4 + 56) / 7);
    return EncodeAddress(smsc, true) + QStringLiteral("5100") + EncodeAddress(destination, false) +
           QStringLiteral("00") + Dcs(flash, unicode) + QStringLiteral("FF") + Last_Two(length) +
           QStringLiteral("0608040000") + Last_Two(static_cast<unsigned>(total)) +
           Last_Two(static_cast<unsigned>(part)) + slice;
}
