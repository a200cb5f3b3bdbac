#include "windows/main/Recipient_Rows.h"

#include "engine/Outcome_Words.h"
#include "texts/Outcome_Texts.h"
#include "toolkit/Outcome_Colours.h"

#include <utility>

Recipient_Rows::Recipient_Rows(std::vector<Column> columns, Row_Counter count_rows, Cell_Reader read_cell,
                               Outcome_Reader read_outcome, QObject* parent)
    : Row_Table_Model(std::move(columns), std::move(count_rows), std::move(read_cell), parent),
      m_read_outcome(std::move(read_outcome))
{
}

void Recipient_Rows::Show_Outcomes(bool shown)
{
    if (shown == m_shows_outcomes)
        return;
    const int column = Outcome_Column();
    if (shown) {
        beginInsertColumns({}, column, column);
        m_shows_outcomes = true;
        endInsertColumns();
    } else {
        beginRemoveColumns({}, column, column);
        m_shows_outcomes = false;
        endRemoveColumns();
    }
}

void Recipient_Rows::Outcomes_Changed(int first_row, int last_row)
{
    const bool shows_all = Shows_All(); // rows that are shown otherwise may be anywhere
    const auto first = index(shows_all ? first_row : 0, Outcome_Column()); // none where there is no such row or column
    const auto last = index(shows_all ? last_row : rowCount() - 1, Outcome_Column());
    if (first.isValid() && last.isValid())
        Q_EMIT dataChanged(first, last);
}

int Recipient_Rows::columnCount(const QModelIndex& parent) const
{
    return Row_Table_Model::columnCount(parent) + (m_shows_outcomes && !parent.isValid() ? 1 : 0);
}

QVariant Recipient_Rows::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.column() != Outcome_Column())
        return Row_Table_Model::data(index, role);
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole && role != Qt::ForegroundRole)
        return {};
    const int row = List_Row(index.row());
    const auto outcome = row >= 0 ? m_read_outcome(row) : std::nullopt;
    if (!outcome)
        return {};
    if (role == Qt::ForegroundRole)
        return Colour_Of(outcome->state);
    return role == Qt::DisplayRole ? Signed_Outcome(*outcome) : Outcome_Words(*outcome);
}

QVariant Recipient_Rows::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical || section != Outcome_Column())
        return Row_Table_Model::headerData(section, orientation, role);
    return role == Qt::DisplayRole && m_shows_outcomes ? QString(Texts::Outcomes::Heading) : QVariant();
}
