#include "records/Data_Paths.h"
#include "windows/stores/Sent_Items.h"

#include "platform/Text_Files.h"
#include "records/Samples.h"
#include "records/Sent_Item_Format.h"
#include "records/Sent_Item_Store.h"
#include "toolkit/List_Tables.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/Stores_Test.h"

#include <QDir>
#include <QFileInfo>

namespace {

const QString List_Empty = QStringLiteral("\nSent items list is empty.");
const QString None_Selected =
    QStringLiteral("\nPlease select at least one record from the sent items list to continue.");
const QString Clear_All_Question = QStringLiteral("\nThis option will clear the entire list contents. Are you sure you "
                                                  "want to continue clearing the entire list?");

QByteArray Records(int count)
{
    QByteArray lines;
    for (int i = 0; i < count; ++i)
        lines += "\a" + QByteArray::number(1000 + i) + "\vmessage " + QByteArray::number(i) + "\a05/03/2024\v\n";
    return lines;
}

class Sent_Items_Test : public Stores_Test
{
protected:
    QString Detail() const { return The<QPlainTextEdit>("_Mess_det_edit").toPlainText(); }
    QString Count_Label() const { return The<QLabel>("_sent_list_count").text(); }
    static QByteArray Stored() { return Bytes_Of(Sent_Item_Path); }
};

} // namespace

TEST_F(Sent_Items_Test, The_Shared_Window_Is_Known_By_Its_Global)
{
    EXPECT_EQ(Sent_Items::defaultInstance(), Sent_Items::defaultInstance());
    EXPECT_EQ(SENT_WND, Sent_Items::defaultInstance());
    EXPECT_EQ(Sent_Items::defaultInstance()->objectName(), QStringLiteral("Sent_Items"));
    End_Shared_Instances();
    EXPECT_EQ(SENT_WND, nullptr);
}

TEST_F(Sent_Items_Test, The_File_Is_Shown_Record_By_Record_In_Its_Order)
{
    Write_Bytes(Sent_Item_Path, Golden("SentItem.ZOVA"));
    Visit_Sent_Items([this] {
        EXPECT_TRUE(m_visited->isModal());
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 3"));
        EXPECT_EQ(Shown(0), (QStringList{"00491701234567", "123", "5550199"}));
        EXPECT_EQ(Shown(1).first(), QStringLiteral("Hello  world second line  end "));
        EXPECT_EQ(Shown(2), (QStringList{"05/03/2024", "31/12/2023", "01/01/2024"}));
        EXPECT_EQ(Shown(3), (QStringList{"", "", ""}));
        EXPECT_EQ(Detail(), QString());
        Expect_Focus_On_Table();
    });
    EXPECT_EQ(Stored(), Golden("SentItem.ZOVA")) << "closing writes the same file again";
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Sent_Items_Test, Every_Opening_Loads_The_File_Again)
{
    Write_Bytes(Sent_Item_Path, Records(2));
    Visit_Sent_Items([this] {
        Select(1);
        EXPECT_NE(Detail(), QString());
    });
    EXPECT_TRUE(Sent_Item_Store::Append({"7", "new", "06/03/2024", {}}));
    Visit_Sent_Items([this] {
        EXPECT_EQ(Shown(), (QStringList{"1000", "1001", "7"}));
        EXPECT_EQ(Detail(), QString());
        EXPECT_TRUE(Selected().isEmpty());
        Select(1);
        EXPECT_TRUE(Detail().startsWith(QStringLiteral("Number\t: 1001"))) << "no record was shown yet";
    });
    EXPECT_EQ(Stored(), Records(2) + "\a7\vnew\a06/03/2024\v\n");
}

TEST_F(Sent_Items_Test, An_Empty_Missing_Or_Undecodable_File_Is_An_Empty_Table_Without_A_Word)
{
    const auto expect_empty = [this] {
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 0"));
        EXPECT_EQ(Table().model()->rowCount(), 0);
    };
    Visit_Sent_Items(expect_empty);
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    Visit_Sent_Items(expect_empty);
    Write_Bytes(Sent_Item_Path, "\a1\vm\ad\v\n\xff");
    Visit_Sent_Items(expect_empty);
    EXPECT_EQ(Stored(), QByteArray());
    EXPECT_EQ(Bytes_Of(Kept_Path(Sent_Item_Path)), QByteArray("\a1\vm\ad\v\n\xff"));
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Sent_Items_Test, A_Status_Written_Elsewhere_Is_Shown_And_Lost_On_Close)
{
    Write_Bytes(Sent_Item_Path, "\a1\vm\ad\vDelivered\n");
    Visit_Sent_Items([this] { EXPECT_EQ(Shown(3), QStringList{"Delivered"}); });
    EXPECT_EQ(Stored(), QByteArray("\a1\vm\ad\v\n"));
}

