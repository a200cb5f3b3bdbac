#include "engine/Composer_Rules.h"
#include "engine/Job_State.h"
#include "pdu/Text_Printing.h"
#include "platform/Pace.h"
#include "platform/Waiting.h"
#include "support/Own_Seconds.h"
#include "toolkit/Plain_Text_Edit.h"
#include "toolkit/Shared_Instance.h"
#include "windows/main/Composer.h"
#include "windows/main/Notice_Reader.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

const QString Two_Sms = QStringLiteral(" Characters (Each Message will now consume 2 SMS)");

class Composer_Test : public testing::Test
{
protected:
    Composer_Test() : m_composer(&m_edit, &m_counter, &m_unicode)
    {
        Set_Pace(1000);
        Message_IS.clear();
        auto* layout = new QVBoxLayout(&m_window);
        for (QWidget* widget :
             {static_cast<QWidget*>(&m_edit), static_cast<QWidget*>(&m_counter), static_cast<QWidget*>(&m_unicode)})
            layout->addWidget(widget);
        m_counter.setText(QStringLiteral("0 Characters"));
        QObject::connect(&m_edit, &QPlainTextEdit::textChanged, &m_composer, &Composer::textDidChange);
        QObject::connect(&m_unicode, &QCheckBox::clicked, &m_composer, &Composer::Unicode_Chk);
        m_window.resize(600, 400);
        m_window.show();
        m_edit.setFocus();
    }
    ~Composer_Test() override
    {
        End_Shared_Instances();
        Set_Pace(1);
    }

    void Type(const QString& text) { QTest::keyClicks(&m_edit, text); }
    void Paste(const QString& text)
    {
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(&m_edit, QKeySequence::Paste);
    }
    int Cursor() const { return m_edit.textCursor().position(); }
    void Put_Cursor(int position)
    {
        auto cursor = m_edit.textCursor();
        cursor.setPosition(position);
        m_edit.setTextCursor(cursor);
    }

    QWidget m_window;
    Plain_Text_Edit m_edit;
    QLabel m_counter;
    QCheckBox m_unicode;
    Composer m_composer;
    Notice_Reader m_notices;
};

TEST_F(Composer_Test, The_Dialog_Opens_Once_When_The_161st_Character_Is_Typed)
{
    Paste(QString(159, u'a'));
    Type(QStringLiteral("b"));
    EXPECT_EQ(m_counter.text(), QStringLiteral("160 Characters"));
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
    Type(QStringLiteral("c"));
    EXPECT_EQ(m_counter.text(), QStringLiteral("161") + Two_Sms);
    EXPECT_EQ(m_notices.m_texts, QStringList{Composer_Rules::Long_SMS_Text(false)});
    Type(QStringLiteral("d"));
    EXPECT_EQ(m_counter.text(), QStringLiteral("162") + Two_Sms);
    EXPECT_EQ(m_notices.m_texts.size(), 1);
}

TEST_F(Composer_Test, The_Dialog_Opens_Again_When_The_Message_Was_Short_In_Between)
{
    Paste(QString(161, u'a'));
    QTest::keyClick(&m_edit, Qt::Key_Backspace);
    EXPECT_EQ(m_counter.text(), QStringLiteral("160 Characters"));
    Type(QStringLiteral("b"));
    EXPECT_EQ(m_notices.m_texts.size(), 2);
}

TEST_F(Composer_Test, Unicode_Counts_Parts_Of_70_Characters)
{
    QTest::keyClick(&m_unicode, Qt::Key_Space);
    Paste(QString(70, u'я'));
    EXPECT_EQ(m_counter.text(), QStringLiteral("70 Characters"));
    Type(QStringLiteral("a"));
    EXPECT_EQ(m_counter.text(), QStringLiteral("71") + Two_Sms);
    EXPECT_EQ(m_notices.m_texts, QStringList{Composer_Rules::Long_SMS_Text(true)});
    Paste(QString(69, u'я'));
    EXPECT_EQ(m_counter.text(), QStringLiteral("140") + Two_Sms);
    Type(QStringLiteral("a"));
    EXPECT_EQ(m_counter.text(), QStringLiteral("141 Characters (Each Message will now consume 3 SMS)"));
    EXPECT_EQ(m_notices.m_texts.size(), 1);
}

TEST_F(Composer_Test, Switching_Unicode_On_With_80_Characters_Opens_The_Dialog_With_The_70_Character_Text)
{
    Paste(QString(80, u'a'));
    EXPECT_EQ(m_counter.text(), QStringLiteral("80 Characters"));
    QTest::keyClick(&m_unicode, Qt::Key_Space);
    EXPECT_EQ(m_notices.m_texts, QStringList{Composer_Rules::Long_SMS_Text(true)});
    EXPECT_EQ(m_counter.text(), QStringLiteral("80") + Two_Sms);
    QTest::keyClick(&m_unicode, Qt::Key_Space);
    EXPECT_EQ(m_counter.text(), QStringLiteral("80 Characters"));
    EXPECT_EQ(m_notices.m_texts.size(), 1);
}

