#include "engine/Outcome_Codes.h"

quint8 Outcome_Codes::Code_Of(const Row_Outcome& outcome)
{
    const auto code = static_cast<quint8>(outcome.state);
    if (outcome.state != Row_State::Refused || outcome.cause == Device_Cause())
        return code;
    auto place = m_causes.indexOf(outcome.cause);
    if (place < 0) {
        if (m_causes.size() == Most_Causes)
            return code;
        place = m_causes.size();
        m_causes.append(outcome.cause);
    }
    return static_cast<quint8>(First_Cause + place);
}

Row_Outcome Outcome_Codes::Outcome_Of(quint8 code) const
{
    return {State_Of(code), code < First_Cause ? Device_Cause() : m_causes.value(code - First_Cause)};
}
