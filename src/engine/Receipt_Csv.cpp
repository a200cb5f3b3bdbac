#include "engine/Receipt_Csv.h"

#include "engine/Receipt_Cells.h"
#include "texts/Reading_Language.h"

#include <algorithm>

namespace {

constexpr qsizetype Number_Column = 1;

bool Is_Taken_For_A_Formula(const QString& cell)
{
    constexpr QStringView Begins_A_Formula = u"=+-@\uFF1D\uFF0B\uFF0D\uFF20'\t\r\n";
    const auto first = std::find_if(cell.begin(), cell.end(), [&](QChar character) {
        return !character.isSpace() || Begins_A_Formula.contains(character);
    });
    return first != cell.end() && Begins_A_Formula.contains(*first);
}

QByteArray Field(const QString& cell, bool is_number)
{
    QString text = Receipt_Cells::Printable(cell);
    if ((is_number && !text.isEmpty()) || Is_Taken_For_A_Formula(text))
        text.prepend(u'\'');
    return '"' + text.replace(u'"', QStringLiteral("\"\"")).toUtf8() + '"';
}

// RFC 4180, 2.
QByteArray Line(const QStringList& cells, qsizetype number_column)
{
    QByteArrayList fields;
    for (qsizetype column = 0; column < cells.size(); ++column)
        fields.append(Field(cells.at(column), column == number_column));
    return fields.join(',') + "\r\n";
}

QByteArray Header()
{
    const Reading_Language::Originals originals; // a file is the same in every language
    return Line(Receipt_Cells::Headings(), -1);
}

} // namespace

Export_Content Receipt_Csv(std::shared_ptr<const Job_Receipt> receipt)
{
    const int rows = receipt->Row_Count();
    return {"\xEF\xBB\xBF" + Header(), rows, [receipt = std::move(receipt)](qsizetype index) {
                const Reading_Language::Originals originals;
                return Line(Receipt_Cells::Of(receipt->Row(static_cast<int>(index) + 1), false), Number_Column);
            }};
}
