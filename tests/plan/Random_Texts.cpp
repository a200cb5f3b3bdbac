#include "plan/Random_Texts.h"

#include "handset/Gsm_Alphabet.h"

#include <algorithm>
#include <array>

namespace {

constexpr int Longest = 1600;

// The last unit of a part, in any manner, and those beside it.
constexpr std::array Part_Ends = {66, 67, 70, 132, 134, 151, 152, 153, 158, 160, 198, 201, 304, 306, 456, 459, 1600};

enum Kind
{
    Ascii,
    Alphabet,
    Extension,
    Marked_Latin,
    Greek_Or_Cyrillic,
    Sign,
    Far_Script,
    Emoji,
    Combining_Mark,
    Control,
    Half_A_Pair,
    Kinds
};

} // namespace

QString Random_Texts::Next()
{
    const int length = Length();
    const int usual = Below(3) == 0 ? Below(Kinds) : Below(Marked_Latin); // most of the text
    const int others = std::array{0, 0, 2, 30}.at(static_cast<std::size_t>(Below(4)));
    QString text;
    while (text.size() < length) {
        const bool is_near_the_end = length - text.size() < 4 || Below(100) < others;
        text += Character(is_near_the_end && Below(2) == 0 ? Below(Kinds) : usual);
    }
    return text.left(Longest);
}

// Mostly short, or about as long as some parts are.
int Random_Texts::Length()
{
    switch (Below(8)) {
    case 0:
        return 1 + Below(Longest);
    case 1:
    case 2:
    case 3:
        return std::clamp(Part_Ends.at(static_cast<std::size_t>(Below(Part_Ends.size()))) + Below(5) - 2, 1, Longest);
    default:
        return 1 + Below(180);
    }
}

QString Random_Texts::Character(int kind)
{
    const auto one = [](auto code_point) {
        const auto character = static_cast<char32_t>(code_point);
        return QString::fromUcs4(&character, 1);
    };
    switch (kind) {
    case Ascii:
        return one(0x20 + Below(0x5F));
    case Alphabet: {
        const char32_t character = Handset::Gsm_Default_Table.at(static_cast<std::size_t>(Below(128)));
        return one(character == 0 || character == U'\r' ? U'@' : character);
    }
    case Extension:
        return one(Handset::Gsm_Extension_Table.at(static_cast<std::size_t>(Below(10))).m_character);
    case Marked_Latin:
        return one(0xA0 + Below(0x1E0));
    case Greek_Or_Cyrillic:
        return one(0x370 + Below(0x190));
    case Sign:
        return one(0x2000 + Below(0x200));
    case Far_Script:
        return one(0x4E00 + Below(0x5000));
    case Emoji:
        return one(0x1F600 + Below(0x50));
    case Combining_Mark:
        return one(0x300 + Below(0x70));
    case Control:
        return one(1 + Below(12)) + one(14 + Below(18)); // but for the carriage return, which no text area holds
    default:
        return QChar(static_cast<char16_t>(0xD800 + Below(0x800)));
    }
}
