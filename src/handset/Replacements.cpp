#include "handset/Replacements.h"

#include <algorithm>
#include <array>

namespace Handset {

namespace {

// What is no letter, digit or sign that an editor shows stands as its number. A letter with several marks needs no row:
// it is taken apart before it is looked for.
// clang-format off
constexpr std::array<Replacement_Row, 371> Common_Rows = {{
    {0x0009, u" "}, {0x0060, u"'"}, {0x00A0, u" "}, {U'¢', u"c"}, {U'¦', u"|"}, {0x00A8, u"\""}, {U'©', u"(C)"},
    {U'ª', u"a"}, {U'«', u"\""}, {0x00AD, u""}, {U'®', u"(R)"}, {U'¯', u"-"}, {U'°', u" deg"}, {U'±', u"+/-"},
    {U'²', u"2"}, {U'³', u"3"}, {0x00B4, u"'"}, {U'µ', u"u"}, {U'·', u"."}, {U'¸', u","}, {U'¹', u"1"},
    {U'º', u"o"}, {U'»', u"\""}, {U'¼', u"1/4"}, {U'½', u"1/2"}, {U'¾', u"3/4"}, {U'À', u"A"}, {U'Á', u"A"},
    {U'Â', u"A"}, {U'Ã', u"A"}, {U'È', u"E"}, {U'Ê', u"E"}, {U'Ë', u"E"}, {U'Ì', u"I"}, {U'Í', u"I"}, {U'Î', u"I"},
    {U'Ï', u"I"}, {U'Ð', u"D"}, {U'Ò', u"O"}, {U'Ó', u"O"}, {U'Ô', u"O"}, {U'Õ', u"O"}, {U'×', u"x"}, {U'Ù', u"U"},
    {U'Ú', u"U"}, {U'Û', u"U"}, {U'Ý', u"Y"}, {U'Þ', u"Th"}, {U'á', u"a"}, {U'â', u"a"}, {U'ã', u"a"}, {U'ç', u"c"},
    {U'ê', u"e"}, {U'ë', u"e"}, {U'í', u"i"}, {U'î', u"i"}, {U'ï', u"i"}, {U'ð', u"d"}, {U'ó', u"o"}, {U'ô', u"o"},
    {U'õ', u"o"}, {U'÷', u"/"}, {U'ú', u"u"}, {U'û', u"u"}, {U'ý', u"y"}, {U'þ', u"th"}, {U'ÿ', u"y"}, {U'Ā', u"A"},
    {U'ā', u"a"}, {U'Ă', u"A"}, {U'ă', u"a"}, {U'Ą', u"A"}, {U'ą', u"a"}, {U'Ć', u"C"}, {U'ć', u"c"}, {U'Ĉ', u"C"},
    {U'ĉ', u"c"}, {U'Ċ', u"C"}, {U'ċ', u"c"}, {U'Č', u"C"}, {U'č', u"c"}, {U'Ď', u"D"}, {U'ď', u"d"}, {U'Đ', u"D"},
    {U'đ', u"d"}, {U'Ē', u"E"}, {U'ē', u"e"}, {U'Ĕ', u"E"}, {U'ĕ', u"e"}, {U'Ė', u"E"}, {U'ė', u"e"}, {U'Ę', u"E"},
    {U'ę', u"e"}, {U'Ě', u"E"}, {U'ě', u"e"}, {U'Ĝ', u"G"}, {U'ĝ', u"g"}, {U'Ğ', u"G"}, {U'ğ', u"g"}, {U'Ġ', u"G"},
    {U'ġ', u"g"}, {U'Ģ', u"G"}, {U'ģ', u"g"}, {U'Ĥ', u"H"}, {U'ĥ', u"h"}, {U'Ħ', u"H"}, {U'ħ', u"h"}, {U'Ĩ', u"I"},
    {U'ĩ', u"i"}, {U'Ī', u"I"}, {U'ī', u"i"}, {U'Ĭ', u"I"}, {U'ĭ', u"i"}, {U'Į', u"I"}, {U'į', u"i"}, {U'İ', u"I"},
    {U'ı', u"i"}, {U'Ĳ', u"IJ"}, {U'ĳ', u"ij"}, {U'Ĵ', u"J"}, {U'ĵ', u"j"}, {U'Ķ', u"K"}, {U'ķ', u"k"},
    {U'ĸ', u"k"}, {U'Ĺ', u"L"}, {U'ĺ', u"l"}, {U'Ļ', u"L"}, {U'ļ', u"l"}, {U'Ľ', u"L"}, {U'ľ', u"l"}, {U'Ŀ', u"L"},
    {U'ŀ', u"l"}, {U'Ł', u"L"}, {U'ł', u"l"}, {U'Ń', u"N"}, {U'ń', u"n"}, {U'Ņ', u"N"}, {U'ņ', u"n"}, {U'Ň', u"N"},
    {U'ň', u"n"}, {U'ŉ', u"'n"}, {U'Ŋ', u"NG"}, {U'ŋ', u"ng"}, {U'Ō', u"O"}, {U'ō', u"o"}, {U'Ŏ', u"O"},
    {U'ŏ', u"o"}, {U'Ő', u"Ö"}, {U'ő', u"ö"}, {U'Œ', u"OE"}, {U'œ', u"oe"}, {U'Ŕ', u"R"}, {U'ŕ', u"r"},
    {U'Ŗ', u"R"}, {U'ŗ', u"r"}, {U'Ř', u"R"}, {U'ř', u"r"}, {U'Ś', u"S"}, {U'ś', u"s"}, {U'Ŝ', u"S"}, {U'ŝ', u"s"},
    {U'Ş', u"S"}, {U'ş', u"s"}, {U'Š', u"S"}, {U'š', u"s"}, {U'Ţ', u"T"}, {U'ţ', u"t"}, {U'Ť', u"T"}, {U'ť', u"t"},
    {U'Ŧ', u"T"}, {U'ŧ', u"t"}, {U'Ũ', u"U"}, {U'ũ', u"u"}, {U'Ū', u"U"}, {U'ū', u"u"}, {U'Ŭ', u"U"}, {U'ŭ', u"u"},
    {U'Ů', u"U"}, {U'ů', u"u"}, {U'Ű', u"Ü"}, {U'ű', u"ü"}, {U'Ų', u"U"}, {U'ų', u"u"}, {U'Ŵ', u"W"}, {U'ŵ', u"w"},
    {U'Ŷ', u"Y"}, {U'ŷ', u"y"}, {U'Ÿ', u"Y"}, {U'Ź', u"Z"}, {U'ź', u"z"}, {U'Ż', u"Z"}, {U'ż', u"z"}, {U'Ž', u"Z"},
    {U'ž', u"z"}, {U'ſ', u"s"}, {U'Ə', u"A"}, {U'ƒ', u"f"}, {U'Ǆ', u"DZ"}, {U'ǅ', u"Dz"}, {U'ǆ', u"dz"},
    {U'Ǉ', u"LJ"}, {U'ǈ', u"Lj"}, {U'ǉ', u"lj"}, {U'Ǌ', u"NJ"}, {U'ǋ', u"Nj"}, {U'ǌ', u"nj"}, {U'Ș', u"S"},
    {U'ș', u"s"}, {U'Ț', u"T"}, {U'ț', u"t"}, {U'ə', u"a"}, {0x02B9, u"'"}, {0x02BA, u"\""}, {0x02BB, u"'"},
    {0x02BC, u"'"}, {0x02BD, u"'"}, {0x02C8, u"'"}, {U'˜', u"~"}, {U'˝', u"\""}, {0x0300, u""}, {0x0301, u""},
    {0x0302, u""}, {0x0303, u""}, {0x0304, u""}, {0x0306, u""}, {0x0307, u""}, {0x0308, u""}, {0x0309, u""},
    {0x030A, u""}, {0x030B, u""}, {0x030C, u""}, {0x031B, u""}, {0x0323, u""}, {0x0326, u""}, {0x0327, u""},
    {0x0328, u""}, {U'฿', u"THB"}, {0x1680, u" "}, {U'ẞ', u"SS"}, {0x2000, u" "}, {0x2001, u" "}, {0x2002, u" "},
    {0x2003, u" "}, {0x2004, u" "}, {0x2005, u" "}, {0x2006, u" "}, {0x2007, u" "}, {0x2008, u" "}, {0x2009, u" "},
    {0x200A, u" "}, {0x200B, u""}, {0x200C, u""}, {0x200D, u""}, {0x200E, u""}, {0x200F, u""}, {U'‐', u"-"},
    {U'‑', u"-"}, {U'‒', u"-"}, {U'–', u"-"}, {U'—', u"-"}, {U'―', u"-"}, {U'‘', u"'"}, {U'’', u"'"}, {U'‚', u"'"},
    {U'‛', u"'"}, {U'“', u"\""}, {U'”', u"\""}, {U'„', u"\""}, {U'‟', u"\""}, {U'•', u"-"}, {U'…', u"..."},
    {0x2028, u"\n"}, {0x2029, u"\n"}, {0x202A, u""}, {0x202B, u""}, {0x202C, u""}, {0x202D, u""}, {0x202E, u""},
    {0x202F, u" "}, {U'‰', u"o/oo"}, {U'′', u"'"}, {U'″', u"\""}, {U'‵', u"'"}, {U'‶', u"\""}, {U'‹', u"'"},
    {U'›', u"'"}, {U'‼', u"!!"}, {U'⁃', u"-"}, {U'⁄', u"/"}, {U'⁇', u"??"}, {U'⁈', u"?!"}, {U'⁉', u"!?"},
    {0x205F, u" "}, {0x2060, u""}, {0x2066, u""}, {0x2067, u""}, {0x2068, u""}, {0x2069, u""}, {U'⁰', u"0"},
    {U'⁴', u"4"}, {U'⁵', u"5"}, {U'⁶', u"6"}, {U'⁷', u"7"}, {U'⁸', u"8"}, {U'⁹', u"9"}, {U'₀', u"0"}, {U'₁', u"1"},
    {U'₂', u"2"}, {U'₃', u"3"}, {U'₄', u"4"}, {U'₅', u"5"}, {U'₆', u"6"}, {U'₇', u"7"}, {U'₈', u"8"}, {U'₉', u"9"},
    {U'₤', u"£"}, {U'₦', u"NGN"}, {U'₩', u"KRW"}, {U'₪', u"ILS"}, {U'₫', u"VND"}, {U'₱', u"PHP"}, {U'₴', u"UAH"},
    {U'₸', u"KZT"}, {U'₹', u"INR"}, {U'₺', u"TRY"}, {U'₽', u"RUB"}, {U'℃', u"C"}, {U'℉', u"F"}, {U'№', u"No"},
    {U'℠', u"(SM)"}, {U'℡', u"Tel"}, {U'™', u"(TM)"}, {U'Ω', u"Ω"}, {U'K', u"K"}, {U'Å', u"Å"}, {U'⅓', u"1/3"},
    {U'⅔', u"2/3"}, {U'⅕', u"1/5"}, {U'⅛', u"1/8"}, {U'⅜', u"3/8"}, {U'⅝', u"5/8"}, {U'⅞', u"7/8"}, {U'←', u"<-"},
    {U'→', u"->"}, {U'↔', u"<->"}, {U'⇒', u"=>"}, {U'−', u"-"}, {U'∕', u"/"}, {U'∗', u"*"}, {U'∙', u"."},
    {U'≈', u"~"}, {U'≠', u"!="}, {U'≤', u"<="}, {U'≥', u">="}, {U'▪', u"-"}, {U'●', u"-"}, {U'◦', u"-"},
    {0x3000, u" "}, {U'ﬀ', u"ff"}, {U'ﬁ', u"fi"}, {U'ﬂ', u"fl"}, {U'ﬃ', u"ffi"}, {U'ﬄ', u"ffl"}, {U'ﬅ', u"st"},
    {U'ﬆ', u"st"}, {0xFE0E, u""}, {0xFE0F, u""}, {U'﹘', u"-"}, {U'﹣', u"-"}, {0xFEFF, u""}, {U'－', u"-"},
}};

constexpr std::array<Replacement_Row, 169> Script_Rows = {{
    {U'Ά', u"A"}, {U'Έ', u"E"}, {U'Ή', u"H"}, {U'Ί', u"I"}, {U'Ό', u"O"}, {U'Ύ', u"Y"}, {U'Ώ', u"Ω"}, {U'ΐ', u"I"},
    {U'Α', u"A"}, {U'Β', u"B"}, {U'Ε', u"E"}, {U'Ζ', u"Z"}, {U'Η', u"H"}, {U'Ι', u"I"}, {U'Κ', u"K"}, {U'Μ', u"M"},
    {U'Ν', u"N"}, {U'Ο', u"O"}, {U'Ρ', u"P"}, {U'Τ', u"T"}, {U'Υ', u"Y"}, {U'Χ', u"X"}, {U'Ϊ', u"I"}, {U'Ϋ', u"Y"},
    {U'ά', u"A"}, {U'έ', u"E"}, {U'ή', u"H"}, {U'ί', u"I"}, {U'ΰ', u"Y"}, {U'α', u"A"}, {U'β', u"B"}, {U'γ', u"Γ"},
    {U'δ', u"Δ"}, {U'ε', u"E"}, {U'ζ', u"Z"}, {U'η', u"H"}, {U'θ', u"Θ"}, {U'ι', u"I"}, {U'κ', u"K"}, {U'λ', u"Λ"},
    {U'μ', u"M"}, {U'ν', u"N"}, {U'ξ', u"Ξ"}, {U'ο', u"O"}, {U'π', u"Π"}, {U'ρ', u"P"}, {U'ς', u"Σ"}, {U'σ', u"Σ"},
    {U'τ', u"T"}, {U'υ', u"Y"}, {U'φ', u"Φ"}, {U'χ', u"X"}, {U'ψ', u"Ψ"}, {U'ω', u"Ω"}, {U'ϊ', u"I"}, {U'ϋ', u"Y"},
    {U'ό', u"O"}, {U'ύ', u"Y"}, {U'ώ', u"Ω"}, {U'Ё', u"E"}, {U'Ђ', u"Dj"}, {U'Ѓ', u"Gj"}, {U'Є', u"Ye"},
    {U'Ѕ', u"Dz"}, {U'І', u"I"}, {U'Ї', u"Yi"}, {U'Ј', u"J"}, {U'Љ', u"Lj"}, {U'Њ', u"Nj"}, {U'Ћ', u"C"},
    {U'Ќ', u"Kj"}, {U'Ў', u"U"}, {U'Џ', u"Dz"}, {U'А', u"A"}, {U'Б', u"B"}, {U'В', u"V"}, {U'Г', u"G"},
    {U'Д', u"D"}, {U'Е', u"E"}, {U'Ж', u"Zh"}, {U'З', u"Z"}, {U'И', u"I"}, {U'Й', u"Y"}, {U'К', u"K"}, {U'Л', u"L"},
    {U'М', u"M"}, {U'Н', u"N"}, {U'О', u"O"}, {U'П', u"P"}, {U'Р', u"R"}, {U'С', u"S"}, {U'Т', u"T"}, {U'У', u"U"},
    {U'Ф', u"F"}, {U'Х', u"Kh"}, {U'Ц', u"Ts"}, {U'Ч', u"Ch"}, {U'Ш', u"Sh"}, {U'Щ', u"Shch"}, {U'Ъ', u""},
    {U'Ы', u"Y"}, {U'Ь', u""}, {U'Э', u"E"}, {U'Ю', u"Yu"}, {U'Я', u"Ya"}, {U'а', u"a"}, {U'б', u"b"}, {U'в', u"v"},
    {U'г', u"g"}, {U'д', u"d"}, {U'е', u"e"}, {U'ж', u"zh"}, {U'з', u"z"}, {U'и', u"i"}, {U'й', u"y"}, {U'к', u"k"},
    {U'л', u"l"}, {U'м', u"m"}, {U'н', u"n"}, {U'о', u"o"}, {U'п', u"p"}, {U'р', u"r"}, {U'с', u"s"}, {U'т', u"t"},
    {U'у', u"u"}, {U'ф', u"f"}, {U'х', u"kh"}, {U'ц', u"ts"}, {U'ч', u"ch"}, {U'ш', u"sh"}, {U'щ', u"shch"},
    {U'ъ', u""}, {U'ы', u"y"}, {U'ь', u""}, {U'э', u"e"}, {U'ю', u"yu"}, {U'я', u"ya"}, {U'ё', u"e"}, {U'ђ', u"dj"},
    {U'ѓ', u"gj"}, {U'є', u"ye"}, {U'ѕ', u"dz"}, {U'і', u"i"}, {U'ї', u"yi"}, {U'ј', u"j"}, {U'љ', u"lj"},
    {U'њ', u"nj"}, {U'ћ', u"c"}, {U'ќ', u"kj"}, {U'ў', u"u"}, {U'џ', u"dz"}, {U'Ґ', u"G"}, {U'ґ', u"g"},
    {U'Ғ', u"G"}, {U'ғ', u"g"}, {U'Қ', u"Q"}, {U'қ', u"q"}, {U'Ң', u"N"}, {U'ң', u"n"}, {U'Ү', u"U"}, {U'ү', u"u"},
    {U'Ұ', u"U"}, {U'ұ', u"u"}, {U'Һ', u"H"}, {U'һ', u"h"}, {U'Ә', u"A"}, {U'ә', u"a"}, {U'Ө', u"O"}, {U'ө', u"o"},
}};

constexpr std::array<Replacement_Row, 36> Plain_Rows = {{
    {U'[', u"("}, {U'\\', u"/"}, {U']', u")"}, {U'_', u"-"}, {U'{', u"("}, {U'|', u"/"}, {U'}', u")"}, {U'~', u"-"},
    {U'¡', u"!"}, {U'£', u"GBP"}, {U'¥', u"JPY"}, {U'¿', u"?"}, {U'Ä', u"A"}, {U'Å', u"A"}, {U'Æ', u"AE"},
    {U'Ç', u"C"}, {U'É', u"E"}, {U'Ñ', u"N"}, {U'Ö', u"O"}, {U'Ø', u"O"}, {U'Ü', u"U"}, {U'ß', u"ss"}, {U'à', u"a"},
    {U'ä', u"a"}, {U'å', u"a"}, {U'æ', u"ae"}, {U'è', u"e"}, {U'é', u"e"}, {U'ì', u"i"}, {U'ñ', u"n"}, {U'ò', u"o"},
    {U'ö', u"o"}, {U'ø', u"o"}, {U'ù', u"u"}, {U'ü', u"u"}, {U'€', u"EUR"},
}};
// clang-format on

consteval bool Is_In_Order(std::span<const Replacement_Row> rows)
{
    return std::ranges::adjacent_find(rows, std::ranges::greater_equal(), &Replacement_Row::m_character) == rows.end();
}
static_assert(Is_In_Order(Common_Rows) && Is_In_Order(Script_Rows) && Is_In_Order(Plain_Rows));

} // namespace

std::span<const Replacement_Row> Replacement_Rows(Replacement_Group group)
{
    switch (group) {
    case Replacement_Group::Common:
        return Common_Rows;
    case Replacement_Group::Script:
        return Script_Rows;
    case Replacement_Group::Plain:
        break;
    }
    return Plain_Rows;
}

std::optional<std::u16string_view> Replacement_Of(char32_t character, Replacement_Group group)
{
    const auto rows = Replacement_Rows(group);
    const auto row = std::ranges::lower_bound(rows, character, {}, &Replacement_Row::m_character);
    if (row == rows.end() || row->m_character != character)
        return std::nullopt;
    return row->m_text;
}

} // namespace Handset
