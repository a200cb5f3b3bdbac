#include "fuzz/Fuzz_Input.h"
#include "handset/Delivery_Status.h"
#include "handset/Report_Line.h"
#include "handset/Report_Time.h"
#include "phone/Delivery_Report.h"

#include <QDateTime>
#include <algorithm>

// Delivery reports: whatever a device says, and what a phone says of a report that is known.
namespace {

using Handset::Delivery_Report;
using Handset::Status_Report;

// Of the years that a report can tell.
constexpr std::time_t First_Time = 946'684'800;
constexpr unsigned Seconds_Of_A_Century = 3'155'760'000U - 2 * 86'400U;

bool Is_Number(const std::string& number)
{
    const std::string digits = number.starts_with('+') ? number.substr(1) : number;
    return !digits.empty() && digits.size() <= 20 && digits.find_first_not_of("0123456789*#abc") == std::string::npos;
}

// In ISO 8601, in a zone that is somewhere; or none.
bool Is_Time(const std::string& time)
{
    const QDateTime read = QDateTime::fromString(QString::fromStdString(time), Qt::ISODate);
    return time.empty() || (time.size() == 25 && read.isValid() && std::abs(read.offsetFromUtc()) <= 14 * 3600);
}

void Check_Report(const Status_Report& report)
{
    MUST(report.m_reference >= 0 && report.m_reference <= 255);
    MUST(Is_Utf8(report.m_number) && Is_Utf8(report.m_smsc));
    MUST(Is_Time(report.m_submitted) && Is_Time(report.m_discharged));
    Handset::Delivery_Status_Of(report.m_status);
}

// Behind it anything may stand, and around it line ends.
void Check_Answer(const std::string& answer)
{
    const auto result = Handset::Read_Report(answer);
    MUST(result.m_report.has_value() == result.m_reason.empty());
    const bool announces = Handset::Announces_A_Report(answer.substr(0, answer.find_first_of("\r\n")));
    MUST(!announces || Handset::Read_Report(answer + "\r\n").m_report.has_value() == result.m_report.has_value());
    if (!result.m_report)
        return;
    Check_Report(*result.m_report);
    const auto again = Handset::Read_Report("\r\n" + answer + "\r\n\r\nOK\r\n");
    MUST(again.m_report && again.m_report->m_reference == result.m_report->m_reference);
    MUST(again.m_report->m_number == result.m_report->m_number &&
         again.m_report->m_status == result.m_report->m_status);
}

std::time_t Time_From(Fuzz_Input& input)
{
    unsigned seconds = 0;
    for (int i = 0; i < 4; ++i)
        seconds = seconds << 8 | input.Octet();
    return First_Time + static_cast<std::time_t>(seconds % Seconds_Of_A_Century);
}

std::string Told(std::time_t time)
{
    return QDateTime::fromSecsSinceEpoch(time, Qt::UTC).toString("yyyy-MM-ddTHH:mm:ss").toStdString() + "+00:00";
}

void Check_Same(const Handset::Status_Report_Result& result, const Delivery_Report& report)
{
    if (!result.m_report)
        Must(false, result.m_reason.c_str(), __FILE__, __LINE__);
    const Status_Report& read = *result.m_report;
    MUST(read.m_reference == report.m_reference && read.m_status == report.m_status);
    MUST(read.m_number == report.m_number);
    MUST(read.m_submitted == Told(report.m_sent) && read.m_discharged == Told(report.m_ended));
}

// The phone's writer shares nothing with the reader.
void Check_Known(Fuzz_Input& input)
{
    Delivery_Report report;
    report.m_reference = static_cast<int>(input.Octet());
    report.m_status = static_cast<int>(input.Octet());
    report.m_sent = Time_From(input);
    report.m_ended = Time_From(input);
    report.m_number = input.Text().toStdString();
    if (!Is_Number(report.m_number))
        return;
    const Handset::Frame_Writer frame = Handset::Frame_Of(report, "+15550009999");
    const std::string behind = input.Rest().toStdString();
    Check_Same(
        Handset::Read_Report("+CDS: " + std::to_string(frame.Tpdu_Octets()) + "\r\n" + frame.Hex() + "\r\n" + behind),
        report);
    // In text mode a number that is one in digits of UCS2, too, is taken for those, and "00" begins one.
    if (report.m_number.size() < 12 && report.m_number != "00")
        Check_Same(Handset::Read_Report("+CDS: " + Handset::Text_Line_Of(report) + "\r\n" + behind), report);
}

} // namespace

// 0: any bytes; 1: a report that is known.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    if (input.Octet() % 2 == 1)
        Check_Known(input);
    else
        Check_Answer(input.Document().toStdString());
    return 0;
}
