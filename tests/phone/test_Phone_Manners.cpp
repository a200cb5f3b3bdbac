#include "phone/Phone_Manners.h"

#include "phone/Phone_Talk.h"

#include <gtest/gtest.h>

using namespace Handset;

TEST(Phone_Manners, Blanks_And_Case_Count_Inside_Quotes_Alone)
{
    EXPECT_EQ(Normal_Command("at + cmgf = 1"), "AT+CMGF=1");
    EXPECT_EQ(Normal_Command("at+cscs=\"Ab c\" , x"), "AT+CSCS=\"Ab c\",X");
    EXPECT_EQ(Normal_Command("AT+CMGF=?\r\n"), "AT+CMGF=?");
    EXPECT_EQ(Normal_Command(""), "");
}

TEST(Phone_Manners, What_No_Row_Knows_Is_An_Error)
{
    const Phone_Manners manners{Phone_Moods()};
    for (const char* unknown : {"AT+CXYZ", "AT+CMGF", "AT+", "ATQ1", "AT^CURC=0", "AT+CMGS", "ATD112"})
        EXPECT_EQ(manners.Find(unknown).m_answer, Error) << unknown;
}

TEST(Phone_Manners, An_Exact_Row_Wins_Over_One_For_Any_Rest_And_The_Longest_Beginning_Over_The_Others)
{
    Phone_Manners manners{Phone_Moods()};
    EXPECT_EQ(manners.Find("AT+CMGF=?").m_deed, Deed::Nothing);
    EXPECT_EQ(manners.Find("AT+CMGF=1").m_deed, Deed::Set_Format);
    manners.Will_Answer("AT*", "any");
    manners.Will_Answer("AT+CMG*", "longer");
    EXPECT_EQ(manners.Find("AT+CMGF=?").m_answer, "longer");
    EXPECT_EQ(manners.Find("AT+CSQ").m_answer, "any");
    EXPECT_EQ(manners.Find("AT").m_answer, "any");
}

TEST(Phone_Manners, A_Row_Of_Ones_Own_Wins_Over_Moods_And_Moods_Over_The_Rest)
{
    Phone_Manners manners({.m_pdu_only = true, .m_error_for = {{"at+csq", "no radio"}}});
    EXPECT_EQ(manners.Find("AT+CSQ").m_answer, "\r\nERROR: no radio\r\n");
    manners.Will_Answer("at+csq", "mine");
    EXPECT_EQ(manners.Find("AT+CSQ").m_answer, "mine");
    EXPECT_TRUE(manners.Find("AT+CSQ").m_as_given);
    EXPECT_EQ(manners.Find("AT+CMGF=?").m_answer, With_Ok("+CMGF: (0)"));
    manners.Set_Moods(Phone_Moods());
    EXPECT_EQ(manners.Find("AT+CMGF=?").m_answer, With_Ok("+CMGF: (0,1)"));
    EXPECT_EQ(manners.Find("AT+CSQ").m_answer, "mine") << "moods come and go, rows of one's own stay";
}
