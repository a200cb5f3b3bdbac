#include "pdu/Hex_Writer.h"

#include <array>
#include <cstring>
#include <stdexcept>

#include <QtEndian>

namespace {

struct Digit_Pair
{
    char16_t high;
    char16_t low;
};

consteval std::array<Digit_Pair, 256> Make_Digit_Pairs()
{
    constexpr char16_t digits[] = u"0123456789ABCDEF";
    std::array<Digit_Pair, 256> pairs{};
    for (unsigned octet = 0; octet < 256; ++octet)
        pairs[octet] = {digits[octet >> 4], digits[octet & 0x0F]};
    return pairs;
}

constexpr std::array<Digit_Pair, 256> Digit_Pairs = Make_Digit_Pairs();

constexpr qsizetype Septets_In_A_Block = 8;
constexpr qsizetype Octets_In_A_Block = 7;

QChar* Write_Octet(QChar* at, unsigned octet)
{
    const Digit_Pair pair = Digit_Pairs[octet & 0xFF];
    at[0] = QChar(pair.high);
    at[1] = QChar(pair.low);
    return at + 2;
}

// Eight septets, one a byte, drawn together into the low 56 bits: by pairs, then fours, then all eight.
quint64 Pack_Block(const quint8* septets)
{
    quint64 bits = qFromLittleEndian<quint64>(septets);
    bits = (bits & 0x007F007F007F007FU) | ((bits & 0x7F007F007F007F00U) >> 1);
    bits = (bits & 0x00003FFF00003FFFU) | ((bits & 0x3FFF00003FFF0000U) >> 2);
    return (bits & 0x000000000FFFFFFFU) | ((bits & 0x0FFFFFFF00000000U) >> 4);
}

QChar* Write_Block(QChar* at, quint64 bits, qsizetype octets)
{
    for (qsizetype octet = 0; octet < octets; ++octet, bits >>= 8)
        at = Write_Octet(at, static_cast<unsigned>(bits & 0xFF));
    return at;
}

} // namespace

Hex_Writer::Hex_Writer(qsizetype room) : m_text(room, Qt::Uninitialized) {}

QChar* Hex_Writer::Claim(qsizetype count)
{
    if (count > m_text.size() - m_written)
        throw std::length_error("more digits than room was set aside for");
    QChar* const place = m_text.data() + m_written;
    m_written += count;
    return place;
}

void Hex_Writer::Put_Octet(qint64 value)
{
    Write_Octet(Claim(2), static_cast<unsigned>(value & 0xFF));
}

void Hex_Writer::Put_Pair(QChar first, QChar second)
{
    QChar* const place = Claim(2);
    place[0] = first;
    place[1] = second;
}

void Hex_Writer::Put_Text(QStringView text)
{
    QChar* const place = Claim(text.size());
    if (!text.isEmpty())
        std::memcpy(place, text.data(), static_cast<size_t>(text.size()) * sizeof(QChar));
}

void Hex_Writer::Put_Septets(const Septet_Buffer& septets)
{
    QChar* at = Claim(Packed_Octets(septets.size()) * 2);
    const qsizetype whole = septets.size() - septets.size() % Septets_In_A_Block;
    for (qsizetype first = 0; first < whole; first += Septets_In_A_Block)
        at = Write_Block(at, Pack_Block(septets.data() + first), Octets_In_A_Block);

    const qsizetype rest = septets.size() - whole;
    std::array<quint8, Septets_In_A_Block> last{};
    std::memcpy(last.data(), septets.data() + whole, static_cast<size_t>(rest));
    Write_Block(at, Pack_Block(last.data()), Packed_Octets(rest));
}

void Hex_Writer::Put_Ucs2(QStringView text)
{
    QChar* at = Claim(text.size() * 4);
    for (const QChar character : text) {
        at = Write_Octet(at, character.unicode() >> 8);
        at = Write_Octet(at, character.unicode());
    }
}

QString Hex_Writer::Take()
{
    m_text.truncate(m_written);
    m_written = 0;
    return std::exchange(m_text, QString());
}
