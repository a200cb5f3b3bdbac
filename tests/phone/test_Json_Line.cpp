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

TEST(Json_Line, A_Part_Says_All_Its_Fields)
{
    const auto object = Read_Json_Object(Json_Line(Part_With("hi")));
    EXPECT_EQ(object.at("event").m_text, "part");
    EXPECT_EQ(object.at("number").m_text, "+15550001234");
    EXPECT_EQ(object.at("text").m_text, "hi");
    EXPECT_EQ(object.at("alphabet").m_text, "UCS2");
    EXPECT_EQ(object.at("class").m_number, 0);
    EXPECT_EQ(object.at("part").m_number, 2);
    EXPECT_EQ(object.at("parts").m_number, 3);
    EXPECT_EQ(object.at("reference").m_number, 0);
    EXPECT_EQ(object.at("smsc").m_text, "+15550009999");
    EXPECT_EQ(object.at("dcs").m_number, 24);
    EXPECT_EQ(object.at("mode").m_text, "pdu");
    EXPECT_EQ(object.at("pdu").m_text, "00");
    EXPECT_EQ(object.size(), 12u);
}

TEST(Json_Line, A_Message_Says_All_Its_Fields)
{
    Handset_Message message;
    message.m_number = "1";
    message.m_alphabet = "GSM 7-bit";
    message.m_text_mode = true;
    const auto object = Read_Json_Object(Json_Line(message));
    EXPECT_EQ(object.at("event").m_text, "message");
    EXPECT_EQ(object.at("mode").m_text, "text");
    EXPECT_TRUE(object.at("class").m_is_null);
    EXPECT_TRUE(object.at("reference").m_is_null);
    EXPECT_EQ(object.at("parts").m_number, 1);
    EXPECT_EQ(object.size(), 10u);
}
