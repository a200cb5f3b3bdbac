#include "plan/Chosen_Manner.h"

#include "engine/Job_Order.h"

Plan_Manner Manner_Of(const Send_Choices& choices, const QString& service_centre)
{
    Send_Order order;
    order.choices = choices;
    order.service_centre = service_centre;
    const Job_Options options = Job_Options_Of(order);
    Plan_Manner manner;
    manner.fixed_waits = !choices.confirm.confirms;
    manner.alphabet = options.alphabet;
    if (manner.fixed_waits && !choices.unicode)
        manner.alphabet = Job_Alphabet_Choice::Gsm;
    manner.is_flash = choices.flash;
    manner.asks_for_reports = choices.confirm.confirms && choices.confirm.asks_for_reports;
    manner.service_centre = service_centre;
    manner.batch = options.batch;
    manner.pause_seconds = options.pause_seconds;
    return manner;
}
