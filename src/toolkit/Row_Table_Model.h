#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <optional>
#include <vector>

// Shows rows of text dictionaries in a table: each column has the key whose value its cells show. The rows stay where
// they are and are read one cell at a time, so a million of them cost nothing here. The table shows the rows known at
// the last Reload; a row that has gone since shows an empty cell. Some of the rows may be shown, or all in another
// order: rows of the model are then not those of the list. Interface thread only.
class Row_Table_Model : public QAbstractTableModel
{
    Q_OBJECT

public:
    struct Column
    {
        QString identifier; ///< the dictionary key
        QString title;
    };
    using Row_Counter = std::function<int()>;
    using Cell_Reader = std::function<QString(const QString& identifier, int row)>;

    Row_Table_Model(std::vector<Column> columns, Row_Counter count_rows, Cell_Reader read_cell,
                    QObject* parent = nullptr);

    /// Takes note of rows added, removed and changed. Selected rows that still exist stay selected.
    void Reload();

    /// Shows rows of the list, by their indexes in it and in this order; with none given all of them, as they are
    /// there.
    void Show_Rows(std::optional<std::vector<int>> rows);
    bool Shows_All() const { return !m_view; }
    /// The index in the list of a row that is shown; -1 where none is.
    int List_Row(int shown_row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    /// A cell's whole value, including line breaks: the view decides how much of it is painted.
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    /// The list may be another. Whoever has chosen rows chooses again now.
    void Reloading();

private:
    void Take_On_Count(int rows);

    std::vector<Column> m_columns;
    Row_Counter m_count_rows;
    Cell_Reader m_read_cell;
    int m_shown_rows = 0;
    std::optional<std::vector<int>> m_view; // the rows shown, where they are not the list's
};
