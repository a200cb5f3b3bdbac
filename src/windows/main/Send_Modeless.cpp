#include "windows/main/Send_Modeless.h"

#include "device/Stop_Flag.h"
#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/Waiting.h"
#include "texts/Cause_Texts.h"
#include "texts/Texts.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"
#include "ui_Send_Modeless.h"

#include <QCloseEvent>
#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

namespace {

constexpr double Activity_Seconds = 0.5;
constexpr int Activity_End = 100;
constexpr int Activity_Step = 20;

// The main window's, which stands in the desktop's list of windows.
void Give_Title(const QString& title)
{
    QWidget* window = Main_App_wnd ? Main_App_wnd->Window() : nullptr;
    if (window)
        window->setWindowTitle(title);
}

void Keep_Room_When_Hidden(QWidget& widget)
{
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

void Keep_Room_For(QWidget& label, const QString& longest_text)
{
    const QFontMetrics metrics = label.fontMetrics();
    label.setMinimumSize(metrics.horizontalAdvance(longest_text) + metrics.averageCharWidth(), metrics.lineSpacing());
}

} // namespace

Send_Modeless::Send_Modeless(QWidget* parent) : Modal_Sheet(parent), m_ui(std::make_unique<Ui::Send_Modeless>())
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this);
    m_stop_caption = m_ui->_stop_btn->text();
    m_item_caption = m_ui->_current_send_label->text();
    Offer_Close_Button();
    Make_Room_For_Texts();
    msend_modTimer.setObjectName(QStringLiteral("msend_modTimer"));
    connect(m_ui->_stop_btn, &QPushButton::clicked, this, &Send_Modeless::Stop_Sending_Pressed);
    connect(&msend_modTimer, &QTimer::timeout, this, &Send_Modeless::Timer_Curr_Prg_Send_Modeless);
}

Send_Modeless::~Send_Modeless() = default;

Send_Modeless* Send_Modeless::defaultInstance()
{
    return Shared_Instance<Send_Modeless>::Get();
}

// The window keeps one size, whatever is shown or hidden in it.
void Send_Modeless::Make_Room_For_Texts()
{
    QFont heading = m_ui->_curr_msg_cnt->font();
    heading.setBold(true);
    m_ui->_curr_msg_cnt->setFont(heading);
    Keep_Room_For(*m_ui->_curr_msg_cnt, Texts::Sending::Preparing);
    Keep_Room_For(*m_ui->_current_send_msg, Texts::Causes::Phone_Pin_Wanted); // the longest that a job waits for
    Keep_Room_For(*m_ui->_pause_timer, QString(Texts::Pause::Hours).arg(1).arg(59).arg(59));
    Keep_Room_For(*m_ui->_Time_Left_Lbl, tr("about 23 h 59 min left, until 30 September 2026, 23:59"));
    for (QWidget* widget : {static_cast<QWidget*>(m_ui->_current_send_label),
                            static_cast<QWidget*>(m_ui->_current_send_msg), static_cast<QWidget*>(m_ui->_Tot_Progress)})
        Keep_Room_When_Hidden(*widget);
}

void Send_Modeless::Begin_Preparing(int total)
{
    Run_On_Interface_Thread([&] {
        Show_Stop_Asked_For(false);
        m_ui->_stop_btn->setEnabled(false);
        m_ui->_Tot_Progress->setRange(0, std::max(total, 1)); // an empty range would show as endless activity
        m_ui->_Tot_Progress->setValue(0);
        m_ui->_Curr_Progress->setRange(0, Activity_End);
        m_ui->_Curr_Progress->setValue(0);
        m_ui->_pause_timer->clear();
        m_time_left = {};
        Show_Time_Left();
        m_ui->_current_send_msg->clear();
        m_ui->_current_send_label->setText(m_item_caption);
        m_ui->_tot_msg_cnt->setText(QString::number(total));
        m_ui->_curr_msg_cnt->setText(Texts::Sending::Preparing);
        Tell_State({});
        Show_Sending_Controls(false);
        if (!Program_Is_Exiting())
            Begin_Sheet(Main_App_wnd->Window());
        Main_App_wnd->Release_Input();
    });
}

void Send_Modeless::Begin_Sending()
{
    Run_On_Interface_Thread([this] {
        Show_Sending_Controls(true);
        m_ui->_stop_btn->setEnabled(true);
    });
}

// The job does not wait for the bars to paint but continues with the message. It does wait if even the previous item
// has not been shown, so that a fast job is never more than one item ahead of its window.
void Send_Modeless::Show_Item(int position, int total, const QString& number)
{
    const auto show = [this, position, total, number] {
        m_is_item_on_its_way = false;
        m_ui->_Tot_Progress->setValue(position);
        m_ui->_curr_msg_cnt->setText(QString::number(position) + QStringLiteral(" / ") + QString::number(total) +
                                     Texts::Sending::Of_Messages);
        m_ui->_current_send_msg->setText(number);
        m_ui->_current_send_label->setText(m_item_caption);
        m_ui->_Curr_Progress->setValue(Activity_End);
        Tell_State(number);
        Show_Time_Left();
        Give_Title(tr("Sending %1 of %2").arg(position).arg(total));
    };
    if (Is_Interface_Thread() || m_is_item_on_its_way.exchange(true))
        Run_On_Interface_Thread(show);
    else
        Post_To_Interface_Thread(this, show);
}

