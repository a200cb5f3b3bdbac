#include "handset/Submit_Decoder.h"

#include "handset/Submit_Vectors.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

Submit_Frame Frame_Of(const std::string& hex)
{
    const auto result = Decode_Submit(hex);
    EXPECT_EQ(result.m_reason, "") << hex;
    return result.m_frame.value_or(Submit_Frame());
}

} // namespace

TEST(Submit_Decoder, Every_Vector_Decodes_To_Its_Text)
{
    const auto vectors = Read_Submit_Vectors();
    ASSERT_EQ(vectors.size(), 21u);
    for (const auto& vector : vectors) {
        const auto frame = Frame_Of(vector.m_pdu);
        EXPECT_EQ(frame.Text(), vector.m_text) << vector.m_name;
        EXPECT_EQ(frame.m_centre_octets, vector.m_centre_octets) << vector.m_name;
        EXPECT_EQ(frame.m_tpdu_octets, vector.m_pdu.size() / 2 - vector.m_centre_octets) << vector.m_name;
    }
}

TEST(Submit_Decoder, Every_Truncation_Of_Every_Vector_Is_Refused_With_A_Reason)
{
    for (const auto& vector : Read_Submit_Vectors()) {
        for (std::size_t length = 0; length < vector.m_pdu.size(); ++length) {
            const auto result = Decode_Submit(vector.m_pdu.substr(0, length));
            EXPECT_FALSE(result.m_frame) << vector.m_name << " " << length;
            EXPECT_NE(result.m_reason, "") << vector.m_name << " " << length;
        }
    }
}

TEST(Submit_Decoder, No_Changed_Octet_Of_Any_Vector_Does_Harm)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::size_t refused = 0;
    std::size_t taken = 0;
    for (const auto& vector : Read_Submit_Vectors()) {
        for (std::size_t at = 0; at < vector.m_pdu.size(); ++at) {
            for (const char digit : digits) {
                auto changed = vector.m_pdu;
                changed[at] = digit;
                const auto result = Decode_Submit(changed);
                EXPECT_NE(result.m_frame.has_value(), !result.m_reason.empty()) << changed;
                (result.m_frame ? taken : refused) += 1;
            }
        }
    }
    EXPECT_GT(refused, 1000u);
    EXPECT_GT(taken, 1000u);
}

TEST(Submit_Decoder, A_Plain_Message_Says_All_Its_Fields)
{
    const auto frame = Frame_Of("07915155009099F911000A8110325476980010FF05E8329BFD06");
    EXPECT_EQ(frame.m_smsc, "+15550009999");
    EXPECT_EQ(frame.m_number, "0123456789");
    EXPECT_EQ(frame.m_first_octet, 0x11);
    EXPECT_EQ(frame.m_message_reference, 0);
    EXPECT_EQ(frame.m_protocol, 0);
    EXPECT_EQ(frame.m_coding.m_class, 0);
    EXPECT_EQ(frame.m_validity_format, Validity_Format::Relative);
    EXPECT_EQ(frame.m_validity, std::vector<std::uint8_t>{0xFF});
    EXPECT_EQ(frame.m_tpdu_octets, 18u);
    EXPECT_FALSE(frame.m_concatenation);
    EXPECT_FALSE(frame.m_has_header);
}

TEST(Submit_Decoder, The_First_Octet_Says_Its_Flags)
{
    EXPECT_TRUE(Frame_Of("0035000B915155001032F40000FF05E8329BFD06").m_reject_duplicates);
    EXPECT_TRUE(Frame_Of("0035000B915155001032F40000FF05E8329BFD06").m_status_report);
    EXPECT_TRUE(Frame_Of("0091000B915155001032F40000FF05E8329BFD06").m_reply_path);
    EXPECT_FALSE(Frame_Of("0011000B915155001032F40000FF05E8329BFD06").m_reply_path);
}

TEST(Submit_Decoder, All_Four_Validity_Formats_Are_Read)
{
    EXPECT_EQ(Frame_Of("0001000B915155001032F4000005E8329BFD06").m_validity_format, Validity_Format::None);
    EXPECT_EQ(Frame_Of("0011000B915155001032F40000A705E8329BFD06").m_validity, std::vector<std::uint8_t>{0xA7});
    const auto enhanced = Frame_Of("0009000B915155001032F400000102000000000005E8329BFD06");
    EXPECT_EQ(enhanced.m_validity_format, Validity_Format::Enhanced);
    EXPECT_EQ(enhanced.m_validity.size(), 7u);
    EXPECT_EQ(enhanced.Text(), "hello");
    const auto absolute = Frame_Of("0019000B915155001032F400006211025183700005E8329BFD06");
    EXPECT_EQ(absolute.m_validity_format, Validity_Format::Absolute);
    EXPECT_EQ(absolute.m_validity.front(), 0x62);
    EXPECT_EQ(absolute.Text(), "hello");
}

TEST(Submit_Decoder, Destinations_Of_Every_Type_Are_Read)
{
    const std::vector<std::tuple<std::string, std::string>> cases = {
        {"0B91 5155001032F4", "+15550001234"}, // international, odd
        {"0A81 1032547698", "0123456789"},     // unknown type, even
        {"0AA1 5550002143", "5505001234"},     // national
        {"01 81 F5", "5"},
        {"0F81 1032547698BADCFE", "0123456789*#abc"}, // every semi-octet, the fill behind an odd count
        {"1491 01234567890123456789", "+10325476981032547698"},
        // Seven-bit text. Five septets are 35 bits in nine semi-octets, a tenth for the last octet's other half.
        {"09D0 E8329BFD06", "hello"},
        {"0ED0 31D98C56B3DD70", "12345678"},
    };
    for (const auto& [field, number] : cases) {
        std::string hex = field;
        std::erase(hex, ' ');
        EXPECT_EQ(Frame_Of("001100" + hex + "0000FF00").m_number, number) << field;
    }
}

