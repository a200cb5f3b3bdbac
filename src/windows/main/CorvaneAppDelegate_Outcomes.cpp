#include "engine/Outcome_Words.h"
#include "toolkit/Column_Widths.h"
#include "toolkit/Row_Finder.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/main/Contact_Desk.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/Recipient_Rows.h"
#include "windows/main/Send_Promise.h"
#include "windows/main/Undo_Strip.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStyle>
#include <algorithm>
#include <utility>

// What became of the recipients' messages: the outcomes of the latest job, as marks that follow the recipients through
// the list, and what can be done with those that were not taken.

namespace {

constexpr int Message_Column = 1;

bool Is_Not_Taken(const Recipient_List& list, int row)
{
    return Was_Not_Taken(Outcome_Codes::State_Of(list.Mark_At(row)));
}

// Room for an outcome as it usually is; the tool tip shows the whole of a longer one.
int Width_For_Outcomes(const QTableView& table, int column)
{
    int width = 0;
    const QStringList texts = Usual_Signed_Outcomes();
    for (const QString& text : texts)
        width = std::max(width, table.fontMetrics().horizontalAdvance(text));
    const int margin = table.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &table) + 1;
    return std::max(width + 2 * margin + table.fontMetrics().averageCharWidth(),
                    table.horizontalHeader()->sectionSizeHint(column));
}

} // namespace

void CorvaneAppDelegate::Begin_Outcomes()
{
    m_outcome_codes = {};
    m_ui->_Undo_Strip->Forget(); // its marks are those of another job
    nsListDataObject.Begin_Marks();
    m_takes_outcomes = true;
    Show_Outcomes();
    m_recipient_rows->Outcomes_Changed(0, nsListDataObject.Count() - 1);
}

void CorvaneAppDelegate::Take_Outcomes(int first_row, const QByteArray& marks, const Outcome_Codes& codes)
{
    if (!m_takes_outcomes)
        return;
    m_outcome_codes = codes;
    nsListDataObject.Set_Marks(first_row, marks);
    m_recipient_rows->Outcomes_Changed(first_row, first_row + static_cast<int>(marks.size()) - 1);
}

void CorvaneAppDelegate::End_Outcomes()
{
    m_takes_outcomes = false;
    if (!m_recipient_rows->Shows_All())
        Redisplay_Recipients(); // they may be sorted by what they came to
    m_promise->Changed();       // it is known better now how long a message takes
    Look_For_Not_Taken();
    m_contacts->Job_Ended();
}

// The rows that a job reports are those of the list that it took. In a list that is another meanwhile they would stand
// for others, and a message that was sent might count as not tried: better to know nothing.
void CorvaneAppDelegate::Forget_Outcomes_Of_Job()
{
    if (std::exchange(m_takes_outcomes, false))
        nsListDataObject.Forget_Marks();
}

std::optional<Row_Outcome> CorvaneAppDelegate::Outcome_Of(int row) const
{
    if (row >= nsListDataObject.Count())
        return std::nullopt;
    return m_outcome_codes.Outcome_Of(nsListDataObject.Mark_At(row));
}

// A new recipient, or one that was changed in its place. It costs the same however long the list is.
void CorvaneAppDelegate::Recipient_Changed(int row)
{
    m_promise->Changed();
    m_ui->_Undo_Strip->Forget();
    if (!nsListDataObject.Has_Marks())
        return;
    Forget_Outcomes_Of_Job();
    m_has_not_taken = m_has_not_taken || Is_Not_Taken(nsListDataObject, row);
    Show_Outcomes();
}

void CorvaneAppDelegate::Look_For_Not_Taken()
{
    m_has_not_taken = false;
    const int count = nsListDataObject.Has_Marks() ? nsListDataObject.Count() : 0;
    for (int row = 0; row < count && !m_has_not_taken; ++row)
        m_has_not_taken = Is_Not_Taken(nsListDataObject, row);
    Show_Outcomes();
}

void CorvaneAppDelegate::Show_Outcomes()
{
    const bool are_there = nsListDataObject.Has_Marks();
    const bool are_complete = are_there && !m_takes_outcomes;
    Show_Outcome_Column(are_there);
    for (QPushButton* button : {m_ui->Select_Not_Taken, m_ui->Keep_Not_Taken}) {
        button->setEnabled(m_has_not_taken);
        button->setVisible(are_complete);
    }
    if (!are_complete || !m_has_not_taken)
        m_ui->plain_offer->hide();
}

// The messages give the outcomes their room. Without outcomes the table is as it was without them.
void CorvaneAppDelegate::Show_Outcome_Column(bool shown)
{
    if (shown == m_recipient_rows->Shows_Outcomes())
        return;
    auto& headings = *m_ui->idTableView->horizontalHeader();
    auto& selection = *m_ui->idTableView->selectionModel();
    const QItemSelection selected = selection.selection();
    m_recipient_rows->Show_Outcomes(shown);
    headings.setSectionResizeMode(Message_Column, shown ? QHeaderView::Stretch : QHeaderView::Interactive);
    headings.setStretchLastSection(!shown);
    if (!shown) {
        m_recipient_widths->Columns_Changed();
        return;
    }
    const int column = m_recipient_rows->Outcome_Column();
    headings.resizeSection(column, Width_For_Outcomes(*m_ui->idTableView, column));
    m_recipient_widths->Columns_Changed();
    selection.select(selected, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void CorvaneAppDelegate::Select_Not_Taken()
{
    m_finder->End(); // all of them, and not only those that are shown
    QItemSelection not_taken;
    const int count = nsListDataObject.Count();
    for (int row = 0; row < count; ++row) {
        const int first = row;
        while (row < count && Is_Not_Taken(nsListDataObject, row))
            ++row;
        if (row > first)
            not_taken.select(m_recipient_rows->index(first, 0),
                             m_recipient_rows->index(row - 1, m_recipient_rows->Outcome_Column()));
    }
    if (not_taken.isEmpty())
        return;
    auto& selection = *m_ui->idTableView->selectionModel();
    const QModelIndex first = not_taken.constFirst().topLeft();
    selection.clear();
    selection.setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    selection.select(not_taken, QItemSelectionModel::Select);
    m_ui->idTableView->scrollTo(first);
    Focus(Field::Recipient_Table);
}

void CorvaneAppDelegate::Keep_Not_Taken()
{
    Remove_Recipients([](Recipient_List& list) {
        std::vector<int> others;
        for (int row = 0; row < list.Count(); ++row) {
            if (!Is_Not_Taken(list, row))
                others.push_back(row);
        }
        list.Remove_Rows(others);
    });
}
