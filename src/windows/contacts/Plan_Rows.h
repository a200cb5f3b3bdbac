#pragma once

#include "list/Row_Search.h"
#include "plan/Job_Plan.h"
#include "toolkit/Row_Table_Model.h"

#include <memory>

/// A plan as it is shown: all of its rows, or some.
struct Plan_View
{
    std::shared_ptr<const Job_Plan> plan;
    Plan_Sums sums;
    bool is_filtered = false;
    std::vector<int> rows; ///< of the plan, in their order, where it is filtered
    QString refused = {};  ///< the last number that a row of a list did not take

    int Count() const { return !plan ? 0 : is_filtered ? static_cast<int>(rows.size()) : plan->Count(); }
    int Row_At(int index) const { return is_filtered ? rows[static_cast<std::size_t>(index)] : index; }
    /// Where a row is shown; -1 where it is not.
    int Index_Of(int row) const;
};

// The rows of a plan in a table, each put into words when the table asks for it: a verdict is a sign with a word in the
// colour of its outcome, and assistive tools are told the word. Numbers can be edited. Part of its page; interface
// thread.
class Plan_Rows : public Row_Table_Model
{
    Q_OBJECT

public:
    enum Column
    {
        Row,
        Written,
        Number,
        Text,
        Parts,
        Verdict,
        Reason
    };

    explicit Plan_Rows(QObject* parent = nullptr);

    /// Shows a view in place of another: at first not more rows than were shown before, or than come at once.
    void Take(std::shared_ptr<const Plan_View> view);
    bool Shows_All() const { return !m_view || rowCount() == m_view->Count(); }
    /// Shows the next rows of the view. The table's header makes an entry for each: for a million, all at once, that
    /// would take longer than a frame.
    void Show_More();
    void Let_Edit(bool can_edit) { m_can_edit = can_edit; }
    /// What is shown now, for whoever copies some of it.
    Row_Source Source() const;

    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    /// Somebody has written another number for a row of the plan.
    void Number_Written(int row, const QString& number);

private:
    static QString Cell(const Job_Plan& plan, Column column, int row);

    std::shared_ptr<const Plan_View> m_view;
    int m_most_shown = 0; // of its rows
    bool m_can_edit = true;
};
