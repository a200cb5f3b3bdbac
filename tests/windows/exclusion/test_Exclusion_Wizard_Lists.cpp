#include "windows/exclusion/Exclusion_Test.h"

class Exclusion_Lists_Test : public Exclusion_Test
{
protected:
    Exclusion_Lists_Test()
    {
        for (const char* name : {"Admin", "Staff", "Sales"})
            Make_List(name, "1\n");
    }

    void Delete_Lists(const std::vector<int>& rows, const std::vector<Box>& errors = {})
    {
        std::vector<Box> boxes = {{Delete_Question, "Yes"}};
        boxes.insert(boxes.end(), errors.begin(), errors.end());
        Select_Rows_In(Available(), rows);
        Expect_Boxes("m_delete_btn", boxes);
    }
};

TEST_F(Exclusion_Test, With_No_Lists_Every_Button_That_Needs_One_Says_So_And_Focuses_The_Table)
{
    Run([&] {
        for (const char* button : {"m_addlist_btn", "m_addAll_list_btn", "m_update_btn", "m_delete_btn"})
            Expect_Told(button, "\nAvailable list is empty.", "m_exclusion_list");
        const char* const none_applied = "\nExclude when sending SMS list is empty.";
        for (const char* button : {"m_dellist_btn", "m_delall_list_btn"})
            Expect_Told(button, none_applied, "m_applied_axclusion_list");
        Expect_Told([&] { m_window->Update_By_Applied_List(); }, none_applied, "m_applied_axclusion_list");
        EXPECT_TRUE(Is_On_First_Screen());
    });
}

TEST_F(Exclusion_Lists_Test, With_Nothing_Or_Too_Much_Selected_The_Buttons_Say_So_And_Focus_The_Table)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\nAdmin\n");
    Run([&] {
        const auto update_applied = [&] { m_window->Update_By_Applied_List(); };
        for (const char* button : {"m_addlist_btn", "m_update_btn", "m_delete_btn"})
            Expect_Told(button, "\nPlease select a record from the available list to continue.", "m_exclusion_list");
        const char* const none_selected = "\nPlease select a record from Exclude when sending SMS list to continue.";
        Expect_Told("m_dellist_btn", none_selected, "m_applied_axclusion_list");
        Expect_Told(update_applied, none_selected, "m_applied_axclusion_list");
        Select_Rows_In(Available(), {0, 1});
        Expect_Told("m_update_btn", Select_One, "m_exclusion_list");
        Select_Rows_In(Applied(), {0, 1});
        Expect_Told(update_applied, Select_One, "m_applied_axclusion_list");
        EXPECT_EQ(Shown(), On_First_Screen);
        EXPECT_EQ(Rows_Of(Available()).size(), 3);
        EXPECT_EQ(Rows_Of(Applied()).size(), 2);
    });
}

TEST_F(Exclusion_Lists_Test, The_Lists_Are_Read_Each_Time_The_Wizard_Opens)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\r\n");
    Run([&] {
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Admin", "Staff", "Sales"}));
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Staff"));
        Select_Rows_In(Available(), {0, 1});
    });
    Write_Bytes(Exclusion_Index_Path, "Other\nOne more\n");
    Write_Bytes(Applied_Exclusion_Path, "\xFF");
    Run([&] {
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Other", "One more"}));
        EXPECT_EQ(Rows_Of(Applied()), QStringList());
        EXPECT_TRUE(Rows_Selected_In(Available()).empty());
    });
}

TEST_F(Exclusion_Lists_Test, Lists_Are_Applied_In_Table_Order_Until_None_Is_Left)
{
    Write_Bytes(Applied_Exclusion_Path, "Elsewhere\n");
    Run([&] {
        Click_Row(Available(), 2);
        Click_Row(Available(), 0, Qt::ControlModifier);
        Click("m_addlist_btn");
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"Elsewhere", "Admin", "Sales"}));
        Expect_Told("m_addlist_btn", "\nSelected list is already in use.", "m_exclusion_list");
        Select_Rows_In(Available(), {0, 1}); // of which one is applied
        Click("m_addlist_btn");
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"Elsewhere", "Admin", "Sales", "Staff"}));
        Select_Rows_In(Applied(), {1, 3});
        Click("m_dellist_btn");
        Click("m_addAll_list_btn");
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"Elsewhere", "Sales", "Admin", "Staff"}));
        Expect_Told("m_addAll_list_btn", "\nAll available lists are already in use.", "m_exclusion_list");
    });
}

