#include "device/MFCSMS.h"
#include "device/Stop_Flag.h"
#include "device/Submission_Plan.h"
#include "device/Submission_Steps.h"
#include "platform/Log_Line.h"
#include "platform/String_Helpers.h"

#include <initializer_list>

namespace {

// Stops at the first command that cannot be written or is not answered with OK.
bool Go_Through(MFCSMS& session, int descriptor, std::initializer_list<const char*> commands)
{
    for (const char* command : commands)
        if (!session.Write_Command(descriptor, command) || !session.Read_Command(descriptor, Expect_Ok))
            return false;
    return true;
}

// Carries out the plan of one message in PDU mode.
class Pdu_Submission
{
public:
    Pdu_Submission(MFCSMS& session, int descriptor, bool is_unicode)
        : m_session(session), m_descriptor(descriptor), m_is_unicode(is_unicode)
    {
    }

    bool Send(const Submission_Plan& plan)
    {
        if (plan.m_is_single)
            return Submit(plan.m_frames.front(),
                          m_is_unicode ? "UNICODE Standard SMS PDU Response:: " : "Standard SMS PDU Response:: ");
        return Send_Parts(plan.m_frames, plan.m_parts);
    }

private:
    bool Send_Parts(const std::vector<Pdu_Frame>& frames, int parts)
    {
        int part = 0;
        for (const Pdu_Frame& frame : frames) {
            if (Stop_SMS_Sending_Now == 1)
                return true;
            Log_Part(++part, parts);
            if (!Submit(frame, m_is_unicode ? "UNICODE Long SMS PDU Response:: " : "Long SMS PDU Response:: "))
                return false;
            Wait_Seconds(Seconds_Between_Parts);
        }
        return true;
    }

    bool Submit(const Pdu_Frame& frame, const char* label)
    {
        if (!frame.Is_Made() ||
            !m_session.Begin_Message(m_descriptor, "AT+CMGS=" + QByteArray::number(frame.m_length) + "\r\n"))
            return false;
        m_session.Read_Command(m_descriptor, Expect_Prompt);
        if (!m_session.Write_Command(m_descriptor, frame.m_digits) || !m_session.End_Message(m_descriptor))
            return false;
        m_session.Read_Message_Answer(m_descriptor);
        Show_NSLog_Message(QString::fromLatin1(label));
        return true;
    }

    MFCSMS& m_session;
    const int m_descriptor;
    const bool m_is_unicode;
};

} // namespace

bool MFCSMS::Begin_Message(int descriptor, const QByteArray& command_str)
{
    m_message_is_begun = true; // even by half a command, which may have arrived
    return Write_Command(descriptor, command_str);
}

bool MFCSMS::End_Message(int descriptor)
{
    const bool is_written = Write_Command(descriptor, Terminator);
    if (is_written)
        m_message_is_begun = false;
    return is_written;
}

void MFCSMS::Read_Message_Answer(int descriptor)
{
    Read_Command(descriptor, Expect_Ok);
    m_message_answers.append(m_sLastResponse());
}

void MFCSMS::Call_Off_Message()
{
    const auto line_port = port();
    if (m_message_is_begun.exchange(false) && line_port)
        line_port->writeInLeaving(Cancel);
}

void Log_Part(int part, int parts)
{
    Show_NSLog_Message(QLatin1String("\n------ ") + QString::number(part) + QLatin1String(" / ") +
                       QString::number(parts) + QLatin1String(" of message ------\n"));
}

int MFCSMS::PDU_or_Text_SMS(int descriptor)
{
    bool all_went_well = Write_Command(descriptor, "AT\r\n");
    all_went_well = Read_Command(descriptor, Expect_Ok) && all_went_well;
    all_went_well = Write_Command(descriptor, "AT+CMGF=?\r\n") && all_went_well;
    if (!Read_Command(descriptor, Expect_Ok))
        return 0;
    const QString formats = m_sLastResponse();
    const bool takes_pdu = Find_Str(formats, QStringLiteral("0"));
    const bool takes_text = Find_Str(formats, QStringLiteral("1"));
    if (takes_pdu && takes_text) {
        Show_NSLog_Message(QStringLiteral("Both PDU Mode and Text Mode\n"));
        return 1;
    }
    if (takes_pdu) {
        Show_NSLog_Message(QStringLiteral("Only PDU Mode\n"));
        return 1;
    }
    if (takes_text) {
        Show_NSLog_Message(QStringLiteral("Only Text Mode\n"));
        return 2;
    }
    Show_NSLog_Message(QString());
    return all_went_well ? 1 : 0;
}

bool MFCSMS::Prepare_Modem_For_PDU_SMS(int descriptor)
{
    return Go_Through(*this, descriptor, {"AT\r\n", "AT+CSMS=0\r\n", "AT+CMGF=0\r\n"});
}

bool MFCSMS::Prepare_Modem_For_Text_SMS(int descriptor)
{
    return Go_Through(*this, descriptor, {"AT\r\n", "AT+CSMS=0\r\n", "AT+CMGF=1\r\n"});
}

// These two end their commands in a lone carriage return, except the first.
bool MFCSMS::Check_Msg_Sending_Supported(int descriptor)
{
    return Go_Through(*this, descriptor, {"AT\r\n", "AT+CSMS=?\r", "AT+CMGS=?\r"});
}

bool MFCSMS::More_SMS_Comnd(int descriptor)
{
    return Go_Through(*this, descriptor, {"AT\r\n", "AT+CMMS=2\r"});
}

bool MFCSMS::Send_PDU_SMS(int descriptor, const QString& number, const QString& message, const QString& smsc_num,
                          bool flash_sms, bool unicode_sms)
{
    m_message_answers.clear();
    const Outgoing_Message outgoing{message, number, smsc_num, flash_sms, unicode_sms};
    return Pdu_Submission(*this, descriptor, unicode_sms).Send(Plan_Pdu(outgoing, Show_NSLog_Message));
}
