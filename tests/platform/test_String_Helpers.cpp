#include "platform/String_Helpers.h"

#include <climits>
#include <gtest/gtest.h>

namespace {

using Cut = QString (*)(const QString&, int);

struct Case
{
    const char* helper;
    Cut cut;
    QString text;
    int number;
    QString result;
};

} // namespace

TEST(String_Helpers, Cuts_Give_The_Results_Of_The_Table)
{
    const QString abc = QStringLiteral("abc");
    const QString smile = QStringLiteral("x😀");
    const Case cases[]{
        {"Left", Left_Str_substringToIndex, abc, 2, QStringLiteral("ab")},
        {"Left", Left_Str_substringToIndex, abc, 0, {}},
        {"Left", Left_Str_substringToIndex, abc, -1, {}},
        {"Left", Left_Str_substringToIndex, abc, INT_MIN, {}},
        {"Left", Left_Str_substringToIndex, abc, 3, abc},
        {"Left", Left_Str_substringToIndex, abc, 5, abc},
        {"Left", Left_Str_substringToIndex, abc, INT_MAX, abc},
        {"Left", Left_Str_substringToIndex, {}, 4, {}},
        {"Left", Left_Str_substringToIndex, smile, 2, smile.left(2)},
        {"Right", Right_Str_substringFromIndex, abc, 2, QStringLiteral("bc")},
        {"Right", Right_Str_substringFromIndex, abc, 0, {}},
        {"Right", Right_Str_substringFromIndex, abc, -1, {}},
        {"Right", Right_Str_substringFromIndex, abc, INT_MIN, {}},
        {"Right", Right_Str_substringFromIndex, abc, 3, abc},
        {"Right", Right_Str_substringFromIndex, abc, 5, abc},
        {"Right", Right_Str_substringFromIndex, {}, 4, {}},
        {"From", Read_Str_FromIndex, abc, 0, abc},
        {"From", Read_Str_FromIndex, abc, 1, QStringLiteral("bc")},
        {"From", Read_Str_FromIndex, abc, 3, {}},
        {"From", Read_Str_FromIndex, abc, 4, {}},
        {"From", Read_Str_FromIndex, abc, -1, {}},
        {"From", Read_Str_FromIndex, {}, 0, {}},
        {"Upto", Read_Str_Upto_Index, abc, 0, {}},
        {"Upto", Read_Str_Upto_Index, abc, 2, QStringLiteral("ab")},
        {"Upto", Read_Str_Upto_Index, abc, 3, abc},
        {"Upto", Read_Str_Upto_Index, abc, 4, {}},
        {"Upto", Read_Str_Upto_Index, abc, -1, {}},
        {"Upto", Read_Str_Upto_Index, {}, 0, {}},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(each.cut(each.text, each.number), each.result)
            << each.helper << " of " << each.text.toStdString() << " with " << each.number;
    }
}

TEST(String_Helpers, Trimming_Takes_White_Space_And_Line_Breaks_From_Both_Ends_Only)
{
    EXPECT_EQ(Trim_Str(QStringLiteral(" \t\r\n a  b\r\n\n")), QLatin1String("a  b"));
    EXPECT_EQ(Trim_Str(QStringLiteral(" \n ")), QString());
    EXPECT_EQ(Trim_Str({}), QString());
    EXPECT_EQ(Trim_Str(QStringLiteral("\u00a0a\u2028")), QLatin1String("a"));
}

TEST(String_Helpers, Finding_Minds_The_Case_And_Never_Finds_Nothing)
{
    EXPECT_TRUE(Find_Str(QStringLiteral("+CMS ERROR: 1"), QStringLiteral("ERROR")));
    EXPECT_TRUE(Find_Str(QStringLiteral("OK"), QStringLiteral("OK")));
    EXPECT_FALSE(Find_Str(QStringLiteral("error"), QStringLiteral("ERROR")));
    EXPECT_FALSE(Find_Str(QStringLiteral("OK"), {}));
    EXPECT_FALSE(Find_Str({}, {}));
    EXPECT_FALSE(Find_Str({}, QStringLiteral("OK")));
}
