#include "list/Custom_Smsc_Rules.h"

#include <gmock/gmock.h>

namespace {

TEST(Custom_Smsc_Rules, A_Number_Is_Judged_Without_Its_Hyphens_And_With_Its_Plus_As_Two_Zeros)
{
    const struct
    {
        QString typed;
        bool is_valid;
    } cases[] = {
        {"+15550009999", true},
        {"+44-7700-900", true},
        {"  004479 \n", true},
        {"12345678901234567890", true},
        {"123456789012345678901", false},
        {"-1-2-3-4-5-6-7-8-9-0-1-2-3-4-5-6-7-8-9-0-", true},
        {"+123456789012345678", true},   // 20 characters with the two zeros
        {"+1234567890123456789", false}, // 21
        {"", false},
        {"   ", false},
        {"--", false},
        {"- -", false},
        {"+", true},
        {"++44", false},
        {"+44+1", false},
        {"44+1", false},
        {"+44 20-7946", false}, // the "+" is in order, the inner blank is not
        {"12,34", false},
        {"12a4", false},
        {QString::fromUtf8("\u0661\u0662\u0663"), false}, // Arabic-Indic digits
        {QString(1 << 20, u'1'), false},
        {QString(1 << 20, u'-') + "1", true},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Custom_Smsc_Rules::Is_Valid(one.typed), one.is_valid) << one.typed.left(60).toStdString();
}

} // namespace
