#include "plan/Job_Sums.h"

#include "plan/Plan_Time.h"
#include "platform/Waiting.h"

namespace {

constexpr double Seconds_For_A_Skipped_Row = 1; // with fixed waits
constexpr int Many_Parts = 1000;                // a day; what contracts for persons put up with
constexpr double Many_Seconds = 4 * 3600;

} // namespace

Job_Plan Plan_Of(const Send_Order& order, const Plan_Manner& manner, const std::function<bool()>& is_stopped)
{
    Plan_Terms terms;
    terms.manner = manner;
    if (order.choices.exclusion)
        terms.excluded = order.exclusions;
    terms.skip_duplicates = order.choices.skip_duplicates;
    return Job_Plan::Of_List(order.recipients, terms, {{}, is_stopped});
}

Job_Sums Sums_Of(const Job_Plan& plan)
{
    const Plan_Sums sums = plan.Sums();
    return {sums.send, static_cast<int>(sums.parts), sums.recipients - sums.send, Unfilled_Rows_Of(plan)};
}

double Seconds_For(const Job_Sums& sums, const Plan_Manner& manner, double seconds_for_a_part)
{
    return sums.parts * seconds_for_a_part + Seconds_Of_Pauses(Pauses_Between(sums.recipients, manner), manner) +
           Seconds_For_Left_Out(sums.left_out, manner);
}

double Seconds_Of_Pauses(int pauses, const Plan_Manner& manner)
{
    return pauses * Paced(manner.pause_seconds);
}

double Seconds_For_Left_Out(int left_out, const Plan_Manner& manner)
{
    return manner.fixed_waits ? left_out * Paced(Seconds_For_A_Skipped_Row) : 0;
}

bool Is_Much_For_One_Phone(const Job_Sums& sums, double seconds)
{
    return sums.parts > Many_Parts || seconds > Many_Seconds;
}
