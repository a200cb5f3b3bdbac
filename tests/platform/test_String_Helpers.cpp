#include "platform/String_Helpers.h"

#include <climits>
#include <gtest/gtest.h>

TEST(String_Helpers, Cuts_Give_The_Results_Of_The_Table)
{
    struct Case
    {
        QString (*cut)(const QString&, int);
        QString text;
        int number;
        QString result;
    };
    const QString abc = "abc";
    const QString smile = "x😀";
    const Case cases[]{
        {Left_Str_substringToIndex, abc, 2, "ab"},
        {Left_Str_substringToIndex, abc, 0, ""},
        {Left_Str_substringToIndex, abc, -1, ""},
        {Left_Str_substringToIndex, abc, INT_MIN, ""},
        {Left_Str_substringToIndex, abc, 3, abc},
        {Left_Str_substringToIndex, abc, 5, abc},
        {Left_Str_substringToIndex, abc, INT_MAX, abc},
        {Left_Str_substringToIndex, "", 4, ""},
        {Left_Str_substringToIndex, smile, 2, smile.left(2)},
        {Right_Str_substringFromIndex, abc, 2, "bc"},
        {Right_Str_substringFromIndex, abc, 0, ""},
        {Right_Str_substringFromIndex, abc, -1, ""},
        {Right_Str_substringFromIndex, abc, INT_MIN, ""},
        {Right_Str_substringFromIndex, abc, 3, abc},
        {Right_Str_substringFromIndex, abc, 5, abc},
        {Right_Str_substringFromIndex, "", 4, ""},
        {Read_Str_FromIndex, abc, 0, abc},
        {Read_Str_FromIndex, abc, 1, "bc"},
        {Read_Str_FromIndex, abc, 3, ""},
        {Read_Str_FromIndex, abc, 4, ""},
        {Read_Str_FromIndex, abc, -1, ""},
        {Read_Str_FromIndex, "", 0, ""},
        {Read_Str_Upto_Index, abc, 0, ""},
        {Read_Str_Upto_Index, abc, 2, "ab"},
        {Read_Str_Upto_Index, abc, 3, abc},
        {Read_Str_Upto_Index, abc, 4, ""},
        {Read_Str_Upto_Index, abc, -1, ""},
        {Read_Str_Upto_Index, "", 0, ""},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.cut(each.text, each.number), each.result) << "row " << &each - cases << ", " << each.number;
}

TEST(String_Helpers, Trimming_Takes_White_Space_From_Both_Ends_Only_And_Finding_Minds_The_Case)
{
    EXPECT_EQ(Trim_Str(" \t\r\n a  b\r\n\n"), "a  b");
    EXPECT_EQ(Trim_Str(" \n "), "");
    EXPECT_EQ(Trim_Str({}), "");
    EXPECT_EQ(Trim_Str("\u00a0a\u2028"), "a");
    EXPECT_TRUE(Find_Str("+CMS ERROR: 1", "ERROR"));
    EXPECT_TRUE(Find_Str("OK", "OK"));
    EXPECT_FALSE(Find_Str("error", "ERROR"));
    EXPECT_FALSE(Find_Str("OK", {})) << "nothing is never found";
    EXPECT_FALSE(Find_Str({}, {}));
    EXPECT_FALSE(Find_Str({}, "OK"));
}
