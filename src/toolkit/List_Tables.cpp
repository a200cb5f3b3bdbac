#include "toolkit/List_Tables.h"

#include "toolkit/Double_Clicks.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Whole_Headings.h"
#include "toolkit/Whole_Text_Delegate.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QSignalBlocker>
#include <QTableView>
#include <algorithm>
#include <string>

Invalid_Parameter::Invalid_Parameter(const char* condition)
    : std::logic_error(std::string("Invalid parameter not satisfying: ") + condition)
{
}

namespace {

constexpr int Row_Padding = 18;
constexpr int Rows_Always_In_Sight = 4; // and the headings, as high as a row
constexpr int Letters_Always_In_Sight = 30;

} // namespace

void Prepare_List_Table(QTableView& table, Row_Table_Model& rows)
{
    const QFontMetrics letters = table.fontMetrics();
    const int row_height = letters.height() + Row_Padding;
    table.setModel(&rows);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::ExtendedSelection);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.setTabKeyNavigation(false); // Tab leaves the table
    table.setCornerButtonEnabled(false);
    table.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table.verticalHeader()->setDefaultSectionSize(row_height);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.horizontalHeader()->setStretchLastSection(true);
    table.setColumnWidth(0, letters.averageCharWidth() * 24);
    table.setMinimumSize(letters.averageCharWidth() * Letters_Always_In_Sight, row_height * (Rows_Always_In_Sight + 1));
    table.setItemDelegate(new Whole_Text_Delegate(&table));
    new Whole_Headings(table); // the table owns both
    new Double_Clicks(table);
}

void Select_Alone(QTableView& table, int row)
{
    // In multi-selection mode the table would ask the keyboard whether to add the row to the selection.
    const auto mode = table.selectionMode();
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.selectRow(row);
    table.setSelectionMode(mode);
}

std::vector<int> Rows_Selected_As_Shown(const QTableView& table)
{
    std::vector<int> rows;
    const auto ranges = table.selectionModel()->selection();
    for (const auto& range : ranges) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    if (const auto* model = qobject_cast<const Row_Table_Model*>(table.model()); model && !model->Shows_All()) {
        for (int& row : rows)
            row = model->List_Row(row);
    }
    return rows;
}

std::vector<int> Rows_Selected_In(const QTableView& table)
{
    std::vector<int> rows = Rows_Selected_As_Shown(table);
    std::sort(rows.begin(), rows.end());
    return rows;
}

void Reload_And_Select_First(QTableView& table, Row_Table_Model& rows)
{
    auto& selection = *table.selectionModel();
    {
        const QSignalBlocker muted(selection);
        selection.clear();
        rows.Reload();
    }
    table.viewport()->update();
    if (rows.rowCount() > 0)
        Select_Alone(table, 0);
    else
        Q_EMIT selection.selectionChanged({}, {});
}
