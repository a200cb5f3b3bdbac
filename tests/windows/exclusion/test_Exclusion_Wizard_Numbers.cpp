#include "windows/exclusion/Exclusion_Test.h"

#include <QAbstractItemModel>
#include <QDir>
#include <QFileDialog>
#include <QSignalSpy>
#include <sys/stat.h>

namespace {

const char* const Back_Question =
    "\nYou have made changes in exclusion number list that have not been saved yet.\n\nDo you want to go back to "
    "previous screen without saving the exclusion number list?";

class Exclusion_Numbers_Test : public Exclusion_Test
{
protected:
    /// Opens the wizard on the numbers of a list that holds these.
    void Run_On_Numbers(const QByteArray& numbers, const std::function<void()>& steps)
    {
        Make_List("Staff", numbers);
        Run([&] {
            Edit_List(0);
            steps();
        });
    }

    void Load(const QString& path) const
    {
        Type("m_loadfile_edit", path);
        Click("m_load_btn");
    }

    void Expect_Back_Asks()
    {
        Expect_Asked([this] { Click("m_back_btn"); }, Back_Question, "Yes");
    }

    void Expect_Back_Does_Not_Ask() const
    {
        Click("m_back_btn");
        EXPECT_TRUE(Is_On_First_Screen());
    }
};

TEST_F(Exclusion_Numbers_Test, A_Typed_Number_Is_Normalised_Added_And_Its_Field_Emptied_And_Focused)
{
    Run_On_Numbers("1\n", [&] {
        Add_Number(" +44-7700 ");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "00447700"}));
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 2");
        EXPECT_EQ(Text("m_loadnum_edit"), "");
        EXPECT_EQ(m_window->focusWidget(), &Control("m_loadnum_edit"));
        Expect_Back_Asks();
    });
}

TEST_F(Exclusion_Numbers_Test, A_Number_That_Is_Refused_Is_Told_About_And_Its_Field_Focused)
{
    Run_On_Numbers("123\n004477\n", [&] {
        for (const char* number : {"", "  ", "-", "44+1", "++44", "12 34", "12,34", "abc", "+1234567890123456789"}) {
            Type("m_loadnum_edit", number);
            Expect_Told_By("m_add_num_btn", "Please enter a valid phone number.", "m_loadnum_edit");
            EXPECT_EQ(Text("m_loadnum_edit"), number);
        }
        for (const char* number : {"123", "1-2-3", "+4477"}) {
            Type("m_loadnum_edit", number);
            Expect_Told_By("m_add_num_btn", "Entered number already exists.", "m_loadnum_edit");
        }
        EXPECT_EQ(Rows_Of(Numbers()).size(), 2);
        Add_Number("4477");
        EXPECT_EQ(Rows_Of(Numbers()).size(), 3) << "another number without the zeros";
        Expect_Back_Asks();
    });
}

TEST_F(Exclusion_Numbers_Test, A_Refused_Number_Is_No_Change)
{
    Run_On_Numbers("123\n", [&] {
        Type("m_loadnum_edit", "123");
        Expect_Told_By("m_add_num_btn", "Entered number already exists.", "m_loadnum_edit");
        Expect_Back_Does_Not_Ask();
    });
}

TEST_F(Exclusion_Numbers_Test, The_Count_Reloads_The_Table_At_Exactly_Ten)
{
    Run_On_Numbers("1\n2\n3\n4\n5\n6\n7\n8\n9\n", [&] {
        QSignalSpy reloads(Numbers().model(), &QAbstractItemModel::dataChanged);
        m_window->Update_Exclusion_Num_Count();
        EXPECT_EQ(reloads.size(), 0);
        Add_Number("10");
        reloads.clear();
        m_window->Update_Exclusion_Num_Count();
        EXPECT_EQ(reloads.size(), 1);
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 10");
        Add_Number("11");
        reloads.clear();
        m_window->Update_Exclusion_Num_Count();
        EXPECT_EQ(reloads.size(), 0);
    });
}

