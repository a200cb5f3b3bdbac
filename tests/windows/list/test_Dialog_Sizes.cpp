#include "windows/list/Dialogs_Test.h"
#include "windows/list/Fill_Msg_In_List.h"
#include "windows/list/Send_Msg_Info.h"
#include "windows/list/Update_Num_SMS.h"
#include "windows/list/Update_Sel_Num_SMS.h"

namespace {

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
