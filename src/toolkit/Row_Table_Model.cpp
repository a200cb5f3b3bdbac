#include "toolkit/Row_Table_Model.h"

namespace {

constexpr int Rows_Of_A_New_Start = 100'000;

} // namespace

Row_Table_Model::Row_Table_Model(std::vector<Column> columns, Row_Counter count_rows, Cell_Reader read_cell,
                                 QObject* parent)
    : QAbstractTableModel(parent), m_columns(std::move(columns)), m_count_rows(std::move(count_rows)),
      m_read_cell(std::move(read_cell))
{
}

void Row_Table_Model::Reload()
{
    Q_EMIT Reloading();
    if (!m_view)
        Take_On_Count(m_count_rows());
}

void Row_Table_Model::Show_Rows(std::optional<std::vector<int>> rows)
{
    m_view = std::move(rows);
    Take_On_Count(m_view ? static_cast<int>(m_view->size()) : m_count_rows());
}

int Row_Table_Model::List_Row(int shown_row) const
{
    if (!m_view)
        return shown_row;
    return shown_row >= 0 && shown_row < static_cast<int>(m_view->size())
               ? (*m_view)[static_cast<std::size_t>(shown_row)]
               : -1;
}

void Row_Table_Model::Take_On_Count(int rows)
{
    if (m_shown_rows == 0 && rows >= Rows_Of_A_New_Start) {
        beginResetModel(); // there is nothing to keep, and a heading of rows is made in half the time that it grows in
        m_shown_rows = rows;
        endResetModel();
    } else if (rows > m_shown_rows) {
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
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const int row = List_Row(index.row());
    if (row < 0 || row >= m_count_rows())
        return {};
    const auto& column = m_columns[static_cast<std::size_t>(index.column())];
    return m_read_cell(column.identifier, row);
}

QVariant Row_Table_Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return List_Row(section) + 1;
    return section < columnCount() ? m_columns[static_cast<std::size_t>(section)].title : QString();
}
