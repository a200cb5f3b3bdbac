#include "doctor/Device_Questions.h"

#include "device/At_Conversation.h"
#include "device/Listed_Values.h"
#include "doctor/Small_Files.h"

#include <algorithm>

namespace {

using Centre = Device_State::Centre;
using Network = Device_State::Network;

constexpr double Silence_Before_Start = 0.3;
constexpr double First_Answer = 1;
constexpr int First_Tries = 3;
constexpr double Usual_Answer = At_Conversation::Usual_Answer;
constexpr double Card_Answer = 10;
constexpr double Longest_Busy = 30; // a card that is being read
constexpr double Between_Looks = 2;

QByteArrayList Fields_Of(const QByteArray& line)
{
    QByteArrayList fields = line.mid(line.indexOf(':') + 1).split(',');
    for (QByteArray& field : fields)
        field = field.trimmed().replace('"', QByteArray());
    return fields;
}

std::optional<int> Number_In(const QByteArrayList& fields, qsizetype field)
{
    bool is_number = false;
    const int number = fields.value(field).trimmed().toInt(&is_number);
    return is_number ? std::optional(number) : std::nullopt;
}

// An answer says <n>,<stat>; what comes unasked says <stat>, and where the cell is known its place in quotes (3GPP TS
// 27.007, 7.2, 10.1.20 and 10.1.22).
Network Network_Of(const QByteArray& line)
{
    const QByteArrayList fields = line.mid(line.indexOf(':') + 1).split(',');
    const bool came_unasked = fields.size() < 2 || fields[1].trimmed().startsWith('"');
    return Network_Of_Number(Number_In(fields, came_unasked ? 0 : 1).value_or(-1));
}

// Some devices give the number as UCS2 digits.
QByteArray Without_Ucs2(const QByteArray& number)
{
    constexpr qsizetype Digits_A_Character = 4;
    if (number.size() < 3 * Digits_A_Character || number.size() % Digits_A_Character != 0 || !number.startsWith("00"))
        return number;
    QByteArray plain;
    for (qsizetype at = 0; at < number.size(); at += Digits_A_Character) {
        bool is_number = false;
        const int unit = number.mid(at, Digits_A_Character).toInt(&is_number, 16);
        if (!is_number || unit < ' ' || unit > '~')
            return number;
        plain += static_cast<char>(unit);
    }
    return plain;
}

Centre Centre_Of(const QByteArray& written)
{
    constexpr qsizetype Fewest_Digits = 5;
    constexpr qsizetype Most_Digits = 20;
    QByteArray number = Without_Ucs2(written);
    if (number.isEmpty())
        return Centre::Empty;
    if (number.startsWith('+'))
        number.remove(0, 1);
    const bool is_number = std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
    return is_number && number.size() >= Fewest_Digits && number.size() <= Most_Digits ? Centre::Set : Centre::Odd;
}

class Questions
{
public:
    Questions(Device_Line& line, const std::function<bool()>& is_over) : m_conversation(line), m_is_over(is_over)
    {
        m_conversation.Set_End(is_over);
    }

    void Ask(Device_State& state);

private:
    bool Answers();
    QByteArray Line_Of(const QByteArray& command, const QByteArray& prefix);
    QString Name_Of(const QByteArray& command);
    Sim_State Ask_Card();
    std::optional<int> Ask_Tries(Sim_State card);
    Network Ask_Network();
    bool Takes_Messages();
    bool Is_Over() const { return Program_Is_Exiting() || (m_is_over && m_is_over()); }

