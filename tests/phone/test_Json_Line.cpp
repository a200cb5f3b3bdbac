#include "phone/Json_Line.h"
#include "support/Strict_Json.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using namespace Handset;

namespace {

Handset_Part Part_With(const std::string& text)
{
    Handset_Part part;
    part.m_number = "+15550001234";
    part.m_text = text;
    part.m_alphabet = "UCS2";
    part.m_class = 0;
    part.m_part = 2;
    part.m_parts = 3;
    part.m_reference = 0;
    part.m_smsc = "+15550009999";
    part.m_dcs = 24;
    part.m_pdu = "00";
    return part;
}

} // namespace

TEST(Json_Line, Texts_Are_Escaped)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", R"("")"},
        {"plain Ω 😀", R"("plain Ω 😀")"},
        {"\"\\/", R"("\"\\/")"},
        {"\b\f\n\r\t", R"("\b\f\n\r\t")"},
        {std::string("\0\x01\x1A\x1F", 4), R"("\u0000\u0001\u001a\u001f")"},
        {"\x7F", R"("\u007f")"},
        {"\u2028\u2029", R"("\u2028\u2029")"},
        {"a\x80"
         "b\xC3",
         "\"a\uFFFDb\uFFFD\""},
        {"\xED\xA0\x80", "\"\uFFFD\uFFFD\uFFFD\""},
    };
    for (const auto& [text, json] : cases)
        EXPECT_EQ(Json_Text(text), json);
}

TEST(Json_Line, Every_Control_Character_Reads_Back_As_Itself)
{
    for (int code = 0; code < 0x80; ++code) {
        const std::string text = "a" + std::string(1, char(code)) + "b";
        const std::string line = Json_Line(Part_With(text));
        EXPECT_EQ(Read_Json_Object(line).at("text").m_text, text) << code;
        for (const char letter : line)
            EXPECT_GE(static_cast<unsigned char>(letter), 0x20) << code;
    }
}

TEST(Json_Line, A_Part_And_A_Message_Say_All_Their_Fields)
{
    EXPECT_EQ(Json_Line(Part_With("hi")),
              R"({"event":"part","number":"+15550001234","text":"hi","alphabet":"UCS2","class":0,"parts":3,)"
              R"("reference":0,"smsc":"+15550009999","dcs":24,"mode":"pdu","part":2,"pdu":"00"})");
    Handset_Message message;
    message.m_number = "1";
    message.m_alphabet = "GSM 7-bit";
    message.m_text_mode = true;
    EXPECT_EQ(Json_Line(message),
              R"({"event":"message","number":"1","text":"","alphabet":"GSM 7-bit","class":null,"parts":1,)"
              R"("reference":null,"smsc":"","dcs":0,"mode":"text"})");
}
