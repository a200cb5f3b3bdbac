// Kept by name; nothing in the program calls what stands here.

#include "pdu/PDU.h"

#include <algorithm>

#include "pdu/Gsm_Alphabet.h"
#include "pdu/Hex.h"
#include "pdu/Submit_Fields.h"

PDU* PDU::defaultInstance()
{
    if (PDU* const made_last = s_made_last)
        return made_last;
    static PDU standing;
    return &standing;
}

qint16 PDU::MapChar(const QString& character, bool /*blnEscapeChar*/)
{
    if (character.isEmpty())
        return 0;
    const Gsm_Code mapped = Gsm_Code_Of(character.front().unicode());
    escap_char = mapped.escape ? 1 : 0;
    return mapped.code;
}

QString PDU::MapTo7BitAlphabet(const QString& text)
{
    QString mapped;
    mapped.reserve(text.size() * 2);
    for (const QChar character : text) {
        const Gsm_Code code = Gsm_Code_Of(character.unicode());
        if (code.escape)
            mapped.append(QChar(Gsm_Escape));
        mapped.append(QChar(Carried_As(code)));
    }
    MapChar(text.right(1), false); // the flag is that of the last character
    return mapped;
}

QString PDU::ConvertToBinary(int value)
{
    QString digits;
    for (int bit = 7; bit >= 0; --bit)
        digits.append((static_cast<quint32>(value) >> bit) & 1 ? u'1' : u'0');
    return digits;
}

quint32 PDU::BinToDec(const QString& digits)
{
    quint32 value = 0;
    int position = 0;
    for (auto digit = digits.crbegin(); digit != digits.crend() && position < 32; ++digit, ++position)
        if (*digit == u'1')
            value |= Power2(position);
    return value;
}

quint32 PDU::Power2(int exponent)
{
    return exponent >= 0 && exponent < 32 ? 1U << exponent : 0;
}

QString PDU::reverseString(const QString& text)
{
    QString reversed = text;
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

QString PDU::PadZero(const QString& text, int Length)
{
    return text.rightJustified(Length, u'0');
}

QString PDU::BCDEncode(int n)
{
    return PadZero(Hex(n), 2);
}

QString PDU::EncodeAddress(const QString& address, bool bInCountBytes)
{
    const auto counted = bInCountBytes ? Address_Length::Octets_And_Type : Address_Length::Digits;
    Hex_Writer writer(Address_Digits(address, counted));
    Put_Address(writer, address, counted);
    return writer.Take();
}

QString PDU::EncodeSMSCAddress(const QString& address)
{
    return EncodeAddress(address, true);
}

QString PDU::EncodeDestinationAddress(const QString& address)
{
    return EncodeAddress(address, false);
}

QString PDU::Mid_String(const QString& text, qsizetype iFirst, qsizetype nCount)
{
    return text.mid(std::max<qsizetype>(iFirst, 0), std::max<qsizetype>(nCount, 0));
}
