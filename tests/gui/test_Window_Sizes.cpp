#include "app/Help_Wnd.h"
#include "app/Load_Num_Info.h"
#include "dialogs/Fill_Msg_In_List.h"
#include "dialogs/Send_Msg_Info.h"
#include "dialogs/Update_Num_SMS.h"
#include "dialogs/Update_Sel_Num_SMS.h"
#include "exclusion/Exclusion_Wizard.h"
#include "gui/Open_Program.h"
#include "sending/Long_SMS_Dlg.h"
#include "sending/Send_Modeless.h"
#include "stores/Export_Option.h"
#include "stores/Open_Export_Log.h"
#include "stores/Sent_Items.h"
#include "stores/Templates.h"
#include "stores/UpdateTemp.h"
#include "wizard/Connection_Info.h"
#include "wizard/Phone_List_Wnd.h"

#include <QAbstractButton>
#include <QDirIterator>
#include <QGroupBox>
#include <QRegularExpression>

// Every window, with the desktop's text at 100, 125 and 150 per cent: nothing that is shown is smaller than its text
// needs, nothing lies outside its window, and no two controls of one window answer to the same key.
class Window_Sizes : public Open_Program, public testing::WithParamInterface<int>
{
protected:
    Window_Sizes() : Open_Program(GetParam()) {}

    void Show_Everything_In_The_Main_Window()
    {
        user.When_Opens(QStringLiteral("Long_SMS_Dlg"), [](QWidget& notice) { notice.close(); });
        The<QPlainTextEdit>("_messageEdit").setPlainText(QString(1600, u'm'));
        The<QTableView>("idExclusionTableView").show();
        The<QCheckBox>("_Delayed_Delivry_Chk").click();
    }

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

TEST_P(Window_Sizes, Nothing_Is_Cut_Off_In_The_Main_Window_With_A_Long_Message_And_The_Excluded_Numbers)
{
    Show_Everything_In_The_Main_Window();
    Expect_Nothing_Cut_Off(*m_delegate);
    m_delegate->resize(m_delegate->minimumSize());
    Expect_Nothing_Cut_Off(*m_delegate);
    EXPECT_GE(The<QPlainTextEdit>("_messageEdit").height(), 3 * The<QWidget>("_messageEdit").fontMetrics().height());
}

TEST_P(Window_Sizes, The_Main_Window_With_Everything_In_It_Finds_Room_On_A_Small_Screen)
{
    constexpr QSize small_screen(1366, 768);
    constexpr int title_bar = 36;
    Show_Everything_In_The_Main_Window();
    QCoreApplication::processEvents();
    EXPECT_LE(m_delegate->minimumSize().width(), small_screen.width());
    EXPECT_LE(m_delegate->minimumSize().height(), small_screen.height() - title_bar);
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

TEST_P(Window_Sizes, Nothing_Is_Cut_Off_In_The_Dialogs_Of_The_List)
{
    Load_Num_Info import_question(m_delegate.get());
    Expect_Nothing_Cut_Off(import_question);
    Expect_Nothing_Cut_Off(*Fill_Msg_In_List::defaultInstance());
    Expect_Nothing_Cut_Off(*Send_Msg_Info::defaultInstance());
    Expect_Nothing_Cut_Off(*Update_Num_SMS::defaultInstance());
    Expect_Nothing_Cut_Off(*Update_Sel_Num_SMS::defaultInstance());
}

TEST_P(Window_Sizes, Nothing_Is_Cut_Off_In_The_Stores_And_Their_Exports)
{
    Expect_Nothing_Cut_Off(*Sent_Items::defaultInstance());
    Expect_Nothing_Cut_Off(*Templates::defaultInstance());
    Expect_Nothing_Cut_Off(*UpdateTemp::defaultInstance());
    Expect_Nothing_Cut_Off(*Export_Option::defaultInstance());
    Expect_Nothing_Cut_Off(*Open_Export_Log::defaultInstance());
}

TEST_P(Window_Sizes, Nothing_Is_Cut_Off_In_Any_Screen_Of_The_Exclusion_Wizard)
{
    auto& wizard = *Exclusion_Wizard::defaultInstance();
    wizard.Show_Hide_First_Screen(false);
    Expect_Nothing_Cut_Off(wizard);
    wizard.AddNew_Btn();
    Expect_Nothing_Cut_Off(wizard);
    wizard.findChild<QLineEdit*>(QStringLiteral("m_ex_list_name_edit"))->setText(QString(50, u'm'));
    wizard.Next_Btn();
    Expect_Nothing_Cut_Off(wizard);
    Expect_Nothing_Cut_Off(*wizard.findChild<QDialog*>(QStringLiteral("Update_Ex_Num")));
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
    The<QCheckBox>("_Delayed_Delivry_Chk").click();
    QStringList order;
    QWidget* control = &The<QWidget>("_numberEdit");
    control->setFocus();
    do {
        order.append(control->objectName());
        QTest::keyClick(control, Qt::Key_Tab);
        control = m_delegate->focusWidget();
    } while (control && control->objectName() != QStringLiteral("_numberEdit") && order.size() < 40);
    EXPECT_EQ(order, (QStringList{"_numberEdit",
                                  "Add_Number",
                                  "Load_Number",
                                  "idTableView",
                                  "Export_Btn",
                                  "Clear_Sel_Btn",
                                  "Clear_All_Btn",
                                  "_messageEdit",
                                  "Update_Sel_Msgs_Btn",
                                  "Fill_Msg_Btn",
                                  "_Msg_TypeComboBox",
                                  "_Unicode_SMS_Chk",
                                  "_Skip_Duplicate_Chk",
                                  "_Exclusion_Chk",
                                  "View_ExclusionWizrd_Btn",
                                  "_Save_Sent_Item_Chk",
                                  "Sent_Item_Btn",
                                  "_Save_Templates_Chk",
                                  "View_Templates_Btn",
                                  "_Delayed_Delivry_Chk",
                                  "_delayed_msg_count_combo",
                                  "_delayed_time_combo",
                                  "_sent_btn",
                                  "Exit_Btn",
                                  "Help_Btn",
                                  "Reset_Btn",
                                  "_NO_Device_Ticker",
                                  "Search_All_Modem"}));
}

TEST_F(Main_Window_Size, Every_Control_That_Takes_The_Focus_Has_A_Name_For_Assistive_Tools)
{
    const auto controls = m_delegate->findChildren<QWidget*>();
    for (const auto* control : controls) {
        if (!control->isVisible() || control->focusPolicy() == Qt::NoFocus || control->objectName().startsWith(u"qt_"))
            continue;
        if (control->focusProxy()) // the field in an editable box: the box has the focus and the name
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(control);
        EXPECT_TRUE(!control->accessibleName().isEmpty() || (button && !button->text().isEmpty()))
            << qPrintable(control->objectName());
    }
}

// The toolkit puts the program's name behind every title that does not end with it.
TEST(Window_Titles, None_Has_The_Programs_Name_Twice)
{
    QDirIterator files(QStringLiteral(CORVANE_SOURCE_DIR "/src"), {"*.ui"}, QDir::Files, QDirIterator::Subdirectories);
    int titles = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        const QRegularExpression title_pattern("<property name=\"windowTitle\"><string[^>]*>([^<]*)</string>");
        const auto match = title_pattern.match(QString::fromUtf8(file.readAll()));
        if (!match.hasMatch())
            continue;
        ++titles;
        const QString title = match.captured(1);
        EXPECT_TRUE(title == "Corvane" || !title.contains("Corvane")) << qPrintable(file.fileName());
    }
    EXPECT_GT(titles, 10);
}
