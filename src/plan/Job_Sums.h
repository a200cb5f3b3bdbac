#pragma once

#include "engine/Send_Order.h"
#include "plan/Job_Plan.h"
#include "plan/Unfilled_Rows.h"

#include <functional>

/// What a job comes to before it begins.
struct Job_Sums
{
    int recipients = 0;          ///< that are to get something
    int parts = 0;               ///< of their messages
    int left_out = 0;            ///< the others of its list
    Unfilled_Rows unfilled = {}; ///< some of those

    bool operator==(const Job_Sums&) const = default;
};

/// The plan of an order, as the job that it becomes will judge it. With rows missing where is_stopped answered yes.
Job_Plan Plan_Of(const Send_Order& order, const Plan_Manner& manner, const std::function<bool()>& is_stopped = {});

Job_Sums Sums_Of(const Job_Plan& plan);

/// How long that takes, in seconds as they pass, where a part takes so many of them.
double Seconds_For(const Job_Sums& sums, const Plan_Manner& manner, double seconds_for_a_part);

/// The pauses of a job, in seconds as they pass.
double Seconds_Of_Pauses(int pauses, const Plan_Manner& manner);

/// The waits for those that are left out, in seconds as they pass.
double Seconds_For_Left_Out(int left_out, const Plan_Manner& manner);

/// Whether it is more than one phone and one SIM card are made for in a day.
bool Is_Much_For_One_Phone(const Job_Sums& sums, double seconds);
