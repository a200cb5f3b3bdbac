#include "records/Sent_Item_Store.h"
#include "windows/stores/Stores_Test.h"

namespace {

QByteArray Stored()
{
    return Bytes_Of(Sent_Item_Path);
}

} // namespace

using Sent_Items_Test = Stores_Test;

TEST_F(Sent_Items_Test, The_File_Is_Shown_Record_By_Record_In_Its_Order)
{
    Write_Bytes(Sent_Item_Path, Golden("SentItem.ZOVA"));
    Visit_Sent_Items([this] {
        EXPECT_TRUE(m_visited->isModal());
        EXPECT_EQ(Count_Label(), "Total Items : 3");
        EXPECT_EQ(Shown(0), (QStringList{"00491701234567", "123", "5550199"}));
        EXPECT_EQ(Shown(1).first(), "Hello  world second line  end ");
        EXPECT_EQ(Shown(2), (QStringList{"05/03/2024", "31/12/2023", "01/01/2024"}));
        EXPECT_EQ(Shown(3), (QStringList{"", "", ""}));
        EXPECT_EQ(Detail(), QString());
        Expect_Focus_On_Table();
    });
    EXPECT_EQ(Stored(), Golden("SentItem.ZOVA")) << "closing writes the same file again";
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
        EXPECT_TRUE(Selected().empty());
        Select(1);
        EXPECT_TRUE(Detail().startsWith("Number\t: 1001")) << "no record was shown yet";
    });
    EXPECT_EQ(Stored(), Records(2) + "\a7\vnew\a06/03/2024\v\n");
}

TEST_F(Sent_Items_Test, The_First_Selected_Record_Is_Shown_In_Full_And_A_Status_In_The_Table_Alone)
{
    Write_Bytes(Sent_Item_Path, "\a1\vfirst|AP*|DX/line\ad1\vDelivered\n\a2\vtwo\ad2\v\n");
    Visit_Sent_Items([this] {
        EXPECT_EQ(Shown(3), (QStringList{"Delivered", ""}));
        Select(0);
        EXPECT_EQ(Detail(), "Number\t: 1\n\nMessage\t: first\nline\n\nDate:\t d1");
        Select(1);
        EXPECT_EQ(Detail(), "Number\t: 2\n\nMessage\t: two\n\nDate:\t d2");
        Select_Also(0);
        EXPECT_EQ(Detail(), "Number\t: 1\n\nMessage\t: first\nline\n\nDate:\t d1");
        EXPECT_TRUE(Detail_View().isReadOnly());
    });
    EXPECT_EQ(Stored(), QByteArray("\a1\vfirst|AP*|DX/line\ad1\v\n\a2\vtwo\ad2\v\n")) << "no status is written";
}

TEST_F(Sent_Items_Test, Selecting_The_Same_First_Row_Again_Does_Not_Write_The_Detail_View_Again)
{
    Write_Bytes(Sent_Item_Path, Records(4));
    Visit_Sent_Items([this] {
        Select(1);
        Detail_View().setPlainText("left as it is");
        Select(1, 2);
        Table().clearSelection();
        Select(1);
        EXPECT_EQ(Detail(), "left as it is");
        Clear(0);
        EXPECT_EQ(Selected(), std::vector{0});
        EXPECT_TRUE(Detail().startsWith("Number\t: 1000")) << "row 0 was the one last shown";
        Select(1);
        EXPECT_TRUE(Detail().startsWith("Number\t: 1002"));
        Click("Clear_Sel_Btn");
        EXPECT_TRUE(Detail().startsWith("Number\t: 1001"));
    });
}

TEST_F(Sent_Items_Test, What_A_Button_Can_Not_Do_Is_Told_And_The_Table_Has_The_Focus)
{
    Visit_Sent_Items([this] {
        for (const char* button : {"Clear_Sel_Btn", "Clear_All_Btn", "Export_Btn"})
            Expect_Told(button, "\nSent items list is empty.");
    });
    Write_Bytes(Sent_Item_Path, Records(2));
    Visit_Sent_Items([this] {
        Expect_Told("Clear_Sel_Btn", "\nPlease select at least one record from the sent items list to continue.");
    });
    EXPECT_EQ(Stored(), Records(2));
}

TEST_F(Sent_Items_Test, Where_Nothing_Can_Be_Written_The_List_Is_Emptied_And_The_File_Stays_Without_A_Word)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    m_user.Will_Press("Yes");
    Visit_Sent_Items([this] {
        Clear(0);
        m_folder.Take_Away();
        Click("Clear_All_Btn");
        EXPECT_EQ(Table().model()->rowCount(), 0);
    });
    m_folder.Bring_Back();
    EXPECT_EQ(Stored(), Records(3));
}

