#include "list/Packed_Number.h"

#include <algorithm>

namespace {

constexpr std::uint32_t Is_Odd = 0xFFFF'FFFF; // no digits produce this

} // namespace

std::optional<Packed_Number> Packed_Number::Of(QStringView text)
{
    Packed_Number number;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9' || !number.Add_Digit(digit.unicode()))
            return std::nullopt;
    }
    return number;
}

QString Packed_Number::Digits() const
{
    std::array<char16_t, 20> digits{};
    std::size_t begin = digits.size();
    for (const std::uint32_t packed : m_words) {
        for (std::uint32_t word = packed; word != 0; word >>= 4)
            digits[--begin] = static_cast<char16_t>(u'0' + (word & 0xF) - 1);
    }
    return QString::fromUtf16(digits.data() + begin, static_cast<qsizetype>(digits.size() - begin));
}

Packed_Number Number_Texts::Pack(const QString& text)
{
    if (const auto number = Packed(text))
        return *number;
    const auto place = static_cast<std::uint32_t>(m_odd.size());
    m_odd.push_back(text);
    m_places.insert(text, place);
    return Odd(place);
}

std::optional<Packed_Number> Number_Texts::Packed(const QString& text) const
{
    if (const auto number = Packed_Number::Of(text))
        return number;
    const auto place = m_places.constFind(text);
    return place == m_places.cend() ? std::nullopt : std::optional(Odd(*place));
}

QString Number_Texts::Text_Of(const Packed_Number& number) const
{
    return number.m_words[2] == Is_Odd ? m_odd.at(number.m_words[0]) : number.Digits();
}

Packed_Number Number_Texts::Odd(std::uint32_t place)
{
    Packed_Number number;
    number.m_words = {place, 0, Is_Odd};
    return number;
}
