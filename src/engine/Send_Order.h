#pragma once

#include "engine/Delayed_Delivery.h"
#include "engine/Send_Choices.h"
#include "list/Number_List.h"
#include "list/Recipient_List.h"

#include <QString>
#include <optional>

// Everything a send job works from, assembled before it starts. A value; nothing the user does later changes it.
struct Send_Order
{
    QString device_path;
    QString service_centre; ///< empty for the device's own
    Send_Choices choices;
    Recipient_List recipients;
    Number_List exclusions; ///< empty at first; the job reads them when they are to be heeded
    std::optional<Delayed_Delivery::Setting> delivery = {}; ///< in place of what the choices' two boxes say
};

enum class Skip_Reason
{
    None,
    Excluded, ///< the exclusion option is on and the number is in the exclusion set
    Repeated  ///< duplicates are skipped and an earlier item has the same number
};

/// Why the item at an index is skipped. Constant time.
Skip_Reason Reason_To_Skip(const Send_Order& order, int index);
