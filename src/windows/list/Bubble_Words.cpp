#include "windows/list/Bubble_Words.h"

#include <QCoreApplication>
#include <algorithm>

namespace Bubble_Words {

namespace {

constexpr std::size_t Most_Named = 3;
constexpr qsizetype Longest_Name = 16;
constexpr char32_t Joiner = 0x200D; // of emoji

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Bubble_Words)
};

bool Shows_Something(char32_t character)
{
    return QChar::isPrint(character) && !QChar::isSpace(character) && !QChar::isMark(character);
}

QString Number_Of(char32_t character)
{
    return QStringLiteral("U+%1").arg(static_cast<uint>(character), 4, 16, QChar(u'0')).toUpper();
}

QString What_Becomes_Of(const Named_Character& named)
{
    const QString name = Name_Of(named.character);
    if (named.arrives_as.isEmpty())
        return Words::tr("%1 is lost").arg(name);
    if (named.arrives_as.trimmed().isEmpty())
        return Words::tr("%1 arrives as a blank").arg(name);
    return Words::tr("%1 arrives as %2").arg(name, Name_Of(named.arrives_as));
}

// Those that are named, in the words given, and the number of the others.
template <typename In_Words>
QStringList First_Few(const Message_Preview& preview, const In_Words& in_words)
{
    QStringList few;
    const std::size_t named = std::min(preview.characters.size(), Most_Named);
    for (std::size_t index = 0; index < named; ++index)
        few.append(in_words(preview.characters[index]));
    if (preview.characters.size() > named)
        few.append(Words::tr("%n more", nullptr, static_cast<int>(preview.characters.size() - named)));
    return few;
}

QString Joined(QStringList texts, const QString& separator)
{
    if (texts.size() < 2)
        return texts.join(QString());
    const QString last = texts.takeLast();
    return Words::tr("%1 and %2").arg(texts.join(separator), last);
}

QString What_Makes_It_Unicode(const Message_Preview& preview)
{
    const QString names =
        Joined(First_Few(preview,
                         [](const Named_Character& named) {
                             return QStringLiteral("%1 (%2)").arg(Name_Of(named.character)).arg(named.count);
                         }),
               QStringLiteral(", "));
    const QString makes = preview.characters.size() == 1 ? Words::tr("%1 makes this message Unicode").arg(names)
                                                         : Words::tr("%1 make this message Unicode").arg(names);
    const int parts = preview.row.parts;
    if (parts == preview.parts_without)
        return makes + u'.';
    return Words::tr("%1: %n parts instead of %2.", nullptr, parts).arg(makes, QString::number(preview.parts_without));
}

} // namespace

QString Parts(const Message_Preview& preview)
{
    if (preview.row.parts == 1)
        return Words::tr("1 part of %1, %2 left").arg(preview.room).arg(preview.left);
    return Words::tr("%n parts of %1, %2 left in the last", nullptr, preview.row.parts)
        .arg(preview.room)
        .arg(preview.left);
}

QString Losses(const Message_Preview& preview)
{
    if (preview.characters.empty())
        return {};
    if (preview.is_unicode_by_its_characters)
        return What_Makes_It_Unicode(preview);
    return Joined(First_Few(preview, What_Becomes_Of), QStringLiteral("; ")) + u'.';
}

QString Name_Of(const QString& character)
{
    const QString first = character.size() > Longest_Name ? character.left(Longest_Name) : character;
    const QString cut = first.size() < character.size() ? QStringLiteral("…") : QString();
    const auto code_points = first.toUcs4();
    const auto stays = [](char32_t code_point) {
        return Shows_Something(code_point) || QChar::isMark(code_point) || code_point == Joiner || code_point == u' ';
    };
    if (std::any_of(code_points.begin(), code_points.end(), Shows_Something) &&
        std::all_of(code_points.begin(), code_points.end(), stays))
        return first + cut;
    QStringList numbers;
    for (const char32_t code_point : code_points)
        numbers.append(Shows_Something(code_point) ? QString::fromUcs4(&code_point, 1) : Number_Of(code_point));
    return numbers.join(u' ') + cut;
}

} // namespace Bubble_Words
