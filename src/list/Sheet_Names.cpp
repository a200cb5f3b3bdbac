#include "list/Sheet_Names.h"

#include "texts/Table_Texts.h"

#include <algorithm>

namespace {

constexpr qsizetype Most_Named = 20;

QString In_Words(const std::vector<Named_Sheet>& sheets)
{
    QStringList words;
    for (const Named_Sheet& sheet : sheets)
        if (words.size() < Most_Named)
            words.append(u'"' + sheet.name.left(40) + u'"');
    const auto more = static_cast<qsizetype>(sheets.size()) - words.size();
    if (more > 0)
        words.append(QString(Texts::Table::More_Sheets).arg(more));
    return words.join(QLatin1String(", "));
}

} // namespace

QStringList Names_Of(const std::vector<Named_Sheet>& sheets)
{
    QStringList names;
    for (const Named_Sheet& sheet : sheets)
        names.append(sheet.name);
    return names;
}

Chosen_Sheet Choose_Sheet(const std::vector<Named_Sheet>& sheets, const QString& name)
{
    if (sheets.empty())
        return {-1, Texts::Table::No_Sheets};
    const auto first = [&](auto fits) {
        const auto found = std::find_if(sheets.begin(), sheets.end(), fits);
        return found == sheets.end() ? -1 : static_cast<int>(found - sheets.begin());
    };
    if (name.isEmpty())
        return {std::max(0, first([](const Named_Sheet& sheet) { return !sheet.is_hidden; })), {}};
    int index = first([&](const Named_Sheet& sheet) { return sheet.name == name; });
    if (index < 0)
        index = first([&](const Named_Sheet& sheet) {
            return sheet.name.trimmed().compare(name.trimmed(), Qt::CaseInsensitive) == 0;
        });
    if (index >= 0)
        return {index, {}};
    return {-1, QString(Texts::Table::No_Such_Sheet).arg(name, In_Words(sheets))};
}