TEST_F(Sent_Items_Test, The_First_Selected_Record_Is_Shown_In_Full_Without_Its_Status)
{
    Write_Bytes(Sent_Item_Path, "\a1\vfirst|AP*|DX/line\ad1\vgone\n\a2\vtwo\ad2\v\n");
    Visit_Sent_Items([this] {
        Select(0);
        EXPECT_EQ(Detail(), QStringLiteral("Number\t: 1\n\nMessage\t: first\nline\n\nDate:\t d1"));
        Select(1);
        EXPECT_EQ(Detail(), QStringLiteral("Number\t: 2\n\nMessage\t: two\n\nDate:\t d2"));
        Select_Also(0);
        EXPECT_EQ(Detail(), QStringLiteral("Number\t: 1\n\nMessage\t: first\nline\n\nDate:\t d1"));
        EXPECT_TRUE(The<QPlainTextEdit>("_Mess_det_edit").isReadOnly());
    });
}

TEST_F(Sent_Items_Test, Selecting_The_Same_First_Record_Again_Does_Not_Write_It_Again)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    Visit_Sent_Items([this] {
        Select(1);
        The<QPlainTextEdit>("_Mess_det_edit").setPlainText(QStringLiteral("left as it is"));
        Select(1, 2);
        Table().clearSelection();
        Select(1);
        EXPECT_EQ(Detail(), QStringLiteral("left as it is"));
        Select(2);
        EXPECT_TRUE(Detail().startsWith(QStringLiteral("Number\t: 1002")));
    });
}

TEST_F(Sent_Items_Test, With_No_Records_Each_Button_Says_So_And_The_Table_Has_The_Focus)
{
    for (const char* button : {"Clear_Sel_Btn", "Clear_All_Btn", "Export_Btn"}) {
        m_user.Will_Press("OK");
        Visit_Sent_Items([&] {
            Click(button);
            Expect_Focus_On_Table();
        });
    }
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{List_Empty, List_Empty, List_Empty}));
}

TEST_F(Sent_Items_Test, Deleting_With_Nothing_Selected_Says_So_And_The_Table_Has_The_Focus)
{
    Write_Bytes(Sent_Item_Path, Records(2));
    m_user.Will_Press("OK");
    Visit_Sent_Items([this] {
        Click("Clear_Sel_Btn");
        Expect_Focus_On_Table();
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{None_Selected});
    EXPECT_EQ(Stored(), Records(2));
}

TEST_F(Sent_Items_Test, Selected_Records_Leave_The_List_At_Once_And_The_File_On_Close)
{
    Write_Bytes(Sent_Item_Path, Records(5));
    Visit_Sent_Items([this] {
        Select(1);
        Select_Also(3);
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Shown(), (QStringList{"1000", "1002", "1004"}));
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 3"));
        EXPECT_EQ(Selected(), QList{0});
        EXPECT_TRUE(Detail().startsWith(QStringLiteral("Number\t: 1000")));
        EXPECT_EQ(Stored(), Records(5)) << "the file is not touched yet";
    });
    EXPECT_EQ(Stored(), QByteArray("\a1000\vmessage 0\a05/03/2024\v\n\a1002\vmessage 2\a05/03/2024\v\n"
                                   "\a1004\vmessage 4\a05/03/2024\v\n"));
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Sent_Items_Test, After_The_First_Record_Is_Deleted_Its_Text_Stays_In_The_Detail_View)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    Visit_Sent_Items([this] {
        Select(0);
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Selected(), QList{0});
        EXPECT_TRUE(Detail().startsWith(QStringLiteral("Number\t: 1000"))) << "row 0 was the record last shown";
        Select(1);
        EXPECT_TRUE(Detail().startsWith(QStringLiteral("Number\t: 1002")));
    });
}

