#include "engine/Send_Order.h"

#include "engine/Composer_Rules.h"
#include "list/Skip_Words.h"

Filled_Message Text_To_Send(const Recipient_List& recipients, int index)
{
    if (!recipients.Has_Fields())
        return {Composer_Rules::Cut_To_Limit(recipients.Message_At(index))};
    Filled_Message filled = recipients.Text_At(index);
    const bool is_empty = filled.text.isEmpty() && !recipients.Message_At(index).isEmpty();
    if (filled.fault.isEmpty() && (is_empty || filled.text.size() > Composer_Rules::Most_Characters))
        filled.fault = QLatin1String(is_empty ? Skip_Words::Empty_Field : Skip_Words::Too_Long);
    return filled;
}

void Find_Repeats(Send_Order& order)
{
    const Recipient_List& recipients = order.recipients;
    order.repeats.clear();
    if (!order.choices.skip_duplicates || !recipients.Has_Fields())
        return;
    Number_List before;
    for (int index = 0; index < recipients.Count(); ++index) {
        const QString number = recipients.Numbers().At(index);
        const bool is_repeat = before.Contains(number);
        order.repeats.push_back(is_repeat);
        if (!is_repeat && Text_To_Send(recipients, index).fault.isEmpty())
            before.Append(number);
    }
}

Skip_Reason Reason_To_Skip(const Send_Order& order, int index)
{
    const QString number = order.recipients.Numbers().At(index);
    if (order.choices.exclusion && order.exclusions.Contains(number))
        return Skip_Reason::Excluded;
    if (order.recipients.Has_Fields() && !Text_To_Send(order.recipients, index).fault.isEmpty())
        return Skip_Reason::Not_Filled;
    const auto place = static_cast<std::size_t>(index);
    const bool is_repeat =
        place < order.repeats.size() ? order.repeats[place] : order.recipients.Numbers().First_Index_Of(number) < index;
    return order.choices.skip_duplicates && is_repeat ? Skip_Reason::Repeated : Skip_Reason::None;
}

Row_Outcome Outcome_Of_Skipped(const Send_Order& order, int index, Skip_Reason reason)
{
    if (reason == Skip_Reason::Not_Filled)
        return {Row_State::Not_Filled,
                {Device_Cause::Kind::Words, -1, Words_For_Fault(Text_To_Send(order.recipients, index))}};
    return {reason == Skip_Reason::Excluded ? Row_State::Excluded : Row_State::Repeated, {}};
}
