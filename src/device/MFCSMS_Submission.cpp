#include "device/MFCSMS.h"
#include "device/Stop_Flag.h"
#include "device/Submission_Rules.h"
#include "device/Submission_Steps.h"
#include "pdu/PDU.h"
#include "platform/Log_Line.h"
#include "platform/String_Helpers.h"

#include <initializer_list>

namespace {

// Each command must be written and be answered with OK; the first that is not ends the row.
bool Go_Through(MFCSMS& session, int descriptor, std::initializer_list<const char*> commands)
{
    for (const char* command : commands)
        if (!session.Write_Command(descriptor, command) || !session.Read_Command(descriptor, Expect_Ok))
            return false;
    return true;
}

// One message's way out in PDU mode: what does not change from part to part.
class Pdu_Submission
{
public:
    Pdu_Submission(MFCSMS& session, int descriptor, const QString& number, const QString& message, const QString& smsc,
                   bool is_flash, bool is_unicode)
        : m_session(session), m_descriptor(descriptor), m_number(number), m_message(message), m_smsc(smsc),
          m_is_flash(is_flash), m_is_unicode(is_unicode), m_encoder(Show_NSLog_Message)
    {
    }

    bool Send()
    {
        if (May_Be_Single(m_message.size(), m_is_unicode)) {
            const QString pdu = m_encoder.EncodePDU(m_message, m_number, m_smsc, 0, true, m_is_flash, m_is_unicode);
            if (pdu.isEmpty())
                return false;
            Measure(pdu);
            if (m_length < Too_Long_For_One)
                return Submit(pdu,
                              m_is_unicode ? "UNICODE Standard SMS PDU Response:: " : "Standard SMS PDU Response:: ");
        }
        return Send_Parts();
    }

private:
    bool Send_Parts()
    {
        const int parts = Pdu_Part_Count(m_message.size(), m_is_unicode);
        for (int part = 1; part <= parts; ++part) {
            if (Stop_SMS_Sending_Now == 1)
                return true;
            Log_Part(part, parts);
            const QString pdu = m_encoder.Encode_UDH_PDU(m_message, m_number, m_smsc, static_cast<quint16>(m_length),
                                                         true, m_is_flash, parts, part, m_is_unicode);
            if (pdu.isEmpty())
                return false;
            Measure(pdu);
            if (!Submit(pdu, m_is_unicode ? "UNICODE Long SMS PDU Response:: " : "Long SMS PDU Response:: "))
                return false;
            Wait_Seconds(Seconds_Between_Parts);
        }
        return true;
    }

    void Measure(const QString& pdu)
    {
        m_length = Submit_Length(pdu, !m_smsc.isEmpty(), m_encoder.EncodeSMSCAddress(m_smsc));
    }

    bool Submit(const QString& pdu, const char* label)
    {
        if (!m_session.Begin_Message(m_descriptor, "AT+CMGS=" + QByteArray::number(m_length) + "\r\n"))
            return false;
        m_session.Read_Command(m_descriptor, Expect_Prompt);
        if (!m_session.Write_Command(m_descriptor, MFCSMS::NString_To_Command_Char(pdu)) ||
            !m_session.End_Message(m_descriptor))
            return false;
        m_session.Read_Command(m_descriptor, Expect_Ok);
        Show_NSLog_Message(QString::fromLatin1(label));
        return true;
    }

    MFCSMS& m_session;
    const int m_descriptor;
    const QString& m_number;
    const QString& m_message;
    const QString& m_smsc;
    const bool m_is_flash;
    const bool m_is_unicode;
    const PDU m_encoder;
    int m_length = 0;
};

} // namespace

bool MFCSMS::Begin_Message(int descriptor, const QByteArray& command_str)
{
    m_message_is_begun = true; // also by half a command: nobody knows what of it arrives
    return Write_Command(descriptor, command_str);
}

bool MFCSMS::End_Message(int descriptor)
{
    const bool is_written = Write_Command(descriptor, Terminator);
    if (is_written)
        m_message_is_begun = false;
    return is_written;
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

// These two end in a lone carriage return, but for the first command.
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
    return Pdu_Submission(*this, descriptor, number, message, smsc_num, flash_sms, unicode_sms).Send();
}
