#include "records/Exclusion_Trouble.h"

#include "records/Exclusion_Files.h"

#include <QCoreApplication>

namespace {

constexpr qsizetype Longest_Shown_Name = 20;
constexpr qsizetype Most_Shown = 24; // characters of all names together: they share a line with other words

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Exclusion_Trouble)
};

QString Shown_Name(const QString& name)
{
    const bool fits = name.size() <= Longest_Shown_Name;
    return u'"' + (fits ? name : name.left(Longest_Shown_Name - 1) + QChar(u'\u2026')) + u'"';
}

QStringList Shown_Names(const QStringList& names)
{
    QStringList shown;
    qsizetype room = Most_Shown;
    for (const QString& name : names) {
        room -= qMin(name.size(), Longest_Shown_Name);
        if (!shown.isEmpty() && room < 0)
            break;
        shown.append(Shown_Name(name));
    }
    return shown;
}

} // namespace

QString Exclusion_Trouble(const Exclusion_Files::Applied_Numbers& applied)
{
    if (!applied.is_readable)
        return Words::tr(
            "The file that says which exclusion lists are applied\ncan not be read: no number is excluded.");
    const QStringList& names = applied.unusable_lists;
    if (names.isEmpty())
        return {};
    if (names.size() == 1)
        return Words::tr("The exclusion list %1\ncan not be used: its numbers are not excluded.")
            .arg(Shown_Name(names.first()));
    const QStringList shown = Shown_Names(names);
    const QString which = shown.join(QStringLiteral(", "));
    if (names.size() == shown.size())
        return Words::tr("The exclusion lists %1\ncan not be used: their numbers are not excluded.").arg(which);
    return Words::tr("The exclusion lists %1 and %2 more\ncan not be used: their numbers are not excluded.")
        .arg(which, QString::number(names.size() - shown.size()));
}
