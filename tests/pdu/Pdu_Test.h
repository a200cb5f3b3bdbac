#pragma once

#include <ostream>

#include <gtest/gtest.h>

#include "pdu/PDU.h"

using namespace Qt::StringLiterals;

// So that a failed comparison of texts shows the texts. Found by argument-dependent look-up.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << "\" (" << text.size() << " units)";
}

// How a message goes out: to a number of ten digits through the device's own service centre, unless told otherwise.
struct How
{
    QString to = u"0123456789"_s;
    QString smsc = {};
    bool flash = false;
    bool unicode = false;
};

inline QString Single(const QString& message, const How& how = {})
{
    return PDU().EncodePDU(message, how.to, how.smsc, 0, true, how.flash, how.unicode);
}

inline QString Part(const QString& message, int total, int part, const How& how = {})
{
    return PDU().Encode_UDH_PDU(message, how.to, how.smsc, 0, true, how.flash, total, part, how.unicode);
}

// The octets after the service centre's, as the device is told them before a PDU.
inline qsizetype Measured(const QString& pdu, const QString& smsc = {})
{
    return pdu.size() / 2 - PDU::EncodeSMSCAddress(smsc).size() / 2;
}
