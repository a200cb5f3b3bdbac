#include "phone/Json_Line.h"

#include "handset/Unicode_Text.h"

namespace Handset {

namespace {

// The longest well-formed character at the front, or one byte that is none.
std::size_t Length_Of_First(std::string_view utf8)
{
    for (std::size_t length = 1; length <= 4 && length <= utf8.size(); ++length) {
        if (Code_Points_Of(utf8.substr(0, length)))
            return length;
    }
    return 0;
}

std::string Escaped_Unit(char32_t character)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string escaped = "\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        escaped += digits[(character >> shift) & 0xF];
    return escaped;
}

std::string Escaped(char32_t character)
{
    switch (character) {
    case U'"':
        return "\\\"";
    case U'\\':
        return "\\\\";
    case U'\b':
        return "\\b";
    case U'\f':
        return "\\f";
    case U'\n':
        return "\\n";
    case U'\r':
        return "\\r";
    case U'\t':
        return "\\t";
    default:
        break;
    }
    if (character < 0x20 || character == 0x7F || character == 0x2028 || character == 0x2029)
        return Escaped_Unit(character);
    std::string plain;
    Append_Code_Point(plain, character);
    return plain;
}

std::string Number_Or_Null(int number)
{
    return number < 0 ? "null" : std::to_string(number);
}

// The fields that a part and a message share.
template <typename Received>
std::string Shared_Fields(const Received& received)
{
    return "\"number\":" + Json_Text(received.m_number) + ",\"text\":" + Json_Text(received.m_text) +
           ",\"alphabet\":" + Json_Text(received.m_alphabet) + ",\"class\":" + Number_Or_Null(received.m_class) +
           ",\"parts\":" + std::to_string(received.m_parts) + ",\"reference\":" + Number_Or_Null(received.m_reference) +
           ",\"smsc\":" + Json_Text(received.m_smsc) + ",\"dcs\":" + std::to_string(received.m_dcs) +
           ",\"mode\":" + Json_Text(received.m_text_mode ? "text" : "pdu");
}

} // namespace

std::string Json_Text(std::string_view utf8)
{
    std::string text = "\"";
    while (!utf8.empty()) {
        const std::size_t length = Length_Of_First(utf8);
        if (length == 0)
            Append_Code_Point(text, 0xFFFD);
        else
            text += Escaped(Code_Points_Of(utf8.substr(0, length))->front());
        utf8.remove_prefix(length == 0 ? 1 : length);
    }
    return text + "\"";
}

std::string Json_Line(const Handset_Part& part)
{
    return "{\"event\":\"part\"," + Shared_Fields(part) + ",\"part\":" + std::to_string(part.m_part) +
           ",\"pdu\":" + Json_Text(part.m_pdu) + "}";
}

std::string Json_Line(const Handset_Message& message)
{
    return "{\"event\":\"message\"," + Shared_Fields(message) + "}";
}

} // namespace Handset
