#include "windows/jobs/Receipt_Rows.h"

#include "texts/Receipt_Texts.h"
#include "toolkit/Outcome_Colours.h"

#include <utility>

namespace T = Texts::Receipts;

Receipt_Rows::Receipt_Rows(QObject* parent)
    : Row_Table_Model(
          {{QStringLiteral("Row"), T::Row},
           {QStringLiteral("Number"), T::Number},
           {QStringLiteral("Message"), T::Message},
           {QStringLiteral("Outcome"), T::Outcome},
           {QStringLiteral("Reason"), T::Reason},
           {QStringLiteral("Parts"), T::Parts_Sent},
           {QStringLiteral("Delivery"), T::Delivery},
           {QStringLiteral("Time"), T::Time}},
          [this] { return static_cast<int>(m_rows.size()); },
          [this](const QString& column, int index) { return Cell(column, index); }, parent)
{
}

void Receipt_Rows::Take(std::shared_ptr<const Job_Receipt> receipt, Receipt_Kind kind)
{
    m_receipt = std::move(receipt);
    m_rows = m_receipt ? m_receipt->Rows_Of(kind) : std::vector<int>();
    m_last.reset();
    Reload();
}

const Receipt_Row& Receipt_Rows::Row_At(int index) const
{
    const int number = m_rows[static_cast<std::size_t>(index)];
    if (!m_last || m_last->first != number)
        m_last.emplace(number, m_receipt->Row(number));
    return m_last->second;
}

QVariant Receipt_Rows::data(const QModelIndex& index, int role) const
{
    const bool is_outcome = index.isValid() && index.column() == Outcome_Column && index.row() < rowCount();
    if (is_outcome && role == Qt::ForegroundRole)
        return Colour_Of(Row_At(index.row()).state);
    if (is_outcome && role == Qt::AccessibleTextRole)
        return Row_At(index.row()).outcome;
    return Row_Table_Model::data(index, role);
}

Row_Source Receipt_Rows::Source() const
{
    QStringList columns{QStringLiteral("Row"),     QStringLiteral("Number"), QStringLiteral("Message"),
                        QStringLiteral("Outcome"), QStringLiteral("Reason"), QStringLiteral("Parts")};
    if (m_receipt && m_receipt->Asks_For_Reports())
        columns.append(QStringLiteral("Delivery"));
    columns.append(QStringLiteral("Time"));
    const auto cell = [receipt = m_receipt, rows = m_rows, columns](int column, int index) {
        return Cell_Of(receipt->Row(rows[static_cast<std::size_t>(index)]), columns.at(column));
    };
    return {rowCount(), static_cast<int>(columns.size()), cell};
}

QString Receipt_Rows::Cell(const QString& column, int index) const
{
    return Cell_Of(Row_At(index), column);
}

QString Receipt_Rows::Cell_Of(const Receipt_Row& row, const QString& column)
{
    const std::pair<const char*, QString> Cells[] = {{"Number", row.number},          {"Message", row.message},
                                                     {"Outcome", row.signed_outcome}, {"Reason", row.reason},
                                                     {"Delivery", row.delivery},      {"Time", row.time}};
    for (const auto& [name, cell] : Cells) {
        if (column == QLatin1String(name))
            return cell;
    }
    return column == u"Row" ? QString::number(row.source_row)
                            : QStringLiteral("%1 / %2").arg(row.parts_sent).arg(row.parts);
}
