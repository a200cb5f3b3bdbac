#include "list/Row_Text.h"

namespace {

QString In_A_Table(QString cell)
{
    const bool is_plain =
        !cell.contains(u'\t') && !cell.contains(u'\n') && !cell.contains(u'\r') && !cell.contains(u'"');
    return is_plain ? cell : u'"' + cell.replace(u'"', QLatin1String("\"\"")) + u'"';
}

} // namespace

QString Rows_As_Text(const Row_Source& source, const std::vector<int>& rows)
{
    QString text;
    for (const int row : rows) {
        for (int column = 0; column < source.columns; ++column) {
            text += In_A_Table(source.cell(column, row));
            text += column + 1 < source.columns ? u'\t' : u'\n';
        }
    }
    return text;
}
