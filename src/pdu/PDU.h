#pragma once

#include <atomic>
#include <functional>

#include <QString>

/// The codec: text in, upper-case hexadecimal out. SMS-SUBMIT frames (3GPP TS 23.040, 9.2.2.2) with 7-bit or UCS2 user
/// data. Made for a message and dropped afterwards; it holds nothing but its report. Any number may work on any threads
/// at once: what outlives a call (escap_char, tp_ud) is each thread's own.
class PDU
{
public:
    /// Takes a diagnostic line.
    using Report = std::function<void(const QString& line)>;

    /// Becomes the shared instance. Without a report, diagnostics are dropped.
    explicit PDU(Report report = {});
    ~PDU();
    PDU(const PDU&) = delete;
    PDU& operator=(const PDU&) = delete;

    /// A whole single message: service centre, then the TPDU. Nothing is refused; TP-UDL wraps at 256. Empty where
    /// blnIncludeSMSC is false or memory ran out. intActualPDULength is ignored.
    QString EncodePDU(const QString& message, const QString& strDestinationAddress, const QString& strSMSCAddress,
                      quint16 intActualPDULength, bool blnIncludeSMSC, bool flash_msg, bool unicode) const;

    /// Part curr_msg (from 1) of tot_msg of a long message. The first packs the whole message into tp_ud and the others
    /// cut theirs out of it, so ask for them in order and on one thread. 7-bit text goes out as it stands, not mapped.
    /// Otherwise as above.
    QString Encode_UDH_PDU(const QString& message, const QString& strDestinationAddress, const QString& strSMSCAddress,
                           quint16 intActualPDULength, bool blnIncludeSMSC, bool flash_msg, int tot_msg, int curr_msg,
                           bool unicode) const;

    /// Packs the low seven bits of each character, "@" as 0 and the bar as 64. Zero fill bits; empty for an empty text.
    static QString EncodeUserData(const QString& text);

    /// Four digits for each UTF-16 unit.
    static QString EncodeUserData_16_bit(const QString& text);

    /// One character for each four digits, of the value's low byte only. Up to three digits too many are left out.
    static QString DecodeUserData_16_bit(const QString& text);

    /// The value of one hexadecimal digit of either case; 0 for anything else.
    static int hex2dec(const QString& digit);

    /// The value of hexadecimal digits, anything else counting as 0. Beyond 64 bits the highest digits are lost.
    static quint64 hex2int(const QString& digits);

    // Kept by name; nothing in the program calls these (PDU_Unused.cpp).

    /// The instance made last, as long as it lives; where there is none, one that lives as long as the program.
    static PDU* defaultInstance();

    /// The alphabet's code for the first character, or that unit's low byte where the alphabet has no row; sets
    /// escap_char. An empty text gives 0 and leaves escap_char alone. blnEscapeChar is ignored.
    static qint16 MapChar(const QString& character, bool blnEscapeChar);

    /// One character for each septet, escape codes (27) included. Code 0 is carried as "@", an escaped 64 as the bar.
    static QString MapTo7BitAlphabet(const QString& text);

    /// The integer's low eight bits as "0" and "1", bit 7 first.
    static QString ConvertToBinary(int value);

    /// The value of a text of "0" and "1"; other characters count as "0", and so do places beyond 32 bits.
    static quint32 BinToDec(const QString& digits);

    /// Two to the power of 0..31; 0 for any other exponent.
    static quint32 Power2(int exponent);

    /// The UTF-16 units in reverse order.
    static QString reverseString(const QString& text);

    /// The text with "0" put before it until it is that long. A longer one stays.
    static QString PadZero(const QString& text, int Length);

    /// At least two hexadecimal digits: "05", "91", "100".
    static QString BCDEncode(int n);

    /// Length, type of address and swapped digits (3GPP TS 23.040, 9.1.2.5); "00" for an empty address. A leading "+"
    /// makes it international; other characters are taken as digits. bInCountBytes: the length is in octets, with the
    /// type.
    static QString EncodeAddress(const QString& address, bool bInCountBytes);
    static QString EncodeSMSCAddress(const QString& address);
    static QString EncodeDestinationAddress(const QString& address);

    /// The units from iFirst on, nCount at most; a negative argument is taken as 0. Empty where it lies past the end.
    static QString Mid_String(const QString& text, qsizetype iFirst, qsizetype nCount);

private:
    static inline std::atomic<PDU*> s_made_last = nullptr;

    Report m_report;
};

/// 1 when the character that this thread mapped last takes an escape code before it, else 0. Nothing reads it.
inline thread_local quint8 escap_char = 0;

/// The whole user data, as hexadecimal, of the long message whose first part this thread encoded last.
inline thread_local QString tp_ud;
