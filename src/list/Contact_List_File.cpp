#include "list/Contact_List_File.h"

#include "list/Number_Rules.h"
#include "list/Table_Builder.h"
#include "list/Written_Number.h"
#include "platform/Utf16_Units.h"

namespace {

constexpr QLatin1String Number("Number");
constexpr QLatin1String Message("Message");
constexpr int Columns_Before_Fields = 2;

// A null character, which no text has, becomes a blank.
QByteArray Field(const QString& text)
{
    return '"' + text.toUtf8().replace('"', "\"\"").replace('\0', ' ') + '"';
}

QString Message_In(const Contact_Table& table, int row)
{
    return Text_Of_Utf8(table.Bytes_At(row, 1));
}

Contact_Table Fields_In(const Contact_Table& table, QString& trouble)
{
    Table_Builder builder(0, true, Table_Builder::Blank_Rows::Kept);
    for (const QString& name : table.Columns().sliced(Columns_Before_Fields))
        builder.Add_Field(name.toUtf8());
    builder.End_Row(1);
    for (int row = 0; row < table.Row_Count(); ++row) {
        for (int column = Columns_Before_Fields; column < table.Field_Count(row); ++column)
            builder.Add_Field(table.Bytes_At(row, column));
        builder.End_Row(table.Source_Row(row));
    }
    trouble = builder.Trouble();
    return builder.Take();
}

} // namespace

QByteArray Contact_List_File::Heading(const Recipient_List& list)
{
    QByteArray line = "\xEF\xBB\xBF" + Field(Number) + ',' + Field(Message);
    for (const QString& name : list.Field_Names())
        line += ',' + Field(name);
    return line + "\r\n";
}

QByteArray Contact_List_File::Line(const Recipient_List& list, int index)
{
    QByteArray line = Field(list.Numbers().At(index)) + ',' + Field(list.Message_At(index));
    const auto fields = list.Table_At(index) ? list.Field_Names().size() : 0;
    for (int name = 0; name < fields; ++name)
        line += ',' + Field(list.Field_At(index, name));
    return line + "\r\n";
}

bool Contact_List_File::Is_One(const Contact_Table& table)
{
    return table.Column_Count() >= Columns_Before_Fields && table.Columns()[0] == Number &&
           table.Columns()[1] == Message;
}

Contact_List_File::Read_List Contact_List_File::List_In(const Contact_Table& table)
{
    Read_List read;
    const auto fields = std::make_shared<const Contact_Table>(Fields_In(table, read.trouble));
    for (int row = 0; row < table.Row_Count() && read.trouble.isEmpty(); ++row) {
        const QString written = table.Field(row, 0);
        QString number = Number_Rules::Normalised_Number(written);
        if (number.isEmpty()) // another program may have saved it since
            number = Number_As_Written(written, nullptr).number;
        if (number.isEmpty() || table.Trouble_Of(row) != Contact_Table::Row_Trouble::None)
            read.left_out.push_back(row);
        else if (table.Field_Count(row) <= Columns_Before_Fields)
            read.recipients.Append(number, Message_In(table, row));
        else
            read.recipients.Append_From_Table(number, Message_In(table, row), fields, row);
    }
    return read;
}
