#pragma once

#include "engine/Row_Outcome.h"
#include "toolkit/Row_Table_Model.h"

#include <optional>

// The rows of the recipient table: numbers and messages and, behind them once there are any, outcomes: a sign with
// words, of which assistive tools are told the words. As long as outcomes are not shown there is no column for them.
// Interface thread only.
class Recipient_Rows : public Row_Table_Model
{
    Q_OBJECT

public:
    /// The outcome of a row; none for a row that has gone.
    using Outcome_Reader = std::function<std::optional<Row_Outcome>(int row)>;

    Recipient_Rows(std::vector<Column> columns, Row_Counter count_rows, Cell_Reader read_cell,
                   Outcome_Reader read_outcome, QObject* parent = nullptr);

    bool Shows_Outcomes() const { return m_shows_outcomes; }
    void Show_Outcomes(bool shown);
    /// Takes note of changed outcomes in some rows of the list.
    void Outcomes_Changed(int first_row, int last_row);
    /// Where the outcomes are when they are shown.
    int Outcome_Column() const { return Row_Table_Model::columnCount({}); }

    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Outcome_Reader m_read_outcome;
    bool m_shows_outcomes = false;
};
