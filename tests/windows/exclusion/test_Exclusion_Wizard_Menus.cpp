#include "support/Table_Menus.h"
#include "windows/exclusion/Exclusion_Test.h"

using Exclusion_Menus = Exclusion_Test;

TEST_F(Exclusion_Menus, Both_Tables_Of_Lists_Have_What_The_Buttons_Beside_Them_Do)
{
    Make_List("Staff", "1\n");
    Make_List("Admin", "2\n");
    Run([&] {
        EXPECT_EQ(Menu_Of(Available(), Opened_By::Mouse, "Copy"),
                  QStringList({"Copy", "Apply ›", "Apply all »", "Add New ...", "Update ...", "Delete"}));
        EXPECT_EQ(Copied(), "Staff\n");
        Menu_Of(Available(), Opened_By::Key, "Apply all »");
        EXPECT_EQ(Rows_Of(Applied()), QStringList({"Staff", "Admin"}));
        Applied().selectAll();
        EXPECT_EQ(Menu_Of(Applied(), Opened_By::Key, "Copy"),
                  QStringList({"Copy", "‹ Remove", "« Remove all", "Save Applied"}));
        EXPECT_EQ(Copied(), "Staff\nAdmin\n");
        Applied().clearSelection();
        Menu_Of(Applied(), Opened_By::Mouse, "‹ Remove");
        EXPECT_EQ(Rows_Of(Applied()), QStringList{"Admin"});
        m_user.Will_Press("Yes");
        Available().clearSelection();
        Menu_Of(Available(), Opened_By::Mouse, "Delete");
        EXPECT_EQ(Rows_Of(Available()), QStringList{"Admin"});
        Menu_Of(Available(), Opened_By::Mouse, "Update ...");
        EXPECT_TRUE(Is_On_Numbers_Screen());
    });
}

TEST_F(Exclusion_Menus, Numbers_Of_A_List_Can_Be_Copied_Edited_And_Removed)
{
    Run([&] {
        Begin_New_List("Staff", "111");
        for (const char* number : {"222", "333"})
            Add_Number(number);
        Numbers().selectAll();
        EXPECT_EQ(Menu_Of(Numbers(), Opened_By::Key, "Copy"), QStringList({"Copy", "Update ...", "Remove"}));
        EXPECT_EQ(Copied(), "111\n222\n333\n");
        Numbers().clearSelection();
        Menu_Of(Numbers(), Opened_By::Mouse, "Remove");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"222", "333"}));
        m_user.When_Opens("Update_Ex_Num", [](QWidget& editor) { static_cast<QDialog&>(editor).reject(); });
        Menu_Of(Numbers(), Opened_By::Mouse, "Update ...");
    });
}
