#include "engine/Job_Order.h"

#include "engine/Composer_Rules.h"

Job_Options Job_Options_Of(const Send_Order& order)
{
    Job_Options options;
    options.service_centre = order.service_centre;
    options.report_seconds = order.choices.confirm.asks_for_reports ? Usual_Report_Seconds : -1;
    options.alphabet = order.choices.unicode ? Job_Alphabet_Choice::Unicode : Job_Alphabet_Choice::Auto;
    if (!order.choices.delayed_delivery)
        return options;
    const auto delivery =
        order.delivery.value_or(Delayed_Delivery::Read_Setting(order.choices.batch_size, order.choices.pause_choice));
    if (delivery.batch_size > 0 && delivery.pause_in_seconds > 0) {
        options.batch = delivery.batch_size;
        options.pause_seconds = static_cast<double>(delivery.pause_in_seconds);
    }
    return options;
}

Send_Order Order_Of(const Job_Options& options, const QString& device_path)
{
    Send_Order order;
    order.device_path = device_path;
    order.service_centre = options.service_centre;
    order.choices.unicode = options.alphabet == Job_Alphabet_Choice::Unicode;
    order.choices.delayed_delivery = options.batch > 0;
    order.delivery = {options.batch, static_cast<qint64>(options.pause_seconds)};
    return order;
}

std::optional<Recipient_List> Recipients_Of(const Job_Record& record)
{
    Recipient_List recipients;
    for (int number = 1; number <= record.Row_Count(); ++number) {
        const auto row = record.Row(number);
        if (!row)
            return std::nullopt;
        recipients.Append(row->number, row->text);
    }
    return recipients;
}

bool Are_The_Same(const Recipient_List& one, const Recipient_List& other)
{
    if (one.Count() != other.Count())
        return false;
    for (int index = 0; index < one.Count(); ++index) {
        if (one.Numbers().At(index) != other.Numbers().At(index) ||
            Composer_Rules::Cut_To_Limit(Text_To_Send(one, index).text) !=
                Composer_Rules::Cut_To_Limit(Text_To_Send(other, index).text))
            return false;
    }
    return true;
}
