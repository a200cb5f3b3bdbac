#include "engine/Composer_Rules.h"
#include "platform/Pace.h"
#include "toolkit/Shared_Instance.h"
#include "windows/main/Notice_Reader.h"

#include <gtest/gtest.h>

class Long_SMS_Dlg_Test : public testing::Test
{
protected:
    Long_SMS_Dlg_Test()
    {
        Set_Pace(1000);
        m_over.resize(800, 600);
        m_over.show();
    }
    ~Long_SMS_Dlg_Test() override
    {
        End_Shared_Instances();
        Set_Pace(1);
    }

    /// Opens the notice, and returns when it has been read.
    void Open(bool unicode = false) { Long_SMS_Dlg::defaultInstance()->Open_Dialog(&m_over, unicode); }

    QWidget m_over;
    Notice_Reader m_reader;
};

TEST_F(Long_SMS_Dlg_Test, It_Shows_The_Text_And_The_Unicode_Box_As_They_Are)
{
    for (const bool unicode : {true, false, true}) {
        m_reader.m_meanwhile = [unicode](Long_SMS_Dlg& dialog) {
            const auto* box = dialog.findChild<QCheckBox*>("_Unicode_SMS_Chk");
            EXPECT_EQ(box->isChecked(), unicode);
            EXPECT_FALSE(box->isEnabled());
            EXPECT_TRUE(dialog.isModal());
            EXPECT_EQ(dialog.objectName(), "Long_SMS_Dlg");
        };
        Open(unicode);
        EXPECT_EQ(m_reader.m_texts.back(), Composer_Rules::Long_SMS_Text(unicode));
    }
}

TEST_F(Long_SMS_Dlg_Test, Whichever_Way_It_Is_Closed_It_Ends_With_One)
{
    const auto press_once_it_is_ready = [](Long_SMS_Dlg& dialog, Qt::Key key) {
        EXPECT_TRUE(Serve_Until([&] { return Notice_Reader::OK_Of(dialog).isDefault(); }));
        QTest::keyClick(dialog.focusWidget(), key);
    };
    const std::function<void(Long_SMS_Dlg&)> ways[] = {
        [](Long_SMS_Dlg& dialog) { Click_In(dialog, "OKPressed"); },
        [](Long_SMS_Dlg& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); },
        [&](Long_SMS_Dlg& dialog) { press_once_it_is_ready(dialog, Qt::Key_Return); },
        [&](Long_SMS_Dlg& dialog) { press_once_it_is_ready(dialog, Qt::Key_Space); },
        [](Long_SMS_Dlg& dialog) { dialog.close(); },
    };
    for (const auto& way : ways) {
        m_reader.m_meanwhile = [&](Long_SMS_Dlg& dialog) {
            way(dialog);
            EXPECT_FALSE(dialog.isVisible());
        };
        Open();
        EXPECT_EQ(Long_SMS_Dlg::defaultInstance()->result(), 1);
    }
    EXPECT_EQ(m_reader.m_texts.size(), 5);
}

TEST_F(Long_SMS_Dlg_Test, In_Its_First_Moment_What_Is_Typed_Goes_Into_The_Field_And_Presses_Nothing)
{
    Set_Pace(1);
    auto* field = new QPlainTextEdit(&m_over);
    field->show();
    field->setFocus();
    m_reader.m_meanwhile = [&](Long_SMS_Dlg& dialog) {
        for (const auto key : {Qt::Key_A, Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab, Qt::Key_Enter, Qt::Key_B})
            QTest::keyClick(&dialog, key);
        QInputMethodEvent composed;
        composed.setCommitString("\u00e9");
        EXPECT_TRUE(dialog.testAttribute(Qt::WA_InputMethodEnabled));
        QCoreApplication::sendEvent(&dialog, &composed);
        EXPECT_EQ(field->toPlainText(), "a \n\nb\u00e9");
        EXPECT_TRUE(dialog.isVisible());
        const auto* ok = &Notice_Reader::OK_Of(dialog);
        EXPECT_FALSE(ok->hasFocus());
        EXPECT_TRUE(Serve_Until([&] { return dialog.focusWidget() == ok; }));
        EXPECT_FALSE(dialog.testAttribute(Qt::WA_InputMethodEnabled));
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(field->toPlainText().size(), 6);
    };
    Open();
    EXPECT_EQ(m_reader.m_texts.size(), 1);
}

TEST_F(Long_SMS_Dlg_Test, It_Opens_A_Second_After_It_Was_Asked_For_And_Once_When_Asked_For_Again)
{
    Set_Pace(10);
    QTimer::singleShot(20, &m_over, [this] { Open(true); });
    double opened = 0;
    m_reader.m_meanwhile = [&](Long_SMS_Dlg&) {
        opened = Now_Seconds();
        Open(true);
    };
    const double begin = Now_Seconds();
    Open();
    EXPECT_GE(opened - begin, 0.099);
    EXPECT_EQ(m_reader.m_texts, QStringList{Composer_Rules::Long_SMS_Text(false)});
}

TEST_F(Long_SMS_Dlg_Test, Its_Text_Fits_Whatever_The_Size_Of_Its_Letters)
{
    m_reader.m_meanwhile = [&](Long_SMS_Dlg& dialog) {
        QTest::qWait(5);
        const auto* text = dialog.findChild<QLabel*>("_Msg_Val");
        EXPECT_GE(text->height(), text->heightForWidth(text->width()));
        EXPECT_LE(text->height(), text->heightForWidth(text->width()) + text->fontMetrics().lineSpacing());
        EXPECT_TRUE(dialog.rect().contains(text->geometry()));
    };
    for (int points = 7; points <= 18; ++points) {
        QFont font = Long_SMS_Dlg::defaultInstance()->font();
        font.setPointSize(points);
        Long_SMS_Dlg::defaultInstance()->setFont(font);
        for (const bool unicode : {false, true, false})
            Open(unicode);
    }
    EXPECT_EQ(m_reader.m_texts.size(), 36);
}

TEST_F(Long_SMS_Dlg_Test, There_Is_One_Instance_Made_Anew_After_Its_Window_Has_Gone_That_Does_Not_Open_At_The_Exit)
{
    Begin_Program_Exit();
    Open();
    Forget_Program_Exit();
    EXPECT_TRUE(m_reader.m_texts.isEmpty());
    auto over = std::make_unique<QWidget>();
    Long_SMS_Dlg* first = Long_SMS_Dlg::defaultInstance();
    EXPECT_EQ(first, Long_SMS_Dlg::defaultInstance());
    first->setParent(over.get(), first->windowFlags());
    over.reset();
    Open();
    EXPECT_EQ(m_reader.m_texts.size(), 1);
}