TEST_F(Sent_Items_Test, A_Record_Created_With_A_Blank_Number_Is_Passed_Over)
{
    Visit_Sent_Items([this] {
        SENT_WND->Create_Sent_Item_List(" 12 ", " m ", "d", "s");
        SENT_WND->Create_Sent_Item_List(" \n ", "m", "d", "s");
        EXPECT_EQ(Count_Label(), "Total Items : 1");
        EXPECT_EQ(Table().model()->rowCount(), 0) << "the count alone does not reload the table";
        SENT_WND->ListreloadData();
        EXPECT_EQ(Shown(0), QStringList{"12"});
        EXPECT_EQ(Shown(1), QStringList{" m "});
    });
    EXPECT_EQ(Stored(), QByteArray("\a12\v m \ad\v\n"));
}

TEST_F(Sent_Items_Test, Closed_During_The_Load_The_Window_Goes_When_The_Whole_List_Is_In)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    auto& window = *Sent_Items::defaultInstance();
    m_visited = &window;
    auto lock = std::make_unique<File_Lock>(Sent_Item_Path);
    m_user.When_Opens("PleaseWait_Modeless", [&](QWidget&) {
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(window.Is_Loading());
        Click("Cancel_Btn");
        EXPECT_TRUE(window.isVisible()) << "no input is taken before the whole list is in";
        window.close();
        EXPECT_TRUE(window.isVisible());
        lock.reset();
    });
    window.Open_Sent_Item_Wnd();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(Stored(), Records(3));
}

TEST_F(Sent_Items_Test, One_Huge_Record_Is_Shown_As_Far_As_It_Can_Be)
{
    const QByteArray line = "\a1\v" + QByteArray(5 << 20, 'x') + "\ad\v\n";
    Write_Bytes(Sent_Item_Path, line);
    Visit_Sent_Items([this] {
        Select(0);
        EXPECT_TRUE(Detail().endsWith("xxx\u2026\n[ The first 10000 of 5242880 characters ]\n\nDate:\t d"));
    });
    EXPECT_EQ(Stored(), line);
}

TEST_F(Sent_Items_Test, Records_Are_Found_And_Sorted_And_What_Is_Done_Is_Done_To_Those_That_Are_Shown)
{
    Write_Bytes(Sent_Item_Path, "\a1\vone\a05/03/2024\v\n\a2\vtwo\a31/12/2023\v\n\a3\vthree\a06/02/2024\v\n");
    const QByteArray left = "\a1\vone\a05/03/2024\v\n\a3\vthree\a06/02/2024\v\n";
    Visit_Sent_Items([this] {
        auto& headings = *The<QTableView>("idSendList").horizontalHeader();
        headings.setSortIndicator(2, Qt::AscendingOrder); // as dates, not as texts
        EXPECT_THAT(Shown(2), (QStringList{"31/12/2023", "06/02/2024", "05/03/2024"}));
        Select(0);
        EXPECT_TRUE(Detail().startsWith("Number\t: 2"));
        In<QAction>(*m_visited, "Find_Rows").trigger();
        The<QLineEdit>("_Find_Edit").setText("2023");
        EXPECT_EQ(The<QLabel>("_Find_Count").text(), "1 of 3");
        In<QAction>(*m_visited, "Copy_Rows").trigger();
        EXPECT_EQ(QApplication::clipboard()->text(), "2\ttwo\t31/12/2023\t\n");
        Click("Clear_Sel_Btn");
        EXPECT_EQ(Count_Label(), "Total Items : 2");
        EXPECT_TRUE(Shown().isEmpty());
        QTest::keyClick(&The<QLineEdit>("_Find_Edit"), Qt::Key_Escape); // closes the row, and not the window
        EXPECT_TRUE(m_visited->isVisible());
        EXPECT_EQ(Shown(), (QStringList{"3", "1"}));
    });
    EXPECT_EQ(Stored(), left);
    Visit_Sent_Items([this] { EXPECT_EQ(Shown(), (QStringList{"1", "3"})); }); // as they are kept
}

TEST_F(Sent_Items_Test, An_Empty_List_Says_Why_And_Offers_To_Keep_Messages_From_Now_On)
{
    auto& window = *Sent_Items::defaultInstance();
    QObject::connect(&window, &Sent_Items::Saving_Wanted, &m_window,
                     [this] { m_window.m_choices.save_sent_items = true; });
    Visit_Sent_Items([this] {
        auto& step = The<QPushButton>("First_Step_Here");
        EXPECT_TRUE(step.isVisible());
        EXPECT_EQ(Table().accessibleDescription(), "No message is kept here yet, and those that are sent will not be.");
        Click_Middle_Of(step);
        EXPECT_FALSE(step.isVisible());
        EXPECT_EQ(Table().accessibleDescription(),
                  "No message is kept here yet. Those that are handed to the phone from now on will be.");
    });
    Write_Bytes(Sent_Item_Path, Records(2));
    Visit_Sent_Items([this] {
        EXPECT_EQ(Table().accessibleDescription(), QString());
        Clear(0, 1);
        EXPECT_TRUE(Table().accessibleDescription().startsWith("No message is kept here yet."));
    });
}
