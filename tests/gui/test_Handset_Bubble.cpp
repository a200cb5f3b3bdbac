#include "gui/Open_Program.h"
#include "list/Table_File.h"
#include "toolkit/Plain_Text_Edit.h"
#include "windows/list/Handset_Bubble.h"
#include "windows/list/Text_Marks.h"

using testing::ElementsAre;
using testing::IsEmpty;

// What the main window says of a message before it is sent.
class Handset_Bubble_Test : public Open_Program
{
protected:
    Plain_Text_Edit& Composer() { return The<Plain_Text_Edit>("_messageEdit"); }
    Handset_Bubble& Bubble() { return The<Handset_Bubble>("_Bubble"); }

    void Write(const QString& text)
    {
        m_delegate->Set_Composer_Text(text);
        QCoreApplication::processEvents();
    }
    void Paste(const QString& text)
    {
        Composer().setFocus();
        QGuiApplication::clipboard()->setText(text);
        QTest::keySequence(&Composer(), QKeySequence::Paste);
        QCoreApplication::processEvents();
    }
    void Confirm()
    {
        Tick("_Confirm_Chk");
        QCoreApplication::processEvents();
    }
    void Press(const char* name)
    {
        Click(name);
        QCoreApplication::processEvents();
    }

    QString Text() { return Exact_Text(Composer()); }
    QString Shown_Text() { return Exact_Text(The<QPlainTextEdit>("_Shown_Text")); }
    QString Label(const char* name) { return The<QLabel>(name).isVisible() ? The<QLabel>(name).text() : QString(); }
    QString Words() { return Label("_Bubble_Words"); }
    QString Parts() { return Label("_Part_Count"); }

    /// The buttons that are there, by their texts.
    QStringList Help()
    {
        QStringList help;
        for (const char* name : {"Send_As_Unicode", "Replace_One", "Replace_All", "Replace_Script"}) {
            if (The<QPushButton>(name).isVisible())
                help.append(The<QPushButton>(name).text());
        }
        return help;
    }
    QStringList Marked() { return Marked_Texts(Composer()); }
};

TEST_F(Handset_Bubble_Test, Takes_No_Room_While_There_Is_No_Message)
{
    EXPECT_FALSE(Bubble().isVisible());
    EXPECT_EQ(Parts(), QString());
    Paste("a");
    EXPECT_TRUE(Bubble().isVisible());
    EXPECT_EQ(Parts(), "1 part of 157, 156 left");
    QTest::keyClick(&Composer(), Qt::Key_Backspace);
    QCoreApplication::processEvents();
    EXPECT_FALSE(Bubble().isVisible());
    EXPECT_EQ(Parts(), QString());
}

TEST_F(Handset_Bubble_Test, Says_What_Arrives_As_Another_And_Marks_It)
{
    Paste("10 € or ěa");
    EXPECT_EQ(Shown_Text(), "10 , or a");
    EXPECT_EQ(Words(), "€ arrives as , and ě is lost.");
    EXPECT_EQ(Marked(), (QStringList{"€", "ě"}));
    EXPECT_EQ(Help(), (QStringList{"Send as Unicode", "Replace € by EUR", "Replace all"}));
    EXPECT_EQ(Text(), "10 € or ěa");
    EXPECT_EQ(Label("_Msg_char_count"), "10 Characters");
}

TEST_F(Handset_Bubble_Test, Marks_Follow_What_Is_Written_And_Taken_Back)
{
    const auto seen = [&] { return Composer().viewport()->grab().toImage(); };
    const auto shows_marks = [&] {
        const Text_Stretches marks = Composer().Marks();
        const QImage with = seen();
        Composer().Mark({});
        const QImage without = seen();
        Composer().Mark(marks);
        return with != without;
    };
    Composer().setCursorWidth(0); // it blinks
    Paste("10 € or ě");
    EXPECT_TRUE(shows_marks());
    Composer().moveCursor(QTextCursor::Start);
    Paste("ą, ");
    EXPECT_EQ(Marked(), (QStringList{"ą", "€", "ě"}));
    QTest::keySequence(&Composer(), QKeySequence::Undo);
    QCoreApplication::processEvents();
    EXPECT_EQ(Marked(), (QStringList{"€", "ě"}));
    EXPECT_TRUE(shows_marks());
    QTest::keySequence(&Composer(), QKeySequence::SelectAll);
    QTest::keyClick(&Composer(), Qt::Key_Delete);
    QCoreApplication::processEvents();
    EXPECT_THAT(Marked(), IsEmpty());
    QTest::keyClicks(&Composer(), "abc");
    QCoreApplication::processEvents();
    EXPECT_FALSE(shows_marks());
}

