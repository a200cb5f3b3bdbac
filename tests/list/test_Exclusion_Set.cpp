#include "list/Exclusion_Set.h"

#include <QRandomGenerator>
#include <QStringList>
#include <gtest/gtest.h>

TEST(Exclusion_Set, It_Keeps_The_Order_And_The_Repeats)
{
    Exclusion_Set set;
    for (const char* number : {"3", "1", "3"})
        set.Append(QLatin1String(number));
    ASSERT_EQ(set.Count(), 3);
    EXPECT_EQ(set.At(0), QLatin1String("3"));
    EXPECT_EQ(set.At(1), QLatin1String("1"));
    EXPECT_EQ(set.At(2), QLatin1String("3"));
    EXPECT_EQ(set.Count_Of(QStringLiteral("3")), 2);
    EXPECT_EQ(set.Count_Of(QStringLiteral("03")), 0);
    EXPECT_THROW(static_cast<void>(set.At(3)), std::out_of_range);
}

TEST(Exclusion_Set, An_Empty_One_Excludes_Nothing)
{
    Exclusion_Set set;
    EXPECT_EQ(set.Count(), 0);
    EXPECT_EQ(set.Count_Of(QStringLiteral("1")), 0);
    set.Append(QStringLiteral("1"));
    set.Clear();
    EXPECT_EQ(set.Count(), 0);
    EXPECT_EQ(set.Count_Of(QStringLiteral("1")), 0);
}

TEST(Exclusion_Set, It_Agrees_With_A_Plain_Scan_Whatever_Is_Done_To_It)
{
    QRandomGenerator random(77);
    Exclusion_Set set;
    QStringList scanned;
    for (int step = 0; step < 5000; ++step) {
        if (random.bounded(1000) == 0) {
            set.Clear();
            scanned.clear();
        } else {
            const QString number = QString::number(random.bounded(300));
            set.Append(number);
            scanned += number;
        }
        const QString wanted = QString::number(random.bounded(320));
        ASSERT_EQ(set.Count_Of(wanted), scanned.count(wanted)) << step;
        ASSERT_EQ(set.Count(), scanned.size());
    }
}

TEST(Exclusion_Set, A_Copy_Is_A_Snapshot)
{
    Exclusion_Set set;
    set.Append(QStringLiteral("1"));
    const Exclusion_Set snapshot = set;
    set.Append(QStringLiteral("2"));
    EXPECT_EQ(snapshot.Count(), 1);
    EXPECT_EQ(snapshot.Count_Of(QStringLiteral("2")), 0);
    set.Clear();
    EXPECT_EQ(snapshot.Count_Of(QStringLiteral("1")), 1);
}
