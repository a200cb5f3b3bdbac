#include "pdu/Hex_Writer.h"

#include <array>
#include <cstring>
#include <stdexcept>

#include <QtEndian>

namespace {

constexpr qsizetype Septets_In_A_Block = 8;
constexpr qsizetype Octets_In_A_Block = 7;

// Sixteen octets become digits at once, in a vector register; where the machine has none, the compiler emits scalar
// code.
using Sixteen_Octets = quint8 __attribute__((vector_size(16)));
using Eight_Units = quint16 __attribute__((vector_size(16)));
constexpr qsizetype Octets_At_Once = sizeof(Sixteen_Octets);
constexpr qsizetype Units_At_Once = Octets_At_Once / 2;

// Interleaves the lower, or the upper, halves of both.
Sixteen_Octets Lower_In_Turn(Sixteen_Octets a, Sixteen_Octets b)
{
    return __builtin_shufflevector(a, b, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23);
}

Sixteen_Octets Upper_In_Turn(Sixteen_Octets a, Sixteen_Octets b)
{
    return __builtin_shufflevector(a, b, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31);
}

Sixteen_Octets Digits_Of(Sixteen_Octets values)
{
    constexpr quint8 from_nine_to_a = 'A' - '9' - 1;
    const auto is_letter = reinterpret_cast<Sixteen_Octets>(values > 9);
    return values + quint8{'0'} + (is_letter & from_nine_to_a);
}

// Widens sixteen digits to UTF-16 units.
void Write_Digits(QChar* at, Sixteen_Octets digits)
{
    const Sixteen_Octets zero{};
    const bool is_low_first = Q_BYTE_ORDER == Q_LITTLE_ENDIAN;
    const Sixteen_Octets first = is_low_first ? Lower_In_Turn(digits, zero) : Lower_In_Turn(zero, digits);
    const Sixteen_Octets second = is_low_first ? Upper_In_Turn(digits, zero) : Upper_In_Turn(zero, digits);
    std::memcpy(static_cast<void*>(at), &first, sizeof(first));
    std::memcpy(static_cast<void*>(at + Units_At_Once), &second, sizeof(second));
}

[[gnu::always_inline]] inline void Write_Sixteen(QChar* at, Sixteen_Octets octets)
{
    const Sixteen_Octets high = Digits_Of(octets >> 4);
    const Sixteen_Octets low = Digits_Of(octets & quint8{0x0F});
    Write_Digits(at, Lower_In_Turn(high, low));
    Write_Digits(at + Octets_At_Once, Upper_In_Turn(high, low));
}

// A remainder is written as the last sixteen octets, overlapping what is already there; fewer than sixteen go through a
// buffer.
void Write_Octets(QChar* at, const quint8* octets, qsizetype count)
{
    const auto write = [at, octets](qsizetype first) {
        Sixteen_Octets block;
        std::memcpy(&block, octets + first, sizeof(block));
        Write_Sixteen(at + first * 2, block);
    };
    for (qsizetype first = 0; first + Octets_At_Once <= count; first += Octets_At_Once)
        write(first);
    if (count % Octets_At_Once == 0)
        return;
    if (count > Octets_At_Once) {
        write(count - Octets_At_Once);
        return;
    }
    Sixteen_Octets block{};
    std::memcpy(&block, octets, static_cast<size_t>(count));
    std::array<QChar, Octets_At_Once * 2> digits;
    Write_Sixteen(digits.data(), block);
    std::memcpy(at, digits.data(), static_cast<size_t>(count) * 2 * sizeof(QChar));
}

// Packs eight septets, one a byte, into the low 56 bits: by pairs, then fours, then all eight.
quint64 Pack_Block(const quint8* septets)
{
    quint64 bits = qFromLittleEndian<quint64>(septets);
    bits = (bits & 0x007F007F007F007FU) | ((bits & 0x7F007F007F007F00U) >> 1);
    bits = (bits & 0x00003FFF00003FFFU) | ((bits & 0x3FFF00003FFF0000U) >> 2);
    return (bits & 0x000000000FFFFFFFU) | ((bits & 0x0FFFFFFF00000000U) >> 4);
}

} // namespace

Hex_Writer::Hex_Writer(qsizetype room)
    : m_text(room, Qt::Uninitialized), m_at(m_text.data()), m_end(m_at + m_text.size())
{
}

void Hex_Writer::Refuse()
{
    throw std::length_error("more digits than room was set aside for");
}

void Hex_Writer::Put_Text(QStringView text)
{
    QChar* const place = Claim(text.size());
    if (!text.isEmpty())
        std::memcpy(place, text.data(), static_cast<size_t>(text.size()) * sizeof(QChar));
}

void Hex_Writer::Put_Septets(const Septet_Buffer& septets)
{
    const qsizetype octets = Packed_Octets(septets.size());
    QChar* const place = Claim(octets * 2);
    // Each block writes one octet too many; the next block overwrites it.
    QVarLengthArray<quint8, 512> packed(octets + Septets_In_A_Block);
    quint8* at = packed.data();
    const qsizetype whole = septets.size() - septets.size() % Septets_In_A_Block;
    for (qsizetype first = 0; first < whole; first += Septets_In_A_Block, at += Octets_In_A_Block)
        qToLittleEndian(Pack_Block(septets.data() + first), at);

    std::array<quint8, Septets_In_A_Block> last{};
    std::memcpy(last.data(), septets.data() + whole, static_cast<size_t>(septets.size() - whole));
    qToLittleEndian(Pack_Block(last.data()), at);
    Write_Octets(place, packed.data(), octets);
}

void Hex_Writer::Put_Ucs2(QStringView text)
{
    QChar* const place = Claim(text.size() * 4);
    const auto write = [place, text](qsizetype first) {
        Eight_Units units;
        std::memcpy(&units, text.data() + first, sizeof(units));
        if (Q_BYTE_ORDER == Q_LITTLE_ENDIAN)
            units = (units << 8) | (units >> 8);
        Write_Sixteen(place + first * 4, reinterpret_cast<Sixteen_Octets>(units));
    };
    for (qsizetype first = 0; first + Units_At_Once <= text.size(); first += Units_At_Once)
        write(first);
    if (text.size() % Units_At_Once == 0)
        return;
    if (text.size() > Units_At_Once) {
        write(text.size() - Units_At_Once); // overlapping what is already there
        return;
    }
    for (qsizetype at = 0; at < text.size(); ++at) {
        std::array<quint8, 2> octets;
        qToBigEndian(text[at].unicode(), octets.data());
        Write_Octets(place + at * 4, octets.data(), 2);
    }
}

QString Hex_Writer::Take()
{
    if (m_at)
        m_text.truncate(m_at - m_text.constData());
    m_at = m_end = nullptr;
    return std::exchange(m_text, QString());
}
