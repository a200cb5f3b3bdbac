#pragma once

#include "engine/Job_Receipt.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Table_Menu.h"

#include <memory>
#include <optional>
#include <vector>

// The rows of a receipt in a table: all, or those of one kind. Each is put into words when the table asks for it. An
// outcome is a sign with words in the colour of both; assistive tools are told the words. Part of its window; interface
// thread.
class Receipt_Rows : public Row_Table_Model
{
    Q_OBJECT

public:
    static constexpr int Number_Column = 1;
    static constexpr int Message_Column = 2;
    static constexpr int Outcome_Column = 3;
    static constexpr int Reason_Column = 4;
    static constexpr int Parts_Column = 5;
    static constexpr int Delivery_Column = 6;
    static constexpr int Time_Column = 7;

    explicit Receipt_Rows(QObject* parent = nullptr);

    /// Without a receipt there are none.
    void Take(std::shared_ptr<const Job_Receipt> receipt, Receipt_Kind kind);

    /// What is shown now, for whoever copies some of it; without deliveries where nobody asked for reports.
    Row_Source Source() const;

    QVariant data(const QModelIndex& index, int role) const override;

private:
    const Receipt_Row& Row_At(int index) const;
    QString Cell(const QString& column, int index) const;
    static QString Cell_Of(const Receipt_Row& row, const QString& column);

    std::shared_ptr<const Job_Receipt> m_receipt;
    std::vector<int> m_rows;
    mutable std::optional<std::pair<int, Receipt_Row>>
        m_last; // a table asks for the cells of a row one after the other
};
