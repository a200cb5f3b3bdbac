#include "records/Data_Paths.h"
#include "windows/exclusion/Exclusion_Screens_Test.h"

#include <QDir>
#include <QTest>
#include <QWindow>

namespace {

TEST_F(Exclusion_Screens_Test, The_Wizard_Opens_On_Its_First_Screen)
{
    add_count = 2;
    update_count = 3;
    Run([&] {
        Expect_First_Screen();
        Expect_Counts(0, 0);
        EXPECT_TRUE(m_window->isModal());
        EXPECT_EQ(m_window->parentWidget(), &m_main_window);
    });
}

TEST_F(Exclusion_Screens_Test, A_New_List_Goes_Through_All_Screens_Into_Its_Files)
{
    Make_List("Staff", "7\n");
    Run([&] {
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

        Add_Number("+44-7700");
        Add_Number("5");
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

TEST_F(Exclusion_Screens_Test, The_Return_Key_In_A_Field_Does_What_Stands_Beside_It)
{
    Run([&] {
        Click("m_addnew_btn");
        QTest::keyClicks(&Control("m_ex_list_name_edit"), "Staff");
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
        ASSERT_TRUE(Is_On_Numbers_Screen());
        Control("m_loadnum_edit").setFocus();
        Type("m_loadnum_edit", "12");
        QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("12"));
        Control("m_loadfile_edit").setFocus();
        Expect_Told([&] { QTest::keyClick(m_window->windowHandle(), Qt::Key_Return); }, "Please select a valid file.",
                    "m_loadfile_edit");
    });
}

TEST_F(Exclusion_Screens_Test, Finish_Answered_No_Leaves_All_As_It_Is)
{
    Run([&] {
        Begin_New_List("Staff");
        Add_Number("1");
        Expect_Asked([&] { Click("m_finish_btn"); }, "\nAre you sure you want to continue", "No");
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "");
    EXPECT_EQ(m_main_window.m_exclusion_fills, 0);
}

TEST_F(Exclusion_Screens_Test, Finish_Without_Numbers_Says_So_And_Focuses_Them)
{
    Run([&] {
        Begin_New_List("Staff");
        Expect_Told_By("m_finish_btn", "Exclusion number list is empty.", "m_ex_num_list");
        EXPECT_EQ(Shown(), On_Numbers_Screen);
    });
}

TEST_F(Exclusion_Screens_Test, A_Name_That_Is_Refused_Is_Told_About_And_Focused)
{
    Make_List("Staff", "1\n");
    Run([&] {
        Click("m_addnew_btn");
        const struct
        {
            const char* name;
            const char* text;
            const char* focused;
        } cases[] = {
            {"", "Please enter exclusion list name.", "m_ex_list_name_edit"},
            {"   ", "Please enter exclusion list name.", "m_ex_list_name_edit"},
            {"a\\/:*?\"<>|b", "Please enter a valid name.", "m_ex_list_name_edit"},
            {"ExListIndex", "Please enter the another name.", "m_ex_list_name_edit"},
            {" ExListIndex ", "Please enter the another name.", "m_ex_list_name_edit"},
        };
        for (const auto& each : cases) {
            Type("m_ex_list_name_edit", each.name);
            Expect_Told_By("m_next_btn", each.text, each.focused);
            EXPECT_EQ(Shown(), On_Name_Screen);
            Expect_Counts(1, 0);
        }
    });
}

TEST_F(Exclusion_Screens_Test, After_A_Name_That_Exists_The_Focus_Goes_To_The_File_Field_Though_It_Is_Hidden)
{
    Make_List("Staff", "1\n");
    Run([&] {
        Click("m_addnew_btn");
        for (const char* name : {"Staff", " Staff "}) {
            Control("m_ex_list_name_edit").setFocus();
            Type("m_ex_list_name_edit", name);
            m_user.Will_Press("OK");
            QTest::keyClick(m_window->windowHandle(), Qt::Key_Return);
            EXPECT_EQ(m_user.Was_Shown().last(), Boxed("Entered exclusion list name already exists."));
            EXPECT_EQ(Shown(), On_Name_Screen);
            EXPECT_TRUE(!Focused() || Focused() == m_window.get()) << "no control that is shown has it";
        }
    });
}

TEST_F(Exclusion_Screens_Test, Unusual_Names_Are_Taken_And_Have_Their_Files)
{
    const QStringList names = {
        "a:b", "exlistindex", ".", "..", "R & D", QString::fromUtf8("\xF0\x9F\x98\x80"), QString(50, u'n')};
    Run([&] {
        for (const QString& name : names) {
            Begin_New_List(name);
            Add_Number("1");
            Finish();
        }
        EXPECT_EQ(Rows_Of(Available()), names);
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), names.join('\n').toUtf8() + "\n");
    for (const QString& name : names)
        EXPECT_EQ(Bytes_Of(Path_Of_List(name)), "1\n") << name.toStdString();
}

TEST_F(Exclusion_Screens_Test, A_Name_Is_Cut_To_Fifty_Characters_And_A_Number_To_Twenty)
{
    Run([&] {
        Click("m_addnew_btn");
        QTest::keyClicks(&Control("m_ex_list_name_edit"), QString(50, u'n') + "x");
        EXPECT_EQ(Text("m_ex_list_name_edit"), QString(50, u'n'));
        Click("m_next_btn");
        Type("m_loadnum_edit", "123456789012345678901");
        EXPECT_EQ(Text("m_loadnum_edit"), "12345678901234567890");
        Type("m_loadfile_edit", QString(300, u'f'));
        EXPECT_EQ(Text("m_loadfile_edit").size(), 300);
    });
}

TEST_F(Exclusion_Screens_Test, Half_Of_A_Character_At_The_End_Of_A_Name_Is_The_Same_In_Memory_And_On_Disk)
{
    Run([&] {
        Begin_New_List(QString(49, u'n') + QString::fromUtf8("\xF0\x9F\x98\x80"));
        Add_Number("1");
        Finish();
        const QStringList in_memory = Rows_Of(Available());
        EXPECT_EQ(in_memory.join('\n').toUtf8() + "\n", Bytes_Of(Exclusion_Index_Path));
        EXPECT_EQ(Bytes_Of(Path_Of_List(in_memory.value(0))), "1\n");
    });
}

TEST_F(Exclusion_Screens_Test, A_Name_That_Leads_Out_Of_The_Folder_Gets_The_Error_And_Touches_Nothing_There)
{
    Write_Bytes(Corvane_Data_Folder_Path + "/x.ZOVA", "kept\n");
    const auto before = QDir(Corvane_Data_Folder_Path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    Run([&] {
        for (const QString& name : {QString("../x"), QString("a/b"), QString("a") + QChar(u'\0') + "b"}) {
            Begin_New_List(name);
            Add_Number("1");
            m_user.Will_Press("Yes");
            m_user.Will_Press("OK");
            Click("m_finish_btn");
            EXPECT_EQ(m_user.Was_Shown().last(), Boxed("Error in file accessing."));
            Expect_First_Screen();
            EXPECT_EQ(Rows_Of(Available()).last(), name) << "in the table all the same";
        }
        Select(Available(), {0});
        Expect_Told_By("m_update_btn", "Error in file accessing.", "m_exclusion_list");
        EXPECT_EQ(Shown(), On_First_Screen);
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), QByteArray("../x\na/b\na\0b\n", 13));
    EXPECT_EQ(Bytes_Of(Corvane_Data_Folder_Path + "/x.ZOVA"), "kept\n");
    EXPECT_EQ(QDir(Corvane_Data_Folder_Path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), before);
    EXPECT_EQ(QDir(Exclusion_Folder_Path).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList("ExListIndex.ZOVA"));
}

TEST_F(Exclusion_Screens_Test, Each_File_Of_A_New_List_That_Can_Not_Be_Written_Is_Told_About_And_The_Other_Still_Tried)
{
    const QString error = Boxed("Error in file accessing.");
    Run([&] {
        Put_A_Folder_At(Exclusion_Index_Path);
        Begin_New_List("a");
        Add_Number("1");
        m_user.Will_Press("Yes");
        m_user.Will_Press("OK");
        Click("m_finish_btn");
        EXPECT_EQ(m_user.Was_Shown().mid(1), QStringList(error));
        EXPECT_EQ(Bytes_Of(Path_Of_List("a")), "1\n");

        Put_A_Folder_At(Path_Of_List("b"));
        Begin_New_List("b");
        Add_Number("1");
        m_user.Will_Press("Yes");
        m_user.Will_Press("OK");
        m_user.Will_Press("OK");
        Click("m_finish_btn");
        EXPECT_EQ(m_user.Was_Shown().mid(3), QStringList({error, error}));
        EXPECT_EQ(Rows_Of(Available()), QStringList({"a", "b"}));
        EXPECT_EQ(m_main_window.m_exclusion_fills, 2);
    });
}

TEST_F(Exclusion_Screens_Test, Without_A_Place_For_The_Index_A_New_List_Stays_In_Memory_Only)
{
    Run([&] {
        QDir(Corvane_Data_Folder_Path).removeRecursively();
        Write_Bytes(Corvane_Data_Folder_Path, "");
        Begin_New_List("a");
        Add_Number("1");
        Finish();
        EXPECT_EQ(Rows_Of(Available()), QStringList("a"));
        EXPECT_EQ(m_main_window.m_exclusion_fills, 1);
    });
}

TEST_F(Exclusion_Screens_Test, A_Missing_Data_Folder_Is_Made_Again_When_A_List_Is_Finished)
{
    Run([&] {
        QDir(Corvane_Data_Folder_Path).removeRecursively();
        Begin_New_List("a");
        Add_Number("1");
        Finish();
    });
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "a\n");
    EXPECT_EQ(Bytes_Of(Path_Of_List("a")), "1\n");
}

} // namespace
