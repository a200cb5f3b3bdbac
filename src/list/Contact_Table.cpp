#include "list/Contact_Table.h"

#include "texts/Table_Texts.h"

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
        if (character.isSurrogate() ||
            (!character.isSpace() && character.category() != QChar::Other_Format && character.isPrint()))
            compared += character;
    return compared.normalized(QString::NormalizationForm_C).toCaseFolded();
}
