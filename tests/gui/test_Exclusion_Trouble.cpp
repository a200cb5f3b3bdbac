#include "gui/Sending_Program.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"
#include "records/Exclusion_Trouble.h"
#include "windows/exclusion/Exclusion_Wizard.h"

#include <QFile>

using testing::ElementsAre;

namespace {

const QString Staff_Is_Unusable =
    QStringLiteral("The exclusion list \"Staff\"\ncan not be used: its numbers are not excluded.");

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
}

QString Path_Of(const QString& list)
{
    return *Exclusion_Files::List_Path(list);
}

// The line in the real main window that tells of applied lists that exclude nobody, with real files.
class Exclusion_Trouble_Line : public Sending_Program
{
protected:
    Exclusion_Trouble_Line()
    {
        Write(Exclusion_Index_Path, "Staff\nSales\n");
        Write(Applied_Exclusion_Path, "Staff\nSales\n");
        Write(Path_Of("Sales"), "222\n");
        Mend();
    }
    ~Exclusion_Trouble_Line() override
    {
        for (const QString& path : {Path_Of("Staff"), Path_Of("Sales")})
            QFile::remove(path);
        Write(Exclusion_Index_Path, {});
        Write(Applied_Exclusion_Path, {});
    }

    static void Spoil() { Write(Path_Of("Staff"), "111\n\xFF\n"); }
    static void Mend() { Write(Path_Of("Staff"), "111\n"); }
    void Press_Box() { The<QCheckBox>("_Exclusion_Chk").click(); }

    /// What the line says; nothing while it is not there.
    QString Line()
    {
        const auto& line = The<QLabel>("_Exclusion_Trouble");
        EXPECT_EQ(line.isVisible(), !line.text().isEmpty());
        return line.isVisible() ? line.text() : QString();
    }
};

} // namespace

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
    EXPECT_EQ(user.Was_Shown(), QStringList()) << "and never a box";
}

TEST_F(Exclusion_Trouble_Line, It_Goes_With_The_Option)
{
    Spoil();
    Press_Box();
    Press_Box();
    EXPECT_EQ(Line(), QString());
    Press_Box();
    EXPECT_EQ(Line(), Staff_Is_Unusable);
    Click("Reset_Btn");
    EXPECT_EQ(Line(), QString());
    m_delegate->Fill_Exclusion_Num_List(); // does nothing while the box is off
    EXPECT_EQ(Line(), QString());
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
    user.When_Opens("Exclusion_Wizard", [](QWidget& wizard) {
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        const auto press = [&](const char* name) { wizard.findChild<QPushButton*>(QLatin1String(name))->click(); };
        auto* lists = wizard.findChild<QTableView*>("m_exclusion_list");
        lists->selectRow(0);
        press("m_update_btn");
        EXPECT_EQ(wizard.findChild<QTableView*>("m_ex_num_list")->model()->rowCount(), 0);
        wizard.findChild<QLineEdit*>("m_loadnum_edit")->setText("111");
        press("m_add_num_btn");
        press("m_finish_btn");
        press("m_cancel_btn");
    });
    Click("View_ExclusionWizrd_Btn");
    EXPECT_EQ(Line(), QString());
    EXPECT_TRUE(m_delegate->Check_Exclusion_Number("111"));
    QFile kept(Path_Of("Staff") + ".unreadable");
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), "111\n\xFF\n");
    kept.remove();
}

TEST_F(Exclusion_Trouble_Line, The_Edit_Dialogs_Own_Box_Refuses_What_The_Applied_Lists_Hold)
{
    Add(QStringLiteral("333"));
    The<QTableView>("idTableView").selectRow(0);
    user.Will_Press("OK");
    user.When_Opens("Update_Num_SMS", [this](QWidget& dialog) {
        dialog.findChild<QCheckBox*>("_Exclusion_Chk")->click();
        auto* number = dialog.findChild<QLineEdit*>("m_num_str");
        number->setText("222");
        dialog.findChild<QPushButton*>("OKPressed")->click();
        EXPECT_EQ(user.Was_Shown(), QStringList("\nEntered number is in exclusion list."));
        EXPECT_EQ(m_delegate->Exclusions().Count(), 0) << "the set keeps what it held";
        Spoil();
        dialog.findChild<QCheckBox*>("_Exclusion_Chk")->click();
        dialog.findChild<QCheckBox*>("_Exclusion_Chk")->click();
        EXPECT_EQ(Line(), Staff_Is_Unusable);
        dialog.findChild<QPushButton*>("CancelPressed")->click();
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
