#include "handset/Gsm_Alphabet.h"
#include "handset/Submit_Encoder.h"
#include "handset/Submit_Vectors.h"
#include "handset/Utf16.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

Submit_Request Request(const std::u16string& text, const std::string& number = "+15550001234")
{
    Submit_Request request;
    request.m_destination = Destination_Of(number);
    request.m_text = text;
    return request;
}

std::string Only_Frame(const Submit_Request& request)
{
    const auto result = Encode_Submit(request);
    EXPECT_EQ(result.m_fault, Submit_Fault::None);
    EXPECT_EQ(result.m_frames.size(), 1u);
    return result.m_frames.empty() ? "" : result.m_frames.front().m_hex;
}

std::vector<std::string> Hex_Of(const Submit_Request& request)
{
    std::vector<std::string> frames;
    for (const auto& frame : Encode_Submit(request).m_frames)
        frames.push_back(frame.m_hex);
    return frames;
}

// Septets written bit by bit, each with its lowest bit first, and octets made of eight such bits (3GPP TS 23.038
// 6.1.2.1.1).
std::string Packed_Bit_By_Bit(const std::vector<std::uint8_t>& septets, std::size_t fill_bits)
{
    std::vector<bool> bits(fill_bits, false);
    for (const std::uint8_t septet : septets) {
        for (int bit = 0; bit < 7; ++bit)
            bits.push_back((septet >> bit & 1) != 0);
    }
    bits.resize((bits.size() + 7) / 8 * 8, false);
    std::vector<std::uint8_t> octets(bits.size() / 8);
    for (std::size_t at = 0; at < bits.size(); ++at)
        octets[at / 8] = std::uint8_t(octets[at / 8] | (bits[at] ? 1 << at % 8 : 0));
    return Hex_Of_Octets(octets);
}

} // namespace

TEST(Submit_Encoder, Writes_The_Vectors_Of_Its_Own_Form_Octet_For_Octet)
{
    std::size_t written = 0;
    std::map<std::string, std::string> vectors;
    for (const auto& vector : Read_Submit_Vectors()) {
        vectors[vector.m_name] = vector.m_pdu;
        auto request = Request(Utf16_Of(vector.m_text));
        if (vector.m_name.starts_with("ucs2")) // whose text would fit the default alphabet
            request.m_choice = Alphabet_Choice::Ucs2;
        request.m_flash = vector.m_name == "flash" || vector.m_name == "ucs2flash";
        if (vector.m_name == "flash") {
            request.m_service_centre = "+15550009999";
            request.m_destination = Destination_Of("0123456789");
        }
        // Those left out have another header, validity, first octet or type of number.
        if (vector.m_name.starts_with("cat") || vector.m_name == "novp" || vector.m_name == "srr-rd" ||
            vector.m_name == "natnl")
            continue;
        EXPECT_EQ(Only_Frame(request), vector.m_pdu) << vector.m_name;
        ++written;
    }
    EXPECT_EQ(written, 12u);

    auto text = std::u16string();
    for (const auto& vector : Read_Submit_Vectors())
        text += vector.m_name.starts_with("cat8bit") ? Utf16_Of(vector.m_text) : u"";
    auto request = Request(text);
    request.m_reference = 0x34;
    EXPECT_EQ(Hex_Of(request), (std::vector<std::string>{vectors.at("cat8bit-1"), vectors.at("cat8bit-2")}));
}

TEST(Submit_Encoder, The_Announced_Length_Leaves_The_Service_Centre_Out)
{
    auto request = Request(u"hello");
    EXPECT_EQ(Encode_Submit(request).m_frames.at(0).m_tpdu_octets, 19u);
    request.m_service_centre = "+15550009999";
    const auto frame = Encode_Submit(request).m_frames.at(0);
    EXPECT_EQ(frame.m_hex, "07915155009099F911000B915155001032F40000FF05E8329BFD06");
    EXPECT_EQ(frame.m_tpdu_octets, 19u); // 27.005 4.3
}

TEST(Submit_Encoder, A_Service_Centre_With_A_Plus_Or_Two_Zeros_Is_An_International_One)
{
    const std::vector<std::tuple<std::string, std::string>> cases = {{"", "00"},
                                                                     {"+15550009999", "07915155009099F9"},
                                                                     {"0015550009999", "07915155009099F9"},
                                                                     {"15550009999", "07815155009099F9"},
                                                                     {"1555000999", "06815155009099"}};
    for (const auto& [centre, octets] : cases) {
        auto request = Request(u"");
        request.m_service_centre = centre;
        EXPECT_EQ(Only_Frame(request), octets + "11000B915155001032F40000FF00") << centre;
    }
}

// 23.040 9.2.3.5: bit 5 of the first octet, beside the header's bit 6.
TEST(Submit_Encoder, A_Report_Is_Asked_For_In_Every_Part)
{
    auto request = Request(u"hello");
    request.m_status_report = true;
    EXPECT_EQ(Only_Frame(request), "0031000B915155001032F40000FF05E8329BFD06");
    request.m_text = 400 * std::u16string(u"a");
    for (const auto& frame : Hex_Of(request))
        EXPECT_EQ(frame.substr(0, 4), "0071");
}

// 23.038 4.
TEST(Submit_Encoder, The_Data_Coding_Says_Alphabet_And_Class)
{
    EXPECT_EQ(Data_Coding_Of(Alphabet::Gsm_7_Bit, false), 0);
    EXPECT_EQ(Data_Coding_Of(Alphabet::Ucs2, false), 8);
    EXPECT_EQ(Data_Coding_Of(Alphabet::Gsm_7_Bit, true), 16);
    EXPECT_EQ(Data_Coding_Of(Alphabet::Ucs2, true), 24);
    for (const bool flash : {false, true}) {
        for (const auto choice : {Alphabet_Choice::Gsm_7_Bit, Alphabet_Choice::Ucs2}) {
            auto request = Request(u"hello");
            request.m_flash = flash;
            request.m_choice = choice;
            const auto coding = Data_Coding_Of(Alphabet_For(request.m_text, choice), flash);
            EXPECT_EQ(Only_Frame(request).substr(24, 2), Hex_Of_Octets({&coding, 1}));
        }
    }
}

