#include "gui/Open_Program.h"
#include "support/Typist.h"
#include "windows/main/Long_SMS_Dlg.h"

namespace {

const QString Before = QString(158, u'a');
const QString Typed = "the quick brown fox\njumps over the dog";
constexpr double Within_The_Wait = 0.5; // in seconds

QString Long_Counter(qsizetype length)
{
    return QStringLiteral("%1 Characters (Each Message will now consume 2 SMS)").arg(length);
}

// Somebody who types a message and does not look up at the limit, in each of the three places that count one.
class Typing_On : public Open_Program
{
protected:
    // Opening a window takes its time at any pace, so the keys come no faster than a person types them.
    Typing_On() { Set_Pace(1); }

    using Steps = std::function<void(QWidget& window, QPlainTextEdit& area, QLabel& counter)>;

    void In_A_Dialog(const char* name, const Steps& steps)
    {
        When_Filled(user, name, [&](QWidget& dialog) {
            steps(dialog, In<QPlainTextEdit>(dialog, "m_msg_str"), In<QLabel>(dialog, "m_st_msg_cnt"));
            dialog.close();
        });
        Add("491701234567");
        Select_Rows({0});
        if (qstrcmp(name, "Update_Num_SMS") == 0)
            m_delegate->doubleClickInTable();
        else
            Click("Update_Sel_Msgs_Btn");
    }

    /// Puts the text before the limit there, with the cursor behind it.
    static void Begin_With(QPlainTextEdit& area, const QString& text)
    {
        area.setFocus();
        area.insertPlainText(text);
        EXPECT_TRUE(Serve_Until([&] { return area.hasFocus(); }));
    }

    /// Closes the notice by Return, once that is what Return does.
    static void Close_By_Return(QWidget& notice)
    {
        const auto* ok = notice.findChild<QPushButton*>("OKPressed");
        EXPECT_TRUE(Serve_Until([&] { return ok->hasFocus() && ok->isDefault(); }));
        Press_Key(Qt::Key_Return, "\r");
        EXPECT_TRUE(Serve_Until([&] { return !notice.isVisible(); }));
    }

    void Type_Past_The_Limit(QWidget& window, QPlainTextEdit& area, QLabel& counter)
    {
        Begin_With(area, Before);
        bool is_over = false;
        Typist typist(Typed);
        user.When_Opens("Long_SMS_Dlg", [&](QWidget& notice) {
            EXPECT_EQ(notice.parentWidget(), &window);
            EXPECT_TRUE(notice.isModal());
            EXPECT_FALSE(typist.Is_Done()) << "nothing was left to type once the notice was there";
            EXPECT_TRUE(Serve_Until([&] { return typist.Is_Done(); }));
            EXPECT_TRUE(notice.isVisible()) << "a key that was meant for the text closed it";
            Close_By_Return(notice);
            is_over = true;
        });
        ASSERT_TRUE(Serve_Until([&] { return is_over && typist.Is_Done(); }));
        EXPECT_EQ(area.toPlainText(), Before + Typed);
        EXPECT_EQ(counter.text(), Long_Counter(Before.size() + Typed.size()));
        EXPECT_FALSE(Long_SMS_Dlg::defaultInstance()->isVisible());
        while (area.document()->isUndoAvailable())
            area.undo();
        EXPECT_EQ(area.toPlainText(), QString());
        EXPECT_EQ(counter.text(), "0 Characters");
    }

    static void In_That_Second(const std::function<void()>& happens)
    {
        QTimer::singleShot(static_cast<int>(1000 * Paced(Within_The_Wait)), qApp, happens);
    }

    void Click_In_That_Second(QPushButton& button)
    {
        In_That_Second([&button] { Click_Middle_Of(button); });
    }
};

} // namespace

TEST_F(Typing_On, In_The_Composer_Every_Key_Arrives)
{
    Type_Past_The_Limit(*m_delegate, The<QPlainTextEdit>("_messageEdit"), The<QLabel>("_Msg_char_count"));
}

