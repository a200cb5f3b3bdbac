#pragma once

#include <QString>

// The codec the long way round: every step written out with strings of binary digits and a scan of the whole alphabet,
// so that the packing of the real one has something plain to be compared with. Shares nothing with it. Stateless but
// for the user data of the long message in hand; a test makes its own.
class Reference_Codec
{
public:
    static int MapChar(char16_t character, bool& escape);
    static QString MapTo7BitAlphabet(const QString& text);
    static QString EncodeUserData(const QString& text);
    static QString EncodeUserData_16_bit(const QString& text);
    static QString EncodeAddress(QString address, bool bInCountBytes);
    static QString EncodePDU(const QString& message, const QString& destination, const QString& smsc, bool flash,
                             bool unicode);
    QString Encode_UDH_PDU(const QString& message, const QString& destination, const QString& smsc, bool flash,
                           int total, int part, bool unicode);

private:
    QString m_user_data;
};
