#include "handset/Submit_Encoder.h"

#include "handset/Gsm_Alphabet.h"
#include "handset/Unicode_Text.h"

#include <array>

namespace Handset {

namespace {

using Octets = std::vector<std::uint8_t>;

constexpr std::size_t Most_Parts = 255; // 23.040 9.2.3.24.1: one octet counts them

/// What is the same in every part of a message.
struct Message
{
    Address m_destination;
    Alphabet m_alphabet;
    bool m_flash;
    bool m_status_report;
    std::uint8_t m_reference;
    std::size_t m_parts;
};

// 9.2.3.1 TP-MTI, 9.2.3.3 TP-VPF, 9.2.3.5 TP-SRR, 9.2.3.23 TP-UDHI.
std::uint8_t First_Octet(const Message& message)
{
    constexpr std::uint8_t submit = 0x01;
    constexpr std::uint8_t relative_validity = 0x10;
    constexpr std::uint8_t status_report = 0x20;
    constexpr std::uint8_t header_present = 0x40;
    return submit | relative_validity | (message.m_status_report ? status_report : 0) |
           (message.m_parts > 1 ? header_present : 0);
}

// All fields in front of the user data, in their order.
void Append_Head(Octets& octets, const Message& message)
{
    constexpr std::uint8_t own_reference = 0x00;  // TP-MR, 9.2.3.6: the device counts for itself
    constexpr std::uint8_t plain_protocol = 0x00; // TP-PID, 9.2.3.9
    constexpr std::uint8_t longest = 0xFF;        // TP-VP, 9.2.3.12.1: 63 weeks
    octets.push_back(First_Octet(message));
    octets.push_back(own_reference);
    Append_Party(octets, message.m_destination);
    octets.push_back(plain_protocol);
    octets.push_back(Data_Coding_Of(message.m_alphabet, message.m_flash));
    octets.push_back(longest);
}

// The user-data header of a part, which counts from 1 (9.2.3.24.1); nothing for a message of one part.
Octets Header(const Message& message, std::size_t part)
{
    constexpr std::uint8_t concatenation = 0x00; // with an 8-bit reference
    if (message.m_parts == 1)
        return {};
    return {5, concatenation, 3, message.m_reference, std::uint8_t(message.m_parts), std::uint8_t(part)};
}

Octets Septets_Of(std::u16string_view written)
{
    Octets septets;
    for (const char16_t unit : written) {
        const Gsm_Place place = Gsm_Place_Of(unit).value_or(Gsm_Place());
        if (place.m_escaped)
            septets.push_back(Gsm_Escape);
        septets.push_back(place.m_code);
    }
    return septets;
}

// TP-UDL and TP-UD (9.2.3.16, 9.2.3.24). The length counts septets, those that the header takes included; fill bits
// behind the header bring the text to the next septet boundary.
void Append_Septets(Octets& octets, const Octets& header, std::u16string_view written)
{
    const Octets septets = Septets_Of(written);
    const std::size_t header_septets = (header.size() * 8 + 6) / 7;
    octets.push_back(std::uint8_t(header_septets + septets.size()));
    octets.insert(octets.end(), header.begin(), header.end());
    const Octets packed = Pack_Septets(septets, header_septets * 7 - header.size() * 8);
    octets.insert(octets.end(), packed.begin(), packed.end());
}

// The same in UCS2, where the length counts octets; the most significant octet goes first (23.038 6.2.3).
void Append_Ucs2(Octets& octets, const Octets& header, std::u16string_view written)
{
    octets.push_back(std::uint8_t(header.size() + written.size() * 2));
    octets.insert(octets.end(), header.begin(), header.end());
    for (const char16_t unit : written) {
        octets.push_back(std::uint8_t(unit >> 8));
        octets.push_back(std::uint8_t(unit));
    }
}

Encoded_Frame Frame_Of(const Octets& centre, const Message& message, std::u16string_view text, std::size_t part)
{
    Octets octets;
    Append_Head(octets, message);
    const std::u16string written = Written_Text(text, message.m_alphabet);
    const bool is_ucs2 = message.m_alphabet == Alphabet::Ucs2;
    (is_ucs2 ? Append_Ucs2 : Append_Septets)(octets, Header(message, part), written);
    return {Hex_Of_Octets(centre) + Hex_Of_Octets(octets), octets.size()};
}

// The faults of an address, by their order in Address_Fault.
Submit_Fault Fault_Of(const Address& address, const std::array<Submit_Fault, 3>& faults)
{
    const Address_Fault fault = Fault_Of(address);
    return fault == Address_Fault::None ? Submit_Fault::None : faults.at(std::size_t(fault) - 1);
}

Submit_Fault Fault_Of(const Submit_Request& request)
{
    const auto fault = Fault_Of(request.m_destination, {Submit_Fault::Number_Missing, Submit_Fault::Number_Too_Long,
                                                        Submit_Fault::Number_Not_Digits});
    if (fault != Submit_Fault::None || request.m_service_centre.empty())
        return fault;
    return Fault_Of(Destination_Of(request.m_service_centre),
                    {Submit_Fault::Centre_Missing, Submit_Fault::Centre_Too_Long, Submit_Fault::Centre_Not_Digits});
}

// The one octet 0 leaves the centre to the device.
Octets Centre_Octets(const std::string& service_centre)
{
    if (service_centre.empty())
        return {0};
    Octets octets;
    Append_Service_Centre(octets, Destination_Of(service_centre));
    return octets;
}

} // namespace

Submit_Frames Encode_Submit(const Submit_Request& request)
{
    Submit_Frames result;
    result.m_fault = Fault_Of(request);
    if (result.m_fault != Submit_Fault::None)
        return result;
    const std::u16string_view text = request.m_text;
    const Alphabet alphabet = Alphabet_For(text, request.m_choice);
    auto parts = Cut_Text(text, alphabet);
    if (parts.size() > Most_Parts) {
        result.m_fault = Submit_Fault::Too_Many_Parts;
        return result;
    }
    result.m_parts = std::move(parts);
    const Octets centre = Centre_Octets(request.m_service_centre);
    const Message message{request.m_destination, alphabet,
                          request.m_flash,       request.m_status_report,
                          request.m_reference,   result.m_parts.size()};
    for (const Text_Part& part : result.m_parts) {
        const std::size_t number = result.m_frames.size() + 1;
        result.m_frames.push_back(Frame_Of(centre, message, text.substr(part.m_first, part.m_length), number));
    }
    return result;
}

std::uint8_t Data_Coding_Of(Alphabet alphabet, bool flash)
{
    constexpr std::uint8_t ucs2 = 0x08;
    constexpr std::uint8_t class_0 = 0x10;
    return (alphabet == Alphabet::Ucs2 ? ucs2 : 0) | (flash ? class_0 : 0);
}

std::string Text_Mode_Body(std::u16string_view part, Alphabet alphabet)
{
    return Hex_Of_Utf16(Written_Text(part, alphabet));
}

} // namespace Handset
