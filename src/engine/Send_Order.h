#pragma once

#include "engine/Delayed_Delivery.h"
#include "engine/Row_Outcome.h"
#include "engine/Send_Choices.h"
#include "list/Number_List.h"
#include "list/Recipient_List.h"

#include <QString>
#include <optional>
#include <vector>

// Everything a send job works from, assembled before it starts. A value; nothing the user does later changes it.
struct Send_Order
{
    QString device_path;
    QString service_centre; ///< empty for the device's own
    Send_Choices choices;
    Recipient_List recipients;
    Number_List exclusions; ///< empty at first; the job reads them when they are to be heeded
    std::optional<Delayed_Delivery::Setting> delivery = {}; ///< in place of what the choices' two boxes say
    std::vector<bool> repeats = {};                         ///< of a list with fields, from Find_Repeats
};

enum class Skip_Reason
{
    None,
    Excluded,  ///< the exclusion option is on and the number is in the exclusion set
    Repeated,  ///< duplicates are skipped and an earlier item has the same number
    Not_Filled ///< its placeholders leave no text that can be sent
};

/// What is sent to the recipient at an index, or why nothing is: the message cut to its limit or, in a list with
/// fields, filled and then whole or not at all.
Filled_Message Text_To_Send(const Recipient_List& recipients, int index);

/// In a list with fields only an item with a text to send makes later ones repeats. Looks at every one; a job does so
/// before the first. In other lists every item counts, and there is nothing to find.
void Find_Repeats(Send_Order& order);

/// Why the item at an index is skipped. Constant time, after Find_Repeats.
Skip_Reason Reason_To_Skip(const Send_Order& order, int index);

/// The outcome of an item that is skipped.
Row_Outcome Outcome_Of_Skipped(const Send_Order& order, int index, Skip_Reason reason);
