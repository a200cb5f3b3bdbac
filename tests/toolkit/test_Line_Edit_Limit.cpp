#include "platform/Waiting.h"
#include "toolkit/Line_Edit_Limit.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

class Line_Edit_Limit : public testing::Test
{
protected:
    Line_Edit_Limit()
    {
        QObject::connect(&m_field, &QLineEdit::textChanged, &m_field, [this] { Cut_Line(m_field, 20); });
        m_field.show();
        m_field.setFocus();
    }

    void Paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(&m_field, QKeySequence::Paste);
    }

    QLineEdit m_field;
};

TEST_F(Line_Edit_Limit, The_First_20_Units_Stay_However_The_Text_Comes)
{
    Paste("1234567890123456789012345");
    EXPECT_EQ(m_field.text(), "12345678901234567890");
    EXPECT_EQ(m_field.cursorPosition(), 20);
    m_field.clear();
    QTest::keyClicks(&m_field, "12345678901234567890");
    EXPECT_EQ(m_field.text(), "12345678901234567890");
    QTest::keyClicks(&m_field, "x");
    EXPECT_EQ(m_field.text(), "12345678901234567890");
    m_field.setText(QString(30, u'1'));
    EXPECT_EQ(m_field.text(), QString(20, u'1'));
    m_field.clear();
    Paste(QString(19, u'1') + "\U0001F600");
    EXPECT_EQ(m_field.text(), QString(19, u'1') + QChar(0xD83D));
}

TEST_F(Line_Edit_Limit, The_Result_Is_Cut_And_Not_The_Pasted_Piece_And_The_Cursor_Stays)
{
    m_field.setText("abcdefghijklmnopqrst");
    m_field.setCursorPosition(2);
    Paste("123");
    EXPECT_EQ(m_field.text(), "ab123cdefghijklmnopq");
    EXPECT_EQ(m_field.cursorPosition(), 5);
}

TEST_F(Line_Edit_Limit, Line_Breaks_Become_Blanks_And_A_Megabyte_Is_Taken_In_Without_Trouble)
{
    Paste("1\n2\r\n3\r4\u20285\u20296");
    EXPECT_EQ(m_field.text(), "1 2 3 4 5 6");
    EXPECT_EQ(m_field.cursorPosition(), 11);
    m_field.clear();
    const double begin = Now_Seconds();
    Paste(QString(1024 * 1024, u'7'));
    EXPECT_EQ(m_field.text(), QString(20, u'7'));
    Paste(QString(1024 * 1024, u'\n'));
    EXPECT_EQ(m_field.text(), QString(20, u'7'));
    EXPECT_LT(Now_Seconds() - begin, 60) << "seconds; a slow machine under a sanitizer takes ten";
}
