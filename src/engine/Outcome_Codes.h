#pragma once

#include "engine/Row_Outcome.h"

#include <QList>

// Outcomes as bytes, so that a million of them take a megabyte: a state is its own code, and each cause of a refusal
// gets the next code that is free, apart for those of whole messages, of parts, and of what was not filled. A value; a
// copy costs nothing, and knows the codes that had been given when it was made.
class Outcome_Codes
{
public:
    static constexpr int Most_Causes = 180;
    static constexpr int Most_Causes_Of_Parts = 40;
    static constexpr int Most_Faults = 20; ///< of what was not filled

    /// The code of an outcome; 0 for one that was not tried. Where more causes come than there are codes for, the code
    /// is that of a refusal without one.
    quint8 Code_Of(const Row_Outcome& outcome);

    /// The outcome that has a code; a refusal without its cause where the code was not given here.
    Row_Outcome Outcome_Of(quint8 code) const;

    /// The state in the outcome of a code.
    static Row_State State_Of(quint8 code)
    {
        if (code < First_Fault)
            return static_cast<Row_State>(code);
        if (code < First_Of_Parts)
            return Row_State::Not_Filled;
        return code < First_Cause ? Row_State::Partly_Taken : Row_State::Refused;
    }

private:
    static constexpr int First_Cause = 256 - Most_Causes;
    static constexpr int First_Of_Parts = First_Cause - Most_Causes_Of_Parts;
    static constexpr int First_Fault = First_Of_Parts - Most_Faults; // below are the states

    // The causes of a state, in the order of their codes.
    template <typename Codes>
    static auto* Causes_Of(Row_State state, Codes& codes)
    {
        switch (state) {
        case Row_State::Refused:
            return &codes.m_causes;
        case Row_State::Partly_Taken:
            return &codes.m_causes_of_parts;
        case Row_State::Not_Filled:
            return &codes.m_faults;
        default:
            return static_cast<decltype(&codes.m_causes)>(nullptr);
        }
    }
    static int First_Code_Of(Row_State state);
    static int Most_Of(Row_State state);

    QList<Device_Cause> m_causes;
    QList<Device_Cause> m_causes_of_parts;
    QList<Device_Cause> m_faults;
};