// ------------------------------------------------------------------------------------------------------ from a file

TEST_F(Exclusion_Numbers_Test, Browse_Empties_The_Field_And_Puts_The_Chosen_Path_There)
{
    const QString path = m_data.Beside("numbers.txt");
    Write_Bytes(path, "1\n");
    Run_On_Numbers("", [&] {
        Type("m_loadfile_edit", "from before");
        m_user.Will_Do([](QDialog* panel) {
            EXPECT_EQ(qobject_cast<QFileDialog*>(panel)->fileMode(), QFileDialog::ExistingFile);
            panel->reject();
        });
        Click("m_browse_btn");
        EXPECT_EQ(Text("m_loadfile_edit"), "");
        m_user.Will_Do([&](QDialog* panel) {
            auto* files = qobject_cast<QFileDialog*>(panel);
            files->setDirectory(QFileInfo(path).path());
            files->selectFile(path);
            files->QDialog::accept();
        });
        Click("m_browse_btn");
        EXPECT_EQ(Text("m_loadfile_edit"), path);
    });
}

TEST_F(Exclusion_Numbers_Test, A_File_Adds_What_Is_A_Number_And_New_And_Skips_The_Rest_Silently)
{
    const QString path = m_data.Beside("numbers.txt");
    Write_Bytes(path, "+44-7700-900123\r\nname\n123\n\n{\\456}\n123\n123456789012345678901\n12 3\n44+1\n7");
    Run_On_Numbers("123\n", [&] {
        Load(path);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"123", "00447700900123", "456", "7"}));
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 4");
        Expect_Back_Asks();
    });
    EXPECT_EQ(m_user.Was_Shown().size(), 1) << "nothing is said of the load";
}

TEST_F(Exclusion_Numbers_Test, A_Rich_Text_File_Is_Read_By_Its_Extension)
{
    const QString path = m_data.Beside("numbers.RTF");
    Write_Bytes(path, "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 +44-7700\\par 1234\\par}");
    Run_On_Numbers("", [&] {
        Load(path);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"00447700", "1234"}));
    });
}

TEST_F(Exclusion_Numbers_Test, What_Is_No_Regular_File_Is_Refused_And_The_Field_Focused)
{
    ASSERT_TRUE(QDir().mkpath(m_data.Beside("folder")));
    ASSERT_EQ(mkfifo(m_data.Beside("pipe").toLocal8Bit().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(m_data.Beside("loop"), m_data.Beside("loop")));
    const QStringList paths = {"",
                               "   ",
                               m_data.Beside("missing"),
                               m_data.Beside("folder"),
                               m_data.Beside("pipe"),
                               m_data.Beside("loop"),
                               "/dev/zero"};
    Run_On_Numbers("1\n", [&] {
        for (const QString& path : paths) {
            Type("m_loadfile_edit", path);
            Expect_Told_By("m_load_btn", "Please select a valid file.", "m_loadfile_edit");
            EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
        }
        Expect_Back_Does_Not_Ask();
    });
}

TEST_F(Exclusion_Numbers_Test, An_Empty_File_And_One_That_Can_Not_Be_Decoded_Add_Nothing_And_Say_Nothing)
{
    const QString path = m_data.Beside("numbers.txt");
    Run_On_Numbers("1\n", [&] {
        for (const QByteArray& bytes : {QByteArray(), QByteArray("2\n\xFF\n3\n"), QByteArray("\xFF\xFE\x32\x00", 4)}) {
            Write_Bytes(path, bytes);
            Load(path);
            EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
            EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 1");
        }
        Expect_Back_Does_Not_Ask();
    });
}

TEST_F(Exclusion_Numbers_Test, A_File_With_Marks_And_Odd_Bytes_Gives_The_Numbers_That_Stand_On_Lines)
{
    const QString path = m_data.Beside("numbers.txt");
    Run_On_Numbers("", [&] {
        Write_Bytes(path, QByteArray("\xEF\xBB\xBF"
                                     "1\n2\0\n3\r\n4\r5\n",
                                     15));
        Load(path);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "3"})) << "a NUL is no digit, and CR alone ends no line";
    });
}

