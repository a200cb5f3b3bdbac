#include "records/Data_Paths.h"
#include "windows/exclusion/Exclusion_Test.h"

#include <QDir>
#include <QFileInfo>

namespace {

const char* const Continue_Question = "\nAre you sure you want to continue";
const char* const Delete_Question = "\nAre you sure you want delete the selected available list?";

class Exclusion_Lists_Test : public Exclusion_Test
{
protected:
    Exclusion_Lists_Test()
    {
        for (const char* name : {"Admin", "Staff", "Sales"})
            Make_List(name, "1\n");
    }

    void Delete_Selected(const char* answer = "Yes")
    {
        Expect_Asked([this] { Click("m_delete_btn"); }, Delete_Question, answer);
    }
};

TEST_F(Exclusion_Test, With_No_Lists_Every_Button_That_Needs_One_Says_So_And_Focuses_The_Table)
{
    Run([&] {
        for (const char* button : {"m_addlist_btn", "m_addAll_list_btn", "m_update_btn", "m_delete_btn"})
            Expect_Told_By(button, "Available list is empty.", "m_exclusion_list");
        for (const char* button : {"m_dellist_btn", "m_delall_list_btn"})
            Expect_Told_By(button, "Exclude when sending SMS list is empty.", "m_applied_axclusion_list");
        Expect_Told([&] { m_window->Update_By_Applied_List(); }, "Exclude when sending SMS list is empty.",
                    "m_applied_axclusion_list");
        EXPECT_TRUE(Is_On_First_Screen());
    });
}

TEST_F(Exclusion_Lists_Test, With_Nothing_Selected_The_Buttons_Ask_For_A_Selection_And_Focus_The_Table)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\n");
    Run([&] {
        for (const char* button : {"m_addlist_btn", "m_update_btn", "m_delete_btn"})
            Expect_Told_By(button, "Please select a record from the available list to continue.", "m_exclusion_list");
        Expect_Told_By("m_dellist_btn", "Please select a record from Exclude when sending SMS list to continue.",
                       "m_applied_axclusion_list");
        Expect_Told([&] { m_window->Update_By_Applied_List(); },
                    "Please select a record from Exclude when sending SMS list to continue.",
                    "m_applied_axclusion_list");
        EXPECT_EQ(Rows_Of(Available()).size(), 3);
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Staff"));
    });
}

TEST_F(Exclusion_Lists_Test, The_Lists_Are_Read_Each_Time_The_Wizard_Opens)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\r\n");
    Run([&] {
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Admin", "Staff", "Sales"}));
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Staff"));
        Select(Available(), {0, 1});
    });
    Write_Bytes(Exclusion_Index_Path, "Other\nOne more\n");
    Write_Bytes(Applied_Exclusion_Path, "\xFF");
    Run([&] {
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Other", "One more"}));
        EXPECT_EQ(Rows_Of(Applied()), QStringList());
        EXPECT_TRUE(Selected_In(Available()).empty());
    });
}

TEST_F(Exclusion_Lists_Test, Selected_Lists_Are_Applied_In_Table_Order)
{
    Run([&] {
        Click_Row(Available(), 2);
        Click_Row(Available(), 0, Qt::ControlModifier);
        Click("m_addlist_btn");
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"Admin", "Sales"}));
    });
}

TEST_F(Exclusion_Lists_Test, Of_Two_Selected_Lists_Only_The_One_Not_Yet_Applied_Is_Added_Without_A_Word)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\n");
    Run([&] {
        Select(Available(), {0, 1});
        Click("m_addlist_btn");
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"Staff", "Admin"}));
        Expect_Told_By("m_addlist_btn", "Selected list is already in use.", "m_exclusion_list");
        EXPECT_EQ(Rows_Of(Applied()).size(), 2);
    });
    EXPECT_EQ(m_user.Was_Shown().size(), 1);
}

TEST_F(Exclusion_Lists_Test, All_Lists_Are_Applied_Until_None_Is_Left)
{
    Write_Bytes(Applied_Exclusion_Path, "Sales\nElsewhere\n");
    Run([&] {
        Click("m_addAll_list_btn");
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"Sales", "Elsewhere", "Admin", "Staff"}));
        Expect_Told_By("m_addAll_list_btn", "All available lists are already in use.", "m_exclusion_list");
    });
}

