#pragma once

#include "pdu/PDU.h"

// The octets after the service centre's, as the device is told them before a PDU.
inline qsizetype Measured(const QString& pdu, const QString& smsc)
{
    return pdu.size() / 2 - PDU::EncodeSMSCAddress(smsc).size() / 2;
}
