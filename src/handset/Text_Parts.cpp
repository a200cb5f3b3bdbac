#include "handset/Text_Parts.h"

#include "handset/Gsm_Alphabet.h"
#include "handset/Unicode_Text.h"

namespace Handset {

namespace {

// 23.040 9.2.3.24: 140 octets, of which a header with its length takes six, or seven septets.
constexpr std::size_t Most_Septets = 160;
constexpr std::size_t Most_Septets_Of_A_Part = 153;
constexpr std::size_t Most_Units = 70;
constexpr std::size_t Most_Units_Of_A_Part = 67;

bool Has_Place(char32_t character, Alphabet alphabet)
{
    return alphabet == Alphabet::Ucs2 ? !Is_Surrogate(character) : Gsm_Place_Of(character).has_value();
}

// As written: what has no place is one "?" or one U+FFFD.
std::size_t Cost_Of(char32_t character, Alphabet alphabet)
{
    if (alphabet == Alphabet::Ucs2)
        return Utf16_Units_Of(character);
    return Gsm_Place_Of(character).value_or(Gsm_Place()).m_escaped ? 2 : 1;
}

std::vector<Text_Part> Cut(std::u16string_view text, Alphabet alphabet, std::size_t most)
{
    std::vector<Text_Part> parts(1);
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = Code_Point_At(text, at);
        const std::size_t cost = Cost_Of(character, alphabet);
        if (parts.back().m_units + cost > most)
            parts.push_back({at, 0, 0});
        parts.back().m_length += Utf16_Units_Of(character);
        parts.back().m_units += cost;
        at += Utf16_Units_Of(character);
    }
    return parts;
}

} // namespace

Alphabet Alphabet_For(std::u16string_view text, Alphabet_Choice choice)
{
    if (choice != Alphabet_Choice::Fitting)
        return choice == Alphabet_Choice::Ucs2 ? Alphabet::Ucs2 : Alphabet::Gsm_7_Bit;
    for (const char16_t unit : text) { // a half of a pair has no place either
        if (!Has_Place(unit, Alphabet::Gsm_7_Bit))
            return Alphabet::Ucs2;
    }
    return Alphabet::Gsm_7_Bit;
}

std::vector<Changed_Character> Changed_Characters(std::u16string_view text, Alphabet alphabet)
{
    const std::u16string replacement = alphabet == Alphabet::Ucs2 ? u"\uFFFD" : u"?";
    std::vector<Changed_Character> changed;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = Code_Point_At(text, at);
        const std::size_t length = Utf16_Units_Of(character);
        if (!Has_Place(character, alphabet))
            changed.push_back({at, std::u16string(text.substr(at, length)), replacement});
        at += length;
    }
    return changed;
}

std::u16string Written_Text(std::u16string_view text, Alphabet alphabet)
{
    std::u16string written;
    written.reserve(text.size());
    std::size_t next = 0;
    for (const auto& changed : Changed_Characters(text, alphabet)) {
        written += text.substr(next, changed.m_at - next);
        written += changed.m_to;
        next = changed.m_at + changed.m_from.size();
    }
    written += text.substr(next);
    return written;
}

std::size_t Written_Units(std::u16string_view text, Alphabet alphabet)
{
    std::size_t units = 0;
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = Code_Point_At(text, at);
        units += Cost_Of(character, alphabet);
        at += Utf16_Units_Of(character);
    }
    return units;
}

std::vector<Text_Part> Cut_Text(std::u16string_view text, Alphabet alphabet)
{
    auto whole = Cut_Text_Apart(text, alphabet);
    if (whole.size() == 1)
        return whole;
    return Cut(text, alphabet, alphabet == Alphabet::Ucs2 ? Most_Units_Of_A_Part : Most_Septets_Of_A_Part);
}

std::vector<Text_Part> Cut_Text_Apart(std::u16string_view text, Alphabet alphabet)
{
    return Cut(text, alphabet, alphabet == Alphabet::Ucs2 ? Most_Units : Most_Septets);
}

} // namespace Handset
