#include "gui/Sending_Program.h"
#include "records/Exclusion_Files.h"
#include "records/Exclusion_Trouble.h"
#include "support/Data_Folder.h"
#include "windows/exclusion/Exclusion_Wizard.h"

using testing::ElementsAre;

const QString Staff_Is_Unusable = "The exclusion list \"Staff\"\ncan not be used: its numbers are not excluded.";

// The line in the real main window that tells of applied lists that exclude nobody, with real files.
class Exclusion_Trouble_Line : public Sending_Program
{
protected:
    Exclusion_Trouble_Line()
    {
        Write_Bytes(Exclusion_Index_Path, "Staff\nSales\n");
        Write_Bytes(Applied_Exclusion_Path, "Staff\nSales\n");
        Write_Bytes(Path_Of_List("Sales"), "222\n");
        Mend();
    }
    ~Exclusion_Trouble_Line() override
    {
        for (const QString& path : {Path_Of_List("Staff"), Path_Of_List("Sales")})
            QFile::remove(path);
        Write_Bytes(Exclusion_Index_Path, {});
        Write_Bytes(Applied_Exclusion_Path, {});
    }

    static void Spoil() { Write_Bytes(Path_Of_List("Staff"), "111\n\xFF\n"); }
    static void Mend() { Write_Bytes(Path_Of_List("Staff"), "111\n"); }
    void Press_Box() { The<QCheckBox>("_Exclusion_Chk").click(); }

    /// What the line says; nothing while it is not there.
    QString Line()
    {
        const auto& line = The<QLabel>("_Exclusion_Trouble");
        EXPECT_EQ(line.isVisible(), !line.text().isEmpty());
        return line.isVisible() ? line.text() : QString();
    }
};

TEST_F(Exclusion_Trouble_Line, It_Stands_From_The_Tick_Until_The_List_Is_Mended_And_Read_Again)
{
    Spoil();
    EXPECT_EQ(Line(), QString());
    Press_Box();
    EXPECT_EQ(Line(), Staff_Is_Unusable);
    EXPECT_TRUE(m_delegate->Check_Exclusion_Number("222"));
    m_delegate->Fill_Exclusion_Num_List();
    EXPECT_EQ(Line(), Staff_Is_Unusable);
    Mend();
    m_delegate->Fill_Exclusion_Num_List();
    EXPECT_EQ(Line(), QString());
    EXPECT_TRUE(m_delegate->Check_Exclusion_Number("111"));
    Spoil();
    Press_Box();
    Press_Box();
    EXPECT_EQ(Line(), Staff_Is_Unusable);
    Press_Box();
    EXPECT_EQ(Line(), QString()) << "it goes with the option";
    Press_Box();
    Click("Reset_Btn");
    EXPECT_EQ(Line(), QString());
    m_delegate->Fill_Exclusion_Num_List(); // does nothing while the box is off
    EXPECT_EQ(Line(), QString());
    EXPECT_EQ(user.Was_Shown(), QStringList()) << "and never a box";
}

TEST_F(Exclusion_Trouble_Line, The_Jobs_Own_Reading_Brings_It_And_Takes_It_Away)
{
    Get_A_Phone();
    Select_The_Phone();
    Fill_The_List({}, 1);
    Press_Box();
    Spoil();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_EQ(Line(), Staff_Is_Unusable);
    Mend();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_EQ(Line(), QString());
}

TEST_F(Exclusion_Trouble_Line, Saving_The_List_In_The_Wizard_Mends_It_And_What_Stood_There_Is_Kept)
{
    Spoil();
    Press_Box();
    user.Will_Press("Yes");
    When_Filled(user, "Exclusion_Wizard", [](QWidget& wizard) {
        In<QTableView>(wizard, "m_exclusion_list").selectRow(0);
        Click_In(wizard, "m_update_btn");
        EXPECT_EQ(In<QTableView>(wizard, "m_ex_num_list").model()->rowCount(), 0);
        In<QLineEdit>(wizard, "m_loadnum_edit").setText("111");
        for (const char* button : {"m_add_num_btn", "m_finish_btn", "m_cancel_btn"})
            Click_In(wizard, button);
    });
    Click("View_ExclusionWizrd_Btn");
    EXPECT_EQ(Line(), QString());
    EXPECT_TRUE(m_delegate->Check_Exclusion_Number("111"));
    const QString kept = Path_Of_List("Staff") + ".unreadable";
    EXPECT_EQ(Bytes_Of(kept), "111\n\xFF\n");
    QFile::remove(kept);
}

