#include "toolkit/Row_Table_Model.h"

Row_Table_Model::Row_Table_Model(std::vector<Column> columns, Row_Counter count_rows, Cell_Reader read_cell,
                                 QObject* parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns)), m_count_rows(std::move(count_rows)),
      m_read_cell(std::move(read_cell))
{
}

void Row_Table_Model::Reload()
{
    const int rows = m_count_rows();
    if (rows > m_shown_rows) {
        beginInsertRows({}, m_shown_rows, rows - 1);
        m_shown_rows = rows;
        endInsertRows();
    } else if (rows < m_shown_rows) {
        beginRemoveRows({}, rows, m_shown_rows - 1);
        m_shown_rows = rows;
        endRemoveRows();
    }
    if (rows > 0)
        Q_EMIT dataChanged(index(0, 0), index(rows - 1, columnCount() - 1));
}

int Row_Table_Model::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_shown_rows;
}

int Row_Table_Model::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

QVariant Row_Table_Model::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_count_rows())
        return {};
    const auto& column = m_columns[static_cast<std::size_t>(index.column())];
    if (role == Qt::DisplayRole)
        return m_read_cell(column.identifier, index.row());
    return {};
}

QVariant Row_Table_Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    return section < columnCount() ? m_columns[static_cast<std::size_t>(section)].title : QString();
}
