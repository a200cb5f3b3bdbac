#include "list/Number_Rules.h"

#include <QString>
#include <gtest/gtest.h>

using namespace Number_Rules;

TEST(Number_Rules, A_Number_Is_Stored_Without_Hyphens_Trimmed_And_With_00_For_Plus)
{
    struct Case
    {
        QString typed;
        QString stored; // empty: refused
    };
    const QString twenty(20, u'1');
    const Case cases[]{
        {QStringLiteral("+447700-900123"), QStringLiteral("00447700900123")},
        {QStringLiteral("+4912"), QStringLiteral("004912")},
        {QStringLiteral("0049 12"), {}},
        {QStringLiteral("+44 7700 900123"), {}},
        {QStringLiteral("44+1"), {}},
        {QStringLiteral("++44"), {}},
        {QStringLiteral("+"), QStringLiteral("00")},
        {QStringLiteral("+-44"), QStringLiteral("0044")},
        {QStringLiteral("-+44"), QStringLiteral("0044")},
        {QStringLiteral("--1-2--"), QStringLiteral("12")},
        {QStringLiteral("- 12 -"), QStringLiteral("12")},
        {QStringLiteral(" \t12\r\n"), QStringLiteral("12")},
        {QStringLiteral("\u00a012\u2028"), QStringLiteral("12")},
        {{}, {}},
        {QStringLiteral("   "), {}},
        {QStringLiteral("\r\n"), {}},
        {QStringLiteral("---"), {}},
        {QStringLiteral("- -"), {}},
        {twenty, twenty},
        {twenty + QStringLiteral("1"), {}},
        {QStringLiteral("+") + QString(18, u'1'), QStringLiteral("00") + QString(18, u'1')},
        {QStringLiteral("+") + QString(19, u'1'), {}}, // 21 characters once the "+" is "00"
        {QString(30, u'-') + twenty, twenty},
        {QStringLiteral("12,34"), {}},
        {QStringLiteral("12a"), {}},
        {QStringLiteral("call me"), {}},
        {QStringLiteral("12\n34"), {}},
        {QStringLiteral("12.34"), {}},
        {QStringLiteral("(12)"), {}},
        {QStringLiteral("٠١٢٣"), {}},         // Arabic-Indic digits
        {QStringLiteral("１２３"), {}},       // full-width digits
        {QStringLiteral("−12"), {}},          // a minus sign is no hyphen
        {QStringLiteral("1\u200b2"), {}},     // zero-width space
        {QString(QChar(0xD83D)), {}},         // lone surrogate
        {QString(QChar(u'\0')) + twenty, {}}, // NUL
        {QString(1 << 20, u'7'), {}},         // a megabyte of digits
    };
    for (const auto& each : cases)
        EXPECT_EQ(Normalised_Number(each.typed), each.stored) << each.typed.left(40).toStdString();
}

TEST(Number_Rules, The_Character_And_Length_Test_Answers_Yes_For_An_Invalid_Number)
{
    struct Case
    {
        QString number;
        bool is_invalid;
        bool is_invalid_with_commas;
    };
    const Case cases[]{
        {{}, false, false},
        {QStringLiteral("0123456789"), false, false},
        {QStringLiteral("+-+-"), false, false}, // positions do not matter here
        {QStringLiteral("44+1"), false, false},
        {QStringLiteral("12,34"), true, false},
        {QStringLiteral(","), true, false},
        {QStringLiteral("12;34"), true, true},
        {QStringLiteral("12 34"), true, true},
        {QStringLiteral("*100#"), true, true},
        {QStringLiteral("a"), true, true},
        {QStringLiteral("1/"), true, true}, // the neighbours of the digits
        {QStringLiteral("1:"), true, true},
        {QStringLiteral("٣"), true, true},
        {QString(20, u'9'), false, false},
        {QString(21, u'9'), true, true},
        {QString(20, u','), true, false},
        {QString(1 << 20, u'7'), true, true},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(Check_Ph_Number(each.number, false), each.is_invalid) << each.number.left(40).toStdString();
        EXPECT_EQ(Check_Ph_Number(each.number, true), each.is_invalid_with_commas)
            << each.number.left(40).toStdString();
    }
}

TEST(Number_Rules, No_Other_Character_Is_Allowed)
{
    const QString allowed = QStringLiteral("0123456789+-");
    for (int code = 0; code <= 0xFFFF; ++code) {
        const QString number(QChar(static_cast<char16_t>(code)));
        ASSERT_EQ(Check_Ph_Number(number, false), !allowed.contains(number)) << code;
        ASSERT_EQ(Check_Ph_Number(number, true), !allowed.contains(number) && number != QLatin1String(",")) << code;
    }
}

TEST(Number_Rules, A_Stored_Number_Stays_What_It_Is)
{
    for (const char* typed : {"+447700-900123", "0049123", "+", "12"}) {
        const QString stored = Normalised_Number(QLatin1String(typed));
        EXPECT_EQ(Normalised_Number(stored), stored) << typed;
    }
}
