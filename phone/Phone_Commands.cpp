#include "phone/Phone_Commands.h"

#include "phone/Command_Line.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Handset {

namespace {

constexpr std::string_view Ok = "\r\nOK\r\n";

// Commands of TS 27.005, whose errors are +CMS ERROR.
bool Is_About_Messages(std::string_view command)
{
    constexpr std::array<std::string_view, 7> begins = {"AT+CMG",  "AT+CSMS", "AT+CMMS", "AT+CSCA",
                                                        "AT+CSMP", "AT+CNMI", "AT+CPMS"};
    return std::any_of(begins.begin(), begins.end(), [&](auto begin) { return command.starts_with(begin); });
}

std::string As_Answer(std::string_view line)
{
    return "\r\n" + std::string(line) + "\r\n";
}

} // namespace

Phone_Commands::Phone_Commands(const Phone_Moods& moods, Time now)
    : m_manners(moods), m_settings(moods), m_sim(moods), m_network(moods, now)
{
    m_memory.Set_Full(moods.m_memory_full);
}

void Phone_Commands::Set_Moods(const Phone_Moods& moods, Time now)
{
    m_manners.Set_Moods(moods);
    m_settings.Set_Moods(moods);
    m_sim.Set_Moods(moods);
    m_network.Set_Moods(moods, now);
    m_memory.Set_Full(moods.m_memory_full);
}

void Phone_Commands::Will_Answer(std::string_view command, std::string answer)
{
    m_manners.Will_Answer(command, std::move(answer));
}

void Phone_Commands::Plug_In()
{
    m_settings.Plug_In();
    m_memory.Choose_As_At_Start();
}

Command_Reply Phone_Commands::Obey(const std::string& line, Time now)
{
    if (const auto manner = m_manners.Find_For_Line(line))
        return Do(*manner, line, now);
    std::string said;
    auto commands = Commands_Of(line);
    if (commands.empty())
        commands.emplace_back("AT");
    for (const auto& command : commands) {
        Command_Reply reply = Do(m_manners.Find(command), command, now);
        said += reply.m_text;
        if (reply.m_as_given || reply.m_wants != Command_Reply::Wants::Nothing || !said.ends_with(Ok)) {
            reply.m_text = std::move(said);
            return reply;
        }
        said.resize(said.size() - Ok.size());
    }
    return {said + std::string(Ok), false, {}, {}};
}

Command_Reply Phone_Commands::Do(const Manner& manner, const std::string& command, Time now)
{
    if (manner.m_as_given)
        return {manner.m_answer, true, {}, {}};
    if (const std::string refusal = m_sim.Refusal_Of(command); !refusal.empty())
        return {Error_Answer(refusal), false, {}, {}};
    const auto equals = command.find('=');
    const std::string argument = equals == std::string::npos ? std::string() : command.substr(equals + 1);
    if (manner.m_deed == Deed::Take_Message)
        return {{}, false, Command_Reply::Wants::Message_To_Send, argument};
    if (manner.m_deed == Deed::Write_Message)
        return {{}, false, Command_Reply::Wants::Message_To_Keep, argument};
    const std::string answer = Answer_Of(manner, command, argument, now);
    const auto begin = answer.find_first_not_of("\r\n");
    const bool is_error = begin != std::string::npos && answer.find(" ERROR: ") == begin + 4;
    return {is_error ? Error_Answer(answer.substr(begin, answer.size() - 2 * begin)) : answer, false, {}, {}};
}

