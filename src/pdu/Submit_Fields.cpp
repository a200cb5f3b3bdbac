#include "pdu/Submit_Fields.h"

#include "pdu/Hex.h"

namespace {

constexpr quint8 Type_International = 0x91;
constexpr quint8 Type_Unknown = 0x81;

// First octet, TP-MR, TP-PID, TP-DCS, TP-VP, TP-UDL.
constexpr qsizetype Fixed_Octets = 6;

// A non-empty address and its parts.
struct Address
{
    bool international;
    QStringView digits;

    explicit Address(QStringView address)
        : international(address.front() == u'+'), digits(international ? address.sliced(1) : address)
    {
    }

    qsizetype Octets() const { return (digits.size() + 1) / 2; }
    qsizetype Length(Address_Length counted) const
    {
        return counted == Address_Length::Digits ? digits.size() : Octets() + 1;
    }
};

// A length past one octet takes as many digits as it needs. No network takes such an address, but cutting the length
// would turn it into a different one.
QString Long_Length(qsizetype length)
{
    return Hex(static_cast<int>(length));
}

void Put_Address_Length(Hex_Writer& writer, qsizetype length)
{
    if (length <= 0xFF)
        writer.Put_Octet(length);
    else
        writer.Put_Text(Long_Length(length));
}

// Semi-octets: the second digit of each pair goes first (3GPP TS 23.040, 9.1.2.3).
void Put_Swapped(Hex_Writer& writer, QStringView digits)
{
    for (qsizetype first = 0; first < digits.size(); first += 2) {
        const QChar second = first + 1 < digits.size() ? digits[first + 1] : QChar(u'F');
        writer.Put_Pair(second, digits[first]);
    }
}

} // namespace

qsizetype Address_Digits(QStringView address, Address_Length counted)
{
    if (address.isEmpty())
        return 2;
    const Address parts(address);
    const qsizetype length = parts.Length(counted);
    return (length <= 0xFF ? 2 : Long_Length(length).size()) + 2 + parts.Octets() * 2;
}

qsizetype Head_Digits(const Submit_Head& head)
{
    return Address_Digits(head.service_centre, Address_Length::Octets_And_Type) +
           Address_Digits(head.destination, Address_Length::Digits) + Fixed_Octets * 2;
}

void Put_Address(Hex_Writer& writer, QStringView address, Address_Length counted)
{
    if (address.isEmpty()) {
        writer.Put_Octet(0);
        return;
    }
    const Address parts(address);
    Put_Address_Length(writer, parts.Length(counted));
    writer.Put_Octet(parts.international ? Type_International : Type_Unknown);
    Put_Swapped(writer, parts.digits);
}

void Put_Concatenation(Hex_Writer& writer, const Concatenation& concatenation)
{
    writer.Put_Octet(Concatenation_Octets - 1); // UDHL does not count itself
    writer.Put_Octet(0x08);                     // IEI: 16-bit reference number
    writer.Put_Octet(0x04);                     // IEDL
    writer.Put_Octet(0x00);                     // the reference is zero for every message
    writer.Put_Octet(0x00);
    writer.Put_Octet(concatenation.total);
    writer.Put_Octet(concatenation.part);
}

void Put_Head(Hex_Writer& writer, const Submit_Head& head, qint64 user_data_length)
{
    Put_Address(writer, head.service_centre, Address_Length::Octets_And_Type);
    Put_First_Octet(writer, head.concatenated);
    Put_Message_Reference(writer);
    Put_Address(writer, head.destination, Address_Length::Digits);
    Put_Pid(writer);
    Put_Dcs(writer, head.flash, head.unicode);
    Put_Validity(writer);
    Put_Udl(writer, user_data_length);
}
