#include "engine/Job_Details.h"

#include "engine/Journal_Fields.h"
#include "engine/Send_Cause.h"
#include "platform/One_Line.h"
#include "texts/Confirmed_Texts.h"

namespace {

// A cause, a doubt, or whatever else a journal says.
QString Reason_For_Unknown(const QString& words)
{
    if (const auto cause = Cause_Of_Field(words))
        return Reason_Of(*cause);
    const QString sentence = Doubt_Sentence(words);
    return sentence.isEmpty() ? On_One_Line(words) : sentence;
}

} // namespace

Row_Details Details_Of_Record(const Job_Record& record, int row)
{
    return Details_Of_State(record.State_Of(row));
}

Row_Details Details_Of_State(const Job_Row_State& state)
{
    Row_Details details;
    details.parts = state.parts;
    details.parts_sent = state.parts_sent;
    details.references = state.references;
    details.tries = state.tries;
    details.is_earlier = true;
    switch (state.state) {
    case Sending_State::Accepted:
        details.outcome.state = Row_State::Sent;
        if (!state.words.isEmpty())
            details.reason = Texts::Confirmed::Counted_As_Sent;
        break;
    case Sending_State::Refused:
        details.outcome = {Row_State::Refused, Cause_Of_Field(state.words).value_or(Device_Cause{})};
        details.reason = Refusal_Sentence(state.words);
        break;
    case Sending_State::Handing_Over: // the journal ends there
        details.outcome.state = Row_State::May_Have_Been_Sent;
        details.reason = Texts::Confirmed::Broken_Off;
        break;
    case Sending_State::Unknown:
        details.outcome = {Row_State::May_Have_Been_Sent, Cause_Of_Field(state.words).value_or(Device_Cause{})};
        details.reason = Reason_For_Unknown(state.words);
        break;
    case Sending_State::Skipped:
    case Sending_State::Waiting:
        details.is_earlier = false;
        break;
    }
    return details;
}
