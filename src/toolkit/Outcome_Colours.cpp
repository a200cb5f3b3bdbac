#include "toolkit/Outcome_Colours.h"

#include "toolkit/Look_Tokens.h"

QColor Colour_Of(Row_State state)
{
    const Look_Tokens& tokens = Tokens_Now();
    switch (state) {
    case Row_State::Taken:
    case Row_State::Sent:
        return tokens.ok;
    case Row_State::Written:
    case Row_State::No_Answer:
    case Row_State::Partly_Taken:
    case Row_State::May_Have_Been_Sent:
        return tokens.warn;
    case Row_State::Refused:
    case Row_State::Invalid_Number:
    case Row_State::Not_Filled:
        return tokens.error;
    case Row_State::Not_Tried:
    case Row_State::Excluded:
    case Row_State::Repeated:
    case Row_State::Skipped:
        break;
    }
    return tokens.soft;
}
