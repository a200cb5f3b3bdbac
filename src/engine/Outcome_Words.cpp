#include "engine/Outcome_Words.h"

#include "engine/Send_Cause.h"
#include "list/Skip_Words.h"
#include "platform/One_Line.h"
#include "texts/Outcome_Texts.h"
#include "texts/Receipt_Texts.h"

#include <algorithm>
#include <iterator>

namespace {

struct Row
{
    Row_State state;
    char16_t sign;
    Fixed_Text words;
};

// In the order of the states. A question mark is for what nobody knows, an arrow for what went out unheard.
constexpr Row Rows[] = {
    {Row_State::Not_Tried, u'·', Texts::Outcomes::Not_Tried},
    {Row_State::Written, u'→', Texts::Outcomes::Written},
    {Row_State::Taken, u'✓', Texts::Outcomes::Taken},
    {Row_State::Sent, u'✓', Texts::Outcomes::Sent},
    {Row_State::Refused, u'✗', Texts::Outcomes::Refused},
    {Row_State::Partly_Taken, u'✗', Texts::Outcomes::Partly_Taken},
    {Row_State::No_Answer, u'?', Texts::Outcomes::No_Answer},
    {Row_State::May_Have_Been_Sent, u'?', Texts::Outcomes::May_Have_Been_Sent},
    {Row_State::Excluded, u'–', Texts::Outcomes::Excluded},
    {Row_State::Repeated, u'–', Texts::Outcomes::Repeated},
    {Row_State::Skipped, u'–', Texts::Outcomes::Skipped},
    {Row_State::Invalid_Number, u'–', Texts::Outcomes::Invalid_Number},
    {Row_State::Not_Filled, u'–', Texts::Outcomes::Not_Filled},
};

constexpr bool Each_Row_Is_In_Its_Place()
{
    std::size_t place = 0;
    return std::all_of(std::begin(Rows), std::end(Rows),
                       [&](const Row& row) { return static_cast<std::size_t>(row.state) == place++; });
}
static_assert(Each_Row_Is_In_Its_Place());

const Row& Row_Of(Row_State state)
{
    return Rows[static_cast<std::size_t>(state)];
}

// A sentence as it goes on behind a colon, without its full stop.
QString Clause(QString sentence)
{
    if (sentence.endsWith(u'.'))
        sentence.chop(1);
    if (sentence.size() > 1 && sentence[1].isLower()) // no abbreviation
        sentence[0] = sentence[0].toLower();
    return sentence;
}

// All that is said about a cause: its number and what that means, or the device's own words.
QString Cause_In_Words(const Device_Cause& cause)
{
    const auto numbered = [&] {
        return QString::number(cause.number) + QStringLiteral(": ") + Clause(Reason_Of(cause));
    };
    switch (cause.kind) {
    case Device_Cause::Kind::Cms:
        return numbered();
    case Device_Cause::Kind::Cme:
        return Texts::Outcomes::Own_Error + numbered();
    case Device_Cause::Kind::Words:
        return On_One_Line(cause.words);
    case Device_Cause::Kind::Error:
        break;
    }
    return {};
}

} // namespace

QString Outcome_Words(const Row_Outcome& outcome)
{
    const QString words = Row_Of(outcome.state).words;
    if (outcome.state == Row_State::Not_Filled && !outcome.cause.words.isEmpty())
        return Texts::Outcomes::Skipped_Because + On_One_Line(outcome.cause.words);
    const bool is_refused = outcome.state == Row_State::Refused || outcome.state == Row_State::Partly_Taken;
    const QString cause = is_refused ? Cause_In_Words(outcome.cause) : QString();
    return cause.isEmpty() ? words : words + QStringLiteral(" (") + cause + u')';
}

QString Signed_Outcome(const Row_Outcome& outcome)
{
    return QChar(Row_Of(outcome.state).sign) + QStringLiteral(" ") + Outcome_Words(outcome);
}

QString Words_For_Skip(const QString& word)
{
    struct Skip
    {
        const char* word;
        Fixed_Text words;
    };
    constexpr Skip skips[] = {{Skip_Words::Empty_Field, Texts::Receipts::Empty_Field},
                              {Skip_Words::Unknown_Field, Texts::Receipts::Unknown_Field},
                              {Skip_Words::Wrong_Columns, Texts::Receipts::Wrong_Columns},
                              {Skip_Words::Too_Long, Texts::Receipts::Too_Long}};
    const auto* const skip = std::find_if(std::begin(skips), std::end(skips),
                                          [&](const Skip& each) { return word == QLatin1String(each.word); });
    return skip == std::end(skips) ? QString() : QString(skip->words);
}

QStringList Usual_Signed_Outcomes()
{
    QStringList texts;
    for (const Row& row : Rows) {
        const bool has_cause = row.state == Row_State::Refused;
        texts.append(
            Signed_Outcome({row.state, has_cause ? Device_Cause{Device_Cause::Kind::Cms, 500, {}} : Device_Cause{}}));
    }
    return texts;
}
