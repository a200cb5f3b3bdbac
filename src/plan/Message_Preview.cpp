#include "plan/Message_Preview.h"

#include "handset/Gsm_Alphabet.h"
#include "handset/Text_Parts.h"
#include "handset/Unicode_Text.h"
#include "platform/Utf16_Units.h"

#include <QHash>
#include <QTextBoundaryFinder>

namespace {

Planned_Row Row_Of(const QString& text, const QString& number)
{
    return {1, number, text, {}};
}

// ------------------------------------------------------------------------------------------------- room in the parts

bool Fits_In(int parts, const QString& text, int more, const QString& number, const Plan_Manner& manner)
{
    return Parts_Of_Row(Row_Of(text + QString(more, u'x'), number), manner) <= parts;
}

// How many more letters fit in so many parts, which the text itself fits in. Found by trying, for a frame's own length
// counts, and with it the number's.
int Letters_That_Fit(int parts, const QString& text, const QString& number, const Plan_Manner& manner)
{
    int fits = 0;
    int too_many = 161;
    while (too_many - fits > 1) {
        const int tried = (fits + too_many) / 2;
        (Fits_In(parts, text, tried, number, manner) ? fits : too_many) = tried;
    }
    return fits;
}

void Measure_Described_Room(Message_Preview& preview, const QString& text, const QString& number,
                            const Plan_Manner& manner)
{
    const int parts = std::max(preview.row.parts, 1);
    preview.left = Letters_That_Fit(parts, text, number, manner);
    preview.room = (static_cast<int>(text.size()) + preview.left) / parts; // all parts are alike
}

void Measure_Room(Message_Preview& preview, const QString& text)
{
    const bool is_unicode = preview.row.alphabet == Job_Alphabet::Ucs2;
    const auto parts =
        Handset::Cut_Text(Units_Of(text), is_unicode ? Handset::Alphabet::Ucs2 : Handset::Alphabet::Gsm_7_Bit);
    const bool is_single = parts.size() == 1;
    preview.room = is_unicode ? (is_single ? 70 : 67) : (is_single ? 160 : 153);
    preview.left = preview.room - static_cast<int>(parts.back().m_units);
}

// ---------------------------------------------------------------------------------------- the characters in question

// What arrives as another; or, in a Unicode message that nobody chose, what has no place in the alphabet.
std::vector<Changed_Text> Costly_Texts(const QString& text, const Message_Preview& preview)
{
    if (!preview.is_unicode_by_its_characters)
        return preview.row.changed;
    std::vector<Changed_Text> costly;
    for (const auto& changed : Handset::Changed_Characters(Units_Of(text), Handset::Alphabet::Gsm_7_Bit)) {
        const QString character = Text_Of_Units(changed.m_from);
        costly.push_back({static_cast<int>(changed.m_at), character, character});
    }
    return costly;
}

// The changes of a text, each widened to the whole characters, with all their marks, that it lies in.
class Whole_Characters
{
public:
    Whole_Characters(const QString& text, const std::vector<Changed_Text>& changes) : m_text(text)
    {
        for (const Changed_Text& change : changes) {
            if (!change.from.isEmpty()) // what is added behind the end belongs to no character
                Add(change);
        }
        if (!m_whole.empty())
            Close();
    }

    std::vector<Changed_Text> Take() { return std::move(m_whole); }

private:
    void Add(const Changed_Text& change)
    {
        const int end = change.at + static_cast<int>(change.from.size());
        const int begin = Boundary_Before(change.at);
        if (m_whole.empty() || begin >= m_end) {
            if (!m_whole.empty())
                Close();
            m_whole.push_back({begin, change.from, {}});
            m_shown_to = begin;
        }
        m_whole.back().to += QStringView(m_text).mid(m_shown_to, change.at - m_shown_to);
        m_whole.back().to += change.to;
        m_shown_to = end;
        m_end = Boundary_Behind(end);
    }

    void Close()
    {
        Changed_Text& last = m_whole.back();
        if (m_end - last.at > last.from.size()) // else it is the change itself, as most are
            last.from = m_text.mid(last.at, m_end - last.at);
        last.to += QStringView(m_text).mid(m_shown_to, m_end - m_shown_to);
    }

