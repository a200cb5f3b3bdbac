#include "handset/Address.h"
#include "handset/Unicode_Text.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

std::string Party(const Address& address)
{
    std::vector<std::uint8_t> octets;
    Append_Party(octets, address);
    return Hex_Of_Octets(octets);
}

std::string Centre(const Address& address)
{
    std::vector<std::uint8_t> octets;
    Append_Service_Centre(octets, address);
    return Hex_Of_Octets(octets);
}

} // namespace

TEST(Address, A_Number_With_A_Plus_Or_Two_Zeros_In_Front_Is_An_International_One)
{
    const std::vector<std::tuple<std::string, std::string, bool>> cases = {
        {"+447700900102", "447700900102", true},
        {"00447700900102", "447700900102", true},
        {"07700900102", "07700900102", false},
        {"447700900102", "447700900102", false},
        {"0", "0", false},
        {"00", "", true},
        {"+", "", true},
        {"", "", false},
        {"+0044", "0044", true}, // one of the two alone is taken off
        {"*100#", "*100#", false},
    };
    for (const auto& [number, digits, international] : cases)
        EXPECT_EQ(Destination_Of(number), (Address{digits, international})) << number;
}

TEST(Address, What_No_Frame_Can_Carry_Is_A_Fault)
{
    const std::vector<std::tuple<std::string, Address_Fault>> cases = {
        {"1", Address_Fault::None},
        {"0123456789*#abc", Address_Fault::None},
        {"12345678901234567890", Address_Fault::None},
        {"", Address_Fault::No_Digits},
        {"123456789012345678901", Address_Fault::Too_Long},
        {"12 34", Address_Fault::Not_Digits},
        {"12-34", Address_Fault::Not_Digits},
        {"+12", Address_Fault::Not_Digits}, // Destination_Of has taken off the sign in front
        {"d", Address_Fault::Not_Digits},
        {"A", Address_Fault::Not_Digits},
        {std::string("1\0", 2), Address_Fault::Not_Digits},
        {"\u0661\u0662", Address_Fault::Not_Digits}, // digits of another script
    };
    for (const auto& [digits, fault] : cases)
        EXPECT_EQ(Fault_Of({digits, false}), fault) << digits;
}

// 3GPP TS 23.040 9.1.2.3 and 9.1.2.5: the count of digits, the type, and pairs whose first digit is the low semi-octet.
TEST(Address, A_Destination_Counts_Its_Digits)
{
    EXPECT_EQ(Party({"15550001234", true}), "0B915155001032F4"); // odd: a fill in the last high semi-octet
    EXPECT_EQ(Party({"0123456789", false}), "0A811032547698");
    EXPECT_EQ(Party({"5", false}), "0181F5");
    EXPECT_EQ(Party({"0123456789*#abc", false}), "0F811032547698BADCFE");
    EXPECT_EQ(Party({"01234567890123456789", true}), "149110325476981032547698");
}

// 24.011 8.2.5.2, as 27.005 3.1 puts it in front of a frame: the count of octets, the type's among them.
TEST(Address, A_Service_Centre_Counts_Its_Octets)
{
    EXPECT_EQ(Centre({"15550009999", true}), "07915155009099F9");
    EXPECT_EQ(Centre({"1555000999", false}), "06815155009099");
    EXPECT_EQ(Centre({"1", false}), "0281F1");
}

TEST(Address, What_Is_Written_Is_Read_Back)
{
    const std::string all = "0123456789*#abc01234";
    for (std::size_t length = 1; length <= Most_Address_Digits; ++length) {
        for (const bool international : {false, true}) {
            const Address address{all.substr(all.size() - length), international};
            const std::string shown = (international ? "+" : "") + address.m_digits;
            const auto party = Octets_Of_Hex(Party(address)).value();
            Octet_Cursor party_cursor(party);
            EXPECT_EQ(Read_Party(party_cursor, "recipient"), shown);
            const auto centre = Octets_Of_Hex(Centre(address)).value();
            Octet_Cursor centre_cursor(centre);
            EXPECT_EQ(Read_Service_Centre(centre_cursor), shown);
            EXPECT_EQ(party_cursor.Left() + centre_cursor.Left(), 0u);
        }
    }
}
