#pragma once

#include "engine/Send_Progress.h"
#include "toolkit/Modal_Sheet.h"

#include <QTimer>
#include <atomic>
#include <functional>
#include <memory>

namespace Ui {
class Send_Modeless;
}

// The progress window of a send job, a sheet over the main window. The one shared instance belongs to the interface
// thread like every window; its Send_Progress operations may be called from the job's thread and hop over here.
class Send_Modeless : public Modal_Sheet, public Send_Progress
{
    Q_OBJECT

public:
    explicit Send_Modeless(QWidget* parent = nullptr);
    ~Send_Modeless() override;

    static Send_Modeless* defaultInstance();

    /// Appears over the main window, whose input is released: from then on this sheet blocks it.
    void Begin_Preparing(int total) override;
    void Begin_Sending() override;
    void Show_Item(int position, int total, const QString& number) override;
    void Show_Current(const QString& text) override;
    void Show_Waiting(const QString& text) override;
    /// Hides the window. A stop question that is still open counts as answered No.
    void Tell_Time_Left(std::function<QString()> words) override;
    void End() override;
    void Begin_Pause() override;
    void Show_Pause(const QString& text) override;
    void End_Pause() override;
    void startTimerThread() override;
    void Stop_Timers() override;

    /// The stop button, and the window's close button: asks, and on Yes sets Stop_SMS_Sending_Now. From then on until
    /// the next job the button says so and cannot be pressed.
    void Stop_Sending_Pressed();
    /// One step of the activity bar, every half second: forward by 20, and from 100 to the start.
    void Timer_Curr_Prg_Send_Modeless();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void Make_Room_For_Texts();
    void Show_Stop_Asked_For(bool is_asked_for);
    void Show_Time_Left();
    void Tell_State(const QString& detail);
    void Show_Sending_Controls(bool visible);
    void Show_Current_Item(bool visible);
    void Show_In_Place_Of_Number(const QString& text, bool is_waiting);

    std::unique_ptr<Ui::Send_Modeless> m_ui;
    QString m_stop_caption;               // as it was before being pressed
    QString m_item_caption;               // before the number, as it is unless the job waits
    std::function<QString()> m_time_left; // in words; none between two jobs
    QTimer msend_modTimer{this};
    std::atomic<bool> m_is_item_on_its_way{false}; // to the interface thread, which has not shown it yet
};
