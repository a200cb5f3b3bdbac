#include "engine/Outcome_Codes.h"

quint8 Outcome_Codes::Code_Of(const Row_Outcome& outcome)
{
    const auto code = static_cast<quint8>(outcome.state);
    const bool is_of_parts = outcome.state == Row_State::Partly_Taken;
    if ((outcome.state != Row_State::Refused && !is_of_parts) || outcome.cause == Device_Cause())
        return code;
    QList<Device_Cause>& causes = is_of_parts ? m_causes_of_parts : m_causes;
    auto place = causes.indexOf(outcome.cause);
    if (place < 0) {
        if (causes.size() == (is_of_parts ? Most_Causes_Of_Parts : Most_Causes))
            return code;
        place = causes.size();
        causes.append(outcome.cause);
    }
    return static_cast<quint8>((is_of_parts ? First_Of_Parts : First_Cause) + place);
}

Row_Outcome Outcome_Codes::Outcome_Of(quint8 code) const
{
    if (code < First_Of_Parts)
        return {State_Of(code), {}};
    const bool is_of_parts = code < First_Cause;
    return {State_Of(code),
            is_of_parts ? m_causes_of_parts.value(code - First_Of_Parts) : m_causes.value(code - First_Cause)};
}