TEST_F(Handset_Bubble_Test, Names_A_Few_And_Counts_The_Others)
{
    Write("€ á ê ő ű");
    EXPECT_EQ(Words(), "€ arrives as ,; á arrives as a; ê arrives as j and 2 more.");
}

TEST_F(Handset_Bubble_Test, Sends_As_Unicode_By_Ticking_The_Box)
{
    Paste("10 €");
    Press("Send_As_Unicode");
    EXPECT_TRUE(The<QCheckBox>("_Unicode_SMS_Chk").isChecked());
    EXPECT_EQ(Shown_Text(), "10 €");
    EXPECT_EQ(Words(), QString());
    EXPECT_THAT(Marked(), IsEmpty());
    EXPECT_THAT(Help(), IsEmpty());
    EXPECT_EQ(Parts(), "1 part of 69, 65 left");
    The<QCheckBox>("_Unicode_SMS_Chk").click();
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown_Text(), "10 ,");
}

TEST_F(Handset_Bubble_Test, Replaces_In_One_Step_That_Undo_Takes_Back)
{
    Confirm();
    Paste("“A” … “B”");
    const QSignalSpy changes(&Composer(), &QPlainTextEdit::textChanged);
    EXPECT_EQ(Help(), (QStringList{"Replace “ by \"", "Replace all"}));
    Press("Replace_One");
    EXPECT_EQ(Text(), "\"A” … \"B”");
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(Help(), (QStringList{"Replace ” by \"", "Replace all"}));
    Press("Replace_All");
    EXPECT_EQ(Text(), "\"A\" ... \"B\"");
    EXPECT_EQ(changes.size(), 2);
    EXPECT_EQ(Words(), QString());
    EXPECT_TRUE(Composer().hasFocus());
    QTest::keySequence(&Composer(), QKeySequence::Undo);
    EXPECT_EQ(Text(), "\"A” … \"B”");
    QTest::keySequence(&Composer(), QKeySequence::Undo);
    EXPECT_EQ(Text(), "“A” … “B”");
}

TEST_F(Handset_Bubble_Test, Says_What_Makes_A_Confirmed_Message_Unicode)
{
    Confirm();
    Write("I’ll be there, won’t I? 🙂" + QString(60, u'.'));
    EXPECT_EQ(Words(), "’ (2) and 🙂 (1) make this message Unicode: 2 parts instead of 1.");
    EXPECT_EQ(Parts(), "2 parts of 67, 48 left in the last");
    EXPECT_EQ(Help(), (QStringList{"Replace ’ by '"}));
    EXPECT_EQ(Marked(), (QStringList{"’", "’", "🙂"}));
    Write("I’ll");
    EXPECT_EQ(Words(), "’ (1) makes this message Unicode.");
    Write("10 € [ok]");
    EXPECT_EQ(Words(), QString());
    EXPECT_EQ(Parts(), "1 part of 160, 148 left");
}

TEST_F(Handset_Bubble_Test, Writes_Other_Scripts_In_The_Alphabet_On_A_Wish_Of_Its_Own)
{
    Confirm();
    Paste("Привет…");
    EXPECT_EQ(Help(), (QStringList{"Replace … by ...", "Write in other letters"}));
    Press("Replace_Script");
    EXPECT_EQ(Text(), "Privet…");
}

