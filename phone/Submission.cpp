#include "phone/Submission.h"

#include "handset/Gsm_Alphabet.h"
#include "handset/Unicode_Text.h"

#include <algorithm>

namespace Handset {

namespace {

constexpr std::size_t Most_Octets = 140; // 3GPP TS 23.040 9.2.3.24
constexpr std::size_t Most_Septets = 160;
constexpr int Has_Header_Bit = 0x40; // TP-UDHI

struct Body_Text
{
    std::string m_text;
    std::vector<std::uint8_t> m_units;
};

// Text that came as text or as hexadecimal UTF-16, and not longer than one SMS.
std::optional<Body_Text> As_Text(std::string text, Alphabet alphabet)
{
    const bool fits = alphabet == Alphabet::Gsm_7_Bit ? Septet_Count_Of(text) <= Most_Septets
                                                      : Hex_Utf16_Of(text).size() / 2 <= Most_Octets;
    if (!fits)
        return std::nullopt;
    return Body_Text{std::move(text), {}};
}

std::optional<Body_Text> As_Units(std::string_view hex, Alphabet alphabet)
{
    auto units = Octets_Of_Hex(hex);
    if (!units || units->size() > (alphabet == Alphabet::Gsm_7_Bit ? Most_Septets : Most_Octets))
        return std::nullopt;
    if (alphabet == Alphabet::Ucs2 && units->size() % 2 != 0)
        return std::nullopt;
    if (alphabet == Alphabet::Gsm_7_Bit &&
        std::any_of(units->begin(), units->end(), [](auto unit) { return unit > 127; }))
        return std::nullopt;
    std::string text = Shown_Text(alphabet, *units);
    return Body_Text{std::move(text), std::move(*units)};
}

std::optional<Body_Text> Read_Body(std::string_view body, Alphabet alphabet, const std::string& charset)
{
    const bool is_hex = charset == "HEX";
    const bool is_ucs2 = charset == "UCS2";
    if (alphabet == Alphabet::Eight_Bit || is_hex || (is_ucs2 && alphabet == Alphabet::Ucs2))
        return As_Units(body, alphabet);
    if (is_ucs2) {
        const auto octets = Octets_Of_Hex(body);
        if (!octets || octets->size() % 2 != 0)
            return std::nullopt;
        return As_Text(Text_Of_Utf16_Octets(*octets), alphabet);
    }
    return As_Text(Code_Points_Of(body) ? std::string(body) : Text_Of_Latin_1(body), alphabet);
}

} // namespace

Submission Submission_Of_Pdu(std::string_view body, int announced, const Phone_Settings& settings)
{
    std::string hex(body);
    std::erase_if(hex, [](char letter) { return letter == '\r' || letter == '\n' || letter == ' '; });
    const auto frame = Decode_Submit(hex).m_frame;
    if (!frame || frame->m_tpdu_octets != std::size_t(announced))
        return {std::nullopt, Message_Error::Invalid_Pdu};
    const std::string centre = frame->m_smsc.empty() ? settings.Centre() : frame->m_smsc;
    if (centre.empty())
        return {std::nullopt, Message_Error::No_Centre};

    Received_Part part;
    part.m_alphabet = frame->m_coding.m_alphabet;
    part.m_units = frame->m_units;
    part.m_shown.m_number = frame->m_number;
    part.m_shown.m_text = frame->Text();
    part.m_shown.m_alphabet = Name_Of(frame->m_coding.m_alphabet);
    part.m_shown.m_class = frame->m_coding.m_class;
    part.m_shown.m_smsc = centre;
    part.m_shown.m_dcs = frame->m_coding.m_octet;
    part.m_shown.m_first_octet = frame->m_first_octet;
    part.m_shown.m_protocol = frame->m_protocol;
    part.m_shown.m_pdu = hex;
    if (frame->m_concatenation) {
        part.m_shown.m_part = frame->m_concatenation->m_part;
        part.m_shown.m_parts = frame->m_concatenation->m_parts;
        part.m_shown.m_reference = frame->m_concatenation->m_reference;
        part.m_wide_reference = frame->m_concatenation->m_wide;
    }
    return {part, {}};
}

Submission Submission_Of_Text(std::string_view body, const std::string& number, const Phone_Settings& settings)
{
    const Coding_Scheme coding = Coding_Scheme_Of(std::uint8_t(settings.Coding()));
    if ((settings.First_Octet() & Has_Header_Bit) != 0 || coding.m_compressed)
        return {std::nullopt, Message_Error::Not_Supported};
    const auto read = Read_Body(body, coding.m_alphabet, settings.Charset());
    if (!read)
        return {std::nullopt, Message_Error::Invalid_Text};
    if (settings.Centre().empty())
        return {std::nullopt, Message_Error::No_Centre};

    Received_Part part;
    part.m_alphabet = coding.m_alphabet;
    part.m_units = read->m_units;
    part.m_shown.m_number = number;
    part.m_shown.m_text = read->m_text;
    part.m_shown.m_alphabet = Name_Of(coding.m_alphabet);
    part.m_shown.m_class = coding.m_class;
    part.m_shown.m_smsc = settings.Centre();
    part.m_shown.m_dcs = coding.m_octet;
    part.m_shown.m_first_octet = settings.First_Octet();
    part.m_shown.m_protocol = settings.Protocol();
    part.m_shown.m_text_mode = true;
    return {part, {}};
}

} // namespace Handset
