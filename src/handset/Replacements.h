#pragma once

#include <optional>
#include <span>
#include <string_view>

// What may be written in place of a character that would cost a message its alphabet, or arrive as another: always
// characters of the GSM 7 bit default alphabet or its extension table (3GPP TS 23.038 6.2.1). Nothing is replaced here;
// a person decides. Pure.

namespace Handset {

enum class Replacement_Group
{
    Common, ///< quotes, dashes, blanks, Latin letters with marks, ligatures, symbols: outside the alphabet
    Script, ///< Cyrillic in Latin letters, Greek as the capitals that are in the alphabet: also outside, and not for
            ///< all
    Plain   ///< of the alphabet itself, for a sender that does not get it across: nearly all in ASCII
};

struct Replacement_Row
{
    char32_t m_character = 0;
    std::u16string_view m_text; ///< empty for what shows nothing, such as a blank without width
};

/// The rows of a group, in the order of their characters; no character is in two groups.
std::span<const Replacement_Row> Replacement_Rows(Replacement_Group group);

/// Nothing where the group has no such character.
std::optional<std::u16string_view> Replacement_Of(char32_t character, Replacement_Group group);

} // namespace Handset
