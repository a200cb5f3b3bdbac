#include "phone/Delivery_Report.h"

#include <array>

namespace Handset {

namespace {

constexpr int First_Octet = 0x06; // SMS-STATUS-REPORT, no more messages waiting

std::string Quoted_Time(std::time_t time)
{
    std::tm parts{};
    gmtime_r(&time, &parts);
    std::array<char, 32> text{};
    const auto length = std::strftime(text.data(), text.size(), "\"%y/%m/%d,%H:%M:%S+00\"", &parts);
    return std::string(text.data(), length);
}

} // namespace

Frame_Writer Frame_Of(const Delivery_Report& report, const std::string& centre)
{
    Frame_Writer frame;
    frame.Put_Centre(centre);
    frame.Put_Octet(First_Octet);
    frame.Put_Octet(report.m_reference);
    frame.Put_Address(report.m_number);
    frame.Put_Time(report.m_sent);
    frame.Put_Time(report.m_ended);
    frame.Put_Octet(report.m_status);
    return frame;
}

std::string Text_Line_Of(const Delivery_Report& report)
{
    const char* type = report.m_number.starts_with('+') ? "145" : "129";
    return std::to_string(First_Octet) + "," + std::to_string(report.m_reference) + ",\"" + report.m_number + "\"," +
           type + "," + Quoted_Time(report.m_sent) + "," + Quoted_Time(report.m_ended) + "," +
           std::to_string(report.m_status);
}

} // namespace Handset
