#include "support/Keys.h"
#include "windows/exclusion/Exclusion_Test.h"

// The exclusion wizard with the keyboard alone, and the double click, which does what the keys do.

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
        Select_Rows_In(table, rows);
    }
};

const auto F2 = [] { Press_Key(Qt::Key_F2); };
const auto Return = [] { Press_Key(Qt::Key_Return); };
const auto Delete = [] { Press_Key(Qt::Key_Delete); };

TEST_F(Exclusion_Keys_Test, F2_Return_And_A_Double_Click_Open_The_Selected_List_From_Either_Table)
{
    Run([&] {
        const std::tuple<QTableView&, int, std::function<void()>, const char*> openings[] = {
            {Available(), 0, F2, "Admin"},
            {Available(), 2, Return, "Sales"},
            {Available(), 1, [&] { Double_Click_Row(Available(), 1); }, "Staff"},
            {Applied(), 0, F2, "Staff"},
            {Applied(), 1, Return, "Sales"},
            {Applied(), 0, [&] { Double_Click_Row(Applied(), 0); }, "Staff"}};
        for (const auto& [table, row, open, name] : openings) {
            Take(table, {row});
            open();
            ASSERT_TRUE(Is_On_Numbers_Screen()) << name;
            EXPECT_EQ(Label("m_st_curr_use_ex_list"), QString("Currently using exclusion list : ") + name);
            EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "2", "3"}));
            Click("m_back_btn");
        }
    });
}

TEST_F(Exclusion_Keys_Test, With_Several_Selected_They_Say_So_In_Each_Table_And_These_Stay_Selected)
{
    Run([&] {
        const auto expect_refusal = [&](QTableView& table, const char* name) {
            const std::function<void()> ways[] = {F2, Return, [&] {
                                                      Click_Row(table, 1, Qt::ShiftModifier);
                                                      Double_Click_Row(table, 0);
                                                  }};
            for (const auto& open : ways) {
                Take(table, {0, 1});
                Expect_Told(open, Select_One, name);
                EXPECT_EQ(Rows_Selected_In(table), (std::vector<int>{0, 1}));
            }
        };
        expect_refusal(Available(), "m_exclusion_list");
        expect_refusal(Applied(), "m_applied_axclusion_list");
        EXPECT_EQ(Shown(), On_First_Screen);
        Edit_List(0);
        expect_refusal(Numbers(), "m_ex_num_list");
    });
}

TEST_F(Exclusion_Keys_Test, Delete_Asks_Before_It_Deletes_A_List_And_Removes_An_Applied_One)
{
    Run([&] {
        Take(Applied(), {0});
        Hold_Down(Qt::Key_Delete);
        EXPECT_EQ(Rows_Of(Applied()), QStringList("Sales"));
        Take(Available(), {0});
        Expect_Boxes(Delete, {{Delete_Question, "No"}});
        EXPECT_EQ(Rows_Of(Available()).size(), 3);
        Expect_Boxes(Delete, {{Delete_Question, "Yes"}});
        EXPECT_EQ(Rows_Of(Available()), QStringList({"Staff", "Sales"}));
    });
}

TEST_F(Exclusion_Keys_Test, The_Numbers_Are_Edited_And_Removed_By_Keys)
{
    Run([&] {
        Edit_List(0);
        for (const auto& open : {std::function<void()>(F2), std::function<void()>(Return)}) {
            Take(Numbers(), {1});
            m_user.When_Opens("Update_Ex_Num", [](QWidget& dialog) {
                EXPECT_EQ(dialog.findChild<QLineEdit*>("m_ex_num_str")->text(), "2");
                Press_Key(Qt::Key_Escape);
            });
            open();
        }
        Take(Numbers(), {1});
        Hold_Down(Qt::Key_Delete);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "3"}));
    });
}

TEST_F(Exclusion_Keys_Test, Return_In_A_Field_Does_What_Stands_Beside_It_Once)
{
    Run([&] {
        Click("m_addnew_btn");
        QTest::keyClicks(&Control("m_ex_list_name_edit"), "New");
        Return();
        ASSERT_TRUE(Is_On_Numbers_Screen());
        Type("m_loadnum_edit", "77");
        Control("m_loadnum_edit").setFocus();
        Hold_Down(Qt::Key_Return);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("77"));
        EXPECT_EQ(m_user.Was_Shown(), QStringList());
        Control("m_loadfile_edit").setFocus();
        Expect_Told(Return, "\nPlease select a valid file.", "m_loadfile_edit");
    });
}
