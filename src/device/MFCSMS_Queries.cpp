#include "device/MFCSMS_Queries.h"

#include "device/Answer_Cleaning.h"
#include "device/MFCSMS.h"
#include "device/Submission_Steps.h"
#include "platform/Log_Line.h"

namespace {

using Shaping = QString (*)(const QString&);

QString As_It_Is(const QString& value)
{
    return value;
}

// One query: what is written, which words frame the answer, and how the value is taken from it.
struct Query
{
    Phone_Value m_value;
    const char* m_command;
    const char* m_fallback; // asked when the device answers "Undefined"; null for none
    const char* m_words;    // echo and prefix, separated by blanks, in the order of removal
    Quotes m_quotes;
    const char* m_leading_word; // dropped from the front of the value
    Shaping m_shaping;          // last step: from the cleaned value to what is shown
};

constexpr Query Queries[] = {
    {Phone_Value::Manufacturer, "AT+GMI\r\n", "AT+CGMI\r", "AT+GMI AT+CGMI +GMI +CGMI", Quotes::Removed, "", As_It_Is},
    {Phone_Value::Model, "AT+GMM\r", "AT+CGMM\r", "AT+GMM AT+CGMM +GMM +CGMM", Quotes::Removed, "", Model_Text},
    {Phone_Value::Imei, "AT+CGSN\r", "AT+GSN\r", "AT+CGSN +CGSN AT+GSN +GSN", Quotes::Removed, "IMEI", As_It_Is},
    {Phone_Value::Imsi, "AT+CIMI\r", nullptr, "AT+CIMI +CIMI", Quotes::Removed, "IMSI", As_It_Is},
    {Phone_Value::Battery, "AT+CBC\r", nullptr, "AT+CBC +CBC", Quotes::Removed, "", Battery_Text},
    {Phone_Value::Signal, "AT+CSQ\r", nullptr, "AT+CSQ +CSQ", Quotes::Removed, "", Signal_Text},
    {Phone_Value::Network_Operator, "AT+COPS?\r", nullptr, "AT+COPS +COPS", Quotes::Kept, "", Operator_Text},
    {Phone_Value::Revision, "AT+GMR\r", "AT+CGMR\r", "AT+GMR +GMR AT+CGMR +CGMR", Quotes::Removed, "", As_It_Is},
    {Phone_Value::Default_Smsc, "AT+CSCA?\r", nullptr, "AT+CSCA +CSCA", Quotes::Kept, "", Service_Centre_Text},
};

QStringList Words(const Query& query)
{
    return QString::fromLatin1(query.m_words).split(u' ');
}

Asked Ask_Once(MFCSMS& session, int descriptor, const char* command, const Query& query, QString& value)
{
    session.setM_sLastResponse(QString());
    if (!session.Write_Command(descriptor, command))
        return Asked::Lost;
    if (!session.Read_Command(descriptor, Expect_Ok))
        return Asked::Refused;
    value = Without_Leading_Word(Clean_Answer(session.m_sLastResponse(), Words(query), query.m_quotes),
                                 QString::fromLatin1(query.m_leading_word));
    return Asked::Answered;
}

Asked Ask(MFCSMS& session, int descriptor, const Query& query, QString& value)
{
    Asked asked = Ask_Once(session, descriptor, query.m_command, query, value);
    if (asked == Asked::Answered && query.m_fallback && value == u"Undefined")
        asked = Ask_Once(session, descriptor, query.m_fallback, query, value);
    if (asked == Asked::Answered)
        value = query.m_shaping(value);
    return asked;
}

// Whether to go on with the next query.
bool Put_Value(MFCSMS& session, int descriptor, const Query& query, Phone_Values_Display& display)
{
    QString value;
    const Asked asked = Ask(session, descriptor, query, value);
    if (asked == Asked::Answered)
        display.Set_Phone_Value(query.m_value, value);
    else if (asked == Asked::Refused && query.m_value == Phone_Value::Battery)
        display.Set_Phone_Value(query.m_value, No_Battery());
    return asked != Asked::Lost;
}

} // namespace

Asked Ask_For(MFCSMS& session, int descriptor, Phone_Value wanted, QString& value)
{
    return Ask(session, descriptor, Queries[static_cast<int>(wanted)], value);
}

bool MFCSMS::Read_Ph_Values(int descriptor, Phone_Values_Display& display)
{
    try {
        if (!Write_Command(descriptor, "AT\r\n"))
            return false;
        Read_Command(descriptor, Expect_Ok);
        for (const auto& query : Queries)
            if (!Put_Value(*this, descriptor, query, display))
                return false;
    } catch (const Device_Exception&) {
        Show_NSLog_Message(QStringLiteral("\nException CATCH\n"));
    }
    return true;
}
