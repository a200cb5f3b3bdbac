#include "Reference_Codec.h"

#include <algorithm>

#include "Expected_Alphabet.h"

namespace {

QString Reference_Hex(unsigned value)
{
    return QString::number(value, 16).toUpper();
}

QString Last_Two(unsigned value)
{
    return (QStringLiteral("00") + Reference_Hex(value)).right(2);
}

QString Reversed(QString text)
{
    std::reverse(text.begin(), text.end());
    return text;
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
        bits += Reversed(QString::number(value & 0x7F, 2).rightJustified(7, u'0'));
    }
    while (bits.size() % 8 != 0)
        bits += u'0';
    QString hex;
    for (qsizetype first = 0; first < bits.size(); first += 8)
        hex += Last_Two(Reversed(bits.mid(first, 8)).toUInt(nullptr, 2));
    return hex;
}

QString Reference_Codec::EncodeUserData_16_bit(const QString& text)
{
    QString hex;
    for (const QChar character : text)
        hex += Reference_Hex(character.unicode()).rightJustified(4, u'0');
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
    return Reference_Hex(length).rightJustified(2, u'0') + Reference_Hex(type) + swapped;
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
