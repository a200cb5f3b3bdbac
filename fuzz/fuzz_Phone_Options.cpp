#include "fuzz/Fuzz_Input.h"
#include "phone/Json_Line.h"
#include "phone/Phone_Mind.h"
#include "phone/Phone_Options.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <vector>

// Any command line of the virtual phone, and texts of any bytes on their way into its output.
namespace {

void Check_Options(const std::vector<std::string>& arguments)
{
    const Handset::Phone_Options options = Handset::Read_Options(arguments);
    for (const char byte : options.m_error)
        MUST(static_cast<unsigned char>(byte) >= 0x20 && byte != 0x7F);
    if (!options.m_error.empty())
        return;
    Handset::Phone_Mind mind(options.m_moods);
    for (const auto& [command, answer] : options.m_answers)
        mind.Will_Answer(command, answer);
    mind.Take("AT\rAT+CSCS=?\rAT+CSCA?\rAT+CBC\rAT+CSQ\rAT+GMI\rAT+CMGF=1\rAT+CMGS=\"1\"\rHello\x1A");
    mind.Take_Happenings();
}

void Check_Text(const std::string& text)
{
    MUST(Handset::Unescaped(text).size() <= text.size());
    MUST(text.find('\\') != std::string::npos || Handset::Unescaped(text) == text);
    const std::string json = Handset::Json_Text(text);
    QJsonParseError error;
    const QByteArray array = "[" + QByteArray::fromStdString(json) + "]";
    const QJsonDocument document = QJsonDocument::fromJson(array, &error);
    MUST(error.error == QJsonParseError::NoError);
    if (Is_Utf8(text))
        MUST(document.array().at(0).toString() == QString::fromStdString(text));
    for (const char byte : json)
        MUST(static_cast<unsigned char>(byte) >= 0x20 && byte != 0x7F);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    std::vector<std::string> arguments;
    while (!input.Is_At_End())
        arguments.push_back(input.Piece().toStdString());
    Check_Options(arguments);
    for (const std::string& argument : arguments)
        Check_Text(argument);
    return 0;
}
