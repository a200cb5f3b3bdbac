#include "device/MFCSMS.h"
#include "device/Stop_Flag.h"
#include "device/Submission_Plan.h"
#include "device/Submission_Rules.h"
#include "device/Submission_Steps.h"
#include "platform/Log_Line.h"
#include "platform/String_Helpers.h"

namespace {

// Sends one message in text mode.
class Text_Submission
{
public:
    Text_Submission(MFCSMS& session, int descriptor, const Outgoing_Message& message)
        : m_session(session), m_descriptor(descriptor), m_message(message), m_is_unicode(message.m_is_unicode)
    {
    }

    bool Send()
    {
        if (!m_message.m_smsc.isEmpty() && !Set_Service_Centre())
            return false;
        if (!m_is_unicode && !Ask(m_message.m_is_flash ? "AT+CSMP=17,255,0,16\r\n" : "AT+CSMP=17,255,0,0\r\n"))
            return false;
        const auto frame = Single_Frame(m_message, Show_NSLog_Message); // measured only
        if (!frame)
            return Send_Parts();
        return frame->Is_Made() &&
               Submit(m_message.m_text, m_is_unicode ? "UNICODE Short SMS Text :: " : "Short SMS Text :: ");
    }

private:
    bool Send_Parts()
    {
        const int parts = Text_Part_Count(m_message.m_text.size(), m_is_unicode);
        for (int part = 1; part <= parts; ++part) {
            if (Stop_SMS_Sending_Now == 1)
                return true;
            Log_Part(part, parts);
            if (!Submit(Text_Part(m_message.m_text, part, m_is_unicode),
                        m_is_unicode ? "UNICODE Long SMS Text Response:: " : "Long SMS Text :: "))
                return false;
            Wait_Seconds(Seconds_Between_Parts);
        }
        return true;
    }

    bool Submit(const QString& body, const char* label)
    {
        if (!(m_is_unicode ? Submit_Ucs2(body) : Submit_7_Bit(body)))
            return false;
        Show_NSLog_Message(QString::fromLatin1(label));
        return true;
    }

    bool Submit_7_Bit(const QString& body)
    {
        if (!Ask_For_Prompt() || !Write_Body(Harmless_Body(body)) || !m_session.End_Message(m_descriptor))
            return false;
        m_session.Read_Message_Answer(m_descriptor);
        return true;
    }

    // No read follows the terminator: the next one finds the answer.
    bool Submit_Ucs2(const QString& body)
    {
        m_session.setM_sLastResponse(QString());
        if (!Ask("AT+CSCS=?\r\n"))
            return false;
        const QString character_sets = m_session.m_sLastResponse();
        const bool takes_hex = Find_Str(character_sets, QStringLiteral("HEX"));
        const bool takes_ucs2 = Find_Str(character_sets, QStringLiteral("UCS2"));
        if (takes_hex ? !Ask("AT+CSCS=\"HEX\"\r\n") : takes_ucs2 && !Ask("AT+CSCS=\"UCS2\"\r\n"))
            return false;
        if (!Ask(m_message.m_is_flash ? "AT+CSMP=17,255,0,24\r\n" : "AT+CSMP=17,255,0,8\r\n") || !Ask_For_Prompt())
            return false;
        const QString line_body = takes_hex || takes_ucs2 ? PDU::EncodeUserData_16_bit(body) : Harmless_Body(body);
        return Write_Body(line_body) && m_session.End_Message(m_descriptor);
    }

    bool Set_Service_Centre()
    {
        const char* type =
            m_message.m_smsc.startsWith(u'+') ? "145" : "129"; // 3GPP TS 24.011, 8.2.5.2: international or unknown
        return Ask("AT+CSCA=\"" + MFCSMS::NString_To_Command_Char(m_message.m_smsc) + "\"," + type + "\r\n");
    }

    bool Ask_For_Prompt()
    {
        if (!m_session.Begin_Message(m_descriptor,
                                     "AT+CMGS=\"" + MFCSMS::NString_To_Command_Char(m_message.m_number) + "\"\r\n"))
            return false;
        m_session.Read_Command(m_descriptor, Expect_Prompt);
        return true;
    }

    // An empty body is not written, so that the terminator still follows and the phone leaves its prompt.
    bool Write_Body(const QString& body) { return body.isEmpty() || Write(MFCSMS::NString_To_Command_Char(body)); }

    // Returns whether the command was written, whatever the answer.
    bool Ask(const QByteArray& command)
    {
        if (!Write(command))
            return false;
        m_session.Read_Command(m_descriptor, Expect_Ok);
        return true;
    }

    bool Write(const QByteArray& command) { return m_session.Write_Command(m_descriptor, command); }

    MFCSMS& m_session;
    const int m_descriptor;
    const Outgoing_Message& m_message;
    const bool m_is_unicode;
};

} // namespace

bool MFCSMS::Send_Text_SMS(int descriptor, const QString& number, const QString& message, const QString& smsc_num,
                           bool flash_sms, bool unicode_sms)
{
    m_message_answers.clear();
    const Outgoing_Message outgoing{message, number, smsc_num, flash_sms, unicode_sms};
    return Text_Submission(*this, descriptor, outgoing).Send();
}
