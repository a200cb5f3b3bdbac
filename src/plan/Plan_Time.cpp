#include "plan/Plan_Time.h"

namespace {

constexpr qint64 Seconds_For_A_Judged_Part = 4; // by experience; networks differ
constexpr qint64 Seconds_For_A_Fixed_Part = 12; // two reads of five seconds, and two afterwards
constexpr qint64 Seconds_After_Fixed_Parts = 2;

} // namespace

qint64 Seconds_For(const Planned_Messages& messages, const Plan_Manner& manner)
{
    qint64 seconds = messages.parts * (manner.fixed_waits ? Seconds_For_A_Fixed_Part : Seconds_For_A_Judged_Part);
    if (manner.fixed_waits)
        seconds += messages.of_several_parts * Seconds_After_Fixed_Parts;
    const int pauses = Pauses_Between(static_cast<int>(messages.messages), manner);
    return seconds + static_cast<qint64>(pauses * manner.pause_seconds);
}

double Usual_Seconds_For_A_Part(bool fixed_waits)
{
    return static_cast<double>(fixed_waits ? Seconds_For_A_Fixed_Part : Seconds_For_A_Judged_Part);
}

int Pauses_Between(int messages, const Plan_Manner& manner)
{
    return manner.batch > 0 && manner.pause_seconds > 0 && messages > 0 ? (messages - 1) / manner.batch : 0;
}

qint64 Seconds_For(const std::vector<int>& parts_of_messages, const Plan_Manner& manner)
{
    Planned_Messages sum;
    sum.messages = static_cast<qint64>(parts_of_messages.size());
    for (const int parts : parts_of_messages) {
        sum.parts += parts;
        sum.of_several_parts += parts > 1 ? 1 : 0;
    }
    return Seconds_For(sum, manner);
}
