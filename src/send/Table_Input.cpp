#include "send/Table_Input.h"

#include "list/Number_Column.h"

namespace {

constexpr qsizetype Most_Named = 20;    // columns
constexpr qsizetype Longest_Named = 40; // characters of each

QString In_Words(const QStringList& names)
{
    QStringList words;
    for (const QString& name : names.first(std::min(names.size(), Most_Named)))
        words.append(u'"' + (name.size() > Longest_Named ? name.left(Longest_Named) + u'\u2026' : name) + u'"');
    if (names.size() > Most_Named)
        words.append(QStringLiteral("and %1 more").arg(names.size() - Most_Named));
    return words.join(QLatin1String(", "));
}

QStringList Names_Of(const Contact_Table& table, const std::vector<int>& columns)
{
    QStringList names;
    for (const int column : columns)
        names.append(table.Columns()[column]);
    return names;
}

Trouble Choose_Column(const Arguments& arguments, Table_Input& input)
{
    const Contact_Table& table = input.table;
    const QString asked = arguments.number_column.isEmpty() ? input.told.facts.number_column : arguments.number_column;
    const std::vector<int> found = asked.isEmpty() ? Number_Columns(table) : table.Columns_Named(asked);
    if (found.size() == 1) {
        input.number_column = found.front();
        input.told.number_column = table.Columns()[found.front()];
        return {};
    }
    const QString& path = arguments.table_file;
    if (!asked.isEmpty() && found.empty())
        return {QStringLiteral("%1 has no column \"%2\"").arg(path, asked),
                QStringLiteral("its columns are ") + In_Words(table.Columns())};
    if (!asked.isEmpty())
        return {QStringLiteral("%1 has several columns \"%2\"").arg(path, asked),
                QStringLiteral("its columns are ") + In_Words(table.Columns())};
    if (found.empty())
        return {path + QStringLiteral(" has no column that holds numbers"),
                QStringLiteral("its columns are %1; --number-column names one").arg(In_Words(table.Columns()))};
    return {path + QStringLiteral(" has several columns that hold numbers"),
            QStringLiteral("%1; --number-column names one").arg(In_Words(Names_Of(table, found)))};
}

} // namespace

Table_Input Read_Table_Input(const Arguments& arguments)
{
    Table_Input input;
    Table_In_A_File file = Read_Table(arguments.table_file, arguments.table_choices);
    if (!file.trouble.isEmpty()) {
        input.trouble = {arguments.table_file + QStringLiteral(" cannot be read"), file.trouble};
        return input;
    }
    input.table = std::move(file.table);
    input.told.facts = file.facts;
    if (input.table.Row_Count() > 0)
        input.trouble = Choose_Column(arguments, input);
    return input;
}