TEST_F(Sent_Items_Test, Deleting_Every_Record_Clears_The_Detail_View)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    Visit_Sent_Items([this] {
        Select(0, 2);
        EXPECT_NE(Detail(), QString());
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Detail(), QString());
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 0"));
        EXPECT_EQ(Table().model()->rowCount(), 0);
    });
    EXPECT_EQ(Stored(), QByteArray());
}

TEST_F(Sent_Items_Test, Clearing_All_Asks_And_No_Leaves_Everything)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    m_user.Will_Press("No");
    Visit_Sent_Items([this] {
        Click("Clear_All_Btn");
        EXPECT_EQ(Table().model()->rowCount(), 3);
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Clear_All_Question});
    EXPECT_EQ(Stored(), Records(3));
}

TEST_F(Sent_Items_Test, Clearing_All_Empties_The_List_And_The_File_At_Once)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    m_user.Will_Press("Yes");
    Visit_Sent_Items([this] {
        Select(2);
        Click("Clear_All_Btn");
        EXPECT_EQ(Table().model()->rowCount(), 0);
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 0"));
        EXPECT_EQ(Detail(), QString());
        EXPECT_EQ(Stored(), QByteArray());
    });
    EXPECT_EQ(Stored(), QByteArray());
}

TEST_F(Sent_Items_Test, Clearing_All_Where_Nothing_Can_Be_Written_Still_Empties_The_List)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    m_user.Will_Press("Yes");
    Visit_Sent_Items([this] {
        m_folder.Take_Away();
        Click("Clear_All_Btn");
        EXPECT_EQ(Table().model()->rowCount(), 0);
    });
    m_folder.Bring_Back();
    EXPECT_EQ(Stored(), Records(3));
}

TEST_F(Sent_Items_Test, Closing_Where_Nothing_Can_Be_Written_Says_Nothing_And_Leaves_The_File)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    Visit_Sent_Items([this] {
        Select(0);
        Click("Clear_Sel_Btn");
        m_folder.Take_Away();
    });
    m_folder.Bring_Back();
    EXPECT_EQ(Stored(), Records(3));
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Sent_Items_Test, Records_Appended_While_The_Window_Is_Open_Are_Still_There_After_It_Closes)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    m_user.Will_Press("Yes");
    Visit_Sent_Items([this] {
        EXPECT_TRUE(Sent_Item_Store::Append({"7", "first", "d", {}}));
        Select(1);
        Click("Clear_Sel_Btn");
        Click("Clear_All_Btn");
        EXPECT_TRUE(Sent_Item_Store::Append({"8", "second", "d", {}}));
    });
    EXPECT_EQ(Stored(), QByteArray("\a7\vfirst\ad\v\n\a8\vsecond\ad\v\n"));
}

TEST_F(Sent_Items_Test, A_Store_Deleted_While_The_Window_Is_Open_Is_Written_Again_On_Close)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    Visit_Sent_Items([] { ASSERT_TRUE(QFile::remove(Sent_Item_Path)); });
    EXPECT_EQ(Stored(), Records(3));
}

TEST_F(Sent_Items_Test, Escape_And_The_Close_Button_Write_The_List_Too)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    Visit_Sent_Items([this] {
        Select(0);
        Click("Clear_Sel_Btn");
        QTest::keyClick(m_visited, Qt::Key_Escape);
        EXPECT_FALSE(m_visited->isVisible());
    });
    EXPECT_EQ(Stored().count('\n'), 2);
    Visit_Sent_Items([this] {
        Select(0);
        Click("Clear_Sel_Btn");
        EXPECT_TRUE(m_visited->close());
        EXPECT_FALSE(m_visited->isVisible());
    });
    EXPECT_EQ(Stored(), QByteArray("\a1002\vmessage 2\a05/03/2024\v\n"));
}

TEST_F(Sent_Items_Test, A_Record_Created_With_A_Blank_Number_Is_Passed_Over)
{
    Visit_Sent_Items([this] {
        SENT_WND->Create_Sent_Item_List(" 12 ", " m ", "d", "s");
        SENT_WND->Create_Sent_Item_List(" \n ", "m", "d", "s");
        EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : 1"));
        EXPECT_EQ(Table().model()->rowCount(), 0) << "the count alone does not reload the table";
        SENT_WND->ListreloadData();
        EXPECT_EQ(Shown(0), QStringList{"12"});
        EXPECT_EQ(Shown(1), QStringList{" m "});
    });
    EXPECT_EQ(Stored(), QByteArray("\a12\v m \ad\v\n"));
}

