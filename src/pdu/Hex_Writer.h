#pragma once

#include <QString>
#include <utility>

#include "pdu/Septets.h"

/// Writes octets as upper-case hexadecimal digits into a text of a size fixed beforehand, so that a whole PDU costs one
/// allocation. Lives on the stack of one encoding. Writing past the room throws std::length_error.
class Hex_Writer
{
public:
    /// room is in characters, two an octet. Throws std::bad_alloc.
    explicit Hex_Writer(qsizetype room);
    Hex_Writer(const Hex_Writer&) = delete;
    Hex_Writer& operator=(const Hex_Writer&) = delete;

    /// Two digits, of the value's low eight bits: longer values wrap.
    void Put_Octet(qint64 value)
    {
        const auto octet = static_cast<unsigned>(value & 0xFF);
        Put_Pair(QChar(Hex_Digits[octet >> 4]), QChar(Hex_Digits[octet & 0x0F]));
    }

    /// Two characters, unchanged.
    void Put_Pair(QChar first, QChar second)
    {
        QChar* const place = Claim(2);
        place[0] = first;
        place[1] = second;
    }

    /// Characters, unchanged.
    void Put_Text(QStringView text);

    /// Septets packed from bit 0 of the first octet on, fill bits zero (3GPP TS 23.038, 6.1.2.1.1).
    void Put_Septets(const Septet_Buffer& septets);

    /// Four digits for each UTF-16 unit, high octet first (3GPP TS 23.038, 6.2.3).
    void Put_Ucs2(QStringView text);

    /// Returns what was written and leaves the writer empty.
    QString Take();

private:
    static constexpr char16_t Hex_Digits[] = u"0123456789ABCDEF";

    QChar* Claim(qsizetype count)
    {
        if (count > m_end - m_at)
            Refuse();
        return std::exchange(m_at, m_at + count);
    }
    [[noreturn]] static void Refuse();

    QString m_text;
    QChar* m_at; // where the next character goes, in m_text
    QChar* m_end;
};
