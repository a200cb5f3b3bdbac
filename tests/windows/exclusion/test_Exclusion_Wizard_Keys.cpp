#include "records/Data_Paths.h"
#include "support/Keys.h"
#include "windows/exclusion/Exclusion_Test.h"

#include <QTest>

// The exclusion wizard with the keyboard alone.

namespace {

class Exclusion_Keys_Test : public Exclusion_Test
{
protected:
    Exclusion_Keys_Test()
    {
        for (const char* name : {"Admin", "Staff", "Sales"})
            Make_List(name, "1\n2\n3\n");
        Write_Bytes(Applied_Exclusion_Path, "Staff\nSales\n");
    }

    static void Take(QTableView& table, const std::vector<int>& rows)
    {
        table.setFocus();
        Select(table, rows);
    }
};

} // namespace

TEST_F(Exclusion_Keys_Test, F2_And_Return_Open_The_Selected_List_From_Either_Table)
{
    Run([&] {
        const struct
        {
            QTableView& table;
            int row;
            Qt::Key key;
            const char* name;
        } openings[] = {{Available(), 0, Qt::Key_F2, "Admin"},
                        {Available(), 2, Qt::Key_Return, "Sales"},
                        {Applied(), 0, Qt::Key_F2, "Staff"},
                        {Applied(), 1, Qt::Key_Return, "Sales"}};
        for (const auto& [table, row, key, name] : openings) {
            Take(table, {row});
            Press_Key(key);
            ASSERT_TRUE(Is_On_Numbers_Screen()) << name;
            EXPECT_EQ(Label("m_st_curr_use_ex_list"), QString("Currently using exclusion list : ") + name);
            Click("m_back_btn");
        }
    });
}

TEST_F(Exclusion_Keys_Test, The_Keys_Say_What_The_Double_Click_And_The_Buttons_Say)
{
    Run([&] {
        const char* const select_one = "Please select only one record to update.";
        for (QTableView* table : {&Available(), &Applied()}) {
            Take(*table, {0, 1});
            Expect_Told([] { Press_Key(Qt::Key_F2); }, select_one, qPrintable(table->objectName()));
            Take(*table, {});
        }
        Take(Available(), {});
        Expect_Told([] { Press_Key(Qt::Key_Delete); }, "Please select a record from the available list to continue.",
                    "m_exclusion_list");
        Take(Applied(), {});
        Expect_Told([] { Press_Key(Qt::Key_Delete); },
                    "Please select a record from Exclude when sending SMS list to continue.",
                    "m_applied_axclusion_list");
        Edit_List(0);
        Take(Numbers(), {0, 1});
        Expect_Told([] { Press_Key(Qt::Key_Return); }, select_one, "m_ex_num_list");
    });
}

TEST_F(Exclusion_Keys_Test, Delete_Asks_Before_It_Deletes_A_List_And_Removes_An_Applied_One)
{
    Run([&] {
        Take(Applied(), {0});
        {
            Held_Key held(Qt::Key_Delete);
            held.Press();
            EXPECT_TRUE(Serve_Until([&] { return held.Repeats() >= 10; }));
        }
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Sales"));
        Take(Available(), {0});
        for (const char* answer : {"No", "Yes"}) {
            EXPECT_EQ(Rows_Of(Available()).size(), 3);
            Expect_Asked([] { Press_Key(Qt::Key_Delete); },
                         "\nAre you sure you want delete the selected available list?", answer);
        }
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Staff", "Sales"}));
    });
}

TEST_F(Exclusion_Keys_Test, The_Numbers_Are_Edited_And_Removed_By_Keys)
{
    Run([&] {
        Edit_List(0);
        for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Return}) {
            Take(Numbers(), {1});
            m_user.When_Opens("Update_Ex_Num", [](QWidget& dialog) {
                EXPECT_EQ(dialog.findChild<QLineEdit*>("m_ex_num_str")->text(), "2");
                Press_Key(Qt::Key_Escape);
            });
            Press_Key(key);
        }
        Take(Numbers(), {1});
        Held_Key held(Qt::Key_Delete);
        held.Press();
        EXPECT_TRUE(Serve_Until([&] { return held.Repeats() >= 10; }));
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "3"}));
    });
}

TEST_F(Exclusion_Keys_Test, Return_Held_Down_In_The_Number_Field_Adds_Once)
{
    Run([&] {
        Begin_New_List("New");
        Type("m_loadnum_edit", "77");
        Control("m_loadnum_edit").setFocus();
        Held_Key held(Qt::Key_Return);
        held.Press();
        EXPECT_TRUE(Serve_Until([&] { return held.Repeats() >= 10; }));
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("77"));
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList());
}