TEST(Submit_Decoder, Service_Centres_Of_Even_And_Odd_Length_Are_Read)
{
    EXPECT_EQ(Frame_Of("0691515500904911000B915155001032F40000FF00").m_smsc, "+1555000994");
    EXPECT_EQ(Frame_Of("0681515500904911000B915155001032F40000FF00").m_smsc, "1555000994");
    EXPECT_EQ(Frame_Of("068151550090F911000B915155001032F40000FF00").m_smsc, "155500099");
}

TEST(Submit_Decoder, Both_Widths_Of_Concatenation_Are_Read_And_Other_Header_Elements_Skipped)
{
    const struct
    {
        const char* data;
        int reference;
        bool is_wide;
        int parts, part;
    } rows[] = {
        {"09060804123403020041", 0x1234, true, 3, 2},
        {"080500033402010041", 0x34, false, 2, 1},
        {"0E0B05041582000000033402020041", 0x34, false, 2, 2}, // behind an application port element
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.data);
        const auto frame = Frame_Of("0051000B915155001032F40008FF" + std::string(row.data));
        ASSERT_TRUE(frame.m_concatenation);
        EXPECT_EQ(frame.m_concatenation->m_reference, row.reference);
        EXPECT_EQ(frame.m_concatenation->m_wide, row.is_wide);
        EXPECT_EQ(frame.m_concatenation->m_parts, row.parts);
        EXPECT_EQ(frame.m_concatenation->m_part, row.part);
        EXPECT_EQ(frame.Text(), "A");
    }
}

TEST(Submit_Decoder, A_Concatenation_That_Makes_No_Sense_Leaves_A_Single_Message)
{
    // No parts, part 0, a part past the last, an element that is too short; each with its user-data length.
    for (const char* data : {"080500033400010041", "080500033402000041", "080500033402030041", "0704000234020041"}) {
        const auto frame = Frame_Of("0051000B915155001032F40008FF" + std::string(data));
        EXPECT_FALSE(frame.m_concatenation) << data;
        EXPECT_EQ(frame.Text(), "A") << data;
    }
}

TEST(Submit_Decoder, Data_Of_Every_Alphabet_Are_Taken)
{
    EXPECT_EQ(Frame_Of("0011000B915155001032F40004FF0341FC42").Text(), "AüB");
    EXPECT_EQ(Frame_Of("0011000B915155001032F40008FF04D83D0041").Text(), "\uFFFDA"); // a lone surrogate
    const auto compressed = Frame_Of("0011000B915155001032F40020FF0341FC42");
    EXPECT_TRUE(compressed.m_coding.m_compressed);
    EXPECT_EQ(compressed.Text(), "");
}

TEST(Submit_Decoder, Malformed_Frames_Are_Refused_With_Their_Reason)
{
    const std::vector<std::tuple<std::string, std::string>> cases = {
        {"", "service centre: the frame ends too early"},
        {"0", "not pairs of hexadecimal digits"},
        {"0011000B9151-55001032F40000FF00", "not pairs of hexadecimal digits"},
        {"0191", "service centre: a length that no address has"},
        {"0C9100000000000000000000000000", "service centre: a length that no address has"},
        {"0711515500909911", "service centre: the type of address lacks its first bit"},
        {"07915155F09099F911000B915155001032F40000FF00", "service centre: a fill among its digits"},
        {"0010000B915155001032F40000FF00", "first octet: not an SMS-SUBMIT"},
        {"0012000B915155001032F40000FF00", "first octet: not an SMS-SUBMIT"},
        {"00110000810000FF00", "destination: no digits"},
        {"0011001591010101010101010101010101FF00", "destination: more than 20 digits"},
        {"0011000B115155001032F40000FF00", "destination: the type of address lacks its first bit"},
        {"0011000B915155001032440000FF00", "destination: no fill behind its digits"},
        {"0011000A9151550010F20000FF00", "destination: a fill among its digits"},
        {"0011000B915155001032F40000FFA1", "user-data length: more than 140 octets"},
        {"0011000B915155001032F40008FF8D", "user-data length: more than 140 octets"},
        {"0011000B915155001032F40000FF05E8329BFD", "user data: the frame ends too early"},
        {"0011000B915155001032F40000FF05E8329BFD0600", "user data: octets behind its end"},
        {"0051000B915155001032F40008FF00", "user-data header: the frame ends too early"},
        {"0051000B915155001032F40008FF020600", "user-data header: the frame ends too early"},
        {"0051000B915155001032F40008FF06050004340201", "user-data header: the frame ends too early"},
        {"0051000B915155001032F40008FF03020003", "user-data header: the frame ends too early"},
        // Six septets are six octets, just the header; its septets are seven.
        {"0051000B915155001032F40000FF06050003340201", "user-data length: shorter than its header"},
    };
    for (const auto& [hex, reason] : cases) {
        const auto result = Decode_Submit(hex);
        EXPECT_FALSE(result.m_frame) << hex;
        EXPECT_EQ(result.m_reason, reason) << hex;
    }
}
