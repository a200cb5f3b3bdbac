#include "handset/Submit_Decoder.h"

#include "handset/Address.h"
#include "handset/Gsm_Alphabet.h"
#include "handset/Octet_Cursor.h"
#include "handset/Unicode_Text.h"

namespace Handset {

namespace {

constexpr std::size_t Most_User_Data_Octets = 140;  // 23.040 9.2.3.24
constexpr std::size_t Most_User_Data_Septets = 160; // the same, in septets

// First octet (23.040 9.2.3.1 TP-MTI, .3 TP-VPF, .17 TP-RP, .23 TP-UDHI, .25 TP-RD, 9.2.3.5 TP-SRR).
void First_Octet(Octet_Cursor& cursor, Submit_Frame& frame)
{
    const std::uint8_t octet = cursor.Octet("first octet");
    if (!cursor.Has_Failed() && (octet & 0x03) != 0x01)
        cursor.Fail("first octet: not an SMS-SUBMIT");
    frame.m_first_octet = octet;
    frame.m_reject_duplicates = (octet & 0x04) != 0;
    frame.m_validity_format = Validity_Format((octet >> 3) & 0x03);
    frame.m_status_report = (octet & 0x20) != 0;
    frame.m_has_header = (octet & 0x40) != 0;
    frame.m_reply_path = (octet & 0x80) != 0;
}

// TP-VP (23.040 9.2.3.12): one octet relative, seven enhanced or absolute.
std::vector<std::uint8_t> Validity(Octet_Cursor& cursor, Validity_Format format)
{
    std::size_t length = 7;
    if (format == Validity_Format::None)
        length = 0;
    else if (format == Validity_Format::Relative)
        length = 1;
    const auto octets = cursor.Octets(length, "validity period");
    return {octets.begin(), octets.end()};
}

// One concatenation element. Values that make no sense leave the message a single one, as 23.040 9.2.3.24.1 asks.
std::optional<Concatenation> Concatenation_Of(std::span<const std::uint8_t> element, bool wide)
{
    if (element.size() != (wide ? 4u : 3u))
        return std::nullopt;
    Octet_Cursor cursor(element);
    Concatenation found;
    found.m_wide = wide;
    found.m_reference = cursor.Octet("reference");
    if (wide)
        found.m_reference = found.m_reference << 8 | cursor.Octet("reference");
    found.m_parts = cursor.Octet("parts");
    found.m_part = cursor.Octet("part");
    if (found.m_parts == 0 || found.m_part == 0 || found.m_part > found.m_parts)
        return std::nullopt;
    return found;
}

// User-data header (23.040 9.2.3.24): a row of elements; of several concatenations the last counts.
void Header(Octet_Cursor& cursor, std::span<const std::uint8_t> header, Submit_Frame& frame)
{
    constexpr std::uint8_t narrow_reference = 0x00;
    constexpr std::uint8_t wide_reference = 0x08;
    Octet_Cursor elements(header);
    while (elements.Left() > 0 && !elements.Has_Failed()) {
        const std::uint8_t identifier = elements.Octet("user-data header");
        const auto element = elements.Octets(elements.Octet("user-data header"), "user-data header");
        if (elements.Has_Failed())
            break;
        if (identifier == narrow_reference || identifier == wide_reference) {
            if (const auto found = Concatenation_Of(element, identifier == wide_reference))
                frame.m_concatenation = found;
        }
    }
    if (elements.Has_Failed())
        cursor.Fail(elements.Reason());
}

// TP-UDL and TP-UD (23.040 9.2.3.16 and .24). The length counts septets for the 7-bit alphabet, else octets; a header
// is counted with them, and 7-bit text begins at the next septet boundary behind it.
void User_Data(Octet_Cursor& cursor, Submit_Frame& frame)
{
    const bool is_packed = frame.m_coding.m_alphabet == Alphabet::Gsm_7_Bit && !frame.m_coding.m_compressed;
    const std::size_t length = cursor.Octet("user-data length");
    if (length > (is_packed ? Most_User_Data_Septets : Most_User_Data_Octets))
        cursor.Fail("user-data length: more than 140 octets");
    const auto octets = cursor.Octets(is_packed ? (length * 7 + 7) / 8 : length, "user data");
    if (!cursor.Has_Failed() && cursor.Left() > 0)
        cursor.Fail("user data: octets behind its end");

    Octet_Cursor data(octets);
    std::size_t header_octets = 0;
    if (frame.m_has_header && !cursor.Has_Failed()) {
        const std::size_t header_length = data.Octet("user-data header");
        Header(cursor, data.Octets(header_length, "user-data header"), frame);
        header_octets = 1 + header_length;
    }
    const auto text = data.Octets(data.Left(), "user data");
    if (data.Has_Failed())
        cursor.Fail(data.Reason());
    if (cursor.Has_Failed())
        return;
    if (!is_packed) {
        frame.m_units.assign(text.begin(), text.end());
        return;
    }
    const std::size_t header_septets = (header_octets * 8 + 6) / 7;
    const std::size_t fill_bits = header_septets * 7 - header_octets * 8;
    const auto septets =
        length < header_septets ? std::nullopt : Unpack_Septets(text, fill_bits, length - header_septets);
    if (septets)
        frame.m_units = *septets;
    else
        cursor.Fail("user-data length: shorter than its header");
}

} // namespace

std::string Submit_Frame::Text() const
{
    return m_coding.m_compressed ? std::string() : Shown_Text(m_coding.m_alphabet, m_units);
}

Submit_Result Decode_Submit_Octets(std::span<const std::uint8_t> octets)
{
    Octet_Cursor cursor(octets);
    Submit_Frame frame;
    frame.m_smsc = Read_Service_Centre(cursor);
    frame.m_tpdu_octets = cursor.Left();
    frame.m_centre_octets = octets.size() - frame.m_tpdu_octets;
    First_Octet(cursor, frame);
    frame.m_message_reference = cursor.Octet("message reference");
    frame.m_number = Read_Party(cursor, "destination"); // TP-DA, 23.040 9.2.3.8
    frame.m_protocol = cursor.Octet("protocol identifier");
    frame.m_coding = Coding_Scheme_Of(cursor.Octet("data coding scheme"));
    frame.m_validity = Validity(cursor, frame.m_validity_format);
    User_Data(cursor, frame);
    if (cursor.Has_Failed())
        return {std::nullopt, cursor.Reason()};
    return {frame, {}};
}

Submit_Result Decode_Submit(std::string_view hex)
{
    const auto octets = Octets_Of_Hex(hex);
    if (!octets)
        return {std::nullopt, "not pairs of hexadecimal digits"};
    return Decode_Submit_Octets(*octets);
}

} // namespace Handset
