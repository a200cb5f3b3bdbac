#include "windows/contacts/Contact_Reading.h"

#include "list/Number_Column.h"
#include "list/Text_Encoding.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

Table_In_A_File Read(const Contact_Source& source, const Table_Choices& choices)
{
    if (!source.path.isEmpty()) {
        Table_Choices here = choices;
        here.usual_encoding = Usual_Encoding(QLocale());
        return Read_Table(source.path, here);
    }
    Table_Choices of_utf8 = choices;
    of_utf8.encoding = QStringLiteral("UTF-8");
    Table_In_A_File file = Table_Of_Bytes(source.bytes, QStringLiteral("clipboard.tsv"), of_utf8);
    file.facts.encoding.clear(); // there is nothing to choose
    return file;
}

int Likeliest_Column(const Table_In_A_File& file)
{
    const auto columns = file.facts.number_column.isEmpty() ? Number_Columns(file.table)
                                                            : file.table.Columns_Named(file.facts.number_column);
    return columns.empty() ? -1 : columns.front();
}

} // namespace

QString Contact_Source::Name() const
{
    return path.isEmpty() ? QCoreApplication::translate("Contact_Source", "The clipboard") : QFileInfo(path).fileName();
}

Contact_Reading Read_Contacts(const Contact_Source& source, const Table_Choices& choices)
{
    Contact_Reading reading;
    reading.has_no_names = choices.has_no_names;
    reading.is_file = !source.path.isEmpty();
    Table_In_A_File file = Read(source, choices);
    if (!file.trouble.isEmpty() && !choices.has_no_names) {
        Table_Choices without_names = choices;
        without_names.has_no_names = true;
        if (Table_In_A_File other = Read(source, without_names); other.trouble.isEmpty()) {
            file = std::move(other);
            reading.has_no_names = true;
        }
    }
    reading.facts = file.facts;
    reading.trouble = file.trouble;
    if (!file.trouble.isEmpty())
        return reading;
    reading.number_column = Likeliest_Column(file);
    reading.table = std::make_shared<const Contact_Table>(std::move(file.table));
    return reading;
}
