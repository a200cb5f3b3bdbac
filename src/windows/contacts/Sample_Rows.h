#pragma once

#include "toolkit/Row_Table_Model.h"

#include <memory>

class Contact_Table;

// The first rows of a table of contacts under the names of its columns, of which one is marked as that of the numbers.
// Part of its page; interface thread.
class Sample_Rows : public Row_Table_Model
{
    Q_OBJECT

public:
    static constexpr int Most_Rows = 20;
    static constexpr int Most_Columns = 200;

    explicit Sample_Rows(QObject* parent = nullptr);

    /// Without a table there are none.
    void Take(std::shared_ptr<const Contact_Table> table);
    void Mark(int number_column);

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    int Row_Count() const;

    std::shared_ptr<const Contact_Table> m_table;
    int m_number_column = -1;
};
