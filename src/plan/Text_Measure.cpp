#include "plan/Text_Measure.h"

#include "device/Submission_Rules.h"
#include "handset/Gsm_Alphabet.h"
#include "handset/Text_Parts.h"
#include "handset/Unicode_Text.h"
#include "platform/Utf16_Units.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Becomes = Message_Filling::Becomes;

constexpr std::size_t Units = 0x10000;

// What each UTF-16 unit costs in septets: one, two behind an escape, or 0 for none that has a place.
using Costs = std::array<quint8, Units>;

Costs Make_Costs()
{
    Costs costs{};
    const auto put = [&](char32_t character) {
        if (const auto place = Handset::Gsm_Place_Of(character))
            costs.at(character) = place->m_escaped ? 2 : 1;
    };
    for (const char32_t character : Handset::Gsm_Default_Table)
        put(character);
    for (const auto& row : Handset::Gsm_Extension_Table)
        put(row.m_character);
    return costs;
}

const Costs& Septets_Of_Units()
{
    static const Costs costs = Make_Costs();
    return costs;
}

void Take_Unit(Text_Measure::Size& size, char16_t unit, const Costs& costs)
{
    const quint8 cost = costs[unit];
    ++size.units;
    size.septets += cost;
    size.has_extension = size.has_extension || cost == 2;
    size.fits = size.fits && cost != 0;
    size.has_pairs = size.has_pairs || QChar::isSurrogate(unit);
}

Text_Measure::Size Size_Of(QStringView text)
{
    Text_Measure::Size size;
    const Costs& costs = Septets_Of_Units();
    for (const QChar unit : text)
        Take_Unit(size, unit.unicode(), costs);
    return size;
}

Text_Measure::Size Size_Of(QByteArrayView utf8)
{
    Text_Measure::Size size;
    const Costs& costs = Septets_Of_Units();
    for (const char byte : utf8) {
        if (static_cast<unsigned char>(byte) > 0x7F)
            return Size_Of(QString::fromUtf8(utf8));
        Take_Unit(size, static_cast<char16_t>(byte), costs);
    }
    return size;
}

void Take_Outsiders(const QString& text, std::vector<char32_t>& outsiders)
{
    const Costs& costs = Septets_Of_Units();
    const std::u16string_view units = Units_Of(text);
    for (std::size_t at = 0; at < units.size();) {
        const char32_t character = Handset::Code_Point_At(units, at);
        if (character >= Units || costs[character] == 0)
            outsiders.push_back(character);
        at += Handset::Utf16_Units_Of(character);
    }
}

int Rounded_Up(qint64 size, qint64 part)
{
    return static_cast<int>((size + part - 1) / part);
}

} // namespace

void Text_Measure::Size::Add(const Size& other)
{
    units += other.units;
    septets += other.septets;
    has_extension = has_extension || other.has_extension;
    has_pairs = has_pairs || other.has_pairs;
    fits = fits && other.fits;
}

Text_Measure::Text_Measure(Message_Filling filling, const Plan_Manner& manner)
    : m_filling(std::move(filling)), m_manner(manner)
{
    for (const Message_Filling::Piece& piece : m_filling.Pieces()) {
        m_sizes.push_back({Size_Of(QStringView(piece.text)), Size_Of(QStringView(piece.fallback))});
        m_is_one_for_all = m_is_one_for_all && piece.column < 0;
    }
    if (!std::exchange(m_is_one_for_all, false))
        return;
    m_for_all = Cost_For({}, -1);
    m_is_one_for_all = true;
}

Text_Measure::Cost Text_Measure::Cost_For(const Contact_Table& table, int row) const
{
    if (m_is_one_for_all)
        return m_for_all;
    Size sum;
    Cost cost;
    const auto& pieces = m_filling.Pieces();
    for (std::size_t place = 0; place < pieces.size(); ++place) {
        const auto given = Message_Filling::Given_By(pieces[place], table, row);
        if (given.what == Becomes::Value)
            sum.Add(Size_Of(given.value));
        else
            sum.Add(given.what == Becomes::Fallback ? m_sizes[place].fallback : m_sizes[place].text);
        const bool is_fault = given.what == Becomes::Empty || given.what == Becomes::Unknown;
        if (is_fault && cost.fault != Becomes::Unknown)
            cost.fault = given.what;
    }
    cost.units = sum.units;
    cost.is_unicode = m_manner.alphabet == Job_Alphabet_Choice::Unicode ||
                      (m_manner.alphabet == Job_Alphabet_Choice::Auto && !m_manner.fixed_waits && !sum.fits);
    cost.parts = Parts_Of(sum, cost.is_unicode);
    return cost;
}

// Cuts are even but where a character of two septets or a pair would be cut. What is near the limit of one message with
// fixed waits is decided by the frame; see Plan_Pdu.
int Text_Measure::Parts_Of(const Size& size, bool is_unicode) const
{
    if (m_manner.fixed_waits) {
        const int parts = Pdu_Part_Count(size.units, is_unicode);
        return parts > 1 && May_Be_Single(size.units, is_unicode) ? -1 : std::max(1, parts);
    }
    constexpr qint64 single[] = {160, 70}; // 3GPP TS 23.040, 9.2.3.24
    constexpr qint64 part[] = {153, 67};
    if (!is_unicode && !size.fits)
        return -1; // what has no place is written as something else
    const qint64 length = is_unicode ? size.units : size.septets;
    if (length <= single[is_unicode ? 1 : 0])
        return 1;
    const bool is_even = is_unicode ? !size.has_pairs : !size.has_extension;
    return is_even ? Rounded_Up(length, part[is_unicode ? 1 : 0]) : -1;
}

std::vector<char32_t> Text_Measure::Outsiders(const Contact_Table& table, int row) const
{
    std::vector<char32_t> outsiders;
    for (std::size_t place = 0; place < m_sizes.size(); ++place) {
        const Message_Filling::Piece& piece = m_filling.Pieces()[place];
        const auto given = Message_Filling::Given_By(piece, table, row);
        if (given.what == Becomes::Value)
            Take_Outsiders(QString::fromUtf8(given.value), outsiders);
        else if (const bool is_fallback = given.what == Becomes::Fallback;
                 !(is_fallback ? m_sizes[place].fallback : m_sizes[place].text).fits)
            Take_Outsiders(is_fallback ? piece.fallback : piece.text, outsiders);
    }
    std::sort(outsiders.begin(), outsiders.end());
    outsiders.erase(std::unique(outsiders.begin(), outsiders.end()), outsiders.end());
    return outsiders;
}
