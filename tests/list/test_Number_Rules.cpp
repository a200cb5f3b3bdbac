#include "list/Number_Rules.h"

#include "list/Custom_Smsc_Rules.h"

#include <gtest/gtest.h>

using namespace Number_Rules;

TEST(Number_Rules, A_Number_Is_Stored_Without_Hyphens_Trimmed_And_With_00_For_Plus)
{
    const QString twenty(20, u'1');
    const std::pair<QString, QString> typed_and_stored[]{
        {"+447700-900123", "00447700900123"},
        {"+4912", "004912"},
        {"+", "00"},
        {"+-44", "0044"},
        {"-+44", "0044"},
        {"--1-2--", "12"},
        {"- 12 -", "12"},
        {" \t12\r\n", "12"},
        {"\u00a012\u2028", "12"},
        {twenty, twenty},
        {"+" + QString(18, u'1'), "00" + QString(18, u'1')},
        {"-1-2-3-4-5-6-7-8-9-0-1-2-3-4-5-6-7-8-9-0-", "12345678901234567890"},
        {QString(1 << 20, u'-') + twenty, twenty},
    };
    for (const auto& [typed, stored] : typed_and_stored) {
        EXPECT_EQ(Normalised_Number(typed), stored) << typed.left(40).toStdString();
        EXPECT_EQ(Normalised_Number(stored), stored) << typed.left(40).toStdString();
        EXPECT_TRUE(Custom_Smsc_Rules::Is_Valid(typed)) << typed.left(40).toStdString();
    }
}

TEST(Number_Rules, What_Is_No_Number_Is_Stored_As_Nothing)
{
    const QString refused[]{
        "",
        "   ",
        "\r\n",
        "---",
        "- -",
        "0049 12",
        "+44 7700 900123",
        "+44 20-7946",
        "44+1",
        "++44",
        "+44+1",
        "12,34",
        "12a",
        "call me",
        "12\n34",
        "12.34",
        "(12)",
        "٠١٢٣",                       // Arabic-Indic digits
        "１２３",                     // full-width digits
        "−12",                        // a minus sign is no hyphen
        "1\u200b2",                   // zero-width space
        QChar(0xD83D),                // lone surrogate
        QChar(u'\0') + QString("12"), // NUL
        QString(21, u'1'),
        "+" + QString(19, u'1'), // 21 characters once the "+" is "00"
        QString(1 << 20, u'7'),  // a megabyte of digits
    };
    for (const QString& typed : refused) {
        EXPECT_EQ(Normalised_Number(typed), QString()) << typed.left(40).toStdString();
        EXPECT_FALSE(Custom_Smsc_Rules::Is_Valid(typed)) << typed.left(40).toStdString();
    }
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
        {"", false, false},
        {"0123456789", false, false},
        {"+-+-", false, false}, // positions do not matter here
        {"44+1", false, false},
        {"12,34", true, false},
        {"12;34", true, true},
        {"*100#", true, true},
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
    for (int code = 0; code <= 0xFFFF; ++code) {
        const QString number(QChar(static_cast<char16_t>(code)));
        const bool is_allowed = QString("0123456789+-").contains(number);
        ASSERT_EQ(Check_Ph_Number(number, false), !is_allowed) << code;
        ASSERT_EQ(Check_Ph_Number(number, true), !is_allowed && number != ",") << code;
    }
}