TEST_F(Composer_Test, Pasting_2000_Characters_Leaves_1600_And_Remembers_Them)
{
    Paste(QString(1600, u'a') + QString(400, u'b'));
    EXPECT_EQ(m_composer.Text(), QString(1600, u'a'));
    EXPECT_EQ(m_counter.text(), QStringLiteral("1600 Characters (Each Message will now consume 10 SMS)"));
    EXPECT_EQ(Message_IS, QString(1600, u'a'));
    EXPECT_EQ(m_notices.m_texts.size(), 1);
    EXPECT_EQ(Cursor(), 1600);
}

TEST_F(Composer_Test, A_Text_Within_The_Limit_Is_Not_Taken_Into_The_Shared_Message)
{
    Paste(QString(1600, u'a'));
    EXPECT_EQ(Message_IS, QString());
}

TEST_F(Composer_Test, The_Result_Is_Cut_And_Not_The_Pasted_Piece_And_The_Cursor_Stays)
{
    m_composer.Set_Text(QString(1590, u'a') + QString(10, u'z'));
    Put_Cursor(5);
    Paste(QString(20, u'b'));
    EXPECT_EQ(m_composer.Text(), QString(5, u'a') + QString(20, u'b') + QString(1575, u'a'));
    EXPECT_EQ(Cursor(), 25);
    Type(QStringLiteral("c"));
    EXPECT_EQ(m_composer.Text(), QString(5, u'a') + QString(20, u'b') + u'c' + QString(1574, u'a'));
    EXPECT_EQ(Cursor(), 26);
}

TEST_F(Composer_Test, Undoing_A_Paste_That_Was_Cut_Brings_Back_What_Stood_There_Before)
{
    const QString before = QString(100, u'a') + QString(50, u'z');
    m_composer.Set_Text(before);
    Put_Cursor(100);
    Paste(QString(2000, u'b'));
    EXPECT_EQ(m_composer.Text(), QString(100, u'a') + QString(1500, u'b'));
    QTest::keySequence(&m_edit, QKeySequence::Undo);
    EXPECT_EQ(m_composer.Text(), before);
    EXPECT_EQ(m_counter.text(), QStringLiteral("150 Characters"));
    QTest::keySequence(&m_edit, QKeySequence::Redo);
    EXPECT_EQ(m_composer.Text(), QString(100, u'a') + QString(1500, u'b'));
}

TEST_F(Composer_Test, A_Huge_Paste_Leaves_Its_First_1600_Characters_And_Holds_Up_Nothing)
{
    QString lines;
    for (int line = 0; line < 50000; ++line)
        lines += QStringLiteral("x\r\n");
    QString expected_lines;
    for (int line = 0; line < 800; ++line)
        expected_lines += QStringLiteral("x\n");
    for (const auto& [pasted, kept] :
         {std::pair(QString(100000, u'a'), QString(1600, u'a')), std::pair(QString(1000000, u'b'), QString(1600, u'b')),
          std::pair(lines, expected_lines)}) {
        m_edit.selectAll();
        const Stopwatch watch;
        Paste(pasted);
        EXPECT_LT(watch.Lasted_For_The_Thread(), 0.5);
        EXPECT_EQ(m_composer.Text(), kept);
        EXPECT_EQ(m_counter.text(), QStringLiteral("1600 Characters (Each Message will now consume 10 SMS)"));
    }
}

TEST_F(Composer_Test, A_Huge_Paste_In_The_Middle_Keeps_What_Stood_Before_It)
{
    m_composer.Set_Text(QStringLiteral("before|after"));
    Put_Cursor(7);
    Paste(QString(100000, u'x'));
    EXPECT_EQ(m_composer.Text(), QStringLiteral("before|") + QString(1593, u'x'));
}

TEST_F(Composer_Test, A_Huge_Text_That_Comes_Past_The_Area_Is_Cut_As_Well)
{
    m_edit.insertPlainText(QString(100000, u'a'));
    EXPECT_EQ(m_composer.Text(), QString(1600, u'a'));
}

TEST_F(Composer_Test, Typing_At_The_End_Of_1600_Characters_Changes_Nothing_And_Is_Instant)
{
    m_composer.Set_Text(QString(1600, u'a'));
    m_composer.Refresh_Counter(false);
    Put_Cursor(1600);
    const Stopwatch watch;
    Type(QString(100, u'b'));
    EXPECT_LT(watch.Lasted_For_The_Thread() / 100, 0.05);
    EXPECT_EQ(m_composer.Text(), QString(1600, u'a'));
    EXPECT_EQ(Cursor(), 1600);
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
}

