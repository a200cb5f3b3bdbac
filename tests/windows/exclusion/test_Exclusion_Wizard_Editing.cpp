#include "records/Data_Paths.h"
#include "windows/exclusion/Exclusion_Screens_Test.h"

namespace {

TEST_F(Exclusion_Screens_Test, An_Edited_List_Shows_Its_Numbers_And_Is_Saved_By_Finish)
{
    Make_List("Admin", "9\n");
    Make_List("Staff", "1\r\n 2 \n\n2\n");
    Run([&] {
        Edit_List(1);
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Label("m_st_curr_use_ex_list"), "Currently using exclusion list : Staff");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "2", "2"}));
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 3");
        EXPECT_EQ(Focused(), &Control("m_loadfile_edit"));
        Expect_Counts(0, 3);
        Add_Number("3");
        Finish();
        Expect_First_Screen();
        Expect_Counts(0, 3);
        EXPECT_TRUE(Rows_Of(Numbers()).isEmpty());
    });
    EXPECT_EQ(Bytes_Of(Path_Of_List("Staff")), "1\n2\n2\n3\n");
    EXPECT_EQ(Bytes_Of(Path_Of_List("Admin")), "9\n");
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "Admin\nStaff\n");
    EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
}

TEST_F(Exclusion_Screens_Test, A_Name_That_Can_Not_Be_Typed_Is_Edited_In_Its_Own_File)
{
    const QString short_name(50, u'x');
    for (const QString& name : {short_name + QStringLiteral(" and ten more"), QStringLiteral("two\vlines")}) {
        SCOPED_TRACE(name.toStdString());
        Write_Bytes(Exclusion_Index_Path, "");
        Make_List(short_name, "1\n");
        Make_List("two lines", "1\n");
        Make_List(name, "5\n");
        Run([&] {
            Edit_List(2);
            EXPECT_EQ(Label("m_st_curr_use_ex_list"), "Currently using exclusion list : " + name);
            EXPECT_EQ(Rows_Of(Numbers()), QStringList("5"));
            Add_Number("6");
            Finish();
        });
        EXPECT_EQ(Bytes_Of(Path_Of_List(name)), "5\n6\n");
        EXPECT_EQ(Bytes_Of(Path_Of_List(short_name)), "1\n");
        EXPECT_EQ(Bytes_Of(Path_Of_List("two lines")), "1\n");
    }
}

TEST_F(Exclusion_Screens_Test, Update_Of_Several_Lists_Is_Refused)
{
    Make_List("Admin", "");
    Make_List("Staff", "");
    Write_Bytes(Applied_Exclusion_Path, "Admin\nStaff\n");
    Run([&] {
        Select(Available(), {0, 1});
        Expect_Told_By("m_update_btn", "Please select only one record to update.", "m_exclusion_list");
        Select(Applied(), {0, 1});
        Expect_Told([&] { m_window->Update_By_Applied_List(); }, "Please select only one record to update.",
                    "m_applied_axclusion_list");
        EXPECT_EQ(Shown(), On_First_Screen);
    });
}

TEST_F(Exclusion_Screens_Test, A_Double_Click_Edits_And_With_Several_Selected_It_Says_So)
{
    Make_List("Admin", "1\n");
    Make_List("Staff", "2\n3\n");
    Write_Bytes(Applied_Exclusion_Path, "Staff\nAdmin\n");
    Run([&] {
        Click_Row(Available(), 0);
        Expect_Told([&] { Double_Click_Row(Available(), 1, Qt::ControlModifier); },
                    "Please select only one record to update.", "m_exclusion_list");
        EXPECT_EQ(Shown(), On_First_Screen);
        Click_Row(Applied(), 0);
        Expect_Told([&] { Double_Click_Row(Applied(), 1, Qt::ControlModifier); },
                    "Please select only one record to update.", "m_applied_axclusion_list");
        Click_Row(Available(), 1);
        Double_Click_Row(Available(), 1);
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"2", "3"}));
        Click_Row(Numbers(), 0);
        Expect_Told([&] { Double_Click_Row(Numbers(), 1, Qt::ControlModifier); },
                    "Please select only one record to update.", "m_ex_num_list");
        Click("m_back_btn");
        Click_Row(Applied(), 1);
        Double_Click_Row(Applied(), 1);
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
        EXPECT_EQ(Label("m_st_curr_use_ex_list"), "Currently using exclusion list : Admin");
    });
}

