#pragma once

#include <QStringView>
#include <QVarLengthArray>

/// A text as unpacked septets, one a byte. A single message fits without an allocation.
using Septet_Buffer = QVarLengthArray<quint8, 512>;

/// The septets of a text in the alphabet, escape codes included (3GPP TS 23.038, 6.2.1).
Septet_Buffer Septets_Of_Message(QStringView message);

/// The septets of a text that is not to be mapped: one already mapped, or a long message.
Septet_Buffer Septets_Of_Carried(QStringView carried);

/// How many octets the septets fill when packed (3GPP TS 23.038, 6.1.2.1.1).
constexpr qsizetype Packed_Octets(qsizetype septets)
{
    return septets - septets / 8;
}