std::string Phone_Commands::Answer_Of(const Manner& manner, const std::string& command, std::string_view argument,
                                      Time now)
{
    const bool is_text = m_settings.Is_Text_Format();
    switch (manner.m_deed) {
    case Deed::Keep:
        return m_settings.Keep(manner, argument) ? manner.m_answer : Wrong_Argument(command);
    case Deed::Set_Function:
        return Set_Function(manner, argument) ? manner.m_answer : Wrong_Argument(command);
    case Deed::Ask_Registration: {
        const std::string answer = Filled(manner.m_answer, now);
        m_network.Was_Asked_For();
        return answer;
    }
    case Deed::Enter_Pin:
        return As_Answer(m_sim.Enter(argument));
    case Deed::Set_Storages:
        return m_memory.Choose(argument);
    case Deed::List_Messages:
        return m_memory.List(argument, is_text);
    case Deed::Read_Message:
        return m_memory.Read(argument, is_text);
    case Deed::Delete_Message:
        return m_memory.Delete(argument);
    default:
        return m_settings.Do(manner.m_deed, argument) ? Filled(manner.m_answer, now) : Wrong_Argument(command);
    }
}

// +CFUN=<fun>[,<rst>] (27.007 8.2)
bool Phone_Commands::Set_Function(const Manner& manner, std::string_view argument)
{
    const auto arguments = Arguments_Of(argument);
    const auto restart = arguments.size() == 2 ? Number_Of(arguments[1]) : std::optional(0);
    if (arguments.size() > 2 || !restart || *restart > 1 || !m_settings.Keep(manner, arguments.front()))
        return false;
    if (*restart == 1) {
        Plug_In();
        m_sim.Start_Afresh();
    }
    return true;
}

std::string Phone_Commands::Wrong_Argument(std::string_view command) const
{
    if (m_settings.Errors() == Error_Style::Untouched)
        return As_Answer("ERROR");
    return As_Answer(Is_About_Messages(command) ? "+CMS ERROR: 302" : "+CME ERROR: 50");
}

std::string Phone_Commands::Error_Answer(std::string_view line) const
{
    return As_Answer(Error_Line(line, m_settings.Errors()));
}

bool Phone_Commands::Has_Network(Time now) const
{
    return m_network.Is_There(now) && m_settings.Kept("+CFUN", "1") == "1" && m_sim.Is_Ready();
}

std::string Phone_Commands::Filled(std::string_view answer, Time now) const
{
    return Filled_In(answer, [this, now](std::string_view name) { return Value(name, now); });
}

std::optional<std::string> Phone_Commands::Value(std::string_view name, Time now) const
{
    constexpr std::string_view registration = "registration ";
    const bool has_network = Has_Network(now);
    if (name == "sim")
        return m_sim.State();
    if (name == "signal" && !has_network)
        return "99";
    if (name == "level") // +CESQ counts half as fine steps as +CSQ
        return std::to_string(has_network ? 2 * std::stoi(*m_settings.Value("signal")) : 99);
    if (name == "operator" && !has_network)
        return m_settings.Value(name)->substr(0, 1);
    if (name == "indicators")
        return std::string(has_network ? "5,4,1,0," : "5,0,0,0,") + (m_memory.Is_Full() ? "1" : "0");
    if (name.starts_with(registration))
        return Registration(name.substr(registration.size()), now);
    if (name == "lists")
        return m_settings.Is_Text_Format() ? R"(("REC UNREAD","REC READ","STO UNSENT","STO SENT","ALL"))" : "(0-4)";
    if (name == "commands") {
        std::string list;
        for (const auto& command : Phone_Manners::Command_Names())
            list += (list.empty() ? "" : "\r\n") + command;
        return list;
    }
    const auto of_memory = m_memory.Value(name);
    return of_memory ? of_memory : m_settings.Value(name);
}

// <n>,<stat>[,<lac>,<ci>[,<AcT>]] (27.007 7.2, 10.1.20 and 10.1.22)
std::string Phone_Commands::Registration(std::string_view command, Time now) const
{
    const bool has_network = Has_Network(now);
    const std::string detail = m_settings.Kept(std::string(command), "0");
    std::string shown = detail + (has_network ? ",1" : ",2");
    if (detail == "2" && has_network)
        shown += command == "+CEREG" ? ",\"1A2B\",\"00C3D4E5\",7" : ",\"1A2B\",\"C3D4\"";
    return shown;
}

} // namespace Handset
