#include "support/Table_Menus.h"
#include "windows/stores/Stores_Test.h"

using Store_Menus = Stores_Test;

TEST_F(Store_Menus, Sent_Items_Can_Be_Copied_Deleted_And_Exported_Under_The_Right_Button_And_By_The_Key)
{
    Write_Bytes(Sent_Item_Path, Records(3));
    m_user.Will_Press("No");
    Visit_Sent_Items([this] {
        const QStringList words{"Copy", "Delete selected", "Delete all", "Export ...", "Find ...", "Sort"};
        EXPECT_EQ(Menu_Of(Table(), Opened_By::Mouse, "Copy"), words);
        EXPECT_EQ(Selected(), std::vector{0}) << "the row under the button";
        EXPECT_EQ(Copied(), "1000\tmessage 0\t05/03/2024\t\n");
        Select(1, 2);
        EXPECT_EQ(Menu_Of(Table(), Opened_By::Key, "Copy"), words);
        EXPECT_EQ(Copied(), "1001\tmessage 1\t05/03/2024\t\n1002\tmessage 2\t05/03/2024\t\n");
        Menu_Of(Table(), Opened_By::Key, "Delete selected");
        EXPECT_EQ(Shown(), QStringList{"1000"});
        Menu_Of(Table(), Opened_By::Key, "Delete all"); // which asks first
        EXPECT_EQ(Shown(), QStringList{"1000"});
        bool has_opened = false;
        m_user.When_Opens("Export_Option", [&](QWidget& options) {
            has_opened = true;
            static_cast<QDialog&>(options).reject();
        });
        Menu_Of(Table(), Opened_By::Mouse, "Export ...");
        EXPECT_TRUE(has_opened);
    });
}

TEST_F(Store_Menus, Templates_Have_All_That_Their_Buttons_Do)
{
    Visit_Templates([this] {
        Will_Enter("first");
        Menu_Of(Table(), Opened_By::Key, "Add new ...");
        Will_Enter("second \"quoted\"\nline");
        Click("AddNew_Btn");
        EXPECT_EQ(Menu_Of(Table(), Opened_By::Mouse), QStringList({"Copy", "Use template", "Add new ...", "Edit ...",
                                                                   "Delete selected", "Delete all", "Export ..."}));
        Select(0, 1);
        Menu_Of(Table(), Opened_By::Key, "Copy");
        EXPECT_EQ(Copied(), "first\n\"second \"\"quoted\"\"\nline\"\n");
        Will_Enter("changed");
        Select(0);
        Menu_Of(Table(), Opened_By::Mouse, "Edit ...");
        EXPECT_EQ(Shown().first(), "changed");
        Select(1);
        Menu_Of(Table(), Opened_By::Key, "Delete selected");
        EXPECT_EQ(Shown(), QStringList{"changed"});
        Menu_Of(Table(), Opened_By::Mouse, "Use template");
        EXPECT_FALSE(m_visited->isVisible());
    });
    EXPECT_EQ(m_window.m_choices.composer_text, "changed");
}
