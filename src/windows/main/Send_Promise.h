#pragma once

#include "plan/Job_Sums.h"
#include "records/Program_Settings.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

class Hand_Over_Wnd;
class Main_Window;
class Plan_Pace;
class QAbstractButton;
class QLabel;
class QPushButton;

// What a press of Send will come to, said beside it: recipients, messages, how long and until when, and what is kept of
// it. Counted anew after every change, a long list behind the window; until that is done no figures are shown. Says as
// well, once, where the list is much for one phone. Works on the main window's own controls; owned by the main window;
// interface thread.
class Send_Promise : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        QLabel* words;
        QPushButton* other_ways; ///< there as long as there are recipients
        QAbstractButton* send;   ///< which the promise describes to assistive tools
        QAbstractButton* check;  ///< which shows the rows; those that get nothing, where the promise speaks of them
    };
    /// The clock tells the time of day. All outlive it.
    Send_Promise(const Controls& controls, Main_Window& window, const Plan_Pace& pace, const Program_Settings& settings,
                 std::function<QDateTime()> clock);
    ~Send_Promise() override;

    /// Something that it may depend on has changed.
    void Changed();
    /// A control of the main window that it depends on.
    void Depend_On(QWidget* control);
    /// A list is about to be changed in its place: lets go of the copies, so that the change need not copy it.
    void List_Will_Change();

    /// Whether it speaks of recipients that get nothing because of their fields.
    bool Names_Unfilled_Rows() const { return m_sums && m_sums->unfilled.count > 0; }

    /// The button: words about other ways, and the hand-over.
    void Other_Ways();

private:
    struct Count;

    Send_Order Present_Order() const;
    void Begin_Count();
    void Count_Behind_The_Window();
    static std::optional<Job_Sums> Counted(const Count& count);
    void Take(const Job_Sums& sums);
    void Show();
    void Show_Words(const QString& words);

    Controls m_controls;
    Main_Window& m_window;
    const Plan_Pace& m_pace;
    Program_Settings m_settings;
    std::function<QDateTime()> m_clock;
    QTimer m_minute{this}; // the moment at which a job would end moves with the time
    QTimer m_rest{this};   // after the last change of a long list
    bool m_is_due = false;
    bool m_wants_notice = true;
    bool m_is_notice_shown = false;
    std::optional<Job_Sums> m_sums;        // of the present state
    std::shared_ptr<Count> m_count;        // that is going on
    Hand_Over_Wnd* m_other_ways = nullptr; // the main window's child
};