TEST_F(Handset_Bubble_Test, Names_What_Shows_Nothing_By_Its_Number)
{
    Confirm();
    Write(QStringLiteral("a\u00A0b\u200Bc"));
    EXPECT_EQ(Words(), "U+00A0 (1) and U+200B (1) make this message Unicode.");
    EXPECT_EQ(Help(), (QStringList{"Replace U+00A0 by a blank", "Replace all"}));
    Press("Replace_One");
    EXPECT_EQ(Help(), QStringList{"Remove U+200B"});
    Press("Replace_One");
    EXPECT_EQ(Text(), "a bc");
}

TEST_F(Handset_Bubble_Test, Lengthens_No_Message_Past_Its_Limit)
{
    Confirm();
    Write(QString(1598, u'x') + u'…');
    EXPECT_FALSE(The<QPushButton>("Replace_One").isEnabled());
    Write(QString(1597, u'x') + u'…');
    EXPECT_TRUE(The<QPushButton>("Replace_One").isEnabled());
}

TEST_F(Handset_Bubble_Test, Looks_Once_For_Each_Key_And_No_More_For_A_Long_Text)
{
    Write(QString(1400, u'x'));
    user.When_Opens("Long_SMS_Dlg", [](QWidget& notice) { Click_In(notice, "OKPressed"); });
    Paste("é");
    for (int key = 0; key < 10; ++key) {
        const int before = Bubble().Looks();
        Paste("é");
        EXPECT_EQ(Bubble().Looks(), before + 1);
    }
    const int before = Bubble().Looks();
    for (int i = 0; i < 100; ++i)
        Composer().insertPlainText("y");
    QCoreApplication::processEvents();
    EXPECT_EQ(Bubble().Looks(), before + 1) << "one look for changes between two moments";
    for (int i = 0; i < 10; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(Bubble().Looks(), before + 1) << "a look changes nothing that would cause another";
}

TEST_F(Handset_Bubble_Test, A_Notification_Is_Called_One)
{
    Write("a");
    EXPECT_EQ(Label("_Bubble_Caption"), "On the handset:");
    The<QComboBox>("_Msg_TypeComboBox").setCurrentIndex(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(Label("_Bubble_Caption"), "On the handset, at once and not kept:");
}

TEST_F(Handset_Bubble_Test, Fills_In_The_Fields_Of_The_Recipient_Selected)
{
    const QByteArray csv = "Number,Name\n00447700900100,Ann\n00447700900101,Łódź\n00447700900102,\n";
    const auto table = std::make_shared<const Contact_Table>(Table_Of_Bytes(csv, "people.csv", {}).table);
    Recipient_List list;
    for (int row = 0; row < 3; ++row)
        list.Append_From_Table(table->Field(row, 0), {}, table, row);
    m_delegate->Replace_Recipients(std::move(list));
    Confirm();
    Write("Dear {{Name}},");
    EXPECT_EQ(Shown_Text(), "Dear Ann,");
    EXPECT_EQ(Label("_Bubble_Caption"), "On the handset of 00447700900100:");
    Select_Rows({1});
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown_Text(), "Dear Łódź,");
    EXPECT_EQ(Words(), "Ł (1), ó (1) and ź (1) make this message Unicode.");
    EXPECT_THAT(Help(), IsEmpty()) << "they are not in the message";
    Select_Rows({2});
    QCoreApplication::processEvents();
    EXPECT_EQ(Words(), "00447700900102 gets nothing: {{Name}} is empty.");
    EXPECT_EQ(Shown_Text(), QString());
    EXPECT_EQ(Text(), "Dear {{Name}},");
}

TEST(Hidden_Handset_Bubble, Asks_For_No_More_Height_Than_It_Takes_Once_It_Is_Shown)
{
    Apply_Application_Look(*qApp);
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* bubble = new Handset_Bubble;
    column->addWidget(bubble);
    column->addStretch();
    bubble->Show_Message(QStringLiteral("Grüße – “10 €” für ő, Привет"), {});
    const int asked = bubble->sizeHint().expandedTo(bubble->minimumSize()).height();
    window.resize(600, 500);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTest::qWait(20);
    EXPECT_LE(asked, bubble->height() + window.fontMetrics().lineSpacing());
}
