#include "platform/Replace_Each.h"
#include "platform/Waiting.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

TEST(Replace_Each, It_Reads_As_The_Toolkits_Own_Would)
{
    QRandomGenerator random(8);
    const QStringList words{"\n", "ab", "aa", "|AP*|DX/"};
    const QString letters = "aab\n|AP*DX/";
    for (int round = 0; round < 20'000; ++round) {
        QString text;
        const int length = random.bounded(12);
        for (int i = 0; i < length; ++i)
            text += random.bounded(4) == 0 ? words[random.bounded(4)] : QString(letters[random.bounded(11)]);
        const QString& before = words[random.bounded(4)];
        const QString after = random.bounded(4) == 0 ? QString() : words[random.bounded(4)];
        ASSERT_EQ(Replace_Each(text, before, after), QString(text).replace(before, after))
            << text.toStdString() << ": " << before.toStdString() << " by " << after.toStdString();
    }
}

TEST(Replace_Each, Ten_Million_Of_Them_Take_No_Longer_Each)
{
    const double begin = Now_Seconds();
    const QString tokens = Replace_Each(QString(10'000'000, u'\n'), u"\n", u"|AP*|DX/");
    EXPECT_EQ(tokens.size(), 80'000'000);
    EXPECT_EQ(Replace_Each(tokens, u"|AP*|DX/", u"\n"), QString(10'000'000, u'\n'));
    // Moving the rest for every thousand would take a quarter of an hour. This is for a slow machine.
    EXPECT_LT(Now_Seconds() - begin, 60);
}
