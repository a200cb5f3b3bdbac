#include "engine/Fixed_Wait_Manner.h"

#include "device/MFCSMS.h"
#include "device/Stop_Flag.h"
#include "device/Submission_Rules.h"
#include "platform/Waiting.h"
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

// From the best to the worst: what nobody knows is worse than what was refused.
int Badness(Row_State state)
{
    switch (state) {
    case Row_State::Refused:
        return 1;
    case Row_State::No_Answer:
        return 2;
    case Row_State::May_Have_Been_Sent:
        return 3;
    default:
        return 0;
    }
}

Row_Outcome Outcome_Of_Answer(const QString& answer)
{
    bool has_reference = false;
    bool has_ok = false;
    bool has_words = false;
    const auto lines = QStringView(answer).split(u'\n', Qt::SkipEmptyParts);
    for (const QStringView whole : lines) {
        const QString line = whole.trimmed().toString();
        if (auto cause = Cause_Of_Line(line))
            return {Row_State::Refused, std::move(*cause)};
        has_reference = has_reference || line.startsWith(u"+CMGS:");
        has_ok = has_ok || line == u"OK";
        has_words = has_words || !line.isEmpty();
    }
    if (has_reference && has_ok)
        return {Row_State::Taken, {}};
    return {has_reference || has_ok ? Row_State::May_Have_Been_Sent : Row_State::No_Answer, {}};
}

} // namespace

Row_Outcome Outcome_Of_Answers(const QStringList& answers)
{
    Row_Outcome worst{answers.isEmpty() ? Row_State::Written : Row_State::Taken, {}};
    bool has_taken = false;
    for (const QString& answer : answers) {
        const Row_Outcome outcome = Outcome_Of_Answer(answer);
        has_taken = has_taken || outcome.state == Row_State::Taken;
        if (Badness(outcome.state) > Badness(worst.state))
            worst = outcome;
    }
    if (worst.state == Row_State::Refused && has_taken)
        worst.state = Row_State::Partly_Taken;
    return worst;
}

Fixed_Wait_Manner::Fixed_Wait_Manner(const Send_Order& order, MFCSMS& session) : m_order(order), m_session(session) {}

bool Fixed_Wait_Manner::Opens()
{
    m_handle = m_session.OpenSerialPort(MFCSMS::NString_To_Command_Char(m_order.device_path));
    return m_handle != -1;
}

bool Fixed_Wait_Manner::Connect()
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

void Fixed_Wait_Manner::Prepare()
{
    m_mode = m_session.PDU_or_Text_SMS(m_handle);
    // The device's answer to this is not judged, and neither is its answer to a submission: only a failed write ends a
    // job.
    if (m_mode == Pdu_Mode)
        m_session.Prepare_Modem_For_PDU_SMS(m_handle);
    else if (m_mode == Text_Mode)
        m_session.Prepare_Modem_For_Text_SMS(m_handle);
}

QString Fixed_Wait_Manner::Trouble() const
{
    return Texts::Sending::No_Modem;
}

QString Fixed_Wait_Manner::Completed() const
{
    return Texts::Sending::Completed;
}

void Fixed_Wait_Manner::Begin_Sending()
{
    Set_Read_Timeout(Sending_Read_Seconds);
}

// The two modes differ in what an exception means: in PDU mode the line is no longer reliable, in text mode the item
// counts as handled.
Send_Manner::Submission Fixed_Wait_Manner::Submit(int, const Recipient& recipient)
{
    const auto send = m_mode == Pdu_Mode ? &MFCSMS::Send_PDU_SMS : &MFCSMS::Send_Text_SMS;
    try {
        const bool is_handed_over =
            (m_session.*send)(m_handle, recipient.Number, recipient.Message, m_order.service_centre,
                              m_order.choices.flash, m_order.choices.unicode);
        Wait_Seconds(Seconds_After_Message);
        if (!is_handed_over)
            return {Next::Fail, {Row_State::May_Have_Been_Sent, {}}, false, Texts::Sending::Connection_Error};
        return {Next::Go_On, Outcome_Of(recipient), true};
    } catch (const std::exception&) {
        const Row_Outcome outcome{Row_State::May_Have_Been_Sent, {}};
        return m_mode == Pdu_Mode ? Submission{Next::Break_Off, outcome, false}
                                  : Submission{Next::Go_On, outcome, true};
    }
}

// A stop between the parts leaves the others unsent, and how many these are is not known here.
Row_Outcome Fixed_Wait_Manner::Outcome_Of(const Recipient& recipient) const
{
    if (Stop_SMS_Sending_Now == 1 && !May_Be_Single(recipient.Message.size(), m_order.choices.unicode))
        return {Row_State::May_Have_Been_Sent, {}};
    return Outcome_Of_Answers(m_session.Message_Answers());
}

void Fixed_Wait_Manner::Skipped(int, Skip_Reason)
{
    Wait_Seconds(Seconds_After_Skipped);
}

// What the phone sends on its own during a pause would otherwise be the beginning of its next answer.
void Fixed_Wait_Manner::Pause_Begins()
{
    if (const auto port = m_session.port())
        port->Await_No_Answer();
}

void Fixed_Wait_Manner::Close()
{
    Close_Port();
    Close_Handle();
}

void Fixed_Wait_Manner::Set_Read_Timeout(double seconds)
{
    if (const auto port = m_session.port())
        port->setReadTimeout(seconds);
}

void Fixed_Wait_Manner::Close_Handle()
{
    m_session.CloseSerialPort(std::exchange(m_handle, -1));
}

void Fixed_Wait_Manner::Close_Port()
{
    if (const auto port = m_session.port()) {
        if (Program_Is_Exiting()) // the reads and writes of the message ended wherever they were
            m_session.Call_Off_Message();
        port->close();
        m_session.setPort(nullptr);
    }
}