// 23.040 9.2.3.24.1 and figure 9.2.3.24 (a): six octets of header, one fill bit, 153 septets.
TEST(Submit_Encoder, Seven_Bit_Parts_Have_Their_Header_And_One_Fill_Bit)
{
    auto request = Request(161 * std::u16string(u"a"));
    request.m_reference = 0xC8;
    const std::string head = "0051000B915155001032F40000FF";
    EXPECT_EQ(Hex_Of(request),
              (std::vector<std::string>{
                  head + "A0" + "050003C80201" + Packed_Bit_By_Bit(std::vector<std::uint8_t>(153, 0x61), 1),
                  head + "0F" + "050003C80202" + Packed_Bit_By_Bit(std::vector<std::uint8_t>(8, 0x61), 1)}));
    EXPECT_EQ(Encode_Submit(request).m_parts, Cut_Text(request.m_text, Alphabet::Gsm_7_Bit));
}

TEST(Submit_Encoder, Ucs2_Parts_Have_Their_Header_And_Count_Octets)
{
    auto request = Request(71 * std::u16string(u"\u0436"));
    request.m_reference = 255;
    const auto units = [](int count) {
        std::string hex;
        for (int i = 0; i < count; ++i)
            hex += "0436";
        return hex;
    };
    const std::string head = "0051000B915155001032F40008FF";
    EXPECT_EQ(Hex_Of(request), (std::vector<std::string>{head + "8C" + "050003FF0201" + units(67),
                                                         head + "0E" + "050003FF0202" + units(4)}));
}

TEST(Submit_Encoder, Septets_Are_Packed_Alike_For_Every_Count_And_Every_Fill)
{
    std::vector<std::uint8_t> septets;
    for (std::size_t count = 0; count <= 160; ++count) {
        for (std::size_t fill = 0; fill < 7; ++fill)
            EXPECT_EQ(Hex_Of_Octets(Pack_Septets(septets, fill)), Packed_Bit_By_Bit(septets, fill)) << count;
        septets.push_back(std::uint8_t((count * 37 + 5) % 128));
    }
}

TEST(Submit_Encoder, A_Forced_Default_Alphabet_Writes_A_Question_Mark)
{
    auto request = Request(Utf16_Of("gar\u00E7on \U0001F600"));
    request.m_choice = Alphabet_Choice::Gsm_7_Bit;
    EXPECT_EQ(Only_Frame(request), Only_Frame(Request(u"gar?on ?")));
}

TEST(Submit_Encoder, Lone_Surrogates_Go_Out_As_The_Replacement_Character)
{
    EXPECT_EQ(Only_Frame(Request(std::u16string(1, char16_t(0xD83D)) + u"A")),
              "0011000B915155001032F40008FF04FFFD0041");
}

TEST(Submit_Encoder, What_Cannot_Be_Written_Is_A_Fault_Without_Frames)
{
    const std::vector<std::tuple<std::string, std::string, Submit_Fault>> cases = {
        {"", "", Submit_Fault::Number_Missing},
        {"+", "", Submit_Fault::Number_Missing},
        {"00", "", Submit_Fault::Number_Missing},
        {"123456789012345678901", "", Submit_Fault::Number_Too_Long},
        {"+1 555", "", Submit_Fault::Number_Not_Digits},
        {"1", "+", Submit_Fault::Centre_Missing},
        {"1", "123456789012345678901", Submit_Fault::Centre_Too_Long},
        {"1", "one", Submit_Fault::Centre_Not_Digits},
        {"one", "one", Submit_Fault::Number_Not_Digits},
    };
    for (const auto& [number, centre, fault] : cases) {
        auto request = Request(u"hello", number);
        request.m_service_centre = centre;
        const auto result = Encode_Submit(request);
        EXPECT_EQ(result.m_fault, fault) << number << " " << centre;
        EXPECT_TRUE(result.m_frames.empty() && result.m_parts.empty());
    }
}

TEST(Submit_Encoder, A_Message_Has_At_Most_255_Parts)
{
    const auto longest = Encode_Submit(Request((255 * 153) * std::u16string(u"a")));
    ASSERT_EQ(longest.m_frames.size(), 255u);
    EXPECT_EQ(longest.m_frames.back().m_hex.substr(30, 12), "05000300FFFF");
    const auto longer = Encode_Submit(Request((255 * 153 + 1) * std::u16string(u"a")));
    EXPECT_EQ(longer.m_fault, Submit_Fault::Too_Many_Parts);
    EXPECT_TRUE(longer.m_frames.empty() && longer.m_parts.empty());
}

TEST(Text_Mode_Body, Is_Four_Digits_For_Each_Unit_As_It_Is_Written)
{
    EXPECT_EQ(Text_Mode_Body(u"", Alphabet::Gsm_7_Bit), "");
    EXPECT_EQ(Text_Mode_Body(u"aO\u20AC", Alphabet::Gsm_7_Bit), "0061004F20AC");
    EXPECT_EQ(Text_Mode_Body(Utf16_Of("\u00E7\U0001F600"), Alphabet::Ucs2), "00E7D83DDE00");
    EXPECT_EQ(Text_Mode_Body(Utf16_Of("\u00E7\U0001F600!"), Alphabet::Gsm_7_Bit), "003F003F0021");
}
