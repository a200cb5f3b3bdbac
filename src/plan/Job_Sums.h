#pragma once

#include "engine/Send_Order.h"
#include "plan/Plan_Manner.h"
#include "plan/Planned_Row.h"

#include <functional>

/// What a job comes to before it begins.
struct Job_Sums
{
    int recipients = 0; ///< that are to get something
    int parts = 0;      ///< of their messages
    int left_out = 0;   ///< the others of its list

    bool operator==(const Job_Sums&) const = default;
};

/// The row that the job makes of the recipient at an index, and whether it sends it. Constant time.
Planned_Row Row_Of_Order(const Send_Order& order, const Plan_Manner& manner, int index);

/// Ends early, with sums of no use, as soon as is_stopped, asked again after some hundred rows, answers yes.
Job_Sums Sums_Of(const Send_Order& order, const Plan_Manner& manner, const std::function<bool()>& is_stopped = {});

/// How long that takes, in seconds as they pass, where a part takes so many of them.
double Seconds_For(const Job_Sums& sums, const Plan_Manner& manner, double seconds_for_a_part);

/// The pauses of a job, in seconds as they pass.
double Seconds_Of_Pauses(int pauses, const Plan_Manner& manner);

/// The waits for those that are left out, in seconds as they pass.
double Seconds_For_Left_Out(int left_out, const Plan_Manner& manner);

/// Whether it is more than one phone and one SIM card are made for in a day.
bool Is_Much_For_One_Phone(const Job_Sums& sums, double seconds);
