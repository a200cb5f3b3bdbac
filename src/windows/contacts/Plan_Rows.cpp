#include "windows/contacts/Plan_Rows.h"

#include "toolkit/Outcome_Colours.h"
#include "windows/contacts/Plan_Words.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int Rows_At_Once = 1 << 16;

// What the list says of such a row when a job has met it.
Row_State State_Of(Row_Verdict verdict)
{
    switch (verdict) {
    case Row_Verdict::Send:
        return Row_State::Sent;
    case Row_Verdict::Duplicate:
        return Row_State::Repeated;
    case Row_Verdict::Excluded:
        return Row_State::Excluded;
    case Row_Verdict::Invalid_Number:
        return Row_State::Invalid_Number;
    case Row_Verdict::Empty_Field:
    case Row_Verdict::Unknown_Field:
    case Row_Verdict::Too_Long:
    case Row_Verdict::Wrong_Columns:
        break;
    }
    return Row_State::Not_Filled;
}

} // namespace

int Plan_View::Index_Of(int row) const
{
    if (!is_filtered)
        return plan && row >= 0 && row < plan->Count() ? row : -1;
    const auto place = std::lower_bound(rows.begin(), rows.end(), row);
    return place != rows.end() && *place == row ? static_cast<int>(place - rows.begin()) : -1;
}

// The columns in the order of their enumeration; cells are read in data().
Plan_Rows::Plan_Rows(QObject* parent)
    : Row_Table_Model(
          {{QStringLiteral("Row"), tr("Row")},
           {QStringLiteral("Written"), tr("Number as written")},
           {QStringLiteral("Number"), tr("As dialled")},
           {QStringLiteral("Text"), tr("Message")},
           {QStringLiteral("Parts"), tr("Parts")},
           {QStringLiteral("Verdict"), tr("Verdict")},
           {QStringLiteral("Reason"), tr("Remark")}},
          [this] { return m_view ? std::min(m_view->Count(), m_most_shown) : 0; },
          [](const QString&, int) { return QString(); }, parent)
{
}

void Plan_Rows::Take(std::shared_ptr<const Plan_View> view)
{
    m_view = std::move(view);
    m_most_shown = std::max(Rows_At_Once, rowCount());
    Reload();
}

void Plan_Rows::Show_More()
{
    m_most_shown = rowCount() + Rows_At_Once;
    Reload();
}

Qt::ItemFlags Plan_Rows::flags(const QModelIndex& index) const
{
    const auto usual = Row_Table_Model::flags(index);
    return index.isValid() && m_can_edit && index.column() == Written ? usual | Qt::ItemIsEditable : usual;
}

QVariant Plan_Rows::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !m_view || index.row() >= m_view->Count())
        return {};
    const bool is_verdict = index.column() == Verdict;
    const auto verdict = [&] { return m_view->plan->Verdict_Of(m_view->Row_At(index.row())); };
    if (is_verdict && role == Qt::ForegroundRole)
        return Colour_Of(State_Of(verdict()));
    if (is_verdict && role == Qt::AccessibleTextRole)
        return Plan_Words::Of_Verdict(verdict());
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return {};
    return Cell(*m_view->plan, static_cast<Column>(index.column()), m_view->Row_At(index.row()));
}

bool Plan_Rows::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || index.column() != Written || !m_view ||
        index.row() >= m_view->Count() || value.toString() == data(index, Qt::EditRole).toString())
        return false;
    Q_EMIT Number_Written(m_view->Row_At(index.row()), value.toString());
    return true;
}

Row_Source Plan_Rows::Source() const
{
    return {rowCount(), columnCount(), [view = m_view](int column, int index) {
                return Cell(*view->plan, static_cast<Column>(column), view->Row_At(index));
            }};
}

QString Plan_Rows::Cell(const Job_Plan& plan, Column column, int row)
{
    switch (column) {
    case Row:
        return QString::number(plan.Source_Row(row));
    case Written:
        return plan.Written_Number(row);
    case Number:
        return plan.Number_Of(row);
    case Text:
        return plan.Text_Of(row);
    case Parts:
        return plan.Verdict_Of(row) == Row_Verdict::Send ? QString::number(plan.Parts_Of(row)) : QString();
    case Verdict:
        return Plan_Words::Signed_Verdict(plan.Verdict_Of(row));
    case Reason:
        return plan.Reason_Of(row);
    }
    return {};
}