// ------------------------------------------------------------------------------------------------------- edit, remove

TEST_F(Exclusion_Numbers_Test, Without_Numbers_Or_Selection_The_Buttons_Say_So_And_Focus_The_Table)
{
    Run_On_Numbers("", [&] {
        for (const char* button : {"m_update_num_btn", "m_del_num_btn"})
            Expect_Told_By(button, "Exclusion number list is empty.", "m_ex_num_list");
        Add_Number("1");
        Add_Number("2");
        for (const char* button : {"m_update_num_btn", "m_del_num_btn"})
            Expect_Told_By(button, "Please select at least one record from the exclusion number list to continue.",
                           "m_ex_num_list");
        Select(Numbers(), {0, 1});
        Expect_Told_By("m_update_num_btn", "Please select only one record to update.", "m_ex_num_list");
        EXPECT_EQ(Rows_Of(Numbers()).size(), 2);
    });
}

TEST_F(Exclusion_Numbers_Test, Selected_Numbers_Are_Removed_And_Row_0_Is_Selected)
{
    Run_On_Numbers("1\n2\n3\n4\n", [&] {
        Click_Row(Numbers(), 3);
        Click_Row(Numbers(), 1, Qt::ControlModifier);
        Click("m_del_num_btn");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "3"}));
        EXPECT_EQ(Selected_In(Numbers()), std::vector<int>{0});
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 2");
        EXPECT_EQ(m_window->focusWidget(), &Numbers());
        Click("m_del_num_btn");
        Click("m_del_num_btn");
        EXPECT_TRUE(Rows_Of(Numbers()).isEmpty());
        EXPECT_FALSE(m_window->Skip_Duplicate_Number("3"));
        Add_Number("3");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("3"));
    });
}

TEST_F(Exclusion_Numbers_Test, A_Number_Is_Edited_In_Its_Place)
{
    Run_On_Numbers("1\n2\n3\n", [&] {
        m_user.When_Opens("Update_Ex_Num", [](QWidget& dialog) {
            auto& field = *dialog.findChild<QLineEdit*>("m_ex_num_str");
            EXPECT_EQ(field.text(), "2");
            field.setText("+4-4");
            dialog.findChild<QPushButton*>("OKPressed")->click();
        });
        Click_Row(Numbers(), 1);
        Click("m_update_num_btn");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "0044", "3"}));
        EXPECT_FALSE(m_window->Skip_Duplicate_Number("2"));
        EXPECT_TRUE(m_window->Skip_Duplicate_Number("0044"));
        Expect_Back_Asks();
    });
}

TEST_F(Exclusion_Numbers_Test, A_Number_Left_As_It_Was_Still_Counts_As_A_Change)
{
    Run_On_Numbers("1\n2\n", [&] {
        m_user.When_Opens("Update_Ex_Num",
                          [](QWidget& dialog) { dialog.findChild<QPushButton*>("OKPressed")->click(); });
        Double_Click_Row(Numbers(), 1);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "2"}));
        Expect_Back_Asks();
    });
}

TEST_F(Exclusion_Numbers_Test, A_Cancelled_Edit_Is_No_Change)
{
    Run_On_Numbers("1\n", [&] {
        m_user.When_Opens("Update_Ex_Num", [](QWidget& dialog) {
            dialog.findChild<QLineEdit*>("m_ex_num_str")->setText("2");
            dialog.findChild<QPushButton*>("CancelPressed")->click();
        });
        Double_Click_Row(Numbers(), 0);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
        Expect_Back_Does_Not_Ask();
    });
}

TEST_F(Exclusion_Numbers_Test, Nothing_Is_Edited_With_Nothing_Selected_Or_Outside_The_List)
{
    Run_On_Numbers("1\n", [&] {
        m_window->OnGetSelected();
        m_window->Replace_Number(-1, "2");
        m_window->Replace_Number(1, "2");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
    });
}

} // namespace
