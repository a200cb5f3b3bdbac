#include "plan/Job_Sums.h"

#include "handset/Address.h"
#include "list/Skip_Words.h"
#include "plan/Plan_Time.h"
#include "plan/Row_Preview.h"
#include "platform/Waiting.h"

#include <optional>

namespace {

constexpr int Rows_Between_Questions = 200;
constexpr double Seconds_For_A_Skipped_Row = 1; // with fixed waits
constexpr int Many_Parts = 1000;                // a day; what contracts for persons put up with
constexpr double Many_Seconds = 4 * 3600;

// A job that confirms each message tries none whose number no frame can carry.
bool Can_Be_Tried(const QString& number, const Plan_Manner& manner)
{
    return manner.fixed_waits ||
           Handset::Fault_Of(Handset::Destination_Of(number.toStdString())) == Handset::Address_Fault::None;
}

const char* Word_For(Skip_Reason reason)
{
    switch (reason) {
    case Skip_Reason::Excluded:
        return Skip_Words::Excluded;
    case Skip_Reason::Repeated:
        return Skip_Words::Duplicate;
    case Skip_Reason::Not_Filled:
        return Skip_Words::Empty_Field;
    case Skip_Reason::None:
        break;
    }
    return "";
}

// The parts of one text after another, of which many are the same.
class Parts_Of_Texts
{
public:
    explicit Parts_Of_Texts(const Plan_Manner& manner) : m_manner(manner) {}

    int Of(const Planned_Row& row)
    {
        if (!m_row || m_row->text != row.text) {
            m_row = row;
            m_parts = Parts_Of_Row(row, m_manner);
        }
        return m_parts;
    }

private:
    const Plan_Manner& m_manner;
    std::optional<Planned_Row> m_row; // the latest
    int m_parts = 0;
};

} // namespace

Planned_Row Row_Of_Order(const Send_Order& order, const Plan_Manner& manner, int index)
{
    Planned_Row row;
    row.row = index + 1;
    row.number = order.recipients.Numbers().At(index);
    const Filled_Message filled = Text_To_Send(order.recipients, index);
    row.text = filled.text;
    row.skipped = QLatin1String(Word_For(Reason_To_Skip(order, index)));
    if (row.skipped == QLatin1String(Skip_Words::Empty_Field))
        row.skipped = filled.fault; // or one of the others
    if (row.skipped.isEmpty() && !Can_Be_Tried(row.number, manner))
        row.skipped = QLatin1String(Skip_Words::Invalid_Number);
    return row;
}

Job_Sums Sums_Of(const Send_Order& order, const Plan_Manner& manner, const std::function<bool()>& is_stopped)
{
    Job_Sums sums;
    Parts_Of_Texts parts(manner);
    for (int index = 0; index < order.recipients.Count(); ++index) {
        if (is_stopped && index % Rows_Between_Questions == 0 && is_stopped())
            break;
        const Planned_Row row = Row_Of_Order(order, manner, index);
        if (!row.Is_To_Be_Sent()) {
            ++sums.left_out;
            continue;
        }
        ++sums.recipients;
        sums.parts += parts.Of(row);
    }
    return sums;
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
