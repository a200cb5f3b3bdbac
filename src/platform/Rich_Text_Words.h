#pragma once

#include <algorithm>
#include <string_view>

// The control words that affect the plain text of a rich text. All others change only how it looks.

enum class Rich_Text_Action
{
    Put,        ///< stands for the character that is its value
    End_Cell,   ///< of a table: a line ends
    End_Row,    ///< the same, unless the row's last cell has ended it
    Pass_Over,  ///< the group it begins is not part of the document's text
    Font_Table, ///< passed over too, once its fonts' character sets are known
    Code_Page,  ///< of the document; its value or, where that is 0, its number
    Default_Font,
    Font,
    Charset,   ///< of the font being described
    Font_Page, ///< the same, given as a code page
    Plain,     ///< back to the default font, and shown
    Hidden,    ///< text is hidden from here on or, with the number 0, shown again
    Deleted,   ///< the same for what was deleted while changes were tracked
    Unicode,   ///< its number is a UTF-16 code unit
    Fallback,  ///< its number is how many characters after a Unicode one replace it in older readers
    Binary,    ///< its number is how many bytes of arbitrary data follow
};

struct Rich_Text_Word
{
    std::string_view word;
    Rich_Text_Action action;
    int value;
};

inline constexpr Rich_Text_Word Rich_Text_Words[] = {
    {"aftncn", Rich_Text_Action::Pass_Over, 0},
    {"aftnsep", Rich_Text_Action::Pass_Over, 0},
    {"aftnsepc", Rich_Text_Action::Pass_Over, 0},
    {"annotation", Rich_Text_Action::Pass_Over, 0},
    {"ansi", Rich_Text_Action::Code_Page, 1252},
    {"ansicpg", Rich_Text_Action::Code_Page, 0},
    {"atnauthor", Rich_Text_Action::Pass_Over, 0},
    {"atndate", Rich_Text_Action::Pass_Over, 0},
    {"atnicn", Rich_Text_Action::Pass_Over, 0},
    {"atnid", Rich_Text_Action::Pass_Over, 0},
    {"atnparent", Rich_Text_Action::Pass_Over, 0},
    {"atnref", Rich_Text_Action::Pass_Over, 0},
    {"atntime", Rich_Text_Action::Pass_Over, 0},
    {"atrfend", Rich_Text_Action::Pass_Over, 0},
    {"atrfstart", Rich_Text_Action::Pass_Over, 0},
    {"bin", Rich_Text_Action::Binary, 0},
    {"bkmkend", Rich_Text_Action::Pass_Over, 0},
    {"bkmkstart", Rich_Text_Action::Pass_Over, 0},
    {"bullet", Rich_Text_Action::Put, 0x2022},
    {"cell", Rich_Text_Action::End_Cell, 0},
    {"colortbl", Rich_Text_Action::Pass_Over, 0},
    {"column", Rich_Text_Action::Put, '\n'},
    {"cpg", Rich_Text_Action::Font_Page, 0},
    {"deff", Rich_Text_Action::Default_Font, 0},
    {"deleted", Rich_Text_Action::Deleted, 0},
    {"emdash", Rich_Text_Action::Put, 0x2014},
    {"emspace", Rich_Text_Action::Put, 0x2003},
    {"endash", Rich_Text_Action::Put, 0x2013},
    {"enspace", Rich_Text_Action::Put, 0x2002},
    {"f", Rich_Text_Action::Font, 0},
    {"fcharset", Rich_Text_Action::Charset, 0},
    {"filetbl", Rich_Text_Action::Pass_Over, 0},
    {"fldinst", Rich_Text_Action::Pass_Over, 0},
    {"fonttbl", Rich_Text_Action::Font_Table, 0},
    {"footer", Rich_Text_Action::Pass_Over, 0},
    {"footerf", Rich_Text_Action::Pass_Over, 0},
    {"footerl", Rich_Text_Action::Pass_Over, 0},
    {"footerr", Rich_Text_Action::Pass_Over, 0},
    {"footnote", Rich_Text_Action::Pass_Over, 0},
    {"ftncn", Rich_Text_Action::Pass_Over, 0},
    {"ftnsep", Rich_Text_Action::Pass_Over, 0},
    {"ftnsepc", Rich_Text_Action::Pass_Over, 0},
    {"header", Rich_Text_Action::Pass_Over, 0},
    {"headerf", Rich_Text_Action::Pass_Over, 0},
    {"headerl", Rich_Text_Action::Pass_Over, 0},
    {"headerr", Rich_Text_Action::Pass_Over, 0},
    {"info", Rich_Text_Action::Pass_Over, 0},
    {"ldblquote", Rich_Text_Action::Put, 0x201C},
    {"line", Rich_Text_Action::Put, '\n'},
    {"listoverridetable", Rich_Text_Action::Pass_Over, 0},
    {"listtable", Rich_Text_Action::Pass_Over, 0},
    {"listtext", Rich_Text_Action::Pass_Over, 0},
    {"lquote", Rich_Text_Action::Put, 0x2018},
    {"ltrmark", Rich_Text_Action::Put, 0x200E},
    {"mac", Rich_Text_Action::Code_Page, 10000},
    {"nestcell", Rich_Text_Action::End_Cell, 0},
    {"nestrow", Rich_Text_Action::End_Row, 0},
    {"nonesttables", Rich_Text_Action::Pass_Over, 0},
    {"objdata", Rich_Text_Action::Pass_Over, 0},
    {"page", Rich_Text_Action::Put, '\n'},
    {"par", Rich_Text_Action::Put, '\n'},
    {"pc", Rich_Text_Action::Code_Page, 437},
    {"pca", Rich_Text_Action::Code_Page, 850},
    {"pict", Rich_Text_Action::Pass_Over, 0},
    {"plain", Rich_Text_Action::Plain, 0},
    {"pntext", Rich_Text_Action::Pass_Over, 0},
    {"qmspace", Rich_Text_Action::Put, 0x2005},
    {"rdblquote", Rich_Text_Action::Put, 0x201D},
    {"revtbl", Rich_Text_Action::Pass_Over, 0},
    {"row", Rich_Text_Action::End_Row, 0},
    {"rquote", Rich_Text_Action::Put, 0x2019},
    {"rtlmark", Rich_Text_Action::Put, 0x200F},
    {"rxe", Rich_Text_Action::Pass_Over, 0},
    {"sect", Rich_Text_Action::Put, '\n'},
    {"softline", Rich_Text_Action::Put, '\n'},
    {"stylesheet", Rich_Text_Action::Pass_Over, 0},
    {"tab", Rich_Text_Action::Put, '\t'},
    {"tc", Rich_Text_Action::Pass_Over, 0},
    {"tcn", Rich_Text_Action::Pass_Over, 0},
    {"txe", Rich_Text_Action::Pass_Over, 0},
    {"u", Rich_Text_Action::Unicode, 0},
    {"uc", Rich_Text_Action::Fallback, 0},
    {"v", Rich_Text_Action::Hidden, 0},
    {"xe", Rich_Text_Action::Pass_Over, 0},
    {"zwj", Rich_Text_Action::Put, 0x200D},
    {"zwnj", Rich_Text_Action::Put, 0x200C},
};
static_assert(std::ranges::is_sorted(Rich_Text_Words, {}, &Rich_Text_Word::word), "it is searched by halves");

/// The entry for a word without its backslash and number; none for a word that changes only how the text looks.
inline const Rich_Text_Word* Find_Rich_Text_Word(std::string_view word)
{
    const auto* found = std::ranges::lower_bound(Rich_Text_Words, word, {}, &Rich_Text_Word::word);
    return found != std::ranges::end(Rich_Text_Words) && found->word == word ? found : nullptr;
}
