#include "fuzz/Fuzz_Input.h"
#include "handset/Message_Joiner.h"
#include "handset/Submit_Decoder.h"
#include "handset/Submit_Encoder.h"
#include "handset/Unicode_Text.h"
#include "platform/Utf16_Units.h"

#include <algorithm>

// Any text to any number as the standard writes it: what a handset makes of the frames is the text, whole.
namespace {

using namespace Handset;

constexpr std::size_t Most_Parts = 255;

bool Is_Address(const std::string& number)
{
    const std::size_t prefix = number.starts_with('+') ? 1 : number.starts_with("00") ? 2 : 0;
    const std::string digits = number.substr(prefix);
    return !digits.empty() && digits.size() <= 20 && digits.find_first_not_of("0123456789*#abc") == std::string::npos;
}

// As a frame says it: "+" in front for the international type.
std::string As_Said(const std::string& number)
{
    return number.starts_with("00") ? "+" + number.substr(2) : number;
}

bool Is_Half(char16_t unit, char16_t first)
{
    return (unit & 0xFC00) == first;
}

// Whether no pair is cut at a place between two units. Of several first halves in a row the last has the second half.
bool Is_Cut_Well(const std::u16string& text, std::size_t at)
{
    return at == 0 || at >= text.size() || !Is_Half(text[at - 1], 0xD800) || !Is_Half(text[at], 0xDC00);
}

std::string Utf8(const std::u16string& text)
{
    return Text_Of_Units(text).toStdString();
}

// The parts are stretches of the text from its first unit to its last, none of them too long.
void Check_Parts(const Submit_Request& request, const std::vector<Text_Part>& parts, Alphabet alphabet)
{
    const std::size_t most =
        alphabet == Alphabet::Ucs2 ? (parts.size() == 1 ? 70 : 67) : (parts.size() == 1 ? 160 : 153);
    std::size_t next = 0;
    for (const Text_Part& part : parts) {
        MUST(part.m_first == next && part.m_units <= most);
        MUST(Is_Cut_Well(request.m_text, next));
        const auto stretch = std::u16string_view(request.m_text).substr(part.m_first, part.m_length);
        MUST(Written_Units(stretch, alphabet) == part.m_units);
        next += part.m_length;
    }
    MUST(next == request.m_text.size());
}

Received_Part Part_Of(const Submit_Frame& frame)
{
    Received_Part part;
    part.m_shown.m_number = frame.m_number;
    part.m_shown.m_text = frame.Text();
    part.m_alphabet = frame.m_coding.m_alphabet;
    part.m_units = frame.m_units;
    if (frame.m_concatenation) {
        part.m_shown.m_part = frame.m_concatenation->m_part;
        part.m_shown.m_parts = frame.m_concatenation->m_parts;
        part.m_shown.m_reference = frame.m_concatenation->m_reference;
    }
    return part;
}

Received_Part Check_Frame(const Submit_Request& request, const Submit_Frames& frames, std::size_t at, Alphabet alphabet)
{
    const Encoded_Frame& encoded = frames.m_frames[at];
    const Submit_Result result = Decode_Submit(encoded.m_hex);
    if (!result.m_frame)
        Must(false, result.m_reason.c_str(), __FILE__, __LINE__);
    const Submit_Frame& frame = *result.m_frame;
    MUST(frame.m_tpdu_octets == encoded.m_tpdu_octets);
    MUST(frame.m_centre_octets + frame.m_tpdu_octets == encoded.m_hex.size() / 2);
    MUST(frame.m_coding.m_alphabet == alphabet && frame.m_coding.m_class == (request.m_flash ? 0 : -1));
    MUST(frame.m_status_report == request.m_status_report && frame.m_smsc == As_Said(request.m_service_centre));
    MUST(frame.m_concatenation.has_value() == (frames.m_parts.size() > 1));
    MUST(!frame.m_concatenation || (frame.m_concatenation->m_reference == request.m_reference &&
                                    frame.m_concatenation->m_part == static_cast<int>(at + 1) &&
                                    frame.m_concatenation->m_parts == static_cast<int>(frames.m_parts.size())));
    const Text_Part& part = frames.m_parts[at];
    const auto stretch = std::u16string_view(request.m_text).substr(part.m_first, part.m_length);
    MUST(frame.Text() == Utf8(Written_Text(stretch, alphabet)));
    return Part_Of(frame);
}

// In whatever order the parts arrive.
void Check_Message(const Submit_Request& request, const Submit_Frames& frames, bool is_reversed)
{
    const Alphabet alphabet = Alphabet_For(request.m_text, request.m_choice);
    Check_Parts(request, frames.m_parts, alphabet);
    std::vector<Received_Part> parts;
    for (std::size_t at = 0; at < frames.m_frames.size(); ++at)
        parts.push_back(Check_Frame(request, frames, at, alphabet));
    if (is_reversed)
        std::reverse(parts.begin(), parts.end());
    Message_Joiner joiner;
    std::optional<Handset_Message> message;
    for (const Received_Part& part : parts) {
        MUST(!message);
        message = joiner.Take(part);
    }
    MUST(message && message->m_text == Utf8(Written_Text(request.m_text, alphabet)));
    const bool is_as_written = Changed_Characters(request.m_text, alphabet).empty();
    MUST(is_as_written || request.m_choice != Alphabet_Choice::Fitting || alphabet == Alphabet::Ucs2);
    MUST(!is_as_written || message->m_text == Utf8(request.m_text));
}

bool Is_Fault_Of_Number(Submit_Fault fault)
{
    return fault == Submit_Fault::Number_Missing || fault == Submit_Fault::Number_Too_Long ||
           fault == Submit_Fault::Number_Not_Digits;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned choices = input.Octet();
    Submit_Request request;
    request.m_choice = static_cast<Alphabet_Choice>(choices % 3);
    request.m_flash = (choices & 0x10) != 0;
    request.m_status_report = (choices & 0x20) != 0;
    request.m_reference = static_cast<std::uint8_t>(input.Octet());
    const std::string number = input.Text().toStdString();
    request.m_destination = Destination_Of(number);
    request.m_service_centre = input.Text().toStdString();
    request.m_text = Fuzz_Input::Text_Of(input.Document(64 * 1024)).toStdU16String();
    const Submit_Frames frames = Encode_Submit(request);
    MUST(Is_Fault_Of_Number(frames.m_fault) == !Is_Address(number));
    MUST(frames.m_parts.size() == frames.m_frames.size() && frames.m_parts.size() <= Most_Parts);
    MUST(frames.m_frames.empty() == (frames.m_fault != Submit_Fault::None));
    const bool is_sendable =
        Is_Address(number) && (request.m_service_centre.empty() || Is_Address(request.m_service_centre));
    MUST(is_sendable == (frames.m_fault == Submit_Fault::None || frames.m_fault == Submit_Fault::Too_Many_Parts));
    if (frames.m_fault == Submit_Fault::None)
        Check_Message(request, frames, (choices & 0x40) != 0);
    return 0;
}
