#include "phone/Message_Request.h"

#include "handset/Gsm_Alphabet.h"
#include "handset/Unicode_Text.h"

#include <algorithm>
#include <array>
#include <vector>

namespace Handset {

namespace {

constexpr int Submit_With_Validity = 0x11;
constexpr int Four_Days = 167; // TP-VP, 23.040 9.2.3.12.1

void Append_Septets(std::vector<int>& septets, char32_t character)
{
    const auto code = std::find(Gsm_Default_Table.begin(), Gsm_Default_Table.end(), character);
    if (code != Gsm_Default_Table.end()) {
        septets.push_back(int(code - Gsm_Default_Table.begin()));
        return;
    }
    const auto extended = std::find_if(Gsm_Extension_Table.begin(), Gsm_Extension_Table.end(),
                                       [=](const Extension_Row& row) { return row.m_character == character; });
    if (extended != Gsm_Extension_Table.end())
        septets.push_back(Gsm_Escape);
    septets.push_back(extended == Gsm_Extension_Table.end() ? '?' : extended->m_code);
}

// 23.038 6.1.2.1
void Put_Packed(Frame_Writer& frame, const std::string& text)
{
    std::vector<int> septets;
    for (const char32_t character : Code_Points_Of(text).value_or(std::u32string()))
        Append_Septets(septets, character);
    frame.Put_Octet(int(septets.size()));
    int bits = 0;
    int waiting = 0;
    for (const int septet : septets) {
        bits |= septet << waiting;
        waiting += 7;
        if (waiting < 8)
            continue;
        frame.Put_Octet(bits & 0xFF);
        bits >>= 8;
        waiting -= 8;
    }
    if (waiting > 0)
        frame.Put_Octet(bits);
}

void Put_User_Data(Frame_Writer& frame, const Received_Part& part)
{
    const std::string& text = part.m_shown.m_text;
    if (part.m_alphabet == Alphabet::Gsm_7_Bit) {
        Put_Packed(frame, text);
    } else if (part.m_alphabet == Alphabet::Ucs2) {
        frame.Put_Octet(int(Hex_Utf16_Of(text).size() / 2));
        frame.Put_Ucs2(text);
    } else {
        frame.Put_Octet(int(part.m_units.size()));
        for (const auto unit : part.m_units)
            frame.Put_Octet(unit);
    }
}

Stored_Message From_Text(const Received_Part& part, Message_Status status)
{
    Frame_Writer frame;
    frame.Put_Centre({});
    frame.Put_Octet(Submit_With_Validity);
    frame.Put_Octet(0);
    frame.Put_Address(part.m_shown.m_number);
    frame.Put_Octet(part.m_shown.m_protocol);
    frame.Put_Octet(part.m_shown.m_dcs);
    frame.Put_Octet(Four_Days);
    Put_User_Data(frame, part);
    return {status, frame.Hex(), int(frame.Tpdu_Octets()), {}, {}};
}

std::optional<Stored_Message> From_Pdu(std::string_view body, const Message_Request& request)
{
    std::string hex(body);
    std::erase_if(hex, [](char letter) { return letter == '\r' || letter == '\n' || letter == ' '; });
    const auto octets = Octets_Of_Hex(hex);
    if (!octets || octets->empty() || octets->size() != 1u + octets->front() + std::size_t(request.m_announced))
        return std::nullopt;
    return Stored_Message{request.m_status, hex, request.m_announced, {}, {}};
}

bool Is_Received(Message_Status status)
{
    return status == Message_Status::Unread || status == Message_Status::Read;
}

// A number in PDU mode, a name in quotes in text mode.
std::optional<Message_Status> Status_Of(std::string_view text, bool is_text_format)
{
    constexpr std::array<std::string_view, 4> names = {"REC UNREAD", "REC READ", "STO UNSENT", "STO SENT"};
    const auto name = std::find(names.begin(), names.end(), Unquoted(text).value_or(""));
    const auto number = is_text_format ? std::optional(int(name - names.begin())) : Number_Of(text);
    return number && *number < int(names.size()) ? std::optional(Message_Status(*number)) : std::nullopt;
}

// <length>[,<stat>]
std::optional<Message_Request> Pdu_Request(const std::vector<std::string_view>& arguments, Message_Request request)
{
    constexpr int longest = 255;
    request.m_announced = Number_Of(arguments.front()).value_or(0);
    const bool is_announced = request.m_announced >= 1 && request.m_announced <= longest;
    return is_announced ? std::optional(request) : std::nullopt;
}

// <da>[,<toda>[,<stat>]]
std::optional<Message_Request> Text_Request(const std::vector<std::string_view>& arguments, Message_Request request,
                                            const Phone_Settings& settings)
{
    if (request.m_is_draft && arguments.front().empty())
        return request;
    const auto quoted = Unquoted(arguments.front());
    const auto type = arguments.size() > 1 ? arguments[1] : std::string_view();
    request.m_number = quoted ? settings.Number(*quoted, type) : std::string();
    return request.m_number.empty() ? std::nullopt : std::optional(request);
}

} // namespace

std::optional<Message_Request> Request_Of(std::string_view argument, bool is_draft, const Phone_Settings& settings)
{
    const bool is_text = settings.Is_Text_Format();
    const auto arguments = Arguments_Of(argument);
    const std::size_t without_status = is_text ? 2 : 1;
    Message_Request request;
    request.m_is_draft = is_draft;
    if (arguments.size() > without_status + (is_draft ? 1 : 0))
        return std::nullopt;
    if (arguments.size() > without_status) {
        const auto status = Status_Of(arguments.back(), is_text);
        if (!status)
            return std::nullopt;
        request.m_status = *status;
    }
    return is_text ? Text_Request(arguments, request, settings) : Pdu_Request(arguments, request);
}

Draft Draft_Of(std::string_view body, const Message_Request& request, const Phone_Settings& settings)
{
    const bool is_text = settings.Is_Text_Format();
    const Submission submission = is_text ? Submission_Of_Text(body, request.m_number, settings)
                                          : Submission_Of_Pdu(body, request.m_announced, settings);
    std::optional<Stored_Message> kept;
    if (!is_text && (submission.m_part || Is_Received(request.m_status)))
        kept = From_Pdu(body, request);
    else if (submission.m_part)
        kept = From_Text(*submission.m_part, request.m_status);
    if (!kept)
        return {std::nullopt, submission.m_error};
    const Handset_Part shown = submission.m_part ? submission.m_part->m_shown : Handset_Part();
    kept->m_text_head = "\"" + shown.m_number + "\",,";
    kept->m_text = shown.m_text;
    return {kept, {}};
}

} // namespace Handset