TEST_F(Exclusion_Trouble_Line, The_Edit_Dialogs_Own_Box_Refuses_What_The_Applied_Lists_Hold)
{
    Add("333");
    The<QTableView>("idTableView").selectRow(0);
    user.Will_Press("OK");
    user.When_Opens("Update_Num_SMS", [this](QWidget& dialog) {
        auto& box = In<QCheckBox>(dialog, "_Exclusion_Chk");
        box.click();
        In<QLineEdit>(dialog, "m_num_str").setText("222");
        Click_In(dialog, "OKPressed");
        EXPECT_EQ(user.Was_Shown(), QStringList("\nEntered number is in exclusion list."));
        EXPECT_EQ(m_delegate->Exclusions().Count(), 0) << "the set keeps what it held";
        Spoil();
        box.click();
        box.click();
        EXPECT_EQ(Line(), Staff_Is_Unusable);
        Click_In(dialog, "CancelPressed");
    });
    m_delegate->doubleClickInTable();
    EXPECT_THAT(Numbers(), ElementsAre("333"));
    EXPECT_EQ(Line(), QString()) << "the main window heeds no list";
}

TEST(Exclusion_Trouble_Text, Names_What_Can_Not_Be_Used_And_Keeps_It_Short)
{
    Exclusion_Files::Applied_Numbers applied;
    EXPECT_EQ(Exclusion_Trouble(applied), QString());
    applied.unusable_lists = {"%1", "<b>Sales</b>"};
    EXPECT_EQ(Exclusion_Trouble(applied),
              "The exclusion lists \"%1\", \"<b>Sales</b>\"\ncan not be used: their numbers are not excluded.");
    applied.unusable_lists = {QString(21, 'w'), QString(20, 'w'), "last"};
    EXPECT_EQ(Exclusion_Trouble(applied), "The exclusion lists \"" + QString(19, 'w') + QChar(u'\u2026') +
                                              "\" and 2 more\ncan not be used: their numbers are not excluded.");
    applied.is_readable = false;
    EXPECT_EQ(Exclusion_Trouble(applied),
              "The file that says which exclusion lists are applied\ncan not be read: no number is excluded.");
}

TEST_F(Exclusion_Trouble_Line, A_Job_In_The_Main_Window_Shows_What_It_Has_Read)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText("Hello");
    Add("111");
    Add("222");
    Add("333");
    Press_Box();
    EXPECT_EQ(Line(), QString());
    const auto shown = [this] {
        const auto& rows = *The<QTableView>("idExclusionTableView").model();
        QStringList numbers;
        for (int row = 0; row < rows.rowCount(); ++row)
            numbers.append(rows.index(row, 0).data().toString());
        return numbers;
    };
    EXPECT_THAT(shown(), ElementsAre("111", "222"));
    Spoil();
    Write_Bytes(Path_Of_List("Sales"), "222\n333\n");
    Select_The_Phone();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_THAT(shown(), ElementsAre("222", "333"));
    EXPECT_EQ(Line(), Staff_Is_Unusable);
    EXPECT_FALSE(m_delegate->Check_Exclusion_Number("111"));
    ASSERT_EQ(phone->Inbox().size(), 1U);
    EXPECT_EQ(phone->Inbox().front().m_number, "111");
    Mend();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_THAT(shown(), ElementsAre("111", "222", "333"));
    EXPECT_EQ(Line(), QString());
    EXPECT_EQ(phone->Inbox().size(), 1U);
}
