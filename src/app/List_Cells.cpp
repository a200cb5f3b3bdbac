#include "app/List_Tables.h"

#include "platform/Row_Table_Model.h"

#include <QHeaderView>
#include <QTableView>
#include <algorithm>
#include <string>

Invalid_Parameter::Invalid_Parameter(const char* condition)
    : std::logic_error(std::string("Invalid parameter not satisfying: ") + condition)
{
}

QString Recipient_Cell(const Recipient_List& nsListDataObject, const QString& identifier, int pRowIndex)
{
    if (pRowIndex < 0 || pRowIndex >= nsListDataObject.Count())
        throw Invalid_Parameter("pRowIndex >= 0 && pRowIndex < [nsListDataObject count]");
    return nsListDataObject.At(pRowIndex).Value(identifier);
}

QString Exclusion_Cell(const Exclusion_Set& nsExclusionListDataObject, const QString& identifier, int pRowIndex)
{
    if (pRowIndex < 0 || pRowIndex >= nsExclusionListDataObject.Count())
        throw Invalid_Parameter("pRowIndex >= 0 && pRowIndex < [nsExclusionListDataObject count]");
    return identifier == QStringLiteral("Number") ? nsExclusionListDataObject.At(pRowIndex) : QString();
}

void Prepare_List_Table(QTableView& table, Row_Table_Model& rows)
{
    table.setModel(&rows);
    table.setAlternatingRowColors(true);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::ExtendedSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false); // Tab leaves the table
    table.setCornerButtonEnabled(false);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 10);
    table.verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setStretchLastSection(true);
    table.setColumnWidth(0, table.fontMetrics().averageCharWidth() * 24);
}

std::vector<int> Rows_Selected_In(const QTableView& table)
{
    std::vector<int> rows;
    const auto ranges = table.selectionModel()->selection();
    for (const auto& range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}