TEST_F(Typing_On, In_The_Dialogs_That_Edit_Every_Key_Arrives)
{
    for (const char* dialog : {"Update_Num_SMS", "Update_Sel_Num_SMS"})
        In_A_Dialog(dialog,
                    [this](auto& window, auto& area, auto& counter) { Type_Past_The_Limit(window, area, counter); });
}

TEST_F(Typing_On, What_Is_Pasted_Into_The_Text_Meanwhile_Is_Cut_And_Counted)
{
    auto& area = The<QPlainTextEdit>("_messageEdit");
    Begin_With(area, Before);
    QGuiApplication::clipboard()->setText(QString(2000, u'b'));
    bool is_over = false;
    user.When_Opens("Long_SMS_Dlg", [&](QWidget& notice) {
        EXPECT_TRUE(Serve_Until([&] { return notice.isActiveWindow(); }));
        Press_Key(Qt::Key_V, {}, Qt::ControlModifier);
        EXPECT_TRUE(Serve_Until([&] { return area.toPlainText().size() == 1600; }));
        Close_By_Return(notice);
        is_over = true;
    });
    const Typist typist("xyz");
    ASSERT_TRUE(Serve_Until([&] { return is_over; }));
    EXPECT_EQ(area.toPlainText(), Before + QStringLiteral("xyz") + QString(1439, u'b'));
    EXPECT_EQ(The<QLabel>("_Msg_char_count").text(), "1600 Characters (Each Message will now consume 10 SMS)");
}

TEST_F(Typing_On, Send_Pressed_In_That_Second_Does_Not_Go_Over_The_Notice)
{
    auto& area = The<QPlainTextEdit>("_messageEdit");
    Begin_With(area, QString(160, u'a'));
    bool is_over = false;
    user.When_Opens("Long_SMS_Dlg", [&](QWidget& notice) {
        EXPECT_EQ(sms_thread_var, 0);
        Close_By_Return(notice);
        is_over = true;
    });
    Click_In_That_Second(The<QPushButton>("_sent_btn"));
    area.insertPlainText("b");
    EXPECT_TRUE(is_over);
    EXPECT_EQ(sms_thread_var, 0);
}

TEST_F(Typing_On, OK_Pressed_In_That_Second_Leaves_The_Dialog_Open)
{
    In_A_Dialog("Update_Num_SMS", [this](QWidget& window, QPlainTextEdit& area, QLabel&) {
        Begin_With(area, QString(160, u'a'));
        user.When_Opens("Long_SMS_Dlg", [](QWidget& notice) { Close_By_Return(notice); });
        Click_In_That_Second(*window.findChild<QPushButton*>("OKPressed"));
        area.insertPlainText("b");
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(area.toPlainText().size(), 161);
    });
}

TEST_F(Typing_On, A_Dialog_Closed_In_That_Second_Takes_The_Notice_Along)
{
    In_A_Dialog("Update_Num_SMS", [](QWidget& window, QPlainTextEdit& area, QLabel& counter) {
        Begin_With(area, QString(160, u'a'));
        In_That_Second([&] { window.close(); });
        area.insertPlainText("b");
        EXPECT_FALSE(window.isVisible());
        EXPECT_FALSE(Long_SMS_Dlg::defaultInstance()->isVisible());
        EXPECT_EQ(counter.text(), "0 Characters");
    });
}

TEST_F(Typing_On, Leaving_Asked_For_In_That_Second_Is_Asked_About_And_The_Notice_Comes_Afterwards)
{
    user.Will_Press("No");
    auto& area = The<QPlainTextEdit>("_messageEdit");
    Begin_With(area, QString(160, u'a'));
    bool is_told = false;
    user.When_Opens("Long_SMS_Dlg", [&](QWidget& notice) {
        Close_By_Return(notice);
        is_told = true;
    });
    In_That_Second([this] { m_delegate->close(); });
    area.insertPlainText("b");
    EXPECT_TRUE(is_told);
}
