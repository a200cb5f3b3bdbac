#include "engine/Send_Choices.h"
#include "plan/Chosen_Manner.h"

#include <gtest/gtest.h>

TEST(Chosen_Manner, Is_That_Of_Fixed_Waits_Unless_Each_Message_Is_Confirmed)
{
    Send_Choices choices;
    EXPECT_TRUE(Manner_Of(choices).fixed_waits);
    EXPECT_EQ(Manner_Of(choices).alphabet, Job_Alphabet_Choice::Gsm);
    choices.confirm.asks_for_reports = true; // which counts for nothing without the other
    EXPECT_FALSE(Manner_Of(choices).asks_for_reports);
    choices.confirm.confirms = true;
    EXPECT_FALSE(Manner_Of(choices).fixed_waits);
    EXPECT_TRUE(Manner_Of(choices).asks_for_reports);
    EXPECT_EQ(Manner_Of(choices).alphabet, Job_Alphabet_Choice::Auto);
    choices.unicode = true;
    EXPECT_EQ(Manner_Of(choices).alphabet, Job_Alphabet_Choice::Unicode);
}

TEST(Chosen_Manner, Pauses_As_The_Boxes_Say_Once_They_Count)
{
    Send_Choices choices;
    choices.batch_size = QStringLiteral("15");
    choices.pause_choice = QStringLiteral(" 2  Minutes");
    EXPECT_EQ(Manner_Of(choices).batch, 0);
    choices.delayed_delivery = true;
    EXPECT_EQ(Manner_Of(choices).batch, 15);
    EXPECT_EQ(Manner_Of(choices).pause_seconds, 120);
}
