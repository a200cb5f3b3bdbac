#include "engine/Composer_Rules.h"
#include "engine/Job_State.h"
#include "platform/Pace.h"
#include "support/Own_Seconds.h"
#include "toolkit/Plain_Text_Edit.h"
#include "toolkit/Shared_Instance.h"
#include "windows/main/Composer.h"
#include "windows/main/Notice_Reader.h"

#include <gtest/gtest.h>

const QString Two_Sms = " Characters (Each Message will now consume 2 SMS)";
const QString Full = "1600 Characters (Each Message will now consume 10 SMS)";

class Composer_Test : public testing::Test
{
protected:
    Composer_Test() : m_composer(&m_edit, &m_counter, &m_unicode)
    {
        Set_Pace(1000);
        Message_IS.clear();
        auto* layout = new QVBoxLayout(&m_window);
        layout->addWidget(&m_edit);
        layout->addWidget(&m_counter);
        layout->addWidget(&m_unicode);
        m_counter.setText("0 Characters");
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
    void Begin_With(const QString& text, int cursor_position)
    {
        m_composer.Set_Text(text);
        auto cursor = m_edit.textCursor();
        cursor.setPosition(cursor_position);
        m_edit.setTextCursor(cursor);
    }
    int Cursor() const { return m_edit.textCursor().position(); }

    QWidget m_window;
    Plain_Text_Edit m_edit;
    QLabel m_counter;
    QCheckBox m_unicode;
    Composer m_composer;
    Notice_Reader m_notices;
};

TEST_F(Composer_Test, The_Dialog_Opens_When_The_161st_Character_Is_Typed_And_Each_Time_Anew)
{
    Paste(QString(159, u'a'));
    Type("b");
    EXPECT_EQ(m_counter.text(), "160 Characters");
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
    Type("c");
    EXPECT_EQ(m_counter.text(), "161" + Two_Sms);
    EXPECT_EQ(m_notices.m_texts, QStringList{Composer_Rules::Long_SMS_Text(false)});
    Type("d");
    EXPECT_EQ(m_counter.text(), "162" + Two_Sms);
    EXPECT_EQ(m_notices.m_texts.size(), 1);
    QTest::keyClick(&m_edit, Qt::Key_Backspace);
    QTest::keyClick(&m_edit, Qt::Key_Backspace);
    EXPECT_EQ(m_counter.text(), "160 Characters");
    Type("e");
    EXPECT_EQ(m_notices.m_texts.size(), 2) << "the message was short in between";
}

TEST_F(Composer_Test, With_Unicode_Switched_On_The_Dialog_And_The_Counter_Go_By_70_Characters)
{
    Paste(QString(80, u'a'));
    EXPECT_EQ(m_counter.text(), "80 Characters");
    QTest::keyClick(&m_unicode, Qt::Key_Space);
    EXPECT_EQ(m_notices.m_texts, QStringList{Composer_Rules::Long_SMS_Text(true)});
    EXPECT_EQ(m_counter.text(), "80" + Two_Sms);
    Paste(QString(61, u'я'));
    EXPECT_EQ(m_counter.text(), "141 Characters (Each Message will now consume 3 SMS)");
    QTest::keyClick(&m_unicode, Qt::Key_Space);
    EXPECT_EQ(m_counter.text(), "141 Characters");
    EXPECT_EQ(m_notices.m_texts.size(), 1);
}

TEST_F(Composer_Test, Pasting_2000_Characters_Leaves_1600_And_Remembers_Them)
{
    Paste(QString(1600, u'a'));
    EXPECT_EQ(Message_IS, "") << "a text within the limit is not taken into the shared message";
    m_edit.selectAll();
    Paste(QString(1600, u'a') + QString(400, u'b'));
    EXPECT_EQ(m_composer.Text(), QString(1600, u'a'));
    EXPECT_EQ(m_counter.text(), Full);
    EXPECT_EQ(Message_IS, QString(1600, u'a'));
    EXPECT_EQ(m_notices.m_texts.size(), 1);
    EXPECT_EQ(Cursor(), 1600);
    m_edit.clear();
    m_edit.insertPlainText(QString(100000, u'c')); // past the area's own limit
    EXPECT_EQ(m_composer.Text(), QString(1600, u'c'));
}

TEST_F(Composer_Test, The_Result_Is_Cut_And_Not_The_Pasted_Piece_And_The_Cursor_Stays)
{
    Begin_With(QString(1590, u'a') + QString(10, u'z'), 5);
    Paste(QString(20, u'b'));
    EXPECT_EQ(m_composer.Text(), QString(5, u'a') + QString(20, u'b') + QString(1575, u'a'));
    EXPECT_EQ(Cursor(), 25);
    Type("c");
    EXPECT_EQ(m_composer.Text(), QString(5, u'a') + QString(20, u'b') + u'c' + QString(1574, u'a'));
    EXPECT_EQ(Cursor(), 26);
}

TEST_F(Composer_Test, Undoing_A_Paste_That_Was_Cut_Brings_Back_What_Stood_There_Before)
{
    const QString before = QString(100, u'a') + QString(50, u'z');
    Begin_With(before, 100);
    Paste(QString(2000, u'b'));
    QTest::keySequence(&m_edit, QKeySequence::Undo);
    EXPECT_EQ(m_composer.Text(), before);
    EXPECT_EQ(m_counter.text(), "150 Characters");
    QTest::keySequence(&m_edit, QKeySequence::Redo);
    EXPECT_EQ(m_composer.Text(), QString(100, u'a') + QString(1500, u'b'));
}

TEST_F(Composer_Test, A_Huge_Paste_In_The_Middle_Leaves_1600_Characters_And_Holds_Up_Nothing)
{
    for (const auto& [pasted, kept] : {std::pair(QString(1000000, u'x'), QString(1593, u'x')),
                                       std::pair(QString("x\r\n").repeated(50000), QString("x\n").repeated(797))}) {
        Begin_With("before|after", 7);
        const Stopwatch watch;
        Paste(pasted);
        EXPECT_LT(watch.Lasted_For_The_Thread(), 0.5);
        EXPECT_EQ(m_composer.Text(), "before|" + kept.left(1593));
        EXPECT_EQ(m_counter.text(), Full);
    }
}

TEST_F(Composer_Test, Typing_At_The_End_Of_1600_Characters_Changes_Nothing_And_Is_Instant)
{
    Begin_With(QString(1600, u'a'), 1600);
    m_composer.Refresh_Counter(false);
    const Stopwatch watch;
    Type(QString(100, u'b'));
    EXPECT_LT(watch.Lasted_For_The_Thread() / 100, 0.05);
    EXPECT_EQ(m_composer.Text(), QString(1600, u'a'));
    EXPECT_EQ(Cursor(), 1600);
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
}

TEST_F(Composer_Test, Text_Set_By_The_Program_Does_Not_Count_As_Typing)
{
    m_composer.Set_Text(QString(2000, u'a'));
    EXPECT_EQ(m_composer.Text(), QString(1600, u'a'));
    EXPECT_EQ(m_counter.text(), "0 Characters");
    EXPECT_EQ(Message_IS, "");
    m_unicode.setChecked(true);
    m_counter.setText("more");
    m_composer.Clear();
    m_unicode.setChecked(false);
    EXPECT_EQ(m_composer.Text(), "");
    EXPECT_EQ(m_counter.text(), "0 Characters");
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
}

TEST_F(Composer_Test, The_Counter_Is_Asked_For_With_And_Without_The_Dialog)
{
    m_composer.Set_Text(QString(161, u'a'));
    m_composer.Refresh_Counter(false);
    EXPECT_EQ(m_counter.text(), "161" + Two_Sms);
    EXPECT_EQ(m_composer.Long_SMS_Calculation(162, "", false), "162" + Two_Sms);
    EXPECT_TRUE(m_notices.m_texts.isEmpty());
    m_counter.setText("0 Characters");
    m_composer.Refresh_Counter(true);
    m_unicode.setChecked(true);
    EXPECT_EQ(m_composer.Long_SMS_Calculation(71, "70 Characters", true), "71" + Two_Sms);
    EXPECT_EQ(m_notices.m_texts,
              (QStringList{Composer_Rules::Long_SMS_Text(false), Composer_Rules::Long_SMS_Text(true)}));
}

TEST_F(Composer_Test, Changes_Before_And_While_The_Dialog_Is_Open_Are_Counted_And_Do_Not_Open_It_Twice)
{
    Set_Pace(10);
    QTimer::singleShot(20, &m_edit, [this] { m_edit.insertPlainText("b"); });
    Paste(QString(161, u'a'));
    EXPECT_EQ(m_notices.m_texts.size(), 1);
    EXPECT_EQ(m_counter.text(), "162" + Two_Sms);

    m_edit.clear();
    m_notices.m_meanwhile = [&](Long_SMS_Dlg&) {
        EXPECT_EQ(m_counter.text(), "161 Characters");
        m_edit.insertPlainText("bc");
        m_unicode.click();
    };
    Paste(QString(161, u'a'));
    EXPECT_EQ(m_notices.m_texts.size(), 2);
    EXPECT_EQ(m_counter.text(), "163 Characters (Each Message will now consume 3 SMS)");
}
