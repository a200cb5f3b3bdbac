#pragma once

#include "engine/Job_Receipt.h"
#include "toolkit/Row_Table_Model.h"

#include <memory>
#include <optional>
#include <vector>

// The rows of a receipt that a table shows: all, or those of one kind. Each is put into words when the table asks for
// it. Part of its window; interface thread.
class Receipt_Rows
{
public:
    static std::vector<Row_Table_Model::Column> Columns();
    static constexpr int Number_Column = 1;
    static constexpr int Message_Column = 2;
    static constexpr int Outcome_Column = 3;
    static constexpr int Reason_Column = 4;
    static constexpr int Parts_Column = 5;
    static constexpr int Delivery_Column = 6;
    static constexpr int Time_Column = 7;

    /// Without a receipt there are none.
    void Take(std::shared_ptr<const Job_Receipt> receipt, Receipt_Kind kind);
    int Count() const { return static_cast<int>(m_rows.size()); }
    QString Cell(const QString& column, int index) const;

private:
    std::shared_ptr<const Job_Receipt> m_receipt;
    std::vector<int> m_rows;
    mutable std::optional<std::pair<int, Receipt_Row>>
        m_last; // a table asks for the cells of a row one after the other
};
