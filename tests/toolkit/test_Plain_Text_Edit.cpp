#include "support/Own_Seconds.h"
#include "toolkit/Plain_Text_Edit.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace {

void Paste(QWidget& edit, const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    QTest::keySequence(&edit, QKeySequence::Paste);
}

TEST(Plain_Text_Edit, A_Text_Is_Taken_Out_As_It_Was_Entered)
{
    Plain_Text_Edit edit;
    for (const QString& text : {QString(" a\u00A0b\n\nc "), QString("\U0001F600\U0001F469\u200D\U0001F680"),
                                QString("%1 %n <b>&amp;</b>"), QString("\u05E9\u05DC\u05D5\u05DD abc \u202E def"),
                                QChar(0xD83D) + QString(u'x') + QChar(0xDE00), QString(u'a') + QChar(0) + u'b'}) {
        edit.selectAll();
        Paste(edit, text);
        EXPECT_EQ(Exact_Text(edit), text);
        EXPECT_EQ(Text_Length(edit), text.size());
    }
    edit.setPlainText("a\u2028b\u2029c\r\nd");
    EXPECT_EQ(Exact_Text(edit), "a\nb\nc\nd");
}

TEST(Plain_Text_Edit, A_Text_Is_Cut_Only_Beyond_Its_Limit)
{
    Plain_Text_Edit edit;
    edit.setPlainText("abcde");
    EXPECT_FALSE(Cut_Text(edit, 5));
    EXPECT_EQ(Exact_Text(edit), "abcde");
    EXPECT_TRUE(Cut_Text(edit, 3));
    EXPECT_EQ(Exact_Text(edit), "abc");
    edit.setPlainText("a\U0001F600");
    EXPECT_TRUE(Cut_Text(edit, 2));
    EXPECT_EQ(Exact_Text(edit), QString(u'a') + QChar(0xD83D));
}

TEST(Plain_Text_Edit, Undoing_A_Paste_That_Was_Cut_Brings_Back_What_Stood_There_Before)
{
    Plain_Text_Edit edit;
    edit.setPlainText("before");
    edit.selectAll();
    Paste(edit, "0123456789");
    Cut_Text(edit, 8);
    EXPECT_EQ(Exact_Text(edit), "01234567");
    edit.undo();
    EXPECT_EQ(Exact_Text(edit), "before");
}

TEST(Plain_Text_Edit, A_Huge_Paste_Leaves_No_More_Than_Can_Be_Kept_And_Holds_Up_Nothing)
{
    Plain_Text_Edit edit;
    edit.show();
    QString lines;
    for (int line = 0; line < 2000; ++line)
        lines += "x\r\n";
    Paste(edit, lines);
    EXPECT_GE(Text_Length(edit), Longest_Message);
    EXPECT_LE(Text_Length(edit), 2 * Longest_Message);
    edit.clear();
    const Stopwatch watch;
    Paste(edit, QString(10'000'000, u'a'));
    EXPECT_LT(watch.Lasted_For_The_Thread(), 2);
    Cut_Text(edit, Longest_Message);
    EXPECT_EQ(Exact_Text(edit), QString(Longest_Message, u'a'));
}

} // namespace
