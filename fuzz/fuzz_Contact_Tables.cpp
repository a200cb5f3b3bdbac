#include "fuzz/Fuzz_Input.h"
#include "list/Delimited_Text.h"
#include "list/Number_Column.h"
#include "list/Table_File.h"

namespace {

void Check(const Contact_Table& table)
{
    MUST(table.Column_Count() <= Table_Builder::Most_Columns);
    for (int row = 0; row < table.Row_Count(); ++row) {
        MUST(table.Field_Count(row) > 0 && table.Field_Count(row) <= Table_Builder::Most_Columns);
        MUST(table.Bytes_At(row, table.Field_Count(row)).isEmpty());
        const bool has_trouble = table.Trouble_Of(row) != Contact_Table::Row_Trouble::None;
        MUST(has_trouble != table.Words_For_Trouble(row).isEmpty());
        MUST(table.Source_Row(row) >= (row > 0 ? table.Source_Row(row - 1) : 0));
    }
    for (const int column : Number_Columns(table))
        MUST(column >= 0 && column < table.Column_Count());
    for (int column = 0; column < table.Column_Count() && column < 50; ++column)
        MUST(!table.Columns()[column].isEmpty());
}

QByteArray Quoted(QByteArray field)
{
    return '"' + field.replace('"', "\"\"") + '"';
}

QByteArray Written(const Contact_Table& table)
{
    QByteArrayList fields;
    for (const QString& name : table.Columns())
        fields.append(Quoted(name.toUtf8()));
    QByteArray text = fields.join(',') + '\n';
    for (int row = 0; row < table.Row_Count(); ++row) {
        fields.clear();
        for (int column = 0; column < table.Field_Count(row); ++column)
            fields.append(Quoted(table.Bytes_At(row, column).toByteArray()));
        text += fields.join(',') + "\r\n";
    }
    return text;
}

// What was read is read again from what is written with every field in quotes.
void Check_Written(const Contact_Table& table)
{
    const QByteArray text = Written(table);
    Table_Builder builder;
    MUST(Read_Delimited(text, ',', builder).isEmpty());
    const Contact_Table again = builder.Take();
    MUST(again.Columns() == table.Columns());
    MUST(Written(again) == text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr const char* Names[] = {"list.csv", "list.tsv", "list.vcf", "list"};
    constexpr const char* Encodings[] = {"", "UTF-8", "ISO-8859-1", "UTF-16"};
    constexpr char Delimiters[] = {'\0', ',', ';', '"' + 1};
    Fuzz_Input input(data, size);
    const unsigned choices = input.Octet();
    const Table_Choices table_choices{QLatin1String(Encodings[choices >> 2 & 3]), {}, Delimiters[choices >> 4 & 3]};
    const auto file = Table_Of_Bytes(input.Document(), QLatin1String(Names[choices & 3]), table_choices);
    Check(file.table);
    if (file.trouble.isEmpty() && file.table.Column_Count() > 0)
        Check_Written(file.table);
    return 0;
}
