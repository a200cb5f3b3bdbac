#include "device/Sim_State.h"

#include "device/Cause_Words.h"

namespace {

Sim_State State_Of_Code(const QByteArray& code)
{
    if (code == "READY")
        return Sim_State::Ready;
    if (code.startsWith("PH-"))
        return Sim_State::Locked;
    if (code.endsWith("PUK") || code.endsWith("PUK2"))
        return Sim_State::Puk_Needed;
    return code.endsWith("PIN") || code.endsWith("PIN2") ? Sim_State::Pin_Needed : Sim_State::Unknown;
}

// 3GPP TS 27.007, 9.2.1, and 27.005, 3.2.5. Some devices keep to words whatever they were asked for.
Sim_State State_Of_Cause(const Device_Cause& cause)
{
    const bool is_in_words = cause.kind == Device_Cause::Kind::Words;
    switch (is_in_words ? Numbered_Cause(cause.words).value_or(cause).number : cause.number) {
    case 5:
    case 312:
        return Sim_State::Locked;
    case 10:
    case 310:
        return Sim_State::Missing;
    case 11:
    case 17:
    case 311:
    case 317:
        return Sim_State::Pin_Needed;
    case 12:
    case 18:
    case 316:
    case 318:
        return Sim_State::Puk_Needed;
    case 13:
    case 15:
    case 313:
    case 315:
        return Sim_State::Failed;
    case 14:
    case 314:
        return Sim_State::Busy;
    default:
        return Sim_State::Unknown;
    }
}

} // namespace

Sim_State Sim_State_Of(const At_Answer& answer)
{
    if (answer.m_cause)
        return State_Of_Cause(*answer.m_cause);
    if (answer.m_lines.isEmpty())
        return Sim_State::Unknown;
    const QByteArray& line = answer.m_lines.first();
    return State_Of_Code(line.mid(line.indexOf(':') + 1).split(',').constFirst().trimmed().replace('"', QByteArray()));
}
