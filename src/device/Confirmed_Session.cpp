#include "device/Confirmed_Session.h"

#include "platform/Waiting.h"

#include <algorithm>

namespace {

constexpr double Silence_Before_Start = 0.3;
constexpr double First_Answer = 1;
constexpr int First_Tries = 3;
constexpr double Usual_Answer = At_Conversation::Usual_Answer;
constexpr double Sim_Answer = 10;

// The first line's fields after its colon, without quotes.
QByteArrayList Fields_Of(const At_Answer& answer)
{
    if (answer.m_lines.isEmpty())
        return {};
    const QByteArray& line = answer.m_lines.first();
    QByteArrayList fields = line.mid(line.indexOf(':') + 1).split(',');
    for (QByteArray& field : fields)
        field = field.trimmed();
    return fields;
}

// An answer says <n>,<stat>; what comes unasked says <stat>, and where the cell is known its place in quotes (3GPP TS
// 27.007, 7.2).
Registration Registration_Of(const QByteArrayList& fields)
{
    if (fields.isEmpty())
        return Registration::Unknown;
    bool is_number = false;
    const int second = fields.value(1).toInt(&is_number);
    switch (is_number ? second : fields.first().toInt()) {
    case 1:
    case 5:
    case 6:
    case 7:
        return Registration::Registered;
    case 3:
        return Registration::Denied;
    case 0:
    case 2:
        return Registration::Searching;
    default:
        return Registration::Unknown;
    }
}

} // namespace

Confirmed_Session::Confirmed_Session(const QString& path, Serial_Calls& calls) : m_line(path, calls) {}

Confirmed_Session::Opening Confirmed_Session::Open()
{
    if (!m_line.Open())
        return Opening::Does_Not_Open;
    m_conversation.Call_Off_Message();
    m_conversation.Drop_Input(Silence_Before_Start);
    bool answers = false;
    for (int attempt = 0; attempt < First_Tries && !answers; ++attempt)
        answers = m_conversation.Ask("AT", First_Answer).m_end == At_End::Ok;
    if (!answers)
        return Opening::No_Modem;
    m_conversation.Ask("ATE0", Usual_Answer);
    m_conversation.Ask("AT+CMEE=1", Usual_Answer);
    if (!Choose_Format())
        return Opening::No_Messages;
    Ask_Who_It_Is();
    return Opening::Ready;
}

bool Confirmed_Session::Choose_Format()
{
    m_is_text_mode = false;
    if (m_conversation.Ask("AT+CMGF=0", Usual_Answer).m_end == At_End::Ok)
        return true;
    m_is_text_mode = m_conversation.Ask("AT+CMGF=1", Usual_Answer).m_end == At_End::Ok;
    return m_is_text_mode;
}

void Confirmed_Session::Ask_Who_It_Is()
{
    m_maker = Ask_Identity("AT+CGMI");
    Ask_Imsi();
    const QByteArrayList centre = m_conversation.Ask("AT+CSCA?", Usual_Answer, "+CSCA:").m_lines;
    m_own_centre = centre.isEmpty() ? QString() : QString::fromUtf8(centre.first().mid(6).trimmed());
}

// It carries no prefix: the first line that is not the command's echo.
QString Confirmed_Session::Ask_Identity(const QByteArray& command)
{
    const QByteArrayList lines = m_conversation.Ask(command, Usual_Answer, At_Conversation::Any_Value).m_lines;
    return lines.isEmpty() ? QString() : QString::fromUtf8(lines.first());
}

void Confirmed_Session::Ask_Imsi()
{
    const QString imsi = Ask_Identity("AT+CIMI");
    m_imsi = imsi.size() >= 6 && std::all_of(imsi.begin(), imsi.end(), [](QChar c) { return c.isDigit(); }) ? imsi
                                                                                                            : QString();
}

bool Confirmed_Session::Answers()
{
    m_conversation.Hear_What_Came();
    const At_End end = m_conversation.Ask("AT", Usual_Answer).m_end;
    if (end == At_End::Gone)
        m_due.Clear();
    return end == At_End::Ok;
}

Device_Condition Confirmed_Session::Condition()
{
    Device_Condition condition;
    condition.m_answers = Answers();
    if (!condition.m_answers)
        return condition;
    condition.m_sim = Ask_Sim();
    if (condition.m_sim != Sim_State::Ready && condition.m_sim != Sim_State::Unknown)
        m_imsi.clear(); // it may be another card that is ready next
    if (condition.m_sim == Sim_State::Ready && m_imsi.isEmpty())
        Ask_Imsi(); // a card says it no sooner than it has got its PIN
    condition.m_registration = Ask_Registration();
    return condition;
}

// Some devices say the state and no OK.
Sim_State Confirmed_Session::Ask_Sim()
{
    return Sim_State_Of(m_conversation.Ask("AT+CPIN?", Sim_Answer, "+CPIN:", At_Conversation::Ok_Line::May_Be_Missing));
}

// A device may be registered for packets alone and send messages through them.
Registration Confirmed_Session::Ask_Registration()
{
    Registration best = Registration::Unknown;
    for (const char* name : {"+CREG", "+CGREG", "+CEREG"}) {
        const QByteArray prefix = QByteArray(name) + ':';
        const auto found =
            Registration_Of(Fields_Of(m_conversation.Ask(QByteArray("AT") + name + '?', Usual_Answer, prefix)));
        if (found == Registration::Registered)
            return found;
        if (best == Registration::Unknown)
            best = found;
    }
    return best;
}

// The number and the text go out as UCS2 digits whatever the message's own alphabet: in the other character sets some
// characters would end a message. The centre does not, so it comes first.
bool Confirmed_Session::Set_Text_Parameters(int coding, bool asks_for_report, const QString& service_centre)
{
    QByteArray centre = m_own_centre.toUtf8();
    if (!service_centre.isEmpty())
        centre = '"' + service_centre.toUtf8() + "\"," + (service_centre.startsWith(u'+') ? "145" : "129");
    QByteArrayList commands{"AT+CSCS=\"GSM\"", QByteArray("AT+CSMP=") + (asks_for_report ? "49" : "17") + ",167,0," +
                                                   QByteArray::number(coding)};
    if (!centre.isEmpty())
        commands.append("AT+CSCA=" + centre);
    commands.append("AT+CSCS=\"UCS2\"");
    bool is_ready = true;
    for (const QByteArray& command : commands)
        is_ready = m_conversation.Ask(command, Usual_Answer).m_end == At_End::Ok && is_ready;
    return is_ready;
}

std::optional<Late_Result> Confirmed_Session::Take_Late_Result()
{
    auto late = m_due.Take_Settled();
    if (late || !m_due.Are_There())
        return late;
    Hear_Late_Results(At_Conversation::Late_Prompt::Is_Called_Off);
    return m_due.Take_Settled();
}

QList<Told_Report> Confirmed_Session::Take_Reports()
{
    m_conversation.Hear_What_Came();
    return m_reports.Take();
}

bool Confirmed_Session::Listen(double seconds)
{
    const At_Conversation::Heard heard = m_conversation.Hear(Now_Seconds() + Paced(seconds));
    if (heard.m_kind == At_Conversation::Heard::Kind::Line)
        m_conversation.Is_Late(heard.m_line, At_Conversation::Late_Errors::Are_Noted);
    return heard.m_kind != At_Conversation::Heard::Kind::Gone;
}
