#include "platform/Log_Line.h"
#include "platform/System_Log.h"

#include <QStringList>
#include <gtest/gtest.h>

TEST(Log_Line, It_Is_One_Line_Of_The_System_Log_As_Given)
{
    QStringList heard;
    Set_Log_Listener([&](const QString& line) { heard += line; });
    Show_NSLog_Message(QStringLiteral("100 %d %1"));
    Set_Log_Listener({});
    EXPECT_EQ(heard, QStringList{QStringLiteral("100 %d %1")});
}
