#pragma once

#include "list/Recipient_List.h"

#include <vector>

// Which recipients a message is copied to.
namespace Fill_Rules {

enum class Choice
{
    All,
    Selected,
    Blank ///< those whose message is empty; a message of blanks is not
};

/// Whether a recipient has an empty message.
bool Has_Blank_Message(const Recipient_List& recipients);

/// The rows that a choice means, in ascending order. Selected rows that the list does not have are ignored.
std::vector<int> Rows_To_Fill(const Recipient_List& recipients, Choice choice, const std::vector<int>& selected_rows);

} // namespace Fill_Rules
