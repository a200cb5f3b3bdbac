#include "windows/exclusion/Exclusion_Test.h"

class Exclusion_Layout_Test : public Exclusion_Test
{
protected:
    Exclusion_Layout_Test() { Make_List("Marketing", "12345\n"); }

    /// Shows one screen after the other.
    void On_Each_Screen(const std::function<void(const char* screen)>& look)
    {
        Run([&] {
            look("first");
            Click("m_addnew_btn");
            look("name");
            Click("m_back_btn");
            Edit_List(0);
            look("numbers");
            Click("m_back_btn");
            ASSERT_TRUE(Is_On_First_Screen());
        });
    }
};

TEST_F(Exclusion_Layout_Test, Every_Control_Goes_By_The_Name_Of_Its_Field_On_The_Programs_Opaque_Background)
{
    EXPECT_EQ(m_window->objectName(), "Exclusion_Wizard");
    for (const QTableView* table : {&Available(), &Applied(), &Numbers()})
        EXPECT_EQ(table->verticalScrollBar()->objectName(), table->objectName() + "_ScrlView");
    EXPECT_TRUE(m_window->autoFillBackground());
    EXPECT_EQ(Control("m_st_msg").palette().color(QPalette::Window), QColor(241, 244, 250));
    EXPECT_TRUE(Control("m_st_msg").autoFillBackground());
}

TEST_F(Exclusion_Layout_Test, The_Tab_Key_Goes_Through_Each_Screen_In_Reading_Order)
{
    const std::map<std::string, QStringList> expected = {
        {"first",
         {"m_exclusion_list", "m_addnew_btn", "m_update_btn", "m_delete_btn", "m_addlist_btn", "m_addAll_list_btn",
          "m_dellist_btn", "m_delall_list_btn", "m_applied_axclusion_list", "m_saveapplied_btn", "m_cancel_btn"}},
        {"name", {"m_ex_list_name_edit", "m_back_btn", "m_next_btn", "m_cancel2_btn"}},
        {"numbers",
         {"m_loadfile_edit", "m_browse_btn", "m_load_btn", "m_loadnum_edit", "m_add_num_btn", "m_ex_num_list",
          "m_update_num_btn", "m_del_num_btn", "m_back_btn", "m_finish_btn", "m_cancel2_btn"}},
    };
    On_Each_Screen([&](const char* screen) { EXPECT_EQ(Tab_Order(*m_window), expected.at(screen)); });
}
