#include "device/Submission_Rules.h"

#include "pdu/Submit_Fields.h"

namespace {

constexpr qsizetype Single_7_Bit = 160;
constexpr qsizetype Single_Ucs2 = 70;
constexpr qsizetype Pdu_Part_7_Bit = 152;
constexpr qsizetype Pdu_Part_Ucs2 = 66;

int Rounded_Up(qsizetype length, qsizetype part_length)
{
    return static_cast<int>((length + part_length - 1) / part_length);
}

} // namespace

int Submit_Length(const QString& pdu, const QString& smsc)
{
    const qsizetype centre_digits = Address_Digits(smsc, Address_Length::Octets_And_Type);
    return static_cast<int>(pdu.size() / 2 - centre_digits / 2);
}

bool May_Be_Single(qsizetype length, bool unicode)
{
    return length <= (unicode ? Single_Ucs2 : Single_7_Bit);
}

int Pdu_Part_Count(qsizetype length, bool unicode)
{
    return Rounded_Up(length, unicode ? Pdu_Part_Ucs2 : Pdu_Part_7_Bit);
}

int Text_Part_Count(qsizetype length, bool unicode)
{
    return Rounded_Up(length, unicode ? Single_Ucs2 : Single_7_Bit);
}

QString Text_Part(const QString& message, int part, bool unicode)
{
    const qsizetype part_length = unicode ? Single_Ucs2 : Single_7_Bit;
    return message.mid((part - 1) * part_length, part_length);
}

QString Harmless_Body(const QString& body)
{
    QString harmless = body;
    for (QChar& character : harmless)
        if (character == QChar(0x1A) || character == QChar(0x1B) || character.isNull())
            character = u' ';
    return harmless;
}
