#include "device/Submission_Rules.h"
#include "fuzz/Fuzz_Input.h"
#include "handset/Submit_Decoder.h"
#include "pdu/PDU.h"

#include <algorithm>
#include <vector>

// Any text to any number through the encoder; what the standard can carry is decoded by the phone and compared.
namespace {

struct Submitted
{
    QString message;
    QString number;
    QString smsc;
    bool is_flash;
    bool is_unicode;
};

bool Is_Address(const QString& address)
{
    const QString digits = address.startsWith(u'+') ? address.mid(1) : address;
    return !digits.isEmpty() && digits.size() <= 20 &&
           std::all_of(digits.begin(), digits.end(), [](QChar each) { return each >= u'0' && each <= u'9'; });
}

bool Is_Hexadecimal(const QString& pdu)
{
    return pdu.size() % 2 == 0 && std::all_of(pdu.begin(), pdu.end(), [](QChar each) {
               return (each >= u'0' && each <= u'9') || (each >= u'A' && each <= u'F');
           });
}

Handset::Submit_Frame Decoded(const QString& pdu, const Submitted& submitted)
{
    MUST(Is_Hexadecimal(pdu));
    const Handset::Submit_Result result = Handset::Decode_Submit(pdu.toStdString());
    if (!result.m_frame)
        Must(false, result.m_reason.c_str(), __FILE__, __LINE__);
    const Handset::Submit_Frame& frame = *result.m_frame;
    MUST(frame.m_number == submitted.number.toStdString() && frame.m_smsc == submitted.smsc.toStdString());
    MUST(frame.m_coding.m_class == (submitted.is_flash ? 0 : -1));
    MUST((frame.m_coding.m_alphabet == Handset::Alphabet::Ucs2) == submitted.is_unicode);
    const int announced = Submit_Length(pdu, submitted.smsc);
    MUST(announced == static_cast<int>(frame.m_tpdu_octets));
    return frame;
}

std::vector<std::uint8_t> Ucs2_Units(const QString& text)
{
    std::vector<std::uint8_t> units;
    for (const QChar character : text) {
        units.push_back(character.row());
        units.push_back(character.cell());
    }
    return units;
}

// The septets of a mapped text, from the three characters that stand for others and the low bits of the rest.
std::vector<std::uint8_t> Septets_Of_Carried_Text(const QString& carried)
{
    std::vector<std::uint8_t> septets;
    for (const QChar character : carried)
        septets.push_back(character == u'@'   ? 0
                          : character == u'|' ? 64
                                              : static_cast<std::uint8_t>(character.unicode() & 0x7F));
    return septets;
}

void Check_Single(const PDU& encoder, const Submitted& submitted, bool is_sendable)
{
    const QString pdu = encoder.EncodePDU(submitted.message, submitted.number, submitted.smsc, 0, true,
                                          submitted.is_flash, submitted.is_unicode);
    MUST(!pdu.isEmpty());
    const QString mapped = PDU::MapTo7BitAlphabet(submitted.message);
    if (!is_sendable || (submitted.is_unicode ? submitted.message.size() > 70 : mapped.size() > 160))
        return;
    const Handset::Submit_Frame frame = Decoded(pdu, submitted);
    MUST(!frame.m_concatenation);
    MUST(frame.m_units == (submitted.is_unicode ? Ucs2_Units(submitted.message) : Septets_Of_Carried_Text(mapped)));
    if (submitted.is_unicode)
        MUST(QString::fromStdString(frame.Text()) == With_Whole_Pairs(submitted.message));
}

void Check_Parts(const PDU& encoder, const Submitted& submitted, bool is_sendable)
{
    const int parts = Pdu_Part_Count(submitted.message.size(), submitted.is_unicode);
    std::vector<std::uint8_t> units;
    for (int part = 1; part <= parts; ++part) {
        const QString pdu = encoder.Encode_UDH_PDU(submitted.message, submitted.number, submitted.smsc, 0, true,
                                                   submitted.is_flash, parts, part, submitted.is_unicode);
        MUST(!pdu.isEmpty());
        if (!is_sendable || parts > 255)
            continue;
        const Handset::Submit_Frame frame = Decoded(pdu, submitted);
        MUST(frame.m_concatenation && frame.m_concatenation->m_part == part && frame.m_concatenation->m_parts == parts);
        units.insert(units.end(), frame.m_units.begin(), frame.m_units.end());
    }
    if (!is_sendable || parts > 255)
        return;
    auto expected = submitted.is_unicode ? Ucs2_Units(submitted.message) : Septets_Of_Carried_Text(submitted.message);
    if (!submitted.is_unicode && submitted.message.size() % 152 % 8 == 7)
        expected.push_back(0); // the septet too many that handsets show as "@"
    MUST(units == expected);
}

// The small steps, with texts that are nothing of what they expect.
void Check_Steps(const QString& text)
{
    MUST(PDU::EncodeUserData_16_bit(text).size() == text.size() * 4);
    MUST(PDU::DecodeUserData_16_bit(text).size() == text.size() / 4);
    MUST(PDU::EncodeUserData(text).size() == (text.size() * 7 + 7) / 8 * 2);
    MUST(PDU::reverseString(PDU::reverseString(text)) == text);
    PDU::hex2int(text);
    PDU::BinToDec(text);
    PDU::EncodeSMSCAddress(text);
    PDU::EncodeDestinationAddress(text);
    MUST(PDU::Mid_String(text, -1, text.size()) == text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned choices = input.Octet();
    Submitted submitted;
    submitted.is_flash = (choices & 1) != 0;
    submitted.is_unicode = (choices & 2) != 0;
    submitted.number = input.Text();
    submitted.smsc = input.Text();
    submitted.message = Fuzz_Input::Text_Of(input.Rest()).repeated((choices & 4) != 0 ? 20 : 1);
    const bool is_sendable = Is_Address(submitted.number) && (submitted.smsc.isEmpty() || Is_Address(submitted.smsc));
    const PDU encoder;
    Check_Single(encoder, submitted, is_sendable);
    Check_Parts(encoder, submitted, is_sendable);
    Check_Steps(submitted.message);
    Check_Steps(submitted.number);
    return 0;
}
