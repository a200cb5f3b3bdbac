#include "engine/Outcome_Codes.h"

int Outcome_Codes::First_Code_Of(Row_State state)
{
    if (state == Row_State::Not_Filled)
        return First_Fault;
    return state == Row_State::Partly_Taken ? First_Of_Parts : First_Cause;
}

int Outcome_Codes::Most_Of(Row_State state)
{
    if (state == Row_State::Not_Filled)
        return Most_Faults;
    return state == Row_State::Partly_Taken ? Most_Causes_Of_Parts : Most_Causes;
}

quint8 Outcome_Codes::Code_Of(const Row_Outcome& outcome)
{
    const auto code = static_cast<quint8>(outcome.state);
    QList<Device_Cause>* const causes = Causes_Of(outcome.state, *this);
    if (!causes || outcome.cause == Device_Cause())
        return code;
    auto place = causes->indexOf(outcome.cause);
    if (place < 0) {
        if (causes->size() == Most_Of(outcome.state))
            return code;
        place = causes->size();
        causes->append(outcome.cause);
    }
    return static_cast<quint8>(First_Code_Of(outcome.state) + place);
}

Row_Outcome Outcome_Codes::Outcome_Of(quint8 code) const
{
    const Row_State state = State_Of(code);
    if (code < First_Fault)
        return {state, {}};
    return {state, Causes_Of(state, *this)->value(code - First_Code_Of(state))};
}
