#include "app/Help_Wnd.h"
#include "gui/Open_Program.h"
#include "sending/Long_SMS_Dlg.h"
#include "sending/Send_Modeless.h"
#include "wizard/Connection_Info.h"
#include "wizard/Phone_List_Wnd.h"

#include <QAbstractButton>
#include <QGroupBox>

// Every window, with the desktop's text at 100, 125 and 150 per cent: nothing that is shown is smaller than its text
// needs, nothing lies outside its window, and no two controls of one window answer to the same key.
class Window_Sizes : public Open_Program, public testing::WithParamInterface<int>
{
protected:
    Window_Sizes() : Open_Program(GetParam()) {}

    static void Expect_Nothing_Cut_Off(QWidget& window)
    {
        window.show();
        QCoreApplication::processEvents();
        const auto controls = window.findChildren<QWidget*>();
        for (const QWidget* control : controls) {
            if (!control->isVisible() || control->objectName().startsWith(QStringLiteral("qt_")) ||
                control->window() != &window)
                continue;
            const bool shows_text = qobject_cast<const QAbstractButton*>(control) ||
                                    qobject_cast<const QLabel*>(control) || qobject_cast<const QLineEdit*>(control) ||
                                    qobject_cast<const QComboBox*>(control);
            if (!shows_text || control->objectName().isEmpty())
                continue;
            const auto name = (window.objectName() + u'/' + control->objectName()).toStdString();
            const QSize needed = control->minimumSizeHint();
            EXPECT_GE(control->width(), needed.width()) << name;
            EXPECT_GE(control->height(), needed.height()) << name;
            const QRect place(control->mapTo(&window, QPoint()), control->size());
            EXPECT_TRUE(window.rect().contains(place)) << name;
        }
        Expect_Distinct_Mnemonics(window);
        window.hide();
    }

    static void Expect_Distinct_Mnemonics(QWidget& window)
    {
        std::map<QString, QString> taken;
        const auto take = [&](const QWidget* control, const QString& text) {
            const QString key = QKeySequence::mnemonic(text).toString();
            if (key.isEmpty() || !control->isVisible())
                return;
            EXPECT_TRUE(taken.emplace(key, control->objectName()).second)
                << qPrintable(key) << " of " << qPrintable(control->objectName()) << " is also "
                << qPrintable(taken[key]);
        };
        const auto buttons = window.findChildren<QAbstractButton*>();
        for (const auto* button : buttons)
            take(button, button->text());
        const auto labels = window.findChildren<QLabel*>();
        for (const auto* label : labels) {
            if (label->buddy())
                take(label, label->text());
        }
    }
};

TEST_P(Window_Sizes, Nothing_Is_Cut_Off_In_The_Main_Window)
{
    Expect_Nothing_Cut_Off(*m_delegate);
    m_delegate->resize(m_delegate->minimumSize());
    Expect_Nothing_Cut_Off(*m_delegate);
}

TEST_P(Window_Sizes, Nothing_Is_Cut_Off_In_The_Dialogs)
{
    Expect_Nothing_Cut_Off(*Connection_Info::defaultInstance());
    Expect_Nothing_Cut_Off(*Phone_List_Wnd::defaultInstance());
    Expect_Nothing_Cut_Off(*Long_SMS_Dlg::defaultInstance());
    Expect_Nothing_Cut_Off(*Send_Modeless::defaultInstance());
    Help_Wnd help(m_delegate.get());
    Expect_Nothing_Cut_Off(help);
}

INSTANTIATE_TEST_SUITE_P(Text_At_Percent, Window_Sizes, testing::Values(100, 125, 150),
                         [](const auto& parameter) { return std::to_string(parameter.param); });

class Main_Window_Size : public Open_Program
{
};

TEST_F(Main_Window_Size, The_Table_And_The_Composer_Take_The_Room_That_A_Larger_Window_Has)
{
    m_delegate->resize(1024, 700);
    QCoreApplication::processEvents();
    const QSize table = The<QTableView>("idTableView").size();
    const QSize composer = The<QPlainTextEdit>("_messageEdit").size();
    m_delegate->resize(1600, 1000);
    QCoreApplication::processEvents();
    EXPECT_GT(The<QTableView>("idTableView").width(), table.width() + 200);
    EXPECT_GT(The<QTableView>("idTableView").height(), table.height() + 200);
    EXPECT_GT(The<QPlainTextEdit>("_messageEdit").width(), composer.width() + 100);
    EXPECT_GT(The<QPlainTextEdit>("_messageEdit").height(), composer.height() + 200);
}

TEST_F(Main_Window_Size, The_Smallest_Window_Is_No_Larger_Than_1024_By_700)
{
    EXPECT_LE(m_delegate->minimumSizeHint().width(), 1024);
    EXPECT_LE(m_delegate->minimumSizeHint().height(), 700);
}

TEST_F(Main_Window_Size, A_Long_Device_Name_Does_Not_Make_The_Window_Grow)
{
    const QSize before = m_delegate->size();
    The<QLabel>("_Device_Name_Ticker").setText(QStringLiteral("/dev/serial/by-id/usb-") + QString(300, u'L'));
    QTest::qWait(20);
    EXPECT_EQ(m_delegate->size(), before);
    EXPECT_LE(m_delegate->minimumSizeHint().width(), 1024) << m_delegate->minimumWidth();
}

TEST_F(Main_Window_Size, Tab_Goes_From_The_Number_To_Send_Through_Every_Control)
{
    QStringList order;
    QWidget* control = &The<QWidget>("_numberEdit");
    control->setFocus();
    do {
        order.append(control->objectName());
        QTest::keyClick(control, Qt::Key_Tab);
        control = m_delegate->focusWidget();
    } while (control && control->objectName() != QStringLiteral("_numberEdit") && order.size() < 40);
    EXPECT_EQ(order,
              (QStringList{"_numberEdit", "Add_Number", "idTableView", "Clear_Sel_Btn", "Clear_All_Btn", "_messageEdit",
                           "_Msg_TypeComboBox", "_Unicode_SMS_Chk", "_Skip_Duplicate_Chk", "_sent_btn", "Exit_Btn",
                           "Help_Btn", "Reset_Btn", "_NO_Device_Ticker", "Search_All_Modem"}));
}

TEST_F(Main_Window_Size, Every_Control_That_Takes_The_Focus_Has_A_Name_For_Assistive_Tools)
{
    const auto controls = m_delegate->findChildren<QWidget*>();
    for (const auto* control : controls) {
        if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus || control->objectName().startsWith(u"qt_"))
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        EXPECT_TRUE(!control->accessibleName().isEmpty() || (button && !button->text().isEmpty()))
            << qPrintable(control->objectName());
    }
}
