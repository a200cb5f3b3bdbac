#include "list/Contact_Table.h"

#include "texts/Table_Texts.h"

int Contact_Table::Field_Count(int row) const
{
    const std::size_t end = row + 1 < Row_Count() ? At(row + 1).first_field : m_ends.size();
    return static_cast<int>(end - At(row).first_field);
}

QByteArrayView Contact_Table::Bytes_At(int row, int column) const
{
    if (column < 0 || column >= Field_Count(row))
        return {};
    const std::size_t field = At(row).first_field + static_cast<std::size_t>(column);
    const std::size_t begin = field == 0 ? 0 : m_ends[field - 1];
    return {m_text.data() + begin, static_cast<qsizetype>(m_ends[field] - begin)};
}

Contact_Table::Row_Trouble Contact_Table::Trouble_Of(int row) const
{
    if (Field_Count(row) > Column_Count())
        return Row_Trouble::Too_Many_Fields;
    return At(row).has_stray_quote ? Row_Trouble::Stray_Quote : Row_Trouble::None;
}

QString Contact_Table::Words_For_Trouble(int row) const
{
    switch (Trouble_Of(row)) {
    case Row_Trouble::Too_Many_Fields:
        return QString(Texts::Table::Too_Many_Fields).arg(Field_Count(row)).arg(Column_Count());
    case Row_Trouble::Stray_Quote:
        return Texts::Table::Stray_Quote;
    case Row_Trouble::None:
        break;
    }
    return {};
}

std::vector<int> Contact_Table::Columns_Named(QStringView name) const
{
    std::vector<int> found;
    const QString compared = Compared_Column_Name(name);
    for (int column = 0; column < Column_Count() && !compared.isEmpty(); ++column)
        if (m_compared_columns[column] == compared)
            found.push_back(column);
    return found;
}

QString Compared_Column_Name(QStringView name)
{
    QString compared;
    for (const QChar character : name)
        if (!character.isSpace() && character.category() != QChar::Other_Format && character.isPrint())
            compared += character;
        else if (character.isSurrogate())
            compared += character;
    return compared.normalized(QString::NormalizationForm_C).toCaseFolded();
}