TEST_F(Exclusion_Lists_Test, Removed_Applied_Lists_Leave_Row_0_Selected_And_The_Table_Focused)
{
    Write_Bytes(Applied_Exclusion_Path, "Admin\nStaff\nSales\n");
    Run([&] {
        Click_Row(Applied(), 0);
        Click_Row(Applied(), 2, Qt::ControlModifier);
        Click("m_dellist_btn");
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Staff"));
        EXPECT_EQ(Selected_In(Applied()), std::vector<int>{0});
        EXPECT_EQ(m_window->focusWidget(), &Applied());
        Click("m_dellist_btn");
        EXPECT_TRUE(Rows_Of(Applied()).isEmpty());
    });
}

TEST_F(Exclusion_Lists_Test, All_Applied_Lists_Are_Removed_At_Once)
{
    Write_Bytes(Applied_Exclusion_Path, "Admin\nStaff\n");
    Run([&] {
        Click("m_delall_list_btn");
        EXPECT_TRUE(Rows_Of(Applied()).isEmpty());
    });
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Admin\nStaff\n") << "not saved";
}

TEST_F(Exclusion_Lists_Test, Applied_Lists_Are_Saved_After_A_Yes)
{
    Run([&] {
        Click("m_addAll_list_btn");
        Expect_Asked([&] { Click("m_saveapplied_btn"); }, Continue_Question, "No");
        EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "");
        EXPECT_EQ(m_main_window.m_exclusion_fills, 0);
        Expect_Asked([&] { Click("m_saveapplied_btn"); }, Continue_Question, "Yes");
        EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Admin\nStaff\nSales\n");
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
        Click("m_delall_list_btn");
        Expect_Asked([&] { Click("m_saveapplied_btn"); }, Continue_Question, "Yes");
        EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "");
    });
}

TEST_F(Exclusion_Lists_Test, Cancelling_After_Applying_Asks_Nothing_And_Leaves_The_File)
{
    Write_Bytes(Applied_Exclusion_Path, "Sales\n");
    Run([&] {
        Click("m_addAll_list_btn");
        Click("m_cancel_btn");
        EXPECT_FALSE(m_window->isVisible());
    });
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Sales\n");
    EXPECT_EQ(m_window->result(), 0);
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
    Run([&] { EXPECT_EQ(Rows_Of(Applied()), QStringList("Sales")); });
}

TEST_F(Exclusion_Lists_Test, Applied_Lists_That_Can_Not_Be_Written_Change_Nothing)
{
    Run([&] {
        Click("m_addAll_list_btn");
        Put_A_Folder_At(Applied_Exclusion_Path);
        m_user.Will_Press("Yes");
        m_user.Will_Press("OK");
        Click("m_saveapplied_btn");
        EXPECT_EQ(m_user.Was_Shown(), QStringList({Continue_Question, Boxed("Error in file accessing.")}));
        EXPECT_EQ(m_main_window.m_exclusion_fills, 0);
        EXPECT_EQ(Rows_Of(Applied()).size(), 3);
    });
}

TEST_F(Exclusion_Lists_Test, A_Deleted_List_Is_Gone_From_Both_Tables_And_All_Files_At_Once)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\nAdmin\n");
    Run([&] {
        Click_Row(Available(), 1);
        Delete_Selected("No");
        EXPECT_EQ(Rows_Of(Available()).size(), 3);
        Delete_Selected();
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Admin", "Sales"}));
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Admin"));
        EXPECT_TRUE(Selected_In(Available()).empty()) << "the next list moved up; it was not chosen";
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "Admin\nSales\n");
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Admin\n");
    EXPECT_EQ(Bytes_Of(Path_Of_List("Staff")), "(no file)");
    EXPECT_EQ(Bytes_Of(Path_Of_List("Admin")), "1\n");
    EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
}

TEST_F(Exclusion_Lists_Test, Several_Lists_Are_Deleted_Together_Until_None_Is_Left)
{
    Run([&] {
        Select(Available(), {0, 2});
        Delete_Selected();
        EXPECT_EQ(Rows_Of(Available()), QStringList("Staff"));
        Select(Available(), {0});
        Delete_Selected();
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "");
    EXPECT_EQ(QDir(Exclusion_Folder_Path).entryList(QDir::Files), QStringList("ExListIndex.ZOVA"));
}

TEST_F(Exclusion_Lists_Test, Each_Deleted_Row_Takes_One_Applied_Entry_The_Last)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\nAdmin\nStaff\n");
    Run([&] {
        Select(Available(), {1});
        Delete_Selected();
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"Staff", "Admin"}));
    });
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Staff\nAdmin\n");
}

