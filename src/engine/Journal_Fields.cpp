#include "engine/Journal_Fields.h"

#include "engine/Send_Cause.h"
#include "texts/Confirmed_Texts.h"

#include <algorithm>
#include <iterator>

namespace {

using Doubt = Part_Result::Doubt;
namespace T = Texts::Confirmed;

struct Doubt_Row
{
    Doubt doubt;
    const char* field; ///< as the journal writes it
    Fixed_Text sentence;
};

// The first is for what has no row of its own.
constexpr Doubt_Row Doubts[] = {{Doubt::No_Result, "no-result", T::No_Result},
                                {Doubt::Ok_Alone, "ok-alone", T::No_Reference},
                                {Doubt::Line_Lost, "line-lost", T::Line_Lost},
                                {Doubt::Broken_Off, "broken-off", T::Broken_Off},
                                {Doubt::Not_Told_Apart, "not-told-apart", T::Not_Told_Apart}};

const Doubt_Row& Row_Of(Doubt doubt)
{
    const auto* const row =
        std::find_if(std::begin(Doubts), std::end(Doubts), [&](const Doubt_Row& each) { return each.doubt == doubt; });
    return row == std::end(Doubts) ? Doubts[0] : *row;
}

} // namespace

QString Doubt_Field(Doubt doubt)
{
    return QLatin1String(Row_Of(doubt).field);
}

QString Doubt_Sentence(Doubt doubt)
{
    return Row_Of(doubt).sentence;
}

QString Not_Recorded(Job_Trouble trouble)
{
    return QString(T::Not_Recorded) + QLatin1String(" (") + Job_Trouble_Sentence(trouble) + QLatin1String(").");
}

QString Refusal_Sentence(const QString& field)
{
    return field == No_Prompt_Field ? QString(T::No_Prompt) : Reason_Of(Cause_Of_Field(field).value_or(Device_Cause{}));
}

QString Doubt_Sentence(const QString& field)
{
    const auto* const row = std::find_if(std::begin(Doubts), std::end(Doubts),
                                         [&](const Doubt_Row& each) { return field == QLatin1String(each.field); });
    return row == std::end(Doubts) ? QString() : row->sentence;
}

QString Cause_Field(const Device_Cause& cause)
{
    switch (cause.kind) {
    case Device_Cause::Kind::Cms:
        return QStringLiteral("cms:%1").arg(cause.number);
    case Device_Cause::Kind::Cme:
        return QStringLiteral("cme:%1").arg(cause.number);
    case Device_Cause::Kind::Words:
        return QStringLiteral("words:") + cause.words;
    case Device_Cause::Kind::Error:
        break;
    }
    return QStringLiteral("error");
}

std::optional<Device_Cause> Cause_Of_Field(const QString& field)
{
    const auto numbered = [&](Device_Cause::Kind kind) {
        return Device_Cause{kind, QStringView(field).sliced(4).toInt(), {}};
    };
    if (field.startsWith(u"cms:"))
        return numbered(Device_Cause::Kind::Cms);
    if (field.startsWith(u"cme:"))
        return numbered(Device_Cause::Kind::Cme);
    if (field.startsWith(u"words:"))
        return Device_Cause{Device_Cause::Kind::Words, -1, field.sliced(6)};
    if (field == u"error")
        return Device_Cause{};
    return std::nullopt;
}