void Send_Modeless::Show_Current(const QString& text)
{
    Show_In_Place_Of_Number(text, false);
}

void Send_Modeless::Show_Waiting(const QString& text)
{
    Show_In_Place_Of_Number(text, true);
}

void Send_Modeless::Show_In_Place_Of_Number(const QString& text, bool is_waiting)
{
    Run_On_Interface_Thread([&] {
        m_ui->_current_send_label->setText(is_waiting ? tr("Now :") : m_item_caption);
        m_ui->_current_send_msg->setText(text);
        Tell_State(text);
        Show_Time_Left();
    });
}

void Send_Modeless::Tell_Time_Left(std::function<QString()> words)
{
    Run_On_Interface_Thread([&] {
        m_time_left = std::move(words);
        Show_Time_Left();
    });
}

// Made anew with everything else that is shown, and with each step of the activity bar, since time goes by.
void Send_Modeless::Show_Time_Left()
{
    m_ui->_Time_Left_Lbl->setText(m_time_left ? m_time_left() : QString());
}

void Send_Modeless::End()
{
    Run_On_Interface_Thread([this] {
        Close_Message_Boxes(this);
        End_Sheet();
        m_time_left = {};
        Give_Title(QStringLiteral("Corvane"));
    });
}

void Send_Modeless::Begin_Pause()
{
    Run_On_Interface_Thread([this] {
        msend_modTimer.stop();
        m_ui->_Curr_Progress->setValue(0);
        Show_Current_Item(false);
    });
}

void Send_Modeless::Show_Pause(const QString& text)
{
    Run_On_Interface_Thread([&] {
        if (m_ui->_pause_timer->text().isEmpty())
            Tell_State(text); // not repeated every second
        m_ui->_pause_timer->setText(text);
        Show_Time_Left();
    });
}

void Send_Modeless::End_Pause()
{
    Run_On_Interface_Thread([this] {
        Show_Current_Item(true);
        m_ui->_pause_timer->clear();
        Show_Time_Left();
    });
    startTimerThread();
}

void Send_Modeless::startTimerThread()
{
    Run_On_Interface_Thread([this] {
        const double milliseconds = std::ceil(Paced(Activity_Seconds) * 1000);
        msend_modTimer.start(std::max(1, static_cast<int>(milliseconds)));
    });
}

void Send_Modeless::Stop_Timers()
{
    Run_On_Interface_Thread([this] { msend_modTimer.stop(); });
}

void Send_Modeless::Stop_Sending_Pressed()
{
    if (!Show_YES_NO_MessageBox(Texts::Sending::Stop))
        return;
    Stop_SMS_Sending_Now = 1;
    Show_Stop_Asked_For(true);
}

// The message in progress is still sent, which takes time: until then the button shows that the stop was noticed.
void Send_Modeless::Show_Stop_Asked_For(bool is_asked_for)
{
    m_ui->_stop_btn->setText(is_asked_for ? tr("Stopping ...") : m_stop_caption);
    m_ui->_stop_btn->setEnabled(!is_asked_for);
}

// Asks the same as the stop button, while that can be pressed; the window itself stays until the job takes it down.
void Send_Modeless::closeEvent(QCloseEvent* event)
{
    Modal_Sheet::closeEvent(event);
    if (!event->isAccepted() && m_ui->_stop_btn->isEnabled())
        Stop_Sending_Pressed();
}

void Send_Modeless::Timer_Curr_Prg_Send_Modeless()
{
    try {
        const int value = m_ui->_Curr_Progress->value();
        m_ui->_Curr_Progress->setValue((value == Activity_End ? 0 : value) + Activity_Step);
        Show_Time_Left();
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QString::fromLocal8Bit(failure.what()));
        Show_NSLog_Message(QStringLiteral("Timer curr prgs send modeless catch"));
    }
}

// Visually, the heading says how far the job is and the labels below it what is being done. A screen reader gets all of
// it from the heading's name, whose changes it is notified of.
void Send_Modeless::Tell_State(const QString& detail)
{
    const QString heading = m_ui->_curr_msg_cnt->text();
    m_ui->_curr_msg_cnt->setAccessibleName(detail.isEmpty() ? heading : heading + QStringLiteral(", ") + detail);
}

void Send_Modeless::Show_Sending_Controls(bool visible)
{
    Show_Current_Item(visible);
    m_ui->_Tot_Progress->setVisible(visible);
}

void Send_Modeless::Show_Current_Item(bool visible)
{
    m_ui->_current_send_label->setVisible(visible);
    m_ui->_current_send_msg->setVisible(visible);
}