TEST_F(Sent_Items_Test, The_Count_Label_Reloads_The_Table_Once_At_Exactly_Ten)
{
    Visit_Sent_Items([this] {
        for (int i = 1; i <= 12; ++i) {
            SENT_WND->Create_Sent_Item_List(QString::number(i), {}, {}, {});
            EXPECT_EQ(Count_Label(), QStringLiteral("Total Items : %1").arg(i));
            EXPECT_EQ(Table().model()->rowCount(), i < 10 ? 0 : 10);
        }
    });
}

TEST_F(Sent_Items_Test, A_Long_Load_Shows_Its_First_Ten_Rows_Early)
{
    Write_Bytes(Sent_Item_Path, Records(500));
    QList<int> rows_shown;
    auto* table = Sent_Items::defaultInstance()->findChild<QTableView*>();
    QObject::connect(table->model(), &QAbstractItemModel::rowsInserted, table,
                     [&] { rows_shown.append(table->model()->rowCount()); });
    Visit_Sent_Items([] {});
    EXPECT_EQ(rows_shown, (QList{10, 500}));
}

TEST_F(Sent_Items_Test, A_Row_Outside_The_List_Is_An_Invalid_Parameter)
{
    Write_Bytes(Sent_Item_Path, Records(1));
    Visit_Sent_Items([this] {
        for (const int row : {-1, 1}) {
            try {
                SENT_WND->tableView(&Table(), "Number", row);
                ADD_FAILURE() << "row " << row;
            } catch (const Invalid_Parameter& failure) {
                EXPECT_STREQ(failure.what(), "Invalid parameter not satisfying: pRowIndex >= 0 && pRowIndex < "
                                             "[nsSendListData count]");
            }
        }
        EXPECT_EQ(SENT_WND->tableView(&Table(), "Number", 0), QStringLiteral("1000"));
        const QTableView other;
        EXPECT_EQ(SENT_WND->numberOfRowsInTableView(&Table()), 1);
        EXPECT_EQ(SENT_WND->numberOfRowsInTableView(&other), 0);
    });
}

TEST_F(Sent_Items_Test, Closed_During_The_Load_The_Window_Goes_When_The_Whole_List_Is_In)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    auto& window = *Sent_Items::defaultInstance();
    m_visited = &window;
    std::atomic<bool> may_load{false};
    std::atomic<bool> is_locked{false};
    Start_Worker("holds the file", [&] {
        const File_Lock lock(Sent_Item_Path);
        is_locked = true;
        may_load.wait(false);
    });
    ASSERT_TRUE(Serve_Until([&] { return is_locked.load(); }));
    m_user.When_Opens("PleaseWait_Modeless", [&](QWidget&) {
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(window.Is_Loading());
        Click("Cancel_Btn");
        EXPECT_TRUE(window.isVisible()) << "no input is taken before the whole list is in";
        window.close();
        EXPECT_TRUE(window.isVisible());
        may_load = true;
        may_load.notify_all();
    });
    window.Open_Sent_Item_Wnd();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(Stored(), Records(3));
}

TEST_F(Sent_Items_Test, An_Exit_Of_The_Program_Leaves_The_File_As_It_Is)
{
    Write_Bytes(Sent_Item_Path, "\a1\vm\ad\vDelivered\n");
    Begin_Program_Exit();
    Sent_Items::defaultInstance()->Open_Sent_Item_Wnd();
    EXPECT_FALSE(Sent_Items::defaultInstance()->isVisible());
    EXPECT_EQ(Stored(), QByteArray("\a1\vm\ad\vDelivered\n"));
}

TEST_F(Sent_Items_Test, One_Huge_Record_Is_Shown_As_Far_As_It_Can_Be)
{
    const QByteArray line = "\a1\v" + QByteArray(5 << 20, 'x') + "\ad\v\n";
    Write_Bytes(Sent_Item_Path, line);
    Visit_Sent_Items([this] {
        Select(0);
        EXPECT_TRUE(
            Detail().endsWith(QStringLiteral("xxx\u2026\n[ The first 10000 of 5242880 characters ]\n\nDate:\t d")));
    });
    EXPECT_EQ(Stored(), line);
}
