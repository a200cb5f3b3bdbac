#include "pdu/Submit_Fields.h"

#include "pdu/Hex.h"

namespace {

constexpr quint8 Type_International = 0x91;
constexpr quint8 Type_Unknown = 0x81;

// The type and length octets and a fill digit; a length past 255 takes up to eight digits instead of two.
constexpr qsizetype Address_Overhead = 2 + 8 + 1;

// First octet, TP-MR, TP-PID, TP-DCS, TP-VP, TP-UDL.
constexpr qsizetype Fixed_Octets = 6;

// A length that does not fit an octet takes the digits it needs: such an address is of no use to any network, and is
// not turned into another one by cutting.
void Put_Address_Length(Hex_Writer& writer, qsizetype length)
{
    if (length <= 0xFF)
        writer.Put_Octet(length);
    else
        writer.Put_Text(Hex(static_cast<int>(length)));
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

qsizetype Address_Room(QStringView address)
{
    return address.size() + Address_Overhead;
}

qsizetype Head_Room(const Submit_Head& head)
{
    return Address_Room(head.service_centre) + Address_Room(head.destination) + Fixed_Octets * 2;
}

void Put_Address(Hex_Writer& writer, QStringView address, Address_Length counted)
{
    if (address.isEmpty()) {
        writer.Put_Octet(0);
        return;
    }
    const bool international = address.front() == u'+';
    const QStringView digits = international ? address.sliced(1) : address;
    const qsizetype octets = (digits.size() + 1) / 2;
    const qsizetype length = counted == Address_Length::Digits ? digits.size() : octets + 1;
    Put_Address_Length(writer, length);
    writer.Put_Octet(international ? Type_International : Type_Unknown);
    Put_Swapped(writer, digits);
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