    int Boundary_Before(int at)
    {
        m_finder.setPosition(at);
        return m_finder.isAtBoundary() ? at : static_cast<int>(m_finder.toPreviousBoundary());
    }

    int Boundary_Behind(int at)
    {
        m_finder.setPosition(at);
        return m_finder.isAtBoundary() ? at : static_cast<int>(m_finder.toNextBoundary());
    }

    const QString& m_text;
    QTextBoundaryFinder m_finder{QTextBoundaryFinder::Grapheme, m_text};
    std::vector<Changed_Text> m_whole;
    int m_shown_to = 0; // what of the last one is in its shown text
    int m_end = 0;      // of the last one
};

void Name_Characters(Message_Preview& preview, const QString& text, Written_How how)
{
    QHash<std::pair<QString, QString>, int> known;
    const auto costly = Whole_Characters(text, Costly_Texts(text, preview)).Take();
    for (const Changed_Text& change : costly) {
        const auto key = std::pair(change.from, change.to);
        const auto found = known.constFind(key);
        const int index = found == known.constEnd() ? static_cast<int>(preview.characters.size()) : *found;
        if (found == known.constEnd()) {
            known.insert(key, index);
            preview.characters.push_back({change.from, change.to, 0, Replacement_For(change.from, how)});
        }
        ++preview.characters[static_cast<std::size_t>(index)].count;
        preview.places.push_back({change.at, static_cast<int>(change.from.size()), index});
    }
}

bool Is_Wanted(const Message_Preview& preview, const Marked_Place& place, Replaced what, int which)
{
    const auto& replacement = preview.characters[static_cast<std::size_t>(place.character)].replacement;
    if (!replacement)
        return false;
    if (what == Replaced::One)
        return place.character == which;
    return what == Replaced::All || replacement->is_of_script == (what == Replaced::Script);
}

int Parts_Without(const QString& text, const Message_Preview& preview)
{
    const QString without = With_Changes(text, Replacements_In(text, preview, Replaced::All));
    return static_cast<int>(Handset::Cut_Text(Units_Of(without), Handset::Alphabet::Gsm_7_Bit).size());
}

Written_How How_Written(const Message_Preview& preview, const Plan_Manner& manner)
{
    if (!manner.fixed_waits)
        return Written_How::By_Standard;
    return preview.row.parts > 1 ? Written_How::Described_Parts : Written_How::Described_Single;
}

} // namespace

Message_Preview Preview_Of_Message(const QString& text, const QString& number, const Plan_Manner& manner)
{
    Message_Preview preview;
    preview.row = Preview_Of(Row_Of(text, number), manner);
    preview.is_unicode_by_its_characters =
        preview.row.alphabet == Job_Alphabet::Ucs2 && manner.alphabet == Job_Alphabet_Choice::Auto;
    if (manner.fixed_waits)
        Measure_Described_Room(preview, text, number, manner);
    else
        Measure_Room(preview, text);
    Name_Characters(preview, text, How_Written(preview, manner));
    preview.parts_without = preview.is_unicode_by_its_characters ? Parts_Without(text, preview) : preview.row.parts;
    return preview;
}

std::vector<Changed_Text> Replacements_In(const QString& text, const Message_Preview& preview, Replaced what, int which)
{
    std::vector<Changed_Text> changes;
    for (const Marked_Place& place : preview.places) {
        if (Is_Wanted(preview, place, what, which))
            changes.push_back({place.at, text.mid(place.at, place.length),
                               preview.characters[static_cast<std::size_t>(place.character)].replacement->text});
    }
    return changes;
}

qsizetype Length_With_Replacements(const QString& text, const Message_Preview& preview, Replaced what, int which)
{
    qsizetype length = text.size();
    for (const Marked_Place& place : preview.places) {
        if (Is_Wanted(preview, place, what, which))
            length +=
                preview.characters[static_cast<std::size_t>(place.character)].replacement->text.size() - place.length;
    }
    return length;
}

QString With_Changes(const QString& text, const std::vector<Changed_Text>& changes)
{
    QString changed;
    qsizetype next = 0;
    for (const Changed_Text& change : changes) {
        changed += QStringView(text).mid(next, change.at - next);
        changed += change.to;
        next = change.at + change.from.size();
    }
    return changed += QStringView(text).mid(next);
}
