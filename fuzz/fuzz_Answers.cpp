#include "device/Answer_Cleaning.h"
#include "device/Decoded_Text.h"
#include "device/Printable_Text.h"
#include "device/Submission_Rules.h"
#include "fuzz/Fuzz_Input.h"
#include "handset/Unicode_Text.h"
#include "platform/Text_Files.h"

#include <QRegularExpression>
#include <algorithm>

// Each step that takes a device's answer apart, with any text.
namespace {

const QString Words = QStringLiteral("AT+GMI AT+CGMI +GMI +CGMI AT+CBC +CBC AT+CSQ +CSQ AT+COPS +COPS AT+CSCA +CSCA");

void Check_Cleaning(const QString& answer)
{
    for (const Quotes quotes : {Quotes::Removed, Quotes::Kept}) {
        const QString value = Clean_Answer(answer, Words.split(u' '), quotes);
        MUST(value.size() <= answer.size() && value == value.trimmed());
        MUST(!value.contains(u'?') && !value.contains(u'<') && !value.contains(u'>'));
        MUST(quotes == Quotes::Kept || !value.contains(u'"'));
    }
    MUST(Without_Leading_Word(answer, QStringLiteral("IMEI")).size() <= answer.size());
    MUST(Model_Text(answer).size() <= answer.size());
}

void Check_Values(const QString& value)
{
    static const QRegularExpression signal(
        QStringLiteral("\\A(Unknown|(Low|Medium|Good|High) \\(-?[0-9]{1,10}\\))\\z"));
    MUST(signal.match(Signal_Text(value)).hasMatch());
    const auto quoted = Quoted_Text(value);
    MUST(quoted.has_value() == (value.count(u'"') >= 2));
    MUST(!quoted || (value.contains(u'"' + *quoted + u'"') && !quoted->contains(u'"')));
    MUST(Operator_Text(value) == quoted.value_or(value));
    const QString battery = Battery_Text(value);
    MUST(battery.size() <= value.size() + 41);
    const QString centre = Service_Centre_Text(value);
    MUST(centre.size() <= std::max<qsizetype>(value.size(), 1));
}

void Check_Bytes(const QByteArray& bytes)
{
    const QString ascii = Decoded_Text(bytes, KVText_Encoding::Ascii);
    MUST(ascii.size() == bytes.size());
    MUST(Encoded_Text(ascii, KVText_Encoding::Ascii).size() == bytes.size());
    const QString text = Decoded_Text(bytes, KVText_Encoding::Utf8);
    MUST(text.isValidUtf16());
    MUST(Decoded_Text(Encoded_Text(text, KVText_Encoding::Utf8), KVText_Encoding::Utf8) == text);
    // The program and the virtual phone, which share no line, agree on what is UTF-8.
    const auto strict = Decode_Utf8(bytes);
    MUST(strict.has_value() == Handset::Code_Points_Of(bytes.toStdString()).has_value());
    MUST(!strict || strict->toUtf8() == bytes);
    const QByteArray printable = Printable_Text(bytes);
    MUST(std::all_of(printable.begin(), printable.end(), [](char byte) { return byte >= 0x20 && byte < 0x7F; }));
}

// The parts of a text-mode message, put one behind the other, are the message.
void Check_Parts(const QString& message, bool unicode)
{
    QString joined;
    for (int part = 1; part <= Text_Part_Count(message.size(), unicode); ++part) {
        const QString piece = Text_Part(message, part, unicode);
        MUST(!piece.isEmpty() && May_Be_Single(piece.size(), unicode));
        joined += piece;
    }
    MUST(joined == message);
    const QString harmless = Harmless_Body(message);
    MUST(harmless.size() == message.size());
    for (const char16_t dangerous : {u'\x1A', u'\x1B', u'\0'})
        MUST(!harmless.contains(QChar(dangerous)));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const bool unicode = (input.Octet() & 1) != 0;
    const QByteArray bytes = input.Rest();
    const QString text = Fuzz_Input::Text_Of(bytes);
    Check_Bytes(bytes);
    Check_Cleaning(text);
    Check_Values(text);
    Check_Values(Clean_Answer(text, {}, Quotes::Kept));
    Check_Parts(text, unicode);
    return 0;
}
