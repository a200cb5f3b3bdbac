#pragma once

#include "windows/contacts/Plan_Rows.h"

#include <QTimer>
#include <QWidget>
#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <optional>

class Window_Work;

namespace Ui {
class Plan_Page;
}

// The page that shows a job before it is sent: each row with its text and verdict, and sums on top. A plan is made,
// filtered and put right on workers of its window, one after the other; what is shown is never changed, but replaced.
// Interface thread.
class Plan_Page : public QWidget
{
    Q_OBJECT

public:
    using Make_Plan = std::function<Job_Plan(const Plan_Watch& watch)>;

    /// The window's work outlives the page.
    explicit Plan_Page(Window_Work& work, QWidget* parent = nullptr);
    ~Plan_Page() override;

    /// How long the rows of a plan take, in seconds as they pass. To be said before anything is shown.
    void Estimate_By(std::function<double(const Plan_Sums&)> seconds_for) { m_seconds_for = std::move(seconds_for); }
    /// Shows the plan that is made by this on a worker, from now on. What was shown goes.
    void Show_Plan(Make_Plan make);
    /// What is shown, and may be shown again later.
    std::shared_ptr<const Plan_View> Shown() const { return m_view; }
    void Show_Again(const std::shared_ptr<const Plan_View>& view);
    /// Shows nothing, and lets what is being made go.
    void Clear();
    /// The plan, when it is there; null as long as it is being made or put right.
    std::shared_ptr<const Job_Plan> Plan() const;
    const Plan_Sums& Sums() const;
    /// Whether numbers can be put right.
    void Let_Edit(bool can_edit);
    /// Shows only rows that are not to be sent, or goes on to do so once they are known.
    void Show_Left_Out();

Q_SIGNALS:
    /// Plan answers otherwise.
    void Changed();
    /// These rows of the plan have other numbers now.
    void Put_Right(const std::vector<int>& rows);

private:
    using View = std::shared_ptr<const Plan_View>;
    struct Edit
    {
        int row;
        QString number;
    };

    void Set_Up_Table();
    void Start(std::function<View(const Plan_Watch&, int filter)> make, const std::vector<int>& put_right = {});
    void Work_On();
    void Put_Numbers_Right();
    void Take(const View& view);
    void Show_More_Rows();
    void Show_Filter();
    void Show_Progress(int percent);
    void Go_To_Longest();
    int Filter() const;

    const std::unique_ptr<Ui::Plan_Page> m_ui;
    Window_Work& m_work;
    std::function<double(const Plan_Sums&)> m_seconds_for;
    Plan_Rows* m_rows;
    View m_view;
    std::shared_ptr<std::atomic<bool>> m_is_stopped; // of the work under way
    bool m_is_busy = false;
    QTimer m_more_rows;           // while a view comes into the table
    std::vector<int> m_put_right; // of that view
    std::deque<Edit> m_edits;
    std::optional<int> m_next_filter; // that has been chosen meanwhile
    bool m_goes_to_longest = false;
};
