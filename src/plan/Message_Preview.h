#pragma once

#include "plan/Replacing.h"
#include "plan/Row_Preview.h"

/// A character, with its marks, that arrives as another, or for whose sake a message goes out as Unicode.
struct Named_Character
{
    QString character;
    QString arrives_as; ///< empty where it is lost
    int count = 1;
    std::optional<Replacement> replacement;
};

/// Where such a character stands in the text.
struct Marked_Place
{
    int at = 0; ///< in UTF-16 units
    int length = 0;
    int character = 0; ///< which of the named ones it is
};

/// What becomes of a message while it is being written.
struct Message_Preview
{
    Row_Preview row;
    int room = 160;                            ///< of each part, in plain letters
    int left = 160;                            ///< how many of them still fit in the last part
    bool is_unicode_by_its_characters = false; ///< it is Unicode for the sake of the named characters alone
    int parts_without = 1;                     ///< how many parts it would take with their replacements
    std::vector<Named_Character> characters;   ///< in the order of their first places
    std::vector<Marked_Place> places;          ///< in the order of the text
};

/// Linear in the length of the text, which is that of one message; the number decides only how long the frames are.
Message_Preview Preview_Of_Message(const QString& text, const QString& number, const Plan_Manner& manner);

enum class Replaced
{
    One,    ///< the characters of one kind
    Common, ///< all but letters of other scripts
    Script, ///< those alone
    All
};

/// What becomes of the text, as changes in its order, with characters replaced. which is the index of the named one,
/// and only looked at for One.
std::vector<Changed_Text> Replacements_In(const QString& text, const Message_Preview& preview, Replaced what,
                                          int which = 0);

/// How long the text would be then, in UTF-16 units.
qsizetype Length_With_Replacements(const QString& text, const Message_Preview& preview, Replaced what, int which = 0);

/// The text with such changes.
QString With_Changes(const QString& text, const std::vector<Changed_Text>& changes);
