#include "records/Job_Line.h"

#include "platform/Text_Files.h"

#include <QDateTime>
#include <array>

namespace {

constexpr qsizetype Checksum_Digits = 8;
constexpr qsizetype Checksum_Size = 1 + Checksum_Digits; // the blank before it, too
constexpr qint64 Seconds_In_A_Day = 86400;
constexpr qint64 First_Day = 2440588;        // 1970-01-01 as a Julian day
constexpr qint64 Last_Second = 253402300799; // of the year 9999

constexpr std::array<quint32, 256> Crc_Table = [] {
    std::array<quint32, 256> table{};
    for (quint32 octet = 0; octet < table.size(); ++octet) {
        quint32 value = octet;
        for (int bit = 0; bit < 8; ++bit)
            value = value >> 1 ^ (value & 1 ? 0xEDB88320U : 0U);
        table[octet] = value;
    }
    return table;
}();

quint32 Crc_With(quint32 crc, char byte)
{
    return crc >> 8 ^ Crc_Table[(crc ^ static_cast<quint8>(byte)) & 0xFF];
}

QByteArray Checksum(quint32 crc)
{
    return QByteArray::number(crc, 16).rightJustified(Checksum_Digits, '0');
}

bool Is_Written_As_It_Is(char byte)
{
    const auto octet = static_cast<quint8>(byte);
    return octet > ' ' && octet != '%' && octet != 0x7F;
}

// Two digits of a field; -1 when they are none.
int Two_Digits(QByteArrayView field, qsizetype at)
{
    const int tens = field[at] - '0';
    const int ones = field[at + 1] - '0';
    return tens < 0 || tens > 9 || ones < 0 || ones > 9 ? -1 : 10 * tens + ones;
}

} // namespace

quint32 Job_Line::Crc_32(QByteArrayView bytes)
{
    quint32 crc = ~0U;
    for (const char byte : bytes)
        crc = Crc_With(crc, byte);
    return ~crc;
}

QByteArray Job_Line::Field(const QString& text)
{
    if (text.isEmpty())
        return QByteArrayLiteral("-");
    if (text == u'-')
        return QByteArrayLiteral("%2D");
    QByteArray field;
    for (const char byte : text.toUtf8()) {
        if (Is_Written_As_It_Is(byte))
            field.append(byte);
        else
            field.append('%' + QByteArray(1, byte).toHex().toUpper());
    }
    return field;
}

std::optional<QString> Job_Line::Text_Of(QByteArrayView field)
{
    if (field == QByteArrayView("-"))
        return QString();
    const auto text = Decode_Utf8(QByteArray::fromPercentEncoding(field.toByteArray()));
    if (!text || Field(*text) != field)
        return std::nullopt;
    return text;
}

QByteArray Job_Line::Time(qint64 seconds)
{
    const qint64 within = qBound(qint64{0}, seconds, Last_Second);
    return QDateTime::fromSecsSinceEpoch(within, Qt::UTC).toString(Qt::ISODate).toLatin1();
}

std::optional<qint64> Job_Line::Seconds_Of(QByteArrayView field)
{
    constexpr QByteArrayView Pattern("0000-00-00T00:00:00Z");
    if (field.size() != Pattern.size())
        return std::nullopt;
    for (qsizetype at = 0; at < field.size(); ++at) {
        if (Pattern[at] != '0' && field[at] != Pattern[at])
            return std::nullopt;
    }
    const int century = Two_Digits(field, 0);
    const int year = Two_Digits(field, 2);
    const QDate date(100 * century + year, Two_Digits(field, 5), Two_Digits(field, 8));
    const int hour = Two_Digits(field, 11);
    const int minute = Two_Digits(field, 14);
    const int second = Two_Digits(field, 17);
    if (century < 0 || year < 0 || !date.isValid() || !QTime::isValid(hour, minute, second))
        return std::nullopt;
    const qint64 seconds = (date.toJulianDay() - First_Day) * Seconds_In_A_Day + (hour * 60 + minute) * 60 + second;
    return seconds < 0 ? std::nullopt : std::optional(seconds);
}

std::optional<qint64> Job_Line::Number_Of(QByteArrayView field, qint64 least, qint64 most)
{
    constexpr qsizetype Most_Digits = 18; // more would not fit
    if (field.isEmpty() || field.size() > Most_Digits || (field.size() > 1 && field[0] == '0'))
        return std::nullopt;
    qint64 number = 0;
    for (const char digit : field) {
        if (digit < '0' || digit > '9')
            return std::nullopt;
        number = 10 * number + (digit - '0');
    }
    return number < least || number > most ? std::nullopt : std::optional(number);
}

QByteArray Job_Line::Whole(const QByteArrayList& fields)
{
    const QByteArray content = fields.join(' ');
    return content + ' ' + Checksum(Crc_32(content)) + '\n';
}

Job_Line::Fields Job_Line::Fields_Of(QByteArrayView line)
{
    Fields fields;
    if (line.size() <= Checksum_Size)
        return fields;
    const QByteArrayView content = line.chopped(Checksum_Size);
    if (line[content.size()] != ' ' || line.last(Checksum_Digits) != Checksum(Crc_32(content)))
        return fields;
    for (qsizetype begin = 0; begin <= content.size();) {
        const qsizetype found = content.indexOf(' ', begin);
        const qsizetype end = found < 0 ? content.size() : found;
        fields.append(content.sliced(begin, end - begin));
        begin = end + 1;
    }
    return fields;
}

bool Job_Line::Begins_With_A_Whole_Line(QByteArrayView bytes)
{
    quint32 crc = ~0U;
    for (qsizetype at = 0; at + Checksum_Size < bytes.size(); ++at) {
        if (bytes[at] == ' ' && at > 0 && bytes.sliced(at + 1, Checksum_Digits) == Checksum(~crc))
            return true;
        crc = Crc_With(crc, bytes[at]);
    }
    return false;
}