TEST_F(Exclusion_Lists_Test, Deleting_Saves_The_Applied_Table_As_It_Stands)
{
    Run([&] {
        Click("m_addAll_list_btn");
        Select(Available(), {0});
        Delete_Selected();
    });
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Staff\nSales\n");
}

TEST_F(Exclusion_Lists_Test, A_List_Without_A_File_Is_Deleted_Without_A_Word)
{
    QFile::remove(Path_Of_List("Admin"));
    Run([&] {
        Select(Available(), {0});
        Delete_Selected();
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "Staff\nSales\n");
}

TEST_F(Exclusion_Lists_Test, Missing_Files_Are_Made_Again_Before_The_Rewrite)
{
    Run([&] {
        QDir(Corvane_Data_Folder_Path).removeRecursively();
        Select(Available(), {0});
        Delete_Selected();
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "Staff\nSales\n");
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "");
    EXPECT_TRUE(QFileInfo::exists(Sent_Item_Path));
}

TEST_F(Exclusion_Lists_Test, Each_File_That_Can_Not_Be_Rewritten_After_A_Deletion_Is_Told_About)
{
    Run([&] {
        Put_A_Folder_At(Exclusion_Index_Path);
        Select(Available(), {0});
        m_user.Will_Press("Yes");
        m_user.Will_Press("OK");
        Click("m_delete_btn");
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1) << "the applied lists were written";
        Put_A_Folder_At(Applied_Exclusion_Path);
        Select(Available(), {0});
        m_user.Will_Press("Yes");
        m_user.Will_Press("OK");
        m_user.Will_Press("OK");
        Click("m_delete_btn");
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
        EXPECT_EQ(Rows_Of(Available()), QStringList("Sales"));
    });
    const QString error = Boxed("Error in file accessing.");
    EXPECT_EQ(m_user.Was_Shown(), QStringList({Delete_Question, error, Delete_Question, error, error}));
}

TEST_F(Exclusion_Lists_Test, Deleting_A_Name_That_Leads_Out_Of_The_Folder_Deletes_Nothing_There)
{
    Write_Bytes(Corvane_Data_Folder_Path + "/x.ZOVA", "1\n");
    Write_Bytes(Exclusion_Index_Path, "../x\n");
    Run([&] {
        Select(Available(), {0});
        Delete_Selected();
        EXPECT_TRUE(Rows_Of(Available()).isEmpty());
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "");
    EXPECT_EQ(Bytes_Of(Corvane_Data_Folder_Path + "/x.ZOVA"), "1\n");
}

TEST_F(Exclusion_Lists_Test, The_Operations_In_Memory_Trim_And_Pass_Over_Nothing_And_Keep_Repeats)
{
    Run([&] {
        for (const char* name : {" a ", "", " ", "a"}) {
            m_window->Create_Avail_List(name);
            m_window->Create_Exclude_List(name);
            m_window->Create_Ex_Num_List(name);
        }
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Admin", "Staff", "Sales", "a", "a"}));
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"a", "a"}));
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"a", "a"}));
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 2");
        EXPECT_TRUE(m_window->Skip_Duplicate_Number("a"));
        EXPECT_FALSE(m_window->Skip_Duplicate_Number(" a"));
    });
}

TEST_F(Exclusion_Lists_Test, Each_Table_Answers_For_Its_Own_Identifier_And_Its_Own_Rows)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\n");
    Run([&] {
        m_window->Create_Ex_Num_List("123");
        const struct
        {
            const QTableView* table;
            const char* identifier;
            int rows;
            const char* first;
        } cases[] = {{&Available(), "Avail_List", 3, "Admin"},
                     {&Applied(), "Exclude_List", 1, "Staff"},
                     {&Numbers(), "Exclusion_Num_List", 1, "123"}};
        for (const auto& each : cases) {
            EXPECT_EQ(m_window->numberOfRowsInTableView(each.table), each.rows);
            EXPECT_EQ(m_window->tableView(each.table, each.identifier, 0), each.first);
            EXPECT_EQ(m_window->tableView(each.table, "Number", 0), "");
            EXPECT_EQ(m_window->tableView(each.table, each.identifier, each.rows), "");
            EXPECT_EQ(m_window->tableView(each.table, each.identifier, -1), "");
        }
    });
}

} // namespace
