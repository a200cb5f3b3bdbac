#include "engine/Composer_Rules.h"

#include <gtest/gtest.h>

namespace {

struct Counted
{
    int length;
    bool unicode;
    const char* text;
};

TEST(Composer_Rules, The_Counter_Says_How_Many_Characters_And_Sms_A_Message_Takes)
{
    const Counted rows[] = {
        {0, false, "0 Characters"},
        {1, false, "1 Characters"},
        {160, false, "160 Characters"},
        {161, false, "161 Characters (Each Message will now consume 2 SMS)"},
        {320, false, "320 Characters (Each Message will now consume 2 SMS)"},
        {321, false, "321 Characters (Each Message will now consume 3 SMS)"},
        {1599, false, "1599 Characters (Each Message will now consume 10 SMS)"},
        {1600, false, "1600 Characters (Each Message will now consume 10 SMS)"},
        {1601, false, "1600 Characters (Each Message will now consume 10 SMS)"},
        {100000, false, "1600 Characters (Each Message will now consume 10 SMS)"},
        {0, true, "0 Characters"},
        {70, true, "70 Characters"},
        {71, true, "71 Characters (Each Message will now consume 2 SMS)"},
        {140, true, "140 Characters (Each Message will now consume 2 SMS)"},
        {141, true, "141 Characters (Each Message will now consume 3 SMS)"},
        {160, true, "160 Characters (Each Message will now consume 3 SMS)"},
        {1600, true, "1600 Characters (Each Message will now consume 23 SMS)"},
        {1601, true, "1600 Characters (Each Message will now consume 23 SMS)"},
    };
    for (const auto& row : rows) {
        for (const bool open_dlg : {false, true}) {
            const auto counter = Composer_Rules::Long_SMS_Calculation(row.length, QString(), row.unicode, open_dlg);
            EXPECT_EQ(counter.text, QLatin1String(row.text));
        }
    }
}

struct Opening
{
    int length;
    const char* counter_until_now;
    bool unicode;
    bool open_dlg;
    bool opens;
};

TEST(Composer_Rules, The_Dialog_Is_Due_When_A_Short_Message_Grows_Past_One_Sms)
{
    const char* long_counter = "161 Characters (Each Message will now consume 2 SMS)";
    const Opening rows[] = {
        {160, "159 Characters", false, true, false},  {161, "160 Characters", false, true, true},
        {161, "160 Characters", false, false, false}, {162, long_counter, false, true, false},
        {1600, "0 Characters", false, true, true},    {160, long_counter, false, true, false},
        {70, "69 Characters", true, true, false},     {71, "70 Characters", true, true, true},
        {71, "70 Characters", true, false, false},    {80, "80 Characters", true, true, true},
        {80, "80 Characters", false, true, false},    {161, "", false, true, true},
    };
    for (const auto& row : rows) {
        const auto counter = Composer_Rules::Long_SMS_Calculation(row.length, QLatin1String(row.counter_until_now),
                                                                  row.unicode, row.open_dlg);
        EXPECT_EQ(counter.open_dialog_first, row.opens) << row.length << " after \"" << row.counter_until_now << "\"";
    }
}

TEST(Composer_Rules, The_Count_Of_Sms_Is_The_Length_Divided_And_Rounded_Up)
{
    for (int length = 0; length <= Composer_Rules::Most_Characters; ++length) {
        for (const bool unicode : {false, true}) {
            const int count = Composer_Rules::SMS_Count(length, unicode);
            const int limit = unicode ? 70 : 160;
            EXPECT_GE(count * limit, length);
            EXPECT_LT((count - 1) * limit, length == 0 ? 1 : length);
        }
    }
}

TEST(Composer_Rules, A_Cut_Keeps_The_First_1600_Units_And_Nothing_Else)
{
    EXPECT_EQ(Composer_Rules::Cut_To_Limit(QString()), QString());
    EXPECT_EQ(Composer_Rules::Cut_To_Limit(QString(1600, u'a')), QString(1600, u'a'));
    EXPECT_EQ(Composer_Rules::Cut_To_Limit(QString(1600, u'a') + u'b'), QString(1600, u'a'));
    EXPECT_EQ(Composer_Rules::Cut_To_Limit(QString(100000, u'a')), QString(1600, u'a'));
    const QString cut = Composer_Rules::Cut_To_Limit(QString(1599, u'a') + QStringLiteral("\U0001F600"));
    EXPECT_EQ(cut.size(), 1600);
    EXPECT_TRUE(cut.back().isHighSurrogate());
}

TEST(Composer_Rules, The_Dialog_Speaks_Of_160_Characters)
{
    EXPECT_EQ(Composer_Rules::Long_SMS_Text(false),
              QStringLiteral(
                  "Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than "
                  "160 characters will be delivered in multiple messages of 160 characters to each "
                  "recipient.\n\nEither shorten the length of your existing text message or click OK to continue "
                  "anyway by delivering each message in multiple parts of 160 characters."));
}

TEST(Composer_Rules, With_Unicode_The_Dialog_Speaks_Of_70_Characters)
{
    EXPECT_EQ(
        Composer_Rules::Long_SMS_Text(true),
        QStringLiteral("Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 "
                       "Characters. Messages of more than 70 characters will be delivered in multiple messages of 70 "
                       "characters to each recipient.\n\nEither shorten the length of your existing text message or "
                       "click OK to continue anyway by delivering each message in multiple parts of 70 characters."));
}

} // namespace