TEST_F(Exclusion_Lists_Test, Removed_Applied_Lists_Leave_Row_0_Alone_Selected_And_The_File_As_It_Is_When_Cancelled)
{
    Write_Bytes(Applied_Exclusion_Path, "Admin\nStaff\nSales\n");
    Run([&] {
        Click_Row(Applied(), 0);
        Click_Row(Applied(), 2, Qt::ControlModifier);
        Click_Holding_Control("m_dellist_btn");
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Staff"));
        EXPECT_EQ(Rows_Selected_In(Applied()), std::vector<int>{0});
        EXPECT_EQ(Focused(), &Applied());
        Click("m_dellist_btn");
        EXPECT_TRUE(Rows_Of(Applied()).isEmpty());
        Click("m_addAll_list_btn");
        Click("m_delall_list_btn");
        EXPECT_TRUE(Rows_Of(Applied()).isEmpty());
        Click("m_cancel_btn");
        EXPECT_FALSE(m_window->isVisible());
    });
    EXPECT_EQ(m_window->result(), 0);
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Admin\nStaff\nSales\n") << "not saved";
    Run([&] { EXPECT_EQ(Rows_Of(Applied()), QStringList({"Admin", "Staff", "Sales"})); });
}

TEST_F(Exclusion_Lists_Test, Applied_Lists_Are_Saved_After_A_Yes_And_Stay_When_They_Can_Not_Be)
{
    Run([&] {
        Click("m_addAll_list_btn");
        Expect_Boxes("m_saveapplied_btn", {{Continue_Question, "No"}});
        EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "");
        EXPECT_EQ(m_main_window.m_exclusion_fills, 0);
        Agree_To("m_saveapplied_btn");
        EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Admin\nStaff\nSales\n");
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
        Click("m_delall_list_btn");
        Agree_To("m_saveapplied_btn");
        EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "");
        EXPECT_EQ(m_main_window.m_exclusion_fills, 2);
        Click("m_addAll_list_btn");
        Put_A_Folder_At(Applied_Exclusion_Path);
        Expect_Boxes("m_saveapplied_btn", {{Continue_Question, "Yes"}, {File_Error}});
        EXPECT_EQ(m_main_window.m_exclusion_fills, 2);
        EXPECT_EQ(Rows_Of(Applied()).size(), 3);
    });
}

TEST_F(Exclusion_Lists_Test, A_Deleted_List_Is_Gone_From_Both_Tables_And_All_Files_At_Once)
{
    Write_Bytes(Applied_Exclusion_Path, "Staff\nAdmin\n");
    Run([&] {
        Click_Row(Available(), 1);
        Expect_Boxes("m_delete_btn", {{Delete_Question, "No"}});
        EXPECT_EQ(Rows_Of(Available()).size(), 3);
        Delete_Lists({1});
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Admin", "Sales"}));
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Admin"));
        EXPECT_TRUE(Rows_Selected_In(Available()).empty()) << "the next list moved up; it was not chosen";
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "Admin\nSales\n");
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Admin\n");
    EXPECT_EQ(Bytes_Of(Path_Of_List("Staff")), "(no file)");
    EXPECT_EQ(Bytes_Of(Path_Of_List("Admin")), "1\n");
    EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
}

TEST_F(Exclusion_Lists_Test, Deleting_Several_Lists_Saves_The_Applied_Table_As_It_Stands_And_Makes_Missing_Files_Again)
{
    QFile::remove(Path_Of_List("Admin")); // about which nothing is said
    Write_Bytes(Applied_Exclusion_Path, "Staff\nAdmin\nStaff\n");
    Run([&] {
        Click("m_addAll_list_btn");
        Delete_Lists({0, 1});
        EXPECT_EQ(Rows_Of(Available()), QStringList("Sales"));
        EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Staff\nSales\n") << "each took one entry, the last";
        QDir(Corvane_Data_Folder_Path).removeRecursively(); // before the rewrite the files are made again
        Delete_Lists({0});
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "");
    EXPECT_EQ(Bytes_Of(Applied_Exclusion_Path), "Staff\n");
    EXPECT_TRUE(QFile::exists(Sent_Item_Path));
    EXPECT_EQ(QDir(Exclusion_Folder_Path).entryList(QDir::Files), QStringList("ExListIndex.ZOVA"));
}

TEST_F(Exclusion_Lists_Test, Each_File_That_Can_Not_Be_Rewritten_After_A_Deletion_Is_Told_About)
{
    Run([&] {
        Put_A_Folder_At(Exclusion_Index_Path);
        Delete_Lists({0}, {{File_Error}});
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1) << "the applied lists were written";
        Put_A_Folder_At(Applied_Exclusion_Path);
        Delete_Lists({0}, {{File_Error}, {File_Error}});
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
        EXPECT_EQ(Rows_Of(Available()), QStringList("Sales"));
    });
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
        const std::tuple<const QTableView*, const char*, int, const char*> cases[] = {
            {&Available(), "Avail_List", 3, "Admin"},
            {&Applied(), "Exclude_List", 1, "Staff"},
            {&Numbers(), "Exclusion_Num_List", 1, "123"}};
        for (const auto& [table, identifier, rows, first] : cases) {
            EXPECT_EQ(m_window->numberOfRowsInTableView(table), rows);
            EXPECT_EQ(m_window->tableView(table, identifier, 0), first);
            EXPECT_EQ(m_window->tableView(table, "Number", 0), "");
            EXPECT_EQ(m_window->tableView(table, identifier, rows), "");
            EXPECT_EQ(m_window->tableView(table, identifier, -1), "");
        }
    });
}
