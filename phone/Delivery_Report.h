#pragma once

#include "phone/Frame_Writer.h"

#include <ctime>
#include <string>

namespace Handset {

/// SMS-STATUS-REPORT (3GPP TS 23.040 9.2.2.3): what became of a message. A value.
struct Delivery_Report
{
    std::string m_number;  ///< TP-RA
    int m_reference = 0;   ///< TP-MR
    int m_status = 0;      ///< TP-ST
    std::time_t m_sent{};  ///< TP-SCTS
    std::time_t m_ended{}; ///< TP-DT
};

Frame_Writer Frame_Of(const Delivery_Report& report, const std::string& centre);

/// <fo>,<mr>,<ra>,<tora>,<scts>,<dt>,<st> (27.005 3.4.1), for text mode.
std::string Text_Line_Of(const Delivery_Report& report);

} // namespace Handset
