#include "device/Device_Memory.h"

#include <algorithm>

namespace {

constexpr char Name[] = "+CPMS:";

// The field of an answer's first line, counted from 0; empty where there is none.
QByteArray Field(const At_Answer& answer, qsizetype number)
{
    if (answer.m_lines.isEmpty())
        return {};
    const QByteArray& line = answer.m_lines.first();
    return line.mid(line.indexOf(':') + 1).split(',').value(number).trimmed();
}

// In quotes, whether it is in any or not; empty where it is no name, which must not get into a command.
QByteArray Quoted(QByteArray name)
{
    name.replace('"', "");
    const bool is_name = !name.isEmpty() && std::all_of(name.begin(), name.end(), [](char letter) {
        return (letter >= 'A' && letter <= 'Z') || (letter >= '0' && letter <= '9') || letter == '_';
    });
    return is_name ? '"' + name + '"' : QByteArray();
}

} // namespace

Device_Memory::Device_Memory(At_Conversation& conversation) : m_conversation(conversation)
{
    m_own = Quoted(Field(m_conversation.Ask("AT+CPMS?", At_Conversation::Usual_Answer, Name), 0));
    m_chosen = m_own;
}

Device_Memory::~Device_Memory()
{
    if (m_chosen != m_own)
        m_conversation.Ask("AT+CPMS=" + m_own, At_Conversation::Usual_Answer);
}

std::optional<int> Device_Memory::Choose(const QByteArray& memory)
{
    const QByteArray wanted = Quoted(memory);
    if (m_own.isEmpty() || wanted.isEmpty())
        return std::nullopt;
    const At_Answer answer = m_conversation.Ask("AT+CPMS=" + wanted, At_Conversation::Usual_Answer, Name);
    if (answer.m_end != At_End::Refused)
        m_chosen = wanted; // it may have been, where no answer came
    if (answer.m_end != At_End::Ok)
        return std::nullopt;
    return std::max(Field(answer, 1).toInt(), 0);
}
