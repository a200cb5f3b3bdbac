#include "windows/exclusion/Exclusion_Test.h"

TEST_F(Exclusion_Test, A_New_List_Goes_Through_All_Screens_Into_Its_Files)
{
    Make_List("Staff", "7\n");
    add_count = 2;
    update_count = 3;
    Run([&] {
        Expect_First_Screen();
        Expect_Counts(0, 0);
        EXPECT_TRUE(m_window->isModal());
        EXPECT_EQ(m_window->parentWidget(), &m_main_window);

        for (const char* field : {"m_ex_list_name_edit", "m_loadnum_edit", "m_loadfile_edit"})
            Type(field, "1");
        Click("m_addnew_btn");
        EXPECT_EQ(Shown(), On_Name_Screen);
        EXPECT_EQ(Label("m_st_msg"), Info_2);
        EXPECT_EQ(Focused(), &Control("m_ex_list_name_edit"));
        EXPECT_TRUE(Control("m_next_btn").isEnabled());
        Expect_Counts(1, 0);
        for (const char* field : {"m_ex_list_name_edit", "m_loadnum_edit", "m_loadfile_edit"})
            EXPECT_EQ(Text(field), "") << field;

        Type("m_ex_list_name_edit", "  Sales team ");
        Click("m_next_btn");
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Label("m_st_curr_use_ex_list"), "Currently using exclusion list : Sales team");
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 0");
        EXPECT_EQ(Focused(), &Control("m_loadfile_edit"));
        EXPECT_TRUE(Control("m_finish_btn").isEnabled());
        Expect_Counts(2, 0);

        Expect_Told("m_finish_btn", "\nExclusion number list is empty.", "m_ex_num_list");
        Add_Number("+44-7700");
        Add_Number("5");
        Expect_Boxes("m_finish_btn", {{Continue_Question, "No"}});
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"00447700", "5"}));
        EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "Staff\n");
        EXPECT_EQ(m_main_window.m_exclusion_fills, 0);

        Finish();
        Expect_First_Screen();
        EXPECT_EQ(Text("m_ex_list_name_edit"), "");
        EXPECT_EQ(Text("m_loadfile_edit"), "");
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Staff", "Sales team"}));
        EXPECT_TRUE(Rows_Of(Numbers()).isEmpty());
        Expect_Counts(2, 0);
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "Staff\nSales team\n");
    EXPECT_EQ(Bytes_Of(Path_Of_List("Sales team")), "00447700\n5\n");
    EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
}

TEST_F(Exclusion_Test, A_Name_That_Is_Refused_Is_Told_About_And_What_Is_Typed_Is_Cut)
{
    Make_List("Staff", "1\n");
    Run([&] {
        Click("m_addnew_btn");
        const std::pair<const char*, const char*> cases[] = {
            {"   ", "\nPlease enter exclusion list name."},
            {"a\\/:*?\"<>|b", "\nPlease enter a valid name."},
            {" ExListIndex ", "\nPlease enter the another name."},
        };
        for (const auto& [name, text] : cases) {
            Type("m_ex_list_name_edit", name);
            Expect_Told("m_next_btn", text, "m_ex_list_name_edit");
            EXPECT_EQ(Shown(), On_Name_Screen);
            Expect_Counts(1, 0);
        }
        // After one that exists the focus goes to the file field, though it is hidden.
        Control("m_ex_list_name_edit").setFocus();
        Type("m_ex_list_name_edit", " Staff ");
        Expect_Boxes([&] { QTest::keyClick(m_window->windowHandle(), Qt::Key_Return); },
                     {{"\nEntered exclusion list name already exists."}});
        EXPECT_EQ(Shown(), On_Name_Screen);
        EXPECT_TRUE(!Focused() || Focused() == m_window.get()) << "no control that is shown has it";

        Type("m_ex_list_name_edit", "");
        QTest::keyClicks(&Control("m_ex_list_name_edit"), QString(50, u'n') + "x");
        EXPECT_EQ(Text("m_ex_list_name_edit"), QString(50, u'n'));
        Click("m_next_btn");
        Type("m_loadnum_edit", "123456789012345678901");
        EXPECT_EQ(Text("m_loadnum_edit"), "12345678901234567890");
        Type("m_loadfile_edit", QString(300, u'f'));
        EXPECT_EQ(Text("m_loadfile_edit").size(), 300);
    });
}

TEST_F(Exclusion_Test, Unusual_Names_Are_Taken_And_Have_Their_Files)
{
    const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");
    QStringList names = {"a:b", "exlistindex", ".", "..", "R & D", emoji, QString(50, u'n'), QString(49, u'n') + emoji};
    Run([&] {
        for (const QString& name : names) {
            Begin_New_List(name, "1");
            Finish();
        }
        names.last() = QString::fromUtf8(names.last().left(50).toUtf8()); // half of a character as it is on disk
        EXPECT_EQ(Rows_Of(Available()), names);
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), names.join('\n').toUtf8() + "\n");
    for (const QString& name : names)
        EXPECT_EQ(Bytes_Of(Path_Of_List(name)), "1\n") << name.toStdString();
}

