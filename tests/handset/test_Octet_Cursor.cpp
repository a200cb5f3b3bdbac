#include "handset/Octet_Cursor.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Handset;

TEST(Octet_Cursor, Octets_Come_In_Order)
{
    const std::vector<std::uint8_t> octets = {1, 2, 3, 4};
    Octet_Cursor cursor(octets);
    EXPECT_EQ(cursor.Octet("a"), 1);
    EXPECT_EQ(cursor.Octets(2, "b").back(), 3);
    EXPECT_EQ(cursor.Left(), 1u);
    EXPECT_EQ(cursor.Octet("c"), 4);
    EXPECT_FALSE(cursor.Has_Failed());
}

TEST(Octet_Cursor, Reading_Past_The_End_Fails_With_The_Field_And_Gives_Nothing)
{
    const std::vector<std::uint8_t> octets = {1};
    Octet_Cursor cursor(octets);
    EXPECT_TRUE(cursor.Octets(2, "validity period").empty());
    EXPECT_EQ(cursor.Reason(), "validity period: the frame ends too early");
    EXPECT_EQ(cursor.Octet("later"), 0) << "nothing is read after a failure";
    cursor.Fail("later");
    EXPECT_EQ(cursor.Reason(), "validity period: the frame ends too early") << "the first reason stays";
}