    At_Conversation m_conversation;
    const std::function<bool()>& m_is_over;
};

bool Questions::Answers()
{
    m_conversation.Call_Off_Message(); // which an earlier program may have left begun
    m_conversation.Drop_Input(Silence_Before_Start);
    for (int attempt = 0; attempt < First_Tries && !Is_Over(); ++attempt)
        if (m_conversation.Ask("AT", First_Answer).m_end == At_End::Ok)
            return true;
    return false;
}

// The first line of an answer with this prefix; empty where the device has none.
QByteArray Questions::Line_Of(const QByteArray& command, const QByteArray& prefix)
{
    const At_Answer answer = m_conversation.Ask(command, Usual_Answer, prefix);
    return answer.m_lines.isEmpty() ? QByteArray() : answer.m_lines.first();
}

QString Questions::Name_Of(const QByteArray& command)
{
    return Shown_Name(QString::fromUtf8(Line_Of(command, At_Conversation::Any_Value)));
}

// A card that is being read says so for a while. Some devices say the state and no OK.
Sim_State Questions::Ask_Card()
{
    const double end = Now_Seconds() + Paced(Longest_Busy);
    for (;;) {
        const Sim_State card = Sim_State_Of(
            m_conversation.Ask("AT+CPIN?", Card_Answer, "+CPIN:", At_Conversation::Ok_Line::May_Be_Missing));
        if (card != Sim_State::Busy || Is_Over() || Now_Seconds() >= end)
            return card;
        Wait_Seconds_Unless(Between_Looks, [this] { return Is_Over(); });
    }
}

// No standard command is known to all: the first that answers counts.
std::optional<int> Questions::Ask_Tries(Sim_State card)
{
    struct Way
    {
        const char* command;
        const char* prefix;
        qsizetype pin_field;
        qsizetype puk_field;
    };
    constexpr Way Ways[] = {
        {"AT+CPINR=\"SIM PIN\"", "+CPINR: SIM PIN", 1, -1}, // 3GPP TS 27.007, 8.65
        {"AT+CPINR=\"SIM PUK\"", "+CPINR: SIM PUK", -1, 1},
        {"AT^CPIN?", "^CPIN:", 3, 2},                // Huawei: code, times, PUK, PIN, PUK2, PIN2
        {"AT+SPIC", "+SPIC:", 0, 1},                 // SIMCom: PIN, PUK
        {"AT+QPINC=\"SC\"", "+QPINC: \"SC\"", 1, 2}, // Quectel: facility, PIN, PUK
        {"AT#PCT", "#PCT:", 0, 0},                   // Telit: of the code that is wanted
    };
    constexpr int Most = 10;
    for (const Way& way : Ways) {
        const qsizetype field = card == Sim_State::Pin_Needed ? way.pin_field : way.puk_field;
        if (field < 0 || Is_Over())
            continue;
        const auto tries = Number_In(Fields_Of(Line_Of(way.command, way.prefix)), field);
        if (tries && *tries >= 0 && *tries <= Most)
            return tries;
    }
    return std::nullopt;
}

// A device may be registered for packets alone and send messages through them.
Network Questions::Ask_Network()
{
    Network best = Network::Unknown;
    for (const char* name : {"+CREG", "+CGREG", "+CEREG"}) {
        const QByteArray line = Line_Of(QByteArray("AT") + name + '?', QByteArray(name) + ':');
        if (!line.isEmpty())
            best = std::min(best, Network_Of(line));
    }
    return best;
}

// Asked for the modes that it has; setting one would be a change.
bool Questions::Takes_Messages()
{
    const At_Answer answer = m_conversation.Ask("AT+CMGF=?", Usual_Answer, "+CMGF:");
    const Listed_Values modes(answer.m_lines.isEmpty() ? QByteArray() : answer.m_lines.first());
    return answer.m_end == At_End::Ok && (modes.Is_Empty() || modes.Has(0, 0) || modes.Has(0, 1)) &&
           m_conversation.Ask("AT+CMGS=?", Usual_Answer).m_end != At_End::Refused;
}

void Questions::Ask(Device_State& state)
{
    state.line = Device_State::Line::Silent;
    if (!Answers())
        return;
    state.line = Device_State::Line::Answers;
    m_conversation.Ask("ATE0", Usual_Answer);
    m_conversation.Ask("AT+CMEE=1", Usual_Answer);
    state.label = (Name_Of("AT+CGMI") + u' ' + Name_Of("AT+CGMM")).trimmed();
    state.card = Ask_Card();
    if (state.card == Sim_State::Pin_Needed || state.card == Sim_State::Puk_Needed)
        state.tries = Ask_Tries(state.card);
    if (Is_Over() || (state.card != Sim_State::Ready && state.card != Sim_State::Unknown))
        return;
    state.network = Ask_Network();
    const auto signal = Number_In(Fields_Of(Line_Of("AT+CSQ", "+CSQ:")), 0);
    constexpr int Strongest = 31;
    if (signal && *signal >= 0 && *signal <= Strongest)
        state.signal = signal;
    if (const QByteArray centre = Line_Of("AT+CSCA?", "+CSCA:"); !centre.isEmpty())
        state.centre = Centre_Of(Fields_Of(centre).constFirst());
    state.takes_messages = Takes_Messages();
    state.is_whole = !Is_Over();
}

} // namespace

Device_State Ask_Device(const QString& path, const std::function<bool()>& is_over, Serial_Calls& calls)
{
    Device_State state;
    Device_Line line(path, calls);
    if (!line.Open()) {
        state.error = line.Error();
        return state;
    }
    Questions(line, is_over).Ask(state);
    return state;
}
