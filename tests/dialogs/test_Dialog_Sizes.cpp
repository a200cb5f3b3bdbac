#include "app/shared/Window_Look.h"
#include "dialogs/Dialogs_Test.h"
#include "dialogs/Fill_Msg_In_List.h"
#include "dialogs/Send_Msg_Info.h"
#include "dialogs/Update_Num_SMS.h"
#include "dialogs/Update_Sel_Num_SMS.h"

#include <set>

namespace {

// Every dialog with the desktop's text at 100, 125 and 150 per cent.
class Dialog_Sizes : public Dialogs_Test, public testing::WithParamInterface<int>
{
protected:
    Dialog_Sizes()
    {
        QFont font = m_font_before;
        font.setPointSizeF(font.pointSizeF() * GetParam() / 100);
        QApplication::setFont(font);
        Apply_Application_Look(*qApp);
        Add("1", "one");
    }
    ~Dialog_Sizes() override { QApplication::setFont(m_font_before); }

    static QString Text_Of(const QWidget& control)
    {
        if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
            return button->text();
        const auto* label = qobject_cast<const QLabel*>(&control);
        return label && label->buddy() ? label->text() : QString();
    }

    static void Look_At(QWidget& dialog)
    {
        dialog.resize(dialog.minimumSizeHint());
        QCoreApplication::processEvents();
        std::set<QString> keys;
        const auto controls = dialog.findChildren<QWidget*>();
        for (const auto* control : controls) {
            if (!control->isVisible() || control->objectName().isEmpty() || control->objectName().startsWith(u"qt_"))
                continue;
            const auto name = (dialog.objectName() + u'/' + control->objectName()).toStdString();
            const QSize needed = control->minimumSizeHint();
            EXPECT_GE(control->width(), needed.width()) << name;
            EXPECT_GE(control->height(), std::max(needed.height(), control->heightForWidth(control->width()))) << name;
            EXPECT_TRUE(dialog.rect().contains(QRect(control->mapTo(&dialog, QPoint()), control->size()))) << name;
            const QString key = QKeySequence::mnemonic(Text_Of(*control)).toString();
            EXPECT_TRUE(key.isEmpty() || keys.insert(key).second) << name;
            if (control->focusPolicy() != Qt::NoFocus) {
                EXPECT_FALSE(control->accessibleName().isEmpty() && Text_Of(*control).isEmpty()) << name;
            }
        }
        dialog.close();
    }

    /// Opens a dialog, looks at it and closes it.
    void Expect_Nothing_Cut_Off(const char* name, const std::function<void()>& open)
    {
        m_user.When_Opens(QLatin1String(name), [](QWidget& dialog) {
            Finish_Workers();
            Look_At(dialog);
        });
        open();
    }

    const QFont m_font_before = QApplication::font();
};

TEST_P(Dialog_Sizes, Nothing_Is_Cut_Off_And_No_Two_Controls_Answer_To_The_Same_Key)
{
    m_window.m_choices.composer_text = QStringLiteral("new");
    m_window.m_selected_rows = {0};
    Expect_Nothing_Cut_Off("Fill_Msg_In_List", [&] { Open_Fill_Dialog(m_window); });
    Expect_Nothing_Cut_Off("Send_Msg_Info", [&] { Ask_Send_Msg_Info(m_window); });
    Message_IS.clear();
    Expect_Nothing_Cut_Off("Send_Msg_Info", [&] { Ask_Send_Msg_Info(m_window); });
    Expect_Nothing_Cut_Off("Update_Num_SMS", [&] { Open_Edit_Dialog(m_window, 0); });
    Expect_Nothing_Cut_Off("Update_Sel_Num_SMS", [&] { Open_Update_Selected(m_window); });
}

INSTANTIATE_TEST_SUITE_P(Text_At_Percent, Dialog_Sizes, testing::Values(100, 125, 150),
                         [](const auto& parameter) { return std::to_string(parameter.param); });

class Dialog_Keys : public Dialogs_Test
{
protected:
    Dialog_Keys() { Add("1", "one"); }

    /// Where Tab leads to from the first control until it comes back.
    static QStringList Tab_Order(QWidget& dialog)
    {
        QStringList order;
        const QWidget* first = dialog.focusWidget();
        do {
            order.append(Focused(dialog));
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        } while (dialog.focusWidget() != first && order.size() < 20);
        return order;
    }

    QStringList Tab_Order_Of(const char* name, const std::function<void()>& open)
    {
        QStringList order;
        m_user.When_Opens(QLatin1String(name), [&](QWidget& dialog) {
            Finish_Workers();
            EXPECT_TRUE(In<QPushButton>(dialog, "OKPressed").isDefault());
            order = Tab_Order(dialog);
            dialog.close();
        });
        open();
        return order;
    }
};

TEST_F(Dialog_Keys, Tab_Goes_From_What_Is_Asked_To_The_Buttons)
{
    m_window.m_choices.composer_text = QStringLiteral("new");
    m_window.m_selected_rows = {0};
    EXPECT_EQ(Tab_Order_Of("Fill_Msg_In_List", [&] { Open_Fill_Dialog(m_window); }),
              (QStringList{"_fill_msg_all", "OKPressed", "CancelPressed"}));
    EXPECT_EQ(Tab_Order_Of("Send_Msg_Info", [&] { Ask_Send_Msg_Info(m_window); }),
              (QStringList{"_fill_msg_all", "OKPressed", "ContinuePressed", "CancelPressed"}));
    EXPECT_EQ(
        Tab_Order_Of("Update_Num_SMS", [&] { Open_Edit_Dialog(m_window, 0); }),
        (QStringList{"m_num_str", "m_msg_str", "_Skip_Duplicate_Chk", "_Exclusion_Chk", "OKPressed", "CancelPressed"}));
    EXPECT_EQ(Tab_Order_Of("Update_Sel_Num_SMS", [&] { Open_Update_Selected(m_window); }),
              (QStringList{"m_msg_str", "List_View", "OKPressed", "CancelPressed"}));
}

} // namespace
