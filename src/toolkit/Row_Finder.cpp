#include "toolkit/Row_Finder.h"

#include "platform/Interface_Thread.h"
#include "platform/Thread_Shortage.h"
#include "platform/Waiting.h"
#include "toolkit/Find_Strip.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Row_Table_Model.h"

#include <QAction>
#include <QActionGroup>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QMenu>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <QTableView>
#include <algorithm>
#include <atomic>
#include <semaphore>
#include <utility>

namespace {

// So few are found and sorted within a few milliseconds.
constexpr int Few_Rows = 2000;
// More selected rows than a person chooses one by one are not looked for in another order.
constexpr std::size_t Most_Selected_Again = 1000;
constexpr int Letters_Of_A_Title = 40;

} // namespace

// What the worker shares with the window.
struct Row_Finder::Search
{
    Row_Source source;
    Row_Wish wish;
    std::atomic<bool> is_stopped{false};
    std::binary_semaphore has_let_go{0}; // of the source
};

Row_Finder::Row_Finder(QTableView& table, Row_Table_Model& rows, Find_Strip& strip, Take_Source take_source)
    : QObject(&table), m_table(table), m_rows(rows), m_strip(strip), m_take_source(std::move(take_source)),
      m_find(new QAction(tr("&Find ..."), this)), m_orders(new QMenu(tr("&Sort"), &table))
{
    m_find->setObjectName(QStringLiteral("Find_Rows"));
    m_find->setShortcuts(QKeySequence::Find);
    m_find->setAutoRepeat(false);
    table.window()->addAction(m_find);
    m_orders->setObjectName(QStringLiteral("Row_Orders"));
    auto& headings = *table.horizontalHeader();
    headings.setSortIndicator(-1, Qt::AscendingOrder);
    headings.setSortIndicatorClearable(true);
    headings.setSortIndicatorShown(true);
    strip.Stand_Before(table);
    connect(m_find, &QAction::triggered, &strip, &Find_Strip::Open);
    connect(m_orders, &QMenu::aboutToShow, this, &Row_Finder::Offer_Orders);
    connect(&headings, &QHeaderView::sortIndicatorChanged, this, &Row_Finder::Sort_By);
    connect(&strip, &Find_Strip::Wanted, this, [this](const QString& words) {
        m_wish.words = words;
        Look_Again(false);
    });
    connect(&strip, &Find_Strip::Left, this, &Row_Finder::Leave);
    connect(&strip, &Find_Strip::Table_Wanted, this, &Row_Finder::Go_To_Table);
    connect(&rows, &Row_Table_Model::Reloading, this, [this] { Look_Again(true); });
    connect(&rows, &Row_Table_Model::columnsRemoved, this, &Row_Finder::Columns_Went);
}

Row_Finder::~Row_Finder()
{
    List_Will_Change();
}

