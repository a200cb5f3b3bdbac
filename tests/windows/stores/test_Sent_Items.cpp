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
