#include "windows/exclusion/Names_Table.h"

#include "list/Exclusion_Rules.h"
#include "platform/String_Helpers.h"
#include "texts/Texts.h"
#include "toolkit/List_Tables.h"

#include <QHeaderView>

Names_Table::Names_Table(QTableView& table, const Row_Table_Model::Column& column, const Words& words)
    : m_table(table), m_identifier(column.identifier), m_words(words),
      m_rows(
          {column}, [this] { return static_cast<int>(m_names.size()); },
          [this](const QString& identifier, int row) { return Value(identifier, row); })
{
    Prepare_List_Table(m_table, m_rows);
    m_table.verticalHeader()->hide();
    m_hint = new Empty_List_Hint(m_table, m_table.objectName() + QStringLiteral("_Here"));
}

Row_Source Names_Table::Source() const
{
    return {static_cast<int>(m_names.size()), 1, [names = m_names](int, int row) { return names.at(row); }};
}

void Names_Table::Take(const QStringList& names)
{
    m_names = names;
    m_hint->Hold_True(true);  // from the first time on
    m_table.clearSelection(); // what moves into the selected rows was not selected
    m_rows.Reload();
}

void Names_Table::Append(const QStringList& names)
{
    m_names += names;
    m_rows.Reload();
}

void Names_Table::Append_Trimmed(const QString& name)
{
    const QString trimmed_name = Trim_Str(name);
    if (!trimmed_name.isEmpty())
        Append({trimmed_name});
}

void Names_Table::Remove(const std::vector<int>& rows)
{
    Exclusion_Rules::Remove_Rows(m_names, rows);
    Reload_And_Select_First(m_table, m_rows);
}

bool Names_Table::Tells_It_Is_Empty() const
{
    if (m_names.isEmpty())
        Tell(m_words.is_empty);
    return m_names.isEmpty();
}

std::vector<int> Names_Table::Rows_To_Act_On() const
{
    if (Tells_It_Is_Empty())
        return {};
    const auto rows = Rows_Selected_In(m_table);
    if (!rows.empty() && !Trim_Str(m_names.value(rows.front())).isEmpty())
        return rows;
    Tell(m_words.none_selected);
    return {};
}

std::optional<QString> Names_Table::Name_To_Edit() const
{
    const auto rows = Rows_To_Act_On();
    if (rows.size() == 1)
        return m_names.value(rows.front());
    if (!rows.empty())
        Tell(Texts::Select_Only_One);
    return {};
}