TEST_F(Exclusion_Test, A_Name_That_Leads_Out_Of_The_Folder_Gets_The_Error_And_Touches_Nothing_There)
{
    const auto entries_in = [](const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    };
    Write_Bytes(Corvane_Data_Folder_Path + "/x.ZOVA", "kept\n");
    const auto before = entries_in(Corvane_Data_Folder_Path);
    Run([&] {
        for (const QString& name : {QString("../x"), QString("a/b"), QString("a") + QChar(u'\0') + "b"}) {
            Begin_New_List(name, "1");
            Expect_Boxes("m_finish_btn", {{Continue_Question, "Yes"}, {File_Error}});
            Expect_First_Screen();
            EXPECT_EQ(Rows_Of(Available()).last(), name) << "in the table all the same";
        }
        EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), QByteArray("../x\na/b\na\0b\n", 13));
        Select_Rows_In(Available(), {0});
        Expect_Told("m_update_btn", File_Error, "m_exclusion_list");
        EXPECT_EQ(Shown(), On_First_Screen);
        Expect_Counts(0, 0);
        Expect_Boxes("m_delete_btn", {{Delete_Question, "Yes"}});
        EXPECT_EQ(Rows_Of(Available()).size(), 2);
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), QByteArray("a/b\na\0b\n", 8));
    EXPECT_EQ(Bytes_Of(Corvane_Data_Folder_Path + "/x.ZOVA"), "kept\n");
    EXPECT_EQ(entries_in(Corvane_Data_Folder_Path), before);
    EXPECT_EQ(entries_in(Exclusion_Folder_Path), QStringList("ExListIndex.ZOVA"));
}

TEST_F(Exclusion_Test, Each_File_Of_A_New_List_That_Can_Not_Be_Written_Is_Told_About_And_The_Other_Still_Tried)
{
    Run([&] {
        Put_A_Folder_At(Exclusion_Index_Path);
        Begin_New_List("a", "1");
        Expect_Boxes("m_finish_btn", {{Continue_Question, "Yes"}, {File_Error}});
        EXPECT_EQ(Bytes_Of(Path_Of_List("a")), "1\n");

        Put_A_Folder_At(Path_Of_List("b"));
        Begin_New_List("b", "1");
        Expect_Boxes("m_finish_btn", {{Continue_Question, "Yes"}, {File_Error}, {File_Error}});
        EXPECT_EQ(Rows_Of(Available()), QStringList({"a", "b"}));
        EXPECT_EQ(m_main_window.m_exclusion_fills, 2);
    });
}

TEST_F(Exclusion_Test, A_Missing_Data_Folder_Is_Made_Again_Or_Else_A_New_List_Stays_In_Memory_Only)
{
    Run([&] {
        QDir(Corvane_Data_Folder_Path).removeRecursively();
        Begin_New_List("a", "1");
        Finish();
        EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "a\n");
        EXPECT_EQ(Bytes_Of(Path_Of_List("a")), "1\n");

        QDir(Corvane_Data_Folder_Path).removeRecursively();
        Write_Bytes(Corvane_Data_Folder_Path, "");
        Begin_New_List("b", "1");
        Finish();
        EXPECT_EQ(Rows_Of(Available()), QStringList({"a", "b"}));
        EXPECT_EQ(m_main_window.m_exclusion_fills, 2);
    });
}

TEST_F(Exclusion_Test, An_Edited_List_Shows_Its_Numbers_And_Is_Saved_By_Finish)
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

TEST_F(Exclusion_Test, A_Name_That_Can_Not_Be_Typed_Is_Edited_In_Its_Own_File)
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

TEST_F(Exclusion_Test, Update_Makes_A_Missing_File_But_A_Double_Click_On_An_Applied_List_Does_Not)
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

TEST_F(Exclusion_Test, An_Edited_List_That_Can_Not_Be_Saved_Is_Told_About_And_Without_An_Index_Nothing_Is_Written)
{
    Make_List("Staff", "1\n");
    Make_List("Sales", "1\n");
    Run([&] {
        Edit_List(0);
        Put_A_Folder_At(Path_Of_List("Staff"));
        Expect_Boxes("m_finish_btn", {{Continue_Question, "Yes"}, {File_Error}});
        Expect_First_Screen();
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
        Edit_List(1, "2");
        QFile::remove(Exclusion_Index_Path);
        Finish();
        Expect_First_Screen();
        EXPECT_EQ(m_main_window.m_exclusion_fills, 2);
    });
    EXPECT_EQ(Bytes_Of(Path_Of_List("Sales")), "1\n");
}
