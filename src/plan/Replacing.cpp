#include "plan/Replacing.h"

#include "handset/Gsm_Alphabet.h"
#include "handset/Replacements.h"
#include "plan/Row_Preview.h"
#include "platform/Utf16_Units.h"

#include <QSet>

namespace {

using Handset::Replacement_Group;

std::optional<QString> Row_Of(char32_t character, Replacement_Group group)
{
    const auto row = Handset::Replacement_Of(character, group);
    return row ? std::optional(Text_Of_Units(*row)) : std::nullopt;
}

bool Add_Replaced(Replacement& replaced, char32_t character)
{
    if (Handset::Gsm_Place_Of(character)) {
        replaced.text += QChar::fromUcs4(character);
    } else if (const auto common = Row_Of(character, Replacement_Group::Common)) {
        replaced.text += *common;
    } else if (const auto letters = Row_Of(character, Replacement_Group::Script)) {
        replaced.text += *letters;
        replaced.is_of_script = true;
    } else {
        return false;
    }
    return true;
}

// A letter with several marks, or one of few languages, goes by its base letter.
bool Add_By_Its_Letter(Replacement& replaced, char32_t character)
{
    const auto pieces = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_D).toUcs4();
    if (pieces.size() < 2)
        return false;
    for (const char32_t piece : pieces) {
        if (!Add_Replaced(replaced, piece))
            return false;
    }
    return true;
}

// The characters of the standard's alphabet that the described one does not get across.
QSet<QChar> Lost_By_Description(bool is_in_parts)
{
    constexpr int More_Than_One_Message = 200;
    QString text;
    for (const char32_t character : Handset::Gsm_Default_Table) {
        if (character != 0)
            text += QChar::fromUcs4(character);
    }
    for (const auto& row : Handset::Gsm_Extension_Table)
        text += QChar::fromUcs4(row.m_character);
    if (is_in_parts)
        text += QString(More_Than_One_Message, u'x');
    Plan_Manner manner;
    manner.fixed_waits = true;
    manner.alphabet = Job_Alphabet_Choice::Gsm;
    QSet<QChar> lost;
    for (const Changed_Text& change : Preview_Of({1, QStringLiteral("0"), text, {}}, manner).changed) {
        for (const QChar character : change.from)
            lost.insert(character);
    }
    return lost;
}

bool Arrives(const QString& text, Written_How how)
{
    static const QSet<QChar> Lost_In_One = Lost_By_Description(false);
    static const QSet<QChar> Lost_In_Parts = Lost_By_Description(true);
    if (how == Written_How::By_Standard)
        return true;
    const auto& lost = how == Written_How::Described_Parts ? Lost_In_Parts : Lost_In_One;
    return std::none_of(text.begin(), text.end(), [&](QChar character) { return lost.contains(character); });
}

// With ASCII in place of what the described alphabet would change.
std::optional<QString> Arriving(const QString& text, Written_How how)
{
    QString arriving;
    for (const QChar character : text) {
        if (Arrives(character, how)) {
            arriving += character;
            continue;
        }
        const auto plain = Row_Of(character.unicode(), Replacement_Group::Plain);
        if (!plain || !Arrives(*plain, how))
            return std::nullopt;
        arriving += *plain;
    }
    return arriving;
}

} // namespace

std::optional<Replacement> Replacement_For(const QString& character, Written_How how)
{
    Replacement replaced;
    const auto joined = character.normalized(QString::NormalizationForm_C).toUcs4();
    for (const char32_t piece : joined) {
        if (!Add_Replaced(replaced, piece) && !Add_By_Its_Letter(replaced, piece))
            return std::nullopt;
    }
    const auto arriving = Arriving(replaced.text, how);
    if (!arriving || *arriving == character)
        return std::nullopt;
    replaced.text = *arriving;
    return replaced;
}
