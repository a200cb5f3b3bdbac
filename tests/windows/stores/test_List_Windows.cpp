#include "records/Data_Paths.h"
#include "support/Heartbeat.h"
#include "windows/stores/Export_Option.h"
#include "windows/stores/Open_Export_Log.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/Stores_Test.h"
#include "windows/stores/UpdateTemp.h"

#include <map>

namespace {

constexpr int Many = 200'000;

class Many_Records : public Stores_Test
{
protected:
    static QByteArray Records()
    {
        QByteArray lines;
        for (int i = 0; i < Many; ++i)
            lines += "\a" + QByteArray::number(10'000'000 + i) + "\va message like any other\a05/03/2024\v\n";
        return lines;
    }
};

} // namespace

TEST_F(Many_Records, The_Interface_Thread_Goes_On_With_Its_Events_While_They_Load_Shrink_And_Are_Written)
{
    Write_Bytes(Sent_Item_Path, Records());
    Heartbeat heartbeat;
    double load_gap = 0;
    Visit_Sent_Items([&] {
        load_gap = heartbeat.Longest_Gap();
        EXPECT_EQ(The<QLabel>("_sent_list_count").text(), QStringLiteral("Total Items : 200000"));
        EXPECT_EQ(Table().model()->rowCount(), Many);
        Select(0, Many / 2 - 1);
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Table().model()->rowCount(), Many / 2);
        EXPECT_EQ(Table().model()->index(0, 0).data().toString(), QString::number(10'000'000 + Many / 2));
    });
    EXPECT_LT(load_gap, heartbeat.Whole() / 2);
    EXPECT_LT(heartbeat.Longest_Gap(), heartbeat.Whole() / 2);
    EXPECT_EQ(Bytes_Of(Sent_Item_Path).count('\n'), Many / 2);
}

TEST_F(Stores_Test, A_Window_Opens_After_One_Second)
{
    Set_Pace(10);
    for (const bool is_templates : {false, true}) {
        const double pressed_at = Now_Seconds();
        double shown_at = 0;
        const auto see = [&] { shown_at = Now_Seconds(); };
        if (is_templates)
            Visit_Templates(see);
        else
            Visit_Sent_Items(see);
        EXPECT_GE(shown_at - pressed_at, 0.1);
    }
}

TEST_F(Stores_Test, After_A_Delete_Row_0_Alone_Is_Selected_Whatever_Keys_Are_Held)
{
    for (const Qt::KeyboardModifier key : {Qt::ControlModifier, Qt::ShiftModifier}) {
        const auto delete_two = [&] {
            for (const int row : {1, 3})
                QTest::mouseClick(Table().viewport(), Qt::LeftButton, row == 1 ? Qt::NoModifier : Qt::ControlModifier,
                                  Table().visualRect(Table().model()->index(row, 0)).center());
            EXPECT_EQ(Selected(), (QList<int>{1, 3}));
            QTest::keyPress(&Table(), key == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control, key);
            QTest::mouseClick(&The<QPushButton>("Clear_Sel_Btn"), Qt::LeftButton, key);
            EXPECT_EQ(QGuiApplication::keyboardModifiers(), key);
            EXPECT_EQ(Shown(), (QStringList{"1", "3", "5"}));
            EXPECT_EQ(Selected(), QList<int>{0});
            QTest::keyRelease(&Table(), key == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control);
        };
        Write_Bytes(Sent_Item_Path, "\a1\vm\ad\v\n\a2\vm\ad\v\n\a3\vm\ad\v\n\a4\vm\ad\v\n\a5\vm\ad\v\n");
        Visit_Sent_Items(delete_two);
        Write_Bytes(Templates_Path, "1\n2\n3\n4\n5\n");
        Visit_Templates(delete_two);
    }
}

TEST_F(Stores_Test, A_Window_That_Is_Open_Does_Not_Open_Once_More)
{
    Visit_Sent_Items([] { Sent_Items::defaultInstance()->Open_Sent_Item_Wnd(); });
    Visit_Templates([] { EXPECT_EQ(Templates::defaultInstance()->Open_Template_Wnd(), 0); });
}

TEST_F(Stores_Test, The_Detail_View_And_The_Dialogs_Have_The_Colour_Of_The_Exported_Page)
{
    const QColor page(0xf1, 0xf4, 0xfa);
    const auto& detail = In<QPlainTextEdit>(*Sent_Items::defaultInstance(), "_Mess_det_edit");
    EXPECT_EQ(detail.palette().color(QPalette::Base), page);
    for (const QWidget* dialog :
         std::initializer_list<const QWidget*>{Export_Option::defaultInstance(), Open_Export_Log::defaultInstance()})
        EXPECT_EQ(dialog->palette().color(QPalette::Window), page) << qPrintable(dialog->objectName());
}
