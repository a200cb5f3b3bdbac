#include "windows/contacts/Sample_Rows.h"

#include "list/Contact_Table.h"

#include <algorithm>
#include <utility>

Sample_Rows::Sample_Rows(QObject* parent)
    : Row_Table_Model(
          {}, [this] { return Row_Count(); }, [](const QString&, int) { return QString(); }, parent)
{
}

int Sample_Rows::Row_Count() const
{
    return m_table ? std::min(m_table->Row_Count(), Most_Rows) : 0;
}

void Sample_Rows::Take(std::shared_ptr<const Contact_Table> table)
{
    m_table.reset();
    Reload();
    beginResetModel();
    m_table = std::move(table);
    m_number_column = -1;
    endResetModel();
    Reload();
}

void Sample_Rows::Mark(int number_column)
{
    m_number_column = number_column;
    if (columnCount() > 0)
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int Sample_Rows::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_table ? 0 : std::min(m_table->Column_Count(), Most_Columns);
}

QVariant Sample_Rows::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= Row_Count() || role != Qt::DisplayRole)
        return {};
    return m_table->Field(index.row(), index.column());
}

QVariant Sample_Rows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation == Qt::Vertical || section >= columnCount())
        return Row_Table_Model::headerData(section, orientation, role);
    const QString name = m_table->Columns().at(section);
    return section == m_number_column ? tr("%1 (number)").arg(name) : name;
}
