#include "device/Delivery_Reports.h"
#include "fuzz/Fuzz_Input.h"
#include "fuzz/Scripted_Line.h"

#include <algorithm>
#include <cctype>

// Delivery reports of a device that answers anything: each command gets the next piece of the input, in which 0x04
// hangs up. No command may hold what the device has said but for a memory's name, and nothing is deleted unasked.
namespace {

class Answering_Device
{
public:
    explicit Answering_Device(Fuzz_Input& input) : m_input(input) {}

    void Hear(Scripted_Line& line, const std::string& bytes)
    {
        if (bytes.empty() || bytes.back() != '\r')
            return;
        MUST(std::all_of(bytes.begin(), bytes.end() - 1, [](unsigned char byte) {
            return std::isupper(byte) || std::isdigit(byte) ||
                   std::string("+=?,\"_").find(char(byte)) != std::string::npos;
        }));
        m_deleted += bytes.starts_with("AT+CMGD=") ? 1 : 0;
        const std::string answer = m_input.Piece().toStdString();
        const auto end = answer.find('\x04');
        line.Say(answer.substr(0, end));
        if (end != std::string::npos)
            line.Hang_Up();
    }

    qsizetype Deleted() const { return m_deleted; }

private:
    Fuzz_Input& m_input;
    qsizetype m_deleted = 0;
};

QList<Report_Place> Places_Of(const QList<Told_Report>& reports)
{
    QList<Report_Place> places;
    for (const Told_Report& told : reports) {
        MUST(told.m_report.m_reference >= 0 && told.m_report.m_reference <= 255);
        if (told.m_place)
            places.append(*told.m_place);
    }
    return places;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned choices = input.Octet();
    Answering_Device device(input);
    Scripted_Line calls([&](Scripted_Line& line, const std::string& heard) { device.Hear(line, heard); });
    Device_Line line(QStringLiteral("/dev/none"), calls);
    if (!line.Open())
        return 0;
    At_Conversation conversation(line);
    Delivery_Reports reports(conversation);
    if ((choices & 1) != 0)
        reports.Ask_For(QString::fromLatin1(input.Piece()));
    calls.Say(input.Piece().toStdString());
    conversation.Hear_What_Came();
    QList<Report_Place> places = Places_Of(reports.Take());
    if ((choices & 2) != 0)
        places += Places_Of(reports.Read_Memory((choices & 4) != 0));
    MUST(device.Deleted() == 0);
    reports.Delete(places);
    MUST(device.Deleted() <= places.size());
    return 0;
}