void Row_Finder::End()
{
    m_strip.Close();
    m_table.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

void Row_Finder::Leave()
{
    m_strip.Close();
    m_table.setFocus();
}

void Row_Finder::Go_To_Table()
{
    m_table.setFocus();
    if (m_rows.rowCount() > 0 && !m_table.selectionModel()->hasSelection())
        Select_Alone(m_table, 0);
}

// ------------------------------------------------------------------------------------------------------- the order

void Row_Finder::Sort_By(int column, Qt::SortOrder order)
{
    m_wish.column = column;
    m_wish.order = order;
    Look_Again(false);
}

// The same as clicks on the headings, for the keyboard.
void Row_Finder::Offer_Orders()
{
    m_orders->clear();
    auto* group = new QActionGroup(m_orders);
    const auto offer = [&](const QString& words, int column, Qt::SortOrder order) {
        QAction* action = group->addAction(m_orders->addAction(words));
        action->setCheckable(true);
        action->setChecked(m_wish.column == column && (column < 0 || m_wish.order == order));
        connect(action, &QAction::triggered, this,
                [this, column, order] { m_table.horizontalHeader()->setSortIndicator(column, order); });
    };
    for (int column = 0; column < m_rows.columnCount(); ++column) {
        const QString title =
            m_rows.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString().left(Letters_Of_A_Title);
        offer(tr("%1, upwards").arg(title), column, Qt::AscendingOrder);
        offer(tr("%1, downwards").arg(title), column, Qt::DescendingOrder);
    }
    m_orders->addSeparator();
    offer(tr("As in the list"), -1, Qt::AscendingOrder);
}

void Row_Finder::Columns_Went()
{
    if (m_wish.column >= m_rows.columnCount())
        m_table.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

// ------------------------------------------------------------------------------------------------------ the search

// The worker looks every few hundred rows whether it is to stop, so this is no wait that anybody sees.
void Row_Finder::List_Will_Change()
{
    const auto search = std::exchange(m_search, nullptr);
    if (!search)
        return;
    search->is_stopped = true;
    search->has_let_go.acquire();
    if (!std::exchange(m_is_due, true))
        Post_To_Interface_Thread(this, [this] { Look_Again(true); });
}

// What is shown stays until what is wanted is found, but not when the list is another: its rows may be elsewhere.
void Row_Finder::Look_Again(bool list_has_changed)
{
    m_is_due = false;
    if (const auto search = std::exchange(m_search, nullptr)) {
        search->is_stopped = true;
        if (!list_has_changed) // or it may be the last that holds a long list, and lets go of it slowly
            search->has_let_go.acquire();
    }
    if (!Is_A_Wish(m_wish)) {
        if (!m_rows.Shows_All()) {
            Remember_Selection();
            Show(std::nullopt);
        }
        m_selected.clear();
        m_strip.Say({});
        return;
    }
    if (list_has_changed)
        m_selected.clear(); // what was hidden may be another row now
    Remember_Selection();
    Row_Source source = m_take_source();
    if (source.rows <= Few_Rows) {
        Take(*Rows_Found(source, m_wish, [] { return false; }), source.rows);
        return;
    }
    if (list_has_changed)
        Show(std::vector<int>());
    m_strip.Say(tr("Searching ..."));
    Begin_Search(std::move(source));
}

void Row_Finder::Begin_Search(Row_Source source)
{
    auto search = std::make_shared<Search>();
    search->source = std::move(source);
    search->wish = m_wish;
    const auto look = [this, search] {
        const int of_rows = search->source.rows;
        auto found =
            Rows_Found(search->source, search->wish, [&] { return search->is_stopped.load() || Program_Is_Exiting(); });
        search->source = {};
        search->has_let_go.release();
        if (!found)
            return;
        Post_To_Interface_Thread(this, [this, search, of_rows, found = std::move(*found)]() mutable {
            if (search == m_search) {
                m_search.reset();
                Take(std::move(found), of_rows);
            }
        });
    };
    m_search = search;
    if (!Start_Worker_If_Possible("find rows", look))
        look();
}

void Row_Finder::Take(std::vector<int> rows, int of_rows)
{
    const auto count = rows.size();
    Show(std::move(rows));
    m_strip.Say(m_wish.words.trimmed().isEmpty() ? QString() : tr("%1 of %2").arg(count).arg(of_rows));
}

// Listeners to the selection are notified once, when all is done.
void Row_Finder::Show(std::optional<std::vector<int>> rows)
{
    auto& selection = *m_table.selectionModel();
    {
        const QSignalBlocker muted(selection);
        selection.clearSelection();
        m_rows.Show_Rows(std::move(rows));
        Select_Remembered();
    }
    m_table.viewport()->update();
    Q_EMIT selection.selectionChanged({}, {});
}

// What is selected now, unless nothing can be because nothing has been found yet.
void Row_Finder::Remember_Selection()
{
    if (m_rows.rowCount() == 0 && !m_selected.empty())
        return;
    m_selected = Rows_Selected_In(m_table);
    if (m_selected.size() > Most_Selected_Again)
        m_selected.clear();
}

void Row_Finder::Select_Remembered()
{
    if (m_selected.empty() || m_rows.rowCount() == 0)
        return;
    QItemSelection again;
    const auto take = [&](int row) {
        if (row < m_rows.rowCount())
            again.select(m_rows.index(row, 0), m_rows.index(row, m_rows.columnCount() - 1));
    };
    if (m_rows.Shows_All())
        std::for_each(m_selected.begin(), m_selected.end(), take);
    for (int row = 0; row < m_rows.rowCount() && !m_rows.Shows_All(); ++row) {
        if (std::binary_search(m_selected.begin(), m_selected.end(), m_rows.List_Row(row)))
            take(row);
    }
    if (again.isEmpty())
        return;
    auto& selection = *m_table.selectionModel();
    selection.setCurrentIndex(again.constFirst().topLeft(), QItemSelectionModel::NoUpdate);
    selection.select(again, QItemSelectionModel::Select);
    m_table.scrollTo(again.constFirst().topLeft());
}
