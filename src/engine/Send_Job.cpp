#include "engine/Send_Job.h"

#include "device/MFCSMS.h"
#include "engine/Composer_Rules.h"
#include "engine/Job_State.h"
#include "engine/Pause_Countdown.h"
#include "engine/Send_Listener.h"
#include "engine/Send_Progress.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "records/Sent_Item_Store.h"
#include "records/Template_Store.h"
#include "texts/Texts.h"

#include <exception>
#include <utility>

namespace {

constexpr double Preparing_Read_Seconds = 1;
constexpr double Sending_Read_Seconds = 5;
constexpr double Seconds_After_Message = 2;
constexpr double Seconds_After_Skipped = 1;
constexpr int Pdu_Mode = 1;
constexpr int Text_Mode = 2;

} // namespace

Send_Job::Send_Job(Send_Order order, MFCSMS& session, Send_Progress& progress, Send_Listener& listener, Stop_Flag& stop)
    : m_order(std::move(order)), m_session(session), m_progress(progress), m_listener(listener), m_stop(stop)
{
}

void Send_Job::Send_SMS_Func()
{
    try {
        Run();
    } catch (...) {
        Clean_Up();
        throw;
    }
    Clean_Up();
}

void Send_Job::Run()
{
    if (!The_Device_Opens()) {
        m_listener.Tell(Texts::Sending::Does_Not_Open);
        return;
    }
    Reload_Exclusions();
    m_progress.Begin_Preparing(m_order.recipients.Count());
    m_progress.startTimerThread();
    if (!Connect()) {
        m_listener.Tell(Texts::Sending::No_Modem);
        return;
    }
    Prepare_Device();
    Begin_Sending();
    Send_Items();
    Finish();
}

bool Send_Job::The_Device_Opens()
{
    m_handle = m_session.OpenSerialPort(MFCSMS::NString_To_Command_Char(m_order.device_path));
    return m_handle != -1;
}

// What counts is what the applied lists hold now, not what they held when the exclusion option was switched on.
void Send_Job::Reload_Exclusions()
{
    if (!m_order.choices.exclusion)
        return;
    Check_Path_And_Create_Files();
    auto applied = Exclusion_Files::Read_Applied_Numbers();
    m_listener.Exclusions_Were_Read(applied);
    m_order.exclusions = std::move(applied.numbers);
}

bool Send_Job::Connect()
{
    Close_Handle();
    // A port that is closed or belongs to another device cannot be used, and initPort would keep the closed one.
    const auto port = m_session.port();
    if (port && (!port->isOpen() || port->bsdPath() != m_order.device_path))
        Close_Port();
    if (!m_session.port())
        m_session.initPort(m_order.device_path);
    Set_Read_Timeout(Preparing_Read_Seconds);
    return m_session.port() && m_session.Check_Connection(m_handle);
}

void Send_Job::Prepare_Device()
{
    if (m_order.choices.delayed_delivery)
        m_delivery = Delayed_Delivery::Read_Setting(m_order.choices.batch_size, m_order.choices.pause_choice);
    m_mode = m_session.PDU_or_Text_SMS(m_handle);
    // The device's answer to this is not judged, and neither is its answer to a submission: only a failed write ends a
    // job.
    if (m_mode == Pdu_Mode)
        m_session.Prepare_Modem_For_PDU_SMS(m_handle);
    else if (m_mode == Text_Mode)
        m_session.Prepare_Modem_For_Text_SMS(m_handle);
}

void Send_Job::Begin_Sending()
{
    Pause_Timer_Running = false;
    m_stop = 0;
    if (Program_Is_Exiting()) // so that a stop that came with the exit is not lost
        m_stop = 1;
    m_date = Today().toString(QStringLiteral("dd/MM/yyyy"));
    m_progress.Begin_Sending();
    Set_Read_Timeout(Sending_Read_Seconds);
    m_has_error = false;
}

bool Send_Job::Is_Asked_To_Stop() const
{
    return m_stop == 1 || Program_Is_Exiting();
}

