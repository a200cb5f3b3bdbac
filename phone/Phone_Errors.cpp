#include "phone/Phone_Errors.h"

#include "phone/Phone_Settings.h"

#include <algorithm>
#include <array>

namespace Handset {

namespace {

struct Words_Row
{
    int m_number;
    const char* m_words;
};

constexpr std::string_view Message_Error_Begin = "+CMS ERROR: ";
constexpr std::string_view Equipment_Error_Begin = "+CME ERROR: ";

// TS 24.011 table 8.4, TS 23.040 9.2.3.22 and TS 27.005 3.2.5
constexpr std::array Message_Words = {
    Words_Row{1, "Unassigned (unallocated) number"},
    Words_Row{8, "Operator determined barring"},
    Words_Row{10, "Call barred"},
    Words_Row{21, "Short message transfer rejected"},
    Words_Row{27, "Destination out of service"},
    Words_Row{28, "Unidentified subscriber"},
    Words_Row{29, "Facility rejected"},
    Words_Row{30, "Unknown subscriber"},
    Words_Row{38, "Network out of order"},
    Words_Row{41, "Temporary failure"},
    Words_Row{42, "Congestion"},
    Words_Row{47, "Resources unavailable, unspecified"},
    Words_Row{50, "Requested facility not subscribed"},
    Words_Row{69, "Requested facility not implemented"},
    Words_Row{192, "SC busy"},
    Words_Row{195, "Invalid SME address"},
    Words_Row{208, "SIM SMS storage full"},
    Words_Row{300, "ME failure"},
    Words_Row{301, "SMS service of ME reserved"},
    Words_Row{302, "operation not allowed"},
    Words_Row{303, "operation not supported"},
    Words_Row{304, "invalid PDU mode parameter"},
    Words_Row{305, "invalid text mode parameter"},
    Words_Row{310, "SIM not inserted"},
    Words_Row{311, "SIM PIN required"},
    Words_Row{312, "PH-SIM PIN required"},
    Words_Row{313, "SIM failure"},
    Words_Row{314, "SIM busy"},
    Words_Row{315, "SIM wrong"},
    Words_Row{316, "SIM PUK required"},
    Words_Row{320, "memory failure"},
    Words_Row{321, "invalid memory index"},
    Words_Row{322, "memory full"},
    Words_Row{330, "SMSC address unknown"},
    Words_Row{331, "no network service"},
    Words_Row{332, "network timeout"},
    Words_Row{340, "no +CNMA acknowledgement expected"},
    Words_Row{500, "unknown error"},
};

// TS 27.007 9.2
constexpr std::array Equipment_Words = {
    Words_Row{0, "phone failure"},
    Words_Row{3, "operation not allowed"},
    Words_Row{4, "operation not supported"},
    Words_Row{10, "SIM not inserted"},
    Words_Row{11, "SIM PIN required"},
    Words_Row{12, "SIM PUK required"},
    Words_Row{13, "SIM failure"},
    Words_Row{14, "SIM busy"},
    Words_Row{15, "SIM wrong"},
    Words_Row{16, "incorrect password"},
    Words_Row{20, "memory full"},
    Words_Row{21, "invalid index"},
    Words_Row{30, "no network service"},
    Words_Row{31, "network timeout"},
    Words_Row{32, "network not allowed - emergency calls only"},
    Words_Row{50, "incorrect parameters"},
    Words_Row{100, "unknown"},
};

template <typename Table>
std::string In_Words(const Table& table, std::string_view begin, std::string_view number)
{
    const auto wanted = Number_Of(number);
    const auto row =
        std::find_if(table.begin(), table.end(), [&](const Words_Row& words) { return wanted == words.m_number; });
    return std::string(begin) + (row == table.end() ? std::string(number) : row->m_words);
}

} // namespace

std::string Error_Line(std::string_view line, Error_Style style)
{
    const bool is_message = line.starts_with(Message_Error_Begin);
    const bool is_equipment = line.starts_with(Equipment_Error_Begin);
    if (!is_message && !is_equipment)
        return std::string(line);
    if (style == Error_Style::None || (style == Error_Style::Untouched && is_equipment))
        return "ERROR";
    if (style != Error_Style::Words)
        return std::string(line);
    const auto number = line.substr(Message_Error_Begin.size());
    return is_message ? In_Words(Message_Words, Message_Error_Begin, number)
                      : In_Words(Equipment_Words, Equipment_Error_Begin, number);
}

} // namespace Handset
