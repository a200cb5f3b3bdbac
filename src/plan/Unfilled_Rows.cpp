#include "plan/Unfilled_Rows.h"

#include "plan/Job_Plan.h"
#include "platform/One_Line.h"

#include <QCoreApplication>

namespace {

constexpr int Most_Compared = 10'000; // rows, whose texts are made for it
constexpr qsizetype Longest_Name = 30;
constexpr QLatin1String Opening("{{");
constexpr QLatin1String Closing("}}");

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Unfilled_Rows)
};

// Of {{Name}}, as it is written; nothing for a row that has another fault.
QString Name_In(const QString& placeholder)
{
    if (!placeholder.startsWith(Opening) || !placeholder.endsWith(Closing))
        return {};
    QString name = On_One_Line(placeholder.sliced(Opening.size()).chopped(Closing.size())).trimmed();
    if (name.size() > Longest_Name) // half of a pair would be no character
        name = name.left(Longest_Name - (name[Longest_Name - 1].isHighSurrogate() ? 1 : 0)) + u'\u2026';
    return name;
}

} // namespace

QString Unfilled_Rows::In_Words() const
{
    if (count == 0)
        return {};
    if (name.isEmpty() && count == 1)
        return Words::tr("1 recipient gets nothing: %1.").arg(reason);
    if (name.isEmpty())
        return Words::tr("%n recipients get nothing. Of the first, %1.", nullptr, count).arg(reason);
    if (is_unknown)
        return (count == 1 ? Words::tr("There is no field %1: 1 recipient gets nothing.")
                           : Words::tr("There is no field %1: %n recipients get nothing.", nullptr, count))
            .arg(name);
    return (count == 1 ? Words::tr("1 recipient has no %1: it gets nothing.")
                       : Words::tr("%n recipients have no %1: they get nothing.", nullptr, count))
        .arg(name);
}

Unfilled_Rows Unfilled_Rows_Of(const Job_Plan& plan)
{
    Unfilled_Rows unfilled;
    QString placeholder;
    bool are_alike = true;
    for (int row = 0; row < plan.Count(); ++row) {
        const Row_Verdict verdict = plan.Verdict_Of(row);
        if (verdict != Row_Verdict::Empty_Field && verdict != Row_Verdict::Unknown_Field &&
            verdict != Row_Verdict::Too_Long)
            continue;
        are_alike = are_alike && unfilled.count < Most_Compared;
        if (unfilled.count++ == 0) {
            const Filled_Message first = plan.Fault_Of(row);
            unfilled.reason = Words_For_Fault(first);
            unfilled.is_unknown = verdict == Row_Verdict::Unknown_Field;
            placeholder = first.placeholder;
        } else if (are_alike) {
            are_alike = unfilled.is_unknown == (verdict == Row_Verdict::Unknown_Field) &&
                        plan.Fault_Of(row).placeholder == placeholder;
        }
    }
    if (are_alike)
        unfilled.name = Name_In(placeholder);
    return unfilled;
}
