#include "pdu/PDU.h"

#include <algorithm>
#include <new>
#include <utility>

#include "pdu/Gsm_Alphabet.h"
#include "pdu/Submit_Fields.h"

namespace {

constexpr qsizetype Digits_In_A_7_Bit_Part = 266; // 152 septets, 133 octets
constexpr qsizetype Digits_In_A_Ucs2_Part = 264;  // 66 characters, 132 octets

qsizetype User_Data_Length(qsizetype slice_digits, bool unicode)
{
    if (unicode)
        return slice_digits / 2 + Concatenation_Octets;
    // Counted back from whole octets: when seven septets are left over this gives one too many, and handsets show an
    // "@" at the end. Deliberately kept.
    return (slice_digits * 4 + Concatenation_Octets * 8) / 7;
}

QStringView Mid(QStringView text, qsizetype first, qsizetype count)
{
    first = std::max<qsizetype>(first, 0);
    if (first > text.size())
        return {};
    return text.sliced(first, std::clamp<qsizetype>(count, 0, text.size() - first));
}

// Leaves the flag as mapping character by character would.
void Remember_Escape(const QString& text)
{
    if (!text.isEmpty())
        escap_char = Gsm_Code_Of(text.back().unicode()).escape ? 1 : 0;
}

QString Head_Alone(const Submit_Head& head, qint64 user_data_length)
{
    Hex_Writer writer(Head_Digits(head));
    Put_Head(writer, head, user_data_length);
    return writer.Take();
}

QString Head_And_Septets(const Submit_Head& head, const Septet_Buffer& septets)
{
    Hex_Writer writer(Head_Digits(head) + Packed_Octets(septets.size()) * 2);
    Put_Head(writer, head, septets.size());
    writer.Put_Septets(septets);
    return writer.Take();
}

QString Head_And_Ucs2(const Submit_Head& head, QStringView message)
{
    Hex_Writer writer(Head_Digits(head) + message.size() * 4);
    Put_Head(writer, head, message.size() * 2);
    writer.Put_Ucs2(message);
    return writer.Take();
}

QString Head_And_Slice(const Submit_Head& head, const Concatenation& concatenation, QStringView slice)
{
    Hex_Writer writer(Head_Digits(head) + Concatenation_Octets * 2 + slice.size());
    Put_Head(writer, head, User_Data_Length(slice.size(), head.unicode));
    Put_Concatenation(writer, concatenation);
    writer.Put_Text(slice);
    return writer.Take();
}

} // namespace

PDU::PDU(Report report) : m_report(std::move(report))
{
    s_made_last = this;
}

PDU::~PDU()
{
    PDU* self = this;
    s_made_last.compare_exchange_strong(self, nullptr);
}

QString PDU::EncodeUserData(const QString& text)
{
    const Septet_Buffer septets = Septets_Of_Carried(text);
    Hex_Writer writer(Packed_Octets(septets.size()) * 2);
    writer.Put_Septets(septets);
    return writer.Take();
}

QString PDU::EncodeUserData_16_bit(const QString& text)
{
    Hex_Writer writer(text.size() * 4);
    writer.Put_Ucs2(text);
    return writer.Take();
}

QString PDU::DecodeUserData_16_bit(const QString& text)
{
    QString decoded;
    for (qsizetype first = 0; first + 4 <= text.size(); first += 4)
        decoded.append(QChar(static_cast<char16_t>(hex2int(text.sliced(first, 4)) & 0xFF)));
    return decoded;
}

int PDU::hex2dec(const QString& digit)
{
    if (digit.size() != 1)
        return 0;
    const char16_t unit = digit.front().unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    if (unit >= u'A' && unit <= u'F')
        return unit - u'A' + 10;
    return unit >= u'a' && unit <= u'f' ? unit - u'a' + 10 : 0;
}

quint64 PDU::hex2int(const QString& digits)
{
    quint64 value = 0;
    for (const QChar digit : digits)
        value = value * 16 + static_cast<quint64>(hex2dec(digit));
    return value;
}

QString PDU::EncodePDU(const QString& message, const QString& strDestinationAddress, const QString& strSMSCAddress,
                       quint16 /*intActualPDULength*/, bool blnIncludeSMSC, bool flash_msg, bool unicode) const
{
    const Submit_Head head{strSMSCAddress, strDestinationAddress, false, flash_msg, unicode};
    QString pdu;
    try {
        const Septet_Buffer septets = unicode ? Septet_Buffer() : Septets_Of_Message(message);
        if (!unicode)
            Remember_Escape(message);
        try {
            pdu = unicode ? Head_And_Ucs2(head, message) : Head_And_Septets(head, septets);
        } catch (const std::bad_alloc&) { // the only failure while user data is appended
            if (m_report)
                m_report(QStringLiteral("catch on encode data appending"));
            pdu = Head_Alone(head, unicode ? message.size() * 2 : septets.size());
        }
    } catch (const std::bad_alloc&) {
        return QString();
    }
    return blnIncludeSMSC ? std::move(pdu) : QString();
}

QString PDU::Encode_UDH_PDU(const QString& message, const QString& strDestinationAddress, const QString& strSMSCAddress,
                            quint16 /*intActualPDULength*/, bool blnIncludeSMSC, bool flash_msg, int tot_msg,
                            int curr_msg, bool unicode) const
{
    const Submit_Head head{strSMSCAddress, strDestinationAddress, true, flash_msg, unicode};
    try {
        if (curr_msg == 1)
            tp_ud = unicode ? EncodeUserData_16_bit(message) : EncodeUserData(message);
        const qsizetype digits = unicode ? Digits_In_A_Ucs2_Part : Digits_In_A_7_Bit_Part;
        const QStringView slice = Mid(tp_ud, (qsizetype{curr_msg} - 1) * digits, digits);
        QString pdu = Head_And_Slice(head, {tot_msg, curr_msg}, slice);
        return blnIncludeSMSC ? std::move(pdu) : QString();
    } catch (const std::bad_alloc&) {
        return QString();
    }
}
