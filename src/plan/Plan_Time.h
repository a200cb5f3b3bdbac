#pragma once

#include "plan/Plan_Manner.h"

#include <vector>

/// Messages in figures.
struct Planned_Messages
{
    qint64 messages = 0;
    qint64 parts = 0;            ///< of all of them
    qint64 of_several_parts = 0; ///< messages
};

/// How many seconds messages take at pace 1, at a guess.
qint64 Seconds_For(const Planned_Messages& messages, const Plan_Manner& manner);

/// The same for messages of so many parts.
qint64 Seconds_For(const std::vector<int>& parts_of_messages, const Plan_Manner& manner);

/// The same for one part, without pauses.
double Usual_Seconds_For_A_Part(bool fixed_waits);

/// How many pauses lie between so many messages.
int Pauses_Between(int messages, const Plan_Manner& manner);