TEST_F(Composer_Test, Text_Is_Taken_Raw)
{
    Paste(QStringLiteral("a\u00A0b\u2028c\u2029d\ne\r\nf"));
    EXPECT_EQ(m_composer.Text(), QStringLiteral("a\u00A0b\nc\nd\ne\nf"));
    EXPECT_EQ(m_composer.Length(), 11);
    EXPECT_EQ(m_counter.text(), QStringLiteral("11 Characters"));
}

TEST_F(Composer_Test, Odd_Characters_Come_Back_As_They_Went_In)
{
    const QString texts[] = {QStringLiteral("%1 %n <b>&amp;</b>"),
                             QStringLiteral("\u05E9\u05DC\u05D5\u05DD abc \u202E def"),
                             QString(QChar(0xD83D)) + u'x' + QChar(0xDE00), QString(u'a') + QChar(0) + u'b',
                             QStringLiteral("\U0001F600\U0001F469\u200D\U0001F680")};
    for (const QString& text : texts) {
        m_edit.selectAll();
        Paste(text);
        EXPECT_EQ(m_composer.Text(), text);
        EXPECT_EQ(m_counter.text(), QString::number(text.size()) + QStringLiteral(" Characters"));
    }
}

TEST_F(Composer_Test, An_Emoji_Across_The_Cut_Leaves_Its_First_Unit)
{
    Paste(QString(1599, u'a') + QStringLiteral("\U0001F600"));
    EXPECT_EQ(m_composer.Length(), 1600);
    EXPECT_EQ(m_composer.Text(), QString(1599, u'a') + QChar(0xD83D));
    EXPECT_EQ(m_counter.text(), QStringLiteral("1600 Characters (Each Message will now consume 10 SMS)"));
    QTest::keyClick(&m_edit, Qt::Key_Backspace);
    EXPECT_EQ(m_composer.Text(), QString(1599, u'a'));
}

TEST_F(Composer_Test, Text_Set_By_The_Program_Does_Not_Count_As_Typing)
{
    m_composer.Set_Text(QString(2000, u'a'));
    EXPECT_EQ(m_composer.Text(), QString(1600, u'a'));
    EXPECT_EQ(m_counter.text(), QStringLiteral("0 Characters"));
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
    EXPECT_EQ(Message_IS, QString());
    m_unicode.setChecked(true);
    m_composer.Clear();
    m_unicode.setChecked(false);
    EXPECT_EQ(m_composer.Text(), QString());
    EXPECT_EQ(m_counter.text(), QStringLiteral("0 Characters"));
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
}

TEST_F(Composer_Test, The_Counter_Can_Be_Refreshed_With_And_Without_The_Dialog)
{
    m_composer.Set_Text(QString(161, u'a'));
    m_composer.Refresh_Counter(false);
    EXPECT_EQ(m_counter.text(), QStringLiteral("161") + Two_Sms);
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
    m_counter.setText(QStringLiteral("0 Characters"));
    m_composer.Refresh_Counter(true);
    EXPECT_EQ(m_notices.m_texts.size(), 1);
}

TEST_F(Composer_Test, A_Length_Is_Counted_For_Others_With_The_Dialog_Only_Where_It_Is_Allowed)
{
    EXPECT_EQ(m_composer.Long_SMS_Calculation(161, QString(), false), QStringLiteral("161") + Two_Sms);
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
    m_unicode.setChecked(true);
    EXPECT_EQ(m_composer.Long_SMS_Calculation(71, QStringLiteral("70 Characters"), true),
              QStringLiteral("71") + Two_Sms);
    EXPECT_EQ(m_notices.m_texts, QStringList{Composer_Rules::Long_SMS_Text(true)});
}

TEST_F(Composer_Test, While_The_Dialog_Is_Open_The_Counter_Shows_Only_The_Characters)
{
    QString counter_meanwhile;
    m_notices.m_meanwhile = [&](Long_SMS_Dlg&) { counter_meanwhile = m_counter.text(); };
    Paste(QString(161, u'a'));
    EXPECT_EQ(counter_meanwhile, QStringLiteral("161 Characters"));
}

TEST_F(Composer_Test, Changes_While_The_Dialog_Is_Open_Do_Not_Open_It_Twice)
{
    m_notices.m_meanwhile = [&](Long_SMS_Dlg&) {
        m_edit.insertPlainText(QStringLiteral("bc"));
        m_unicode.click();
    };
    Paste(QString(161, u'a'));
    EXPECT_EQ(m_notices.m_texts.size(), 1);
    EXPECT_EQ(m_counter.text(), QStringLiteral("163 Characters (Each Message will now consume 3 SMS)"));
}

TEST_F(Composer_Test, Changes_During_The_Second_Before_The_Dialog_Do_Not_Open_It_Twice)
{
    Set_Pace(10);
    QTimer::singleShot(20, &m_edit, [this] { m_edit.insertPlainText(QStringLiteral("b")); });
    Paste(QString(161, u'a'));
    EXPECT_EQ(m_notices.m_texts.size(), 1);
    EXPECT_EQ(m_counter.text(), QStringLiteral("162") + Two_Sms);
}

} // namespace
