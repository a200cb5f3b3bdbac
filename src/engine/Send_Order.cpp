#include "engine/Send_Order.h"

Skip_Reason Reason_To_Skip(const Send_Order& order, int index)
{
    const QString number = order.recipients.At(index).Number;
    if (order.choices.exclusion && order.exclusions.Contains(number))
        return Skip_Reason::Excluded;
    if (order.choices.skip_duplicates && order.recipients.Numbers().First_Index_Of(number) < index)
        return Skip_Reason::Repeated;
    return Skip_Reason::None;
}
