#include "list/Fill_Rules.h"

#include <algorithm>
#include <numeric>

namespace Fill_Rules {

namespace {

bool Is_Blank(const Recipient_List& recipients, int row)
{
    return recipients.Message_At(row).isEmpty();
}

std::vector<int> All_Rows(const Recipient_List& recipients)
{
    std::vector<int> rows(static_cast<std::size_t>(recipients.Count()));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

} // namespace

bool Has_Blank_Message(const Recipient_List& recipients)
{
    for (int row = 0; row < recipients.Count(); ++row) {
        if (Is_Blank(recipients, row))
            return true;
    }
    return false;
}

std::vector<int> Rows_To_Fill(const Recipient_List& recipients, Choice choice, const std::vector<int>& selected_rows)
{
    auto rows = choice == Choice::Selected ? selected_rows : All_Rows(recipients);
    const auto is_left_out = [&](int row) {
        return row < 0 || row >= recipients.Count() || (choice == Choice::Blank && !Is_Blank(recipients, row));
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), is_left_out), rows.end());
    return rows;
}

} // namespace Fill_Rules
