#pragma once

#include "list/Recipient_List.h"

#include <vector>

// Which recipients a message is copied to.
namespace Fill_Rules {

enum class Choice
{
    All,
    Selected,
    Blank ///< the ones whose message is empty; a message of blanks is not empty
};

/// Whether a recipient has an empty message.
bool Has_Blank_Message(const Recipient_List& recipients);

/// The rows that a choice means, in ascending order. Of the selected rows only those that the list has count.
std::vector<int> Rows_To_Fill(const Recipient_List& recipients, Choice choice, const std::vector<int>& selected_rows);

} // namespace Fill_Rules