TEST_F(Exclusion_Screens_Test, A_Double_Click_On_One_Of_Several_Selected_Rows_Says_So_In_Each_Table)
{
    Make_List("Admin", "1\n");
    Make_List("Staff", "2\n3\n");
    Write_Bytes(Applied_Exclusion_Path, "Staff\nAdmin\n");
    Run([&] {
        const auto expect_refusal = [&](QTableView& table, const char* name) {
            Select(table, {0, 1});
            Click_Row(table, 1, Qt::ShiftModifier);
            Expect_Told([&] { Double_Click_Row(table, 0); }, "Please select only one record to update.", name);
            EXPECT_EQ(Selected_In(table), (std::vector<int>{0, 1}));
        };
        expect_refusal(Available(), "m_exclusion_list");
        expect_refusal(Applied(), "m_applied_axclusion_list");
        EXPECT_EQ(Shown(), On_First_Screen);
        Click_Row(Available(), 1);
        Click("m_update_btn");
        expect_refusal(Numbers(), "m_ex_num_list");
    });
}

TEST_F(Exclusion_Screens_Test, After_A_Removal_Row_0_Alone_Is_Selected_Whatever_Keys_Are_Held)
{
    Make_List("Staff", "1\n2\n3\n4\n5\n");
    for (const Qt::KeyboardModifier key : {Qt::ControlModifier, Qt::ShiftModifier}) {
        Write_Bytes(Applied_Exclusion_Path, "1\n2\n3\n4\n5\n");
        const auto remove_two = [&](QTableView& table, const char* button) {
            Click_Row(table, 1);
            Click_Row(table, 3, Qt::ControlModifier);
            EXPECT_EQ(Selected_In(table), (std::vector<int>{1, 3}));
            QTest::keyPress(&table, key == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control, key);
            Click(button, key);
            EXPECT_EQ(QGuiApplication::keyboardModifiers(), key);
            EXPECT_EQ(Rows_Of(table), (QStringList{"1", "3", "5"}));
            EXPECT_EQ(Selected_In(table), std::vector<int>{0});
            QTest::keyRelease(&table, key == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control);
        };
        Run([&] {
            remove_two(Applied(), "m_dellist_btn");
            Click_Row(Available(), 0);
            Click("m_update_btn");
            remove_two(Numbers(), "m_del_num_btn");
        });
    }
}

TEST_F(Exclusion_Screens_Test, Update_Makes_A_Missing_File_But_A_Double_Click_On_An_Applied_List_Does_Not)
{
    Write_Bytes(Exclusion_Index_Path, "Staff\n");
    Write_Bytes(Applied_Exclusion_Path, "Gone\n");
    Run([&] {
        Double_Click_Row(Applied(), 0);
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Bytes_Of(Path_Of_List("Gone")), "(no file)");
        Click("m_back_btn");
        Edit_List(0);
        EXPECT_EQ(Bytes_Of(Path_Of_List("Staff")), "");
    });
}

TEST_F(Exclusion_Screens_Test, A_List_Whose_File_Can_Not_Be_Opened_Is_Not_Edited)
{
    Write_Bytes(Exclusion_Index_Path, "Staff\n");
    Put_A_Folder_At(Path_Of_List("Staff"));
    Run([&] {
        Select(Available(), {0});
        Expect_Told_By("m_update_btn", "Error in file accessing.", "m_exclusion_list");
        EXPECT_EQ(Shown(), On_First_Screen);
        Expect_Counts(0, 0);
    });
}

TEST_F(Exclusion_Screens_Test, An_Edited_List_That_Can_Not_Be_Saved_Is_Told_About)
{
    Make_List("Staff", "1\n");
    Run([&] {
        Edit_List(0);
        Put_A_Folder_At(Path_Of_List("Staff"));
        m_user.Will_Press("Yes");
        m_user.Will_Press("OK");
        Click("m_finish_btn");
        EXPECT_EQ(m_user.Was_Shown().last(), Boxed("Error in file accessing."));
        Expect_First_Screen();
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
    });
}

TEST_F(Exclusion_Screens_Test, Without_An_Index_An_Edited_List_Is_Not_Written_And_Nothing_Is_Said)
{
    Make_List("Staff", "1\n");
    Run([&] {
        Edit_List(0);
        Add_Number("2");
        QFile::remove(Exclusion_Index_Path);
        Finish();
        Expect_First_Screen();
    });
    EXPECT_EQ(Bytes_Of(Path_Of_List("Staff")), "1\n");
    EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
}

} // namespace
