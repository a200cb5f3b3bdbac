#include "platform/Text_Files.h"
#include "toolkit/Shared_Instance.h"
#include "windows/exclusion/Exclusion_Test.h"

namespace {

void Escape(const QWidget& window)
{
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
}

void Close_Button(const QWidget& window)
{
    window.windowHandle()->close();
}

TEST_F(Exclusion_Test, Back_Escape_And_The_Close_Button_Ask_About_Unsaved_Numbers_And_Go_Back)
{
    Make_List("Staff", "1\n");
    const std::function<void()> ways[] = {[&] { Click("m_back_btn"); }, [&] { Escape(*m_window); },
                                          [&] { Close_Button(*m_window); }};
    Run([&] {
        for (const auto& leave : ways) {
            Begin_New_List("Sales", "7");
            Expect_Boxes(leave, {{Back_Question, "No"}});
            EXPECT_EQ(Shown(), On_Numbers_Screen);
            EXPECT_EQ(Rows_Of(Numbers()), QStringList("7"));
            Expect_Counts(2, 0);
            Expect_Boxes(leave, {{Back_Question, "Yes"}});
            EXPECT_EQ(Shown(), On_Name_Screen);
            EXPECT_EQ(Label("m_st_msg"), Info_2);
            EXPECT_EQ(Text("m_ex_list_name_edit"), "Sales");
            EXPECT_EQ(Focused(), &Control("m_ex_list_name_edit"));
            Expect_Counts(1, 0);
            Click("m_next_btn");
            EXPECT_TRUE(Rows_Of(Numbers()).isEmpty());
            EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 0");
            Click("m_back_btn"); // nothing is unsaved: no question
            EXPECT_EQ(Shown(), On_Name_Screen);
            Click("m_back_btn");
            Expect_First_Screen();
            Expect_Counts(0, 0);
            Edit_List(0, "8");
            Expect_Boxes(leave, {{Back_Question, "No"}});
            EXPECT_EQ(Shown(), On_Numbers_Screen);
            EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "8"}));
            Expect_Counts(0, 3);
            Expect_Boxes(leave, {{Back_Question, "Yes"}});
            Expect_First_Screen();
        }
    });
    EXPECT_EQ(Bytes_Of(Path_Of_List("Staff")), "1\n");
}

TEST_F(Exclusion_Test, With_Nothing_Unsaved_Escape_Goes_Back_From_Every_Control_And_The_Close_Button_Closes)
{
    Make_List("Staff", "1\n");
    Run([&] {
        for (const char* focused : {"m_loadnum_edit", "m_loadfile_edit", "m_ex_num_list", "m_finish_btn"}) {
            Edit_List(0);
            Control(focused).setFocus();
            Escape(*m_window);
            Expect_First_Screen();
        }
        Click("m_addnew_btn");
        Escape(*m_window);
        Expect_First_Screen();
        Edit_List(0);
        Close_Button(*m_window);
        EXPECT_FALSE(m_window->isVisible());
    });
    EXPECT_EQ(m_window->result(), 0);
    Run([&] {
        Click("m_addnew_btn");
        Type("m_ex_list_name_edit", "Sales");
        Close_Button(*m_window);
        EXPECT_FALSE(m_window->isVisible());
    });
}

TEST_F(Exclusion_Test, A_List_That_Is_Being_Opened_Has_Its_Name_On_The_Way_Back)
{
    Make_List("Staff", "1\n");
    Run([&] {
        Edit_List(0);
        update_count = 2;
        Click("m_back_btn");
        EXPECT_EQ(Shown(), On_Name_Screen);
        EXPECT_EQ(Label("m_st_msg"), Info_1);
        EXPECT_EQ(Focused(), &Control("m_ex_list_name_edit"));
        Expect_Counts(0, 1);
        Click("m_next_btn");
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
        Expect_Counts(0, 3);
    });
}

TEST_F(Exclusion_Test, After_Finish_The_Next_List_Is_Asked_About_Though_Nothing_Changed_Unless_A_New_Name_Comes_First)
{
    Run([&] {
        Begin_New_List("Staff", "1");
        Finish();
        Edit_List(0);
        Expect_Boxes("m_back_btn", {{Back_Question, "Yes"}});
        Edit_List(0);
        Click("m_back_btn");
        Expect_First_Screen();
        Edit_List(0, "2");
        Finish();
        Begin_New_List("Sales");
        Click("m_back_btn");
        EXPECT_EQ(Shown(), On_Name_Screen);
    });
}

