#pragma once

#include "pdu/Hex_Writer.h"

// The fields of an SMS-SUBMIT, one function each; none knows another's octets. Any thread, one a writer.

/// Which of the two lengths an address field begins with.
enum class Address_Length
{
    Digits,         ///< of a destination: its digits
    Octets_And_Type ///< of a service centre: its octets, with the type octet
};

/// Everything of a submission but its user data.
struct Submit_Head
{
    QStringView service_centre;
    QStringView destination;
    bool concatenated;
    bool flash;
    bool unicode;
};

/// The user-data header of one part. Parts count from 1.
struct Concatenation
{
    int total;
    int part;
};

inline constexpr qsizetype Concatenation_Octets = 7;

/// Characters that an address field takes.
qsizetype Address_Digits(QStringView address, Address_Length counted);

/// Characters that the head takes, service centre included.
qsizetype Head_Digits(const Submit_Head& head);

/// 3GPP TS 23.040, 9.1.2.5; the service centre's 3GPP TS 24.011, 8.2.5.2. An empty address is the one octet 00.
void Put_Address(Hex_Writer& writer, QStringView address, Address_Length counted);

/// 3GPP TS 23.040, 9.2.3.1 TP-MTI, 9.2.3.3 TP-VPF, 9.2.3.23 TP-UDHI.
inline void Put_First_Octet(Hex_Writer& writer, bool concatenated)
{
    constexpr quint8 submit = 0x01;
    constexpr quint8 relative_validity = 0x10;
    constexpr quint8 header_present = 0x40;
    writer.Put_Octet(submit | relative_validity | (concatenated ? header_present : 0));
}

/// 9.2.3.6 TP-MR.
inline void Put_Message_Reference(Hex_Writer& writer)
{
    writer.Put_Octet(0x00); // the device counts for itself
}

/// 9.2.3.9 TP-PID.
inline void Put_Pid(Hex_Writer& writer)
{
    writer.Put_Octet(0x00);
}

/// 9.2.3.10 TP-DCS, as 3GPP TS 23.038, 4 codes it.
inline void Put_Dcs(Hex_Writer& writer, bool flash, bool unicode)
{
    constexpr quint8 ucs2 = 0x08;
    constexpr quint8 class_0 = 0x10;
    writer.Put_Octet((unicode ? ucs2 : 0) | (flash ? class_0 : 0));
}

/// 9.2.3.12.1 TP-VP, relative.
inline void Put_Validity(Hex_Writer& writer)
{
    writer.Put_Octet(0xFF); // 63 weeks, the longest there is
}

/// 9.2.3.16 TP-UDL: septets or octets, as the coding scheme has it.
inline void Put_Udl(Hex_Writer& writer, qint64 length)
{
    writer.Put_Octet(length);
}

/// 9.2.3.24.8 concatenated short messages, 16-bit reference number.
void Put_Concatenation(Hex_Writer& writer, const Concatenation& concatenation);

/// The service centre and all fields through TP-UDL, in order (9.2.2.2).
void Put_Head(Hex_Writer& writer, const Submit_Head& head, qint64 user_data_length);
