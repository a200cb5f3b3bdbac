#include "handset/Delivery_Status.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

using namespace Handset;

namespace {

struct Block
{
    int m_first;
    int m_last;
    Delivery m_delivery;
};

// 3GPP TS 23.040 9.2.3.15
constexpr Block Blocks[] = {
    {0x00, 0x1F, Delivery::Delivered},     // completed
    {0x20, 0x3F, Delivery::Still_Trying},  // temporary, the centre still tries
    {0x40, 0x5F, Delivery::Not_Delivered}, // permanent
    {0x60, 0x7F, Delivery::Not_Delivered}, // temporary, the centre tries no more
    {0x80, 0xFF, Delivery::Not_Delivered}, // reserved
};

std::string_view Reason_Of(int status)
{
    return Delivery_Status_Of(std::uint8_t(status)).m_reason;
}

} // namespace

TEST(Delivery_Status, Every_Octet_Has_The_Delivery_Of_Its_Block)
{
    int next = 0;
    for (const Block& block : Blocks) {
        EXPECT_EQ(block.m_first, next);
        for (; next <= block.m_last; ++next)
            EXPECT_EQ(Delivery_Status_Of(std::uint8_t(next)).m_delivery, block.m_delivery) << next;
    }
    EXPECT_EQ(next, 0x100);
}

TEST(Delivery_Status, Each_Code_Of_The_Standard_Has_A_Reason_Of_Its_Own_Within_Its_Block)
{
    const std::pair<int, int> codes[] = {{0x00, 0x02}, {0x20, 0x25}, {0x40, 0x49}, {0x60, 0x65}};
    for (const auto& [first, last] : codes) {
        std::set<std::string_view> reasons;
        for (int status = first; status <= last; ++status)
            EXPECT_TRUE(reasons.insert(Reason_Of(status)).second) << status;
    }
}

TEST(Delivery_Status, Only_A_Plain_Delivery_Needs_No_Words)
{
    EXPECT_EQ(Reason_Of(0x00), "");
    for (int status = 1; status <= 0xFF; ++status) {
        EXPECT_NE(Reason_Of(status), "") << status;
        EXPECT_LT(Reason_Of(status).size(), 60u) << status;
    }
    EXPECT_EQ(Reason_Of(0x46), "it was not delivered in time");
    EXPECT_EQ(Reason_Of(0x01), "passed on, but not confirmed");
}

TEST(Delivery_Status, Reserved_Codes_Count_As_Rejected_And_The_Networks_Own_Say_So)
{
    for (int status = 0x26; status <= 0x2F; ++status)
        EXPECT_EQ(Reason_Of(status), Reason_Of(0x23));
    for (int status = 0x66; status <= 0x6F; ++status)
        EXPECT_EQ(Reason_Of(status), Reason_Of(0x63));
    for (int status = 0x80; status <= 0xFF; ++status)
        EXPECT_EQ(Reason_Of(status), Reason_Of(0x63));
    for (int status = 0x4A; status <= 0x4F; ++status)
        EXPECT_EQ(Reason_Of(status), "rejected");
    for (int status : {0x30, 0x3F, 0x50, 0x5F, 0x70, 0x7F})
        EXPECT_EQ(Reason_Of(status), "a reason of the network's own");
}

TEST(Delivery_Status, Deliveries_Have_Names)
{
    EXPECT_EQ(Name_Of(Delivery::Delivered), "delivered");
    EXPECT_EQ(Name_Of(Delivery::Still_Trying), "still trying");
    EXPECT_EQ(Name_Of(Delivery::Not_Delivered), "not delivered");
}
