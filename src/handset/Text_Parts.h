#pragma once

#include "handset/Coding_Scheme.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// How a text is written and cut: its alphabet, what it costs, what changes on the way, and where its parts begin.
// Texts are UTF-16, positions and lengths count its units, and everything takes linear time. Of the alphabets,
// Eight_Bit is none of texts and counts as Gsm_7_Bit. Pure.

namespace Handset {

enum class Alphabet_Choice
{
    Fitting, ///< the default alphabet where the whole text fits it, else UCS2
    Gsm_7_Bit,
    Ucs2
};

/// Gsm_7_Bit where every character stands in the default alphabet or its extension table (3GPP TS 23.038 6.2.1), else
/// Ucs2; or the one chosen. A lone surrogate has no place.
Alphabet Alphabet_For(std::u16string_view text, Alphabet_Choice choice = Alphabet_Choice::Fitting);

/// A character that arrives as another.
struct Changed_Character
{
    std::size_t m_at = 0;
    std::u16string m_from; ///< two units for a surrogate pair
    std::u16string m_to;   ///< "?" in the default alphabet, U+FFFD in UCS2

    bool operator==(const Changed_Character&) const = default;
};

/// In the default alphabet what has no place there, in UCS2 lone surrogates; in the order of the text.
std::vector<Changed_Character> Changed_Characters(std::u16string_view text, Alphabet alphabet);

/// The text with these changes.
std::u16string Written_Text(std::u16string_view text, Alphabet alphabet);

/// Septets, the escapes counted, or UTF-16 units of the whole text as it is written.
std::size_t Written_Units(std::u16string_view text, Alphabet alphabet);

/// One part, as a stretch of the text that was given, before its changes.
struct Text_Part
{
    std::size_t m_first = 0;
    std::size_t m_length = 0;
    std::size_t m_units = 0; ///< septets or UTF-16 units as written

    bool operator==(const Text_Part&) const = default;
};

/// One part of at most 160 septets or 70 units, else several of at most 153 or 67, which leave room for the header of a
/// concatenation with an 8-bit reference (23.040 9.2.3.24.1). No character is cut at a part's end, be it an extension
/// or a surrogate pair. An empty text is one empty part.
std::vector<Text_Part> Cut_Text(std::u16string_view text, Alphabet alphabet);

/// The same without headers, each part a message of its own of at most 160 septets or 70 units, as text mode sends
/// them.
std::vector<Text_Part> Cut_Text_Apart(std::u16string_view text, Alphabet alphabet);

} // namespace Handset
