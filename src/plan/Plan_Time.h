#pragma once

#include "plan/Plan_Manner.h"

#include <vector>

/// How many seconds messages of so many parts take at pace 1, at a guess.
qint64 Seconds_For(const std::vector<int>& parts_of_messages, const Plan_Manner& manner);

/// The same for one part, without pauses.
double Usual_Seconds_For_A_Part(bool fixed_waits);

/// How many pauses lie between so many messages.
int Pauses_Between(int messages, const Plan_Manner& manner);