void Send_Job::Send_Items()
{
    const int count = m_order.recipients.Count();
    for (int index = 0; index < count; ++index) {
        if (Is_Asked_To_Stop() || m_mode == 0 || !Send_Item(index))
            return;
    }
}

// Returns whether another item may follow.
bool Send_Job::Send_Item(int index)
{
    const Recipient recipient = m_order.recipients.At(index);
    const QString message = Composer_Rules::Cut_To_Limit(recipient.Message);
    m_progress.Show_Item(index + 1, m_order.recipients.Count(), recipient.Number);
    Pause_Timer_Running = false;
    if (Skip_Item(index, recipient.Number))
        return true;
    switch (Submit(recipient.Number, message)) {
    case Outcome::Handled:
        ++m_batch_count;
        Keep_Records(recipient.Number, message);
        Pause_If_Due(index);
        return true;
    case Outcome::Failed:
        m_has_error = true;
        m_listener.Tell(Texts::Sending::Connection_Error);
        return false;
    case Outcome::Broken_Off:
        break;
    }
    return false;
}

void Send_Job::Keep_Records(const QString& number, const QString& message)
{
    if (m_order.choices.save_sent_items)
        Sent_Item_Store::Append({number, message, m_date, {}});
    if (m_order.choices.save_templates)
        Template_Store::Append(message);
}

void Send_Job::Pause_If_Due(int index)
{
    if (!m_order.choices.delayed_delivery || m_batch_count != m_delivery.batch_size)
        return;
    m_batch_count = 0;
    if (index + 1 == m_order.recipients.Count() || m_delivery.pause_in_seconds <= 0)
        return;
    // What the phone sends on its own during a pause would otherwise be the beginning of its next answer.
    if (const auto port = m_session.port())
        port->Await_No_Answer();
    Pause_Countdown(m_progress, m_stop).Pause(m_delivery.pause_in_seconds);
}

bool Send_Job::Skip_Item(int index, const QString& number)
{
    const Skip_Reason reason = Reason_To_Skip(m_order, index);
    if (reason == Skip_Reason::None)
        return false;
    const QString note = reason == Skip_Reason::Excluded ? Texts::Sending::Is_Excluded : Texts::Sending::Is_Skipped;
    m_progress.Show_Current(number + note);
    Wait_Seconds(Seconds_After_Skipped);
    return true;
}

// The two modes differ in what an exception means: in PDU mode the line is no longer reliable, in text mode the item
// counts as handled.
Send_Job::Outcome Send_Job::Submit(const QString& number, const QString& message)
{
    const auto send = m_mode == Pdu_Mode ? &MFCSMS::Send_PDU_SMS : &MFCSMS::Send_Text_SMS;
    try {
        const bool is_handed_over = (m_session.*send)(m_handle, number, message, m_order.service_centre,
                                                      m_order.choices.flash, m_order.choices.unicode);
        Wait_Seconds(Seconds_After_Message);
        return is_handed_over ? Outcome::Handled : Outcome::Failed;
    } catch (const std::exception&) {
        return m_mode == Pdu_Mode ? Outcome::Broken_Off : Outcome::Handled;
    }
}

void Send_Job::Finish()
{
    if (m_mode == 0) {
        m_has_error = true;
        m_listener.Tell(Texts::Sending::No_Modem);
    }
    m_progress.Stop_Timers();
    m_progress.End();
    if (m_order.recipients.Count() == 0)
        m_has_error = true;
    if (m_stop == 0 && !m_has_error)
        m_listener.Tell(Texts::Sending::Completed);
}

void Send_Job::Set_Read_Timeout(double seconds)
{
    if (const auto port = m_session.port())
        port->setReadTimeout(seconds);
}

void Send_Job::Close_Handle()
{
    m_session.CloseSerialPort(std::exchange(m_handle, -1));
}

void Send_Job::Close_Port()
{
    if (const auto port = m_session.port()) {
        if (Program_Is_Exiting()) // the reads and writes of the message ended wherever they were
            m_session.Call_Off_Message();
        port->close();
        m_session.setPort(nullptr);
    }
}

void Send_Job::Clean_Up()
{
    Close_Port();
    Close_Handle();
    m_progress.Stop_Timers();
    m_progress.End();
}