TEST_F(Exclusion_Test, Cancel_Ends_The_Wizard_Whatever_Is_Unsaved_And_On_The_First_Screen_Escape_And_The_Close_Button)
{
    Run([&] {
        Begin_New_List("Staff", "1");
        Click("m_cancel2_btn");
        EXPECT_FALSE(m_window->isVisible());
    });
    EXPECT_EQ(m_window->result(), 0);
    EXPECT_EQ(Workers_Running(), 0);
    EXPECT_EQ(Bytes_Of(Exclusion_Index_Path), "");
    Run([&] { Expect_First_Screen(); });
    for (const auto way : {Escape, Close_Button}) {
        Run([&] {
            Begin_New_List("Staff", "1");
            Finish(); // after which the wizard still takes the numbers for unsaved
            way(*m_window);
            EXPECT_FALSE(m_window->isVisible());
        });
        EXPECT_EQ(m_window->result(), 0);
        Exclusion_Files::Write_Index({});
    }
}

TEST_F(Exclusion_Test, The_Window_Is_There_Before_Its_Worker_Has_Waited)
{
    Make_List("Staff", "1\n");
    Set_Pace(0.1); // its wait would last ten seconds
    m_user.When_Opens("Exclusion_Wizard", [&](QWidget&) {
        EXPECT_GT(Workers_Running(), 0);
        EXPECT_TRUE(Serve_Until([&] { return !Rows_Of(Available()).isEmpty(); }));
        EXPECT_GT(Workers_Running(), 0) << "the lists are in, and the worker waits";
        Click("m_cancel_btn");
        EXPECT_FALSE(m_window->isVisible());
    });
    const double begin = Now_Seconds();
    m_window->Open_Exclusion_Wnd();
    EXPECT_EQ(Workers_Running(), 0);
    EXPECT_LT(Now_Seconds() - begin, 9) << "and nobody waits for it when the window is closed";
}

TEST_F(Exclusion_Test, Until_The_Lists_Are_In_The_Window_Takes_No_Clicks)
{
    Make_List("Staff", "1\n");
    auto lock = std::make_unique<File_Lock>(Exclusion_Index_Path);
    m_user.When_Opens("Exclusion_Wizard", [&](QWidget&) {
        Click("m_addnew_btn");
        Click("m_cancel_btn");
        Escape(*m_window);
        EXPECT_EQ(Shown(), On_First_Screen);
        EXPECT_TRUE(Rows_Of(Available()).isEmpty());
        lock.reset();
        EXPECT_TRUE(Serve_Until([&] { return !Rows_Of(Available()).isEmpty(); }));
        Click("m_addnew_btn");
        EXPECT_EQ(Shown(), On_Name_Screen);
        Click("m_cancel2_btn");
    });
    m_window->Open_Exclusion_Wnd();
}

TEST_F(Exclusion_Test,
       It_Stays_As_It_Is_When_It_Is_To_Open_Twice_Or_At_The_Programs_Exit_And_When_What_Does_Nothing_Is_Called)
{
    Make_List("Staff", "1\n");
    Run([&] {
        Edit_List(0);
        m_window->Open_Exclusion_Wnd();
        ex_file_Path = Path_Of_List("Staff");
        EXPECT_TRUE(m_window->Fill_Numbers(Path_Of_List("Staff")));
        EXPECT_TRUE(m_window->Fill_Numbers("/nowhere"));
        m_window->Fill_Ex_List_Thread();
        EXPECT_EQ(Shown(), On_Numbers_Screen);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
        EXPECT_EQ(ex_file_Path, Path_Of_List("Staff"));
    });
    Begin_Program_Exit();
    m_window->Open_Exclusion_Wnd();
    Forget_Program_Exit();
    EXPECT_FALSE(m_window->isVisible());
}

TEST(Exclusion_Wizard, There_Is_One_Shared_Instance_And_The_Global_Knows_It)
{
    EXPECT_EQ(Exclusion_Wizard::defaultInstance(), Exclusion_Wizard::defaultInstance());
    EXPECT_EQ(Exclusion_Wizard::defaultInstance(), Exclusion_wnd);
    End_Shared_Instances();
    EXPECT_EQ(Exclusion_wnd, nullptr);
}

} // namespace

TEST_F(Exclusion_Test, Empty_Tables_Say_So_And_Offer_The_First_Step)
{
    Run([&] {
        EXPECT_EQ(Available().accessibleDescription(), "There is no exclusion list yet.");
        EXPECT_EQ(Applied().accessibleDescription(), "No list is applied, so nobody is left out.");
        Click("m_exclusion_list_Here");
        EXPECT_EQ(Shown(), On_Name_Screen);
        Type("m_ex_list_name_edit", "Staff");
        Click("m_next_btn");
        EXPECT_EQ(Numbers().accessibleDescription(),
                  "No number is in this list yet. Type one above, or load a file of them.");
        EXPECT_FALSE(Control("First_Number_Here").isVisible()) << "the fields above are the first step";
        Add_Number("12345");
        EXPECT_EQ(Numbers().accessibleDescription(), QString());
        Finish();
        EXPECT_FALSE(Control("m_exclusion_list_Here").isVisible());
        EXPECT_EQ(Available().accessibleDescription(), QString());
    });
}
