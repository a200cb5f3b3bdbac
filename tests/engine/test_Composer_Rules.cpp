#include "engine/Composer_Rules.h"

#include <gtest/gtest.h>

namespace {

using Composer_Rules::Cut_To_Limit;

TEST(Composer_Rules, The_Counter_Says_How_Many_Characters_And_Sms_A_Message_Takes)
{
    struct Row
    {
        int length;
        bool unicode;
        int shown;
        int sms;
    };
    const Row rows[] = {{0, false, 0, 0},          {1, false, 1, 1},        {160, false, 160, 1},
                        {161, false, 161, 2},      {320, false, 320, 2},    {321, false, 321, 3},
                        {1599, false, 1599, 10},   {1600, false, 1600, 10}, {1601, false, 1600, 10},
                        {100000, false, 1600, 10}, {0, true, 0, 0},         {70, true, 70, 1},
                        {71, true, 71, 2},         {140, true, 140, 2},     {141, true, 141, 3},
                        {160, true, 160, 3},       {1600, true, 1600, 23},  {1601, true, 1600, 23}};
    for (const auto& row : rows) {
        const QString long_one = QString(" (Each Message will now consume %1 SMS)").arg(row.sms);
        const QString text = QString::number(row.shown) + " Characters" + (row.sms > 1 ? long_one : QString());
        for (const bool open_dlg : {false, true})
            EXPECT_EQ(Composer_Rules::Long_SMS_Calculation(row.length, {}, row.unicode, open_dlg).text, text);
    }
}

TEST(Composer_Rules, The_Dialog_Is_Due_When_A_Short_Message_Grows_Past_One_Sms)
{
    struct Row
    {
        int length;
        const char* counter_until_now;
        bool unicode;
        bool open_dlg;
        bool opens;
    };
    const char* long_counter = "161 Characters (Each Message will now consume 2 SMS)";
    const Row rows[] = {
        {160, "159 Characters", false, true, false},  {161, "160 Characters", false, true, true},
        {161, "160 Characters", false, false, false}, {162, long_counter, false, true, false},
        {1600, "0 Characters", false, true, true},    {160, long_counter, false, true, false},
        {70, "69 Characters", true, true, false},     {71, "70 Characters", true, true, true},
        {71, "70 Characters", true, false, false},    {80, "80 Characters", true, true, true},
        {80, "80 Characters", false, true, false},    {161, "", false, true, true},
    };
    for (const auto& row : rows) {
        const auto counter =
            Composer_Rules::Long_SMS_Calculation(row.length, row.counter_until_now, row.unicode, row.open_dlg);
        EXPECT_EQ(counter.open_dialog_first, row.opens) << row.length << " after \"" << row.counter_until_now << "\"";
    }
}

TEST(Composer_Rules, The_Count_Of_Sms_Is_The_Length_Divided_And_Rounded_Up)
{
    for (int length = 0; length <= Composer_Rules::Most_Characters; ++length) {
        EXPECT_EQ(Composer_Rules::SMS_Count(length, false), (length + 159) / 160);
        EXPECT_EQ(Composer_Rules::SMS_Count(length, true), (length + 69) / 70);
    }
}

TEST(Composer_Rules, A_Cut_Keeps_The_First_1600_Units_And_Nothing_Else)
{
    const QString full(1600, u'a');
    EXPECT_EQ(Cut_To_Limit(QString()), QString());
    EXPECT_EQ(Cut_To_Limit(full), full);
    EXPECT_EQ(Cut_To_Limit(full + u'b'), full);
    EXPECT_EQ(Cut_To_Limit(QString(100000, u'a')), full);
    EXPECT_EQ(Cut_To_Limit(QString(1599, u'a') + "\U0001F600"), QString(1599, u'a') + QChar(0xD83D));
}

TEST(Composer_Rules, The_Dialog_Speaks_Of_160_Characters_And_With_Unicode_Of_70)
{
    EXPECT_EQ(Composer_Rules::Long_SMS_Text(false),
              "Your current message is exceeding the typical SMS Length of 160 Characters. Messages of more than 160 "
              "characters will be delivered in multiple messages of 160 characters to each recipient.\n\nEither "
              "shorten the length of your existing text message or click OK to continue anyway by delivering each "
              "message in multiple parts of 160 characters.");
    EXPECT_EQ(Composer_Rules::Long_SMS_Text(true),
              "Your current message is exceeding the typical Unicode SMS (non-English text SMS) Length of 70 "
              "Characters. Messages of more than 70 characters will be delivered in multiple messages of 70 "
              "characters to each recipient.\n\nEither shorten the length of your existing text message or click OK "
              "to continue anyway by delivering each message in multiple parts of 70 characters.");
}

} // namespace
