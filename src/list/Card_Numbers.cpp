#include "list/Card_Numbers.h"

#include "list/Contact_Cards.h"
#include "list/Table_Builder.h"

#include <algorithm>

namespace {

// The first, and "TEL 2" and so on.
std::vector<int> Columns_Of_Numbers(const QStringList& names)
{
    std::vector<int> columns;
    for (int column = 0; column < names.size(); ++column) {
        if (names[column].startsWith(QLatin1String(Card_Number_Column)))
            columns.push_back(column);
    }
    return columns;
}

} // namespace

Contact_Table One_Row_For_Each_Number(const Contact_Table& cards)
{
    const std::vector<int> numbers = Columns_Of_Numbers(cards.Columns());
    Table_Builder builder;
    for (const QString& name : cards.Columns())
        builder.Add_Field(name.toUtf8());
    builder.End_Row(0);
    for (int row = 0; row < cards.Row_Count(); ++row) {
        for (const int column : numbers) {
            if (column != numbers.front() && cards.Bytes_At(row, column).isEmpty())
                continue;
            for (int field = 0; field < cards.Column_Count(); ++field)
                builder.Add_Field(cards.Bytes_At(row, field == numbers.front() ? column : field));
            builder.End_Row(cards.Source_Row(row));
        }
    }
    return builder.Take();
}
