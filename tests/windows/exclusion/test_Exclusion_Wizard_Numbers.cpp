#include "windows/exclusion/Exclusion_Test.h"

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
    /// In the dialog that opens next, enters a number and clicks a button.
    void Will_Edit(const char* old_number, const char* number, const char* button)
    {
        m_user.When_Opens("Update_Ex_Num", [=](QWidget& dialog) {
            EXPECT_EQ(dialog.findChild<QLineEdit*>("m_ex_num_str")->text(), old_number);
            dialog.findChild<QLineEdit*>("m_ex_num_str")->setText(number);
            dialog.findChild<QPushButton*>(button)->click();
        });
    }

    void Expect_Back_Asks() { Expect_Boxes("m_back_btn", {{Back_Question, "Yes"}}); }
    void Expect_Back_Does_Not_Ask() const
    {
        Click("m_back_btn");
        EXPECT_TRUE(Is_On_First_Screen());
    }

    const QString m_path = m_data.Beside("numbers.txt");
};

TEST_F(Exclusion_Numbers_Test, A_Typed_Number_Is_Refused_And_Nothing_Changed_Or_Normalised_And_Added)
{
    Run_On_Numbers("123\n004477\n", [&] {
        const std::pair<const char*, const char*> cases[] = {
            {"", "\nPlease enter a valid phone number."},
            {"12,34", "\nPlease enter a valid phone number."},
            {"+1234567890123456789", "\nPlease enter a valid phone number."},
            {"1-2-3", "\nEntered number already exists."},
            {"+4477", "\nEntered number already exists."},
        };
        for (const auto& [number, text] : cases) {
            Type("m_loadnum_edit", number);
            Expect_Told("m_add_num_btn", text, "m_loadnum_edit");
            EXPECT_EQ(Text("m_loadnum_edit"), number);
        }
        EXPECT_EQ(Rows_Of(Numbers()).size(), 2);
        Expect_Back_Does_Not_Ask();

        Edit_List(0, " +44-7700 ");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"123", "004477", "00447700"}));
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 3");
        EXPECT_EQ(Text("m_loadnum_edit"), "");
        EXPECT_EQ(Focused(), &Control("m_loadnum_edit"));
        Expect_Back_Asks();
    });
}

TEST_F(Exclusion_Numbers_Test, The_Count_Reloads_The_Table_At_Exactly_Ten)
{
    Run_On_Numbers("1\n2\n3\n4\n5\n6\n7\n8\n9\n", [&] {
        QSignalSpy reloads(Numbers().model(), &QAbstractItemModel::dataChanged);
        const auto reloads_of_count = [&] {
            reloads.clear();
            m_window->Update_Exclusion_Num_Count();
            return reloads.size();
        };
        EXPECT_EQ(reloads_of_count(), 0);
        Add_Number("10");
        EXPECT_EQ(reloads_of_count(), 1);
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 10");
        Add_Number("11");
        EXPECT_EQ(reloads_of_count(), 0);
    });
}

TEST_F(Exclusion_Numbers_Test, Browse_Empties_The_Field_And_Puts_The_Chosen_Path_There)
{
    Write_Bytes(m_path, "1\n");
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
            files->setDirectory(QFileInfo(m_path).path());
            files->selectFile(m_path);
            files->QDialog::accept();
        });
        Click("m_browse_btn");
        EXPECT_EQ(Text("m_loadfile_edit"), m_path);
    });
}

TEST_F(Exclusion_Numbers_Test, A_File_Adds_What_Is_A_Number_And_New_And_Skips_The_Rest_Silently)
{
    Write_Bytes(m_path, QByteArray("\xEF\xBB\xBF"
                                   "+44-7700-900123\r\nname\n123\n\n{\\456}\n123456789012345678901\n12 3\n2\0\n4\r5\n7",
                                   72));
    Write_Bytes(m_data.Beside("more.RTF"), "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}\\f0 +44-7701\\par 1234\\par}");
    Run_On_Numbers("123\n", [&] {
        Load(m_path);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"123", "00447700900123", "456", "7"}));
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 4");
        Load(m_data.Beside("more.RTF"));
        EXPECT_EQ(Rows_Of(Numbers()).mid(4), QStringList({"00447701", "1234"}));
        Expect_Back_Asks();
    });
}

TEST_F(Exclusion_Numbers_Test, A_Strip_Says_What_A_File_Gave_And_Shows_The_Lines_That_Were_Not_Used)
{
    Write_Bytes(m_path, "2\n\nname\n1\n2\n");
    Run_On_Numbers("1\n", [&] {
        const auto& strip = Control("m_import_strip");
        EXPECT_FALSE(strip.isVisible()) << "though the screen shows all of its controls";
        Load(m_path);
        EXPECT_TRUE(strip.isVisible());
        EXPECT_EQ(Label("_Import_Words"), "1 added, 3 lines not used.");
        EXPECT_TRUE(m_user.Was_Shown().isEmpty());
        Click("Show_Unused_Btn");
        const auto& lines = Control("Unused_Lines_Wnd");
        ASSERT_TRUE(lines.isVisible());
        const auto& rows = In<QTableView>(lines, "_Rows");
        EXPECT_EQ(Rows_Of(rows, 0).join(u' '), "3 4 5");
        EXPECT_EQ(Rows_Of(rows, 2), QStringList({"No phone number", "Already in the list", "Already in the list"}));
        Click_Middle_Of(In<QPushButton>(lines, "Close_Btn")); // it takes clicks beside the wizard, which is modal
        EXPECT_FALSE(lines.isVisible());
        Add_Number("7");
        EXPECT_TRUE(strip.isVisible());
        Click("Show_Unused_Btn");
        Write_Bytes(m_path, "8\n");
        Load(m_path);
        EXPECT_EQ(Label("_Import_Words"), "1 added.");
        EXPECT_FALSE(lines.isVisible());
        EXPECT_EQ(Focused(), &Control("m_load_btn"));
        Expect_Back_Asks();
        Edit_List(0);
        EXPECT_FALSE(strip.isVisible());
        Write_Bytes(m_path, "name");
        Load(m_path);
        EXPECT_EQ(Label("_Import_Words"), "0 added, 1 line not used.");
        Click("Dismiss_Import_Btn");
        EXPECT_FALSE(strip.isVisible());
        Load(m_path);
        Select_Rows_In(Numbers(), {0});
        Click("m_del_num_btn");
        EXPECT_FALSE(strip.isVisible()) << "the list is empty";
    });
}

TEST_F(Exclusion_Numbers_Test, What_Is_No_Regular_File_Is_Refused_And_What_Can_Not_Be_Decoded_Adds_Nothing)
{
    ASSERT_TRUE(QDir().mkpath(m_data.Beside("folder")));
    ASSERT_EQ(mkfifo(m_data.Beside("pipe").toLocal8Bit().constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(m_data.Beside("loop"), m_data.Beside("loop")));
    Run_On_Numbers("1\n", [&] {
        for (const QString& path : {QString(), QString("   "), m_data.Beside("missing"), m_data.Beside("folder"),
                                    m_data.Beside("pipe"), m_data.Beside("loop"), QString("/dev/zero")}) {
            Type("m_loadfile_edit", path);
            Expect_Told("m_load_btn", "\nPlease select a valid file.", "m_loadfile_edit");
            EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
        }
        for (const QByteArray& bytes : {QByteArray(), QByteArray("2\n\xFF\n3\n"), QByteArray("\xFF\xFE\x32\x00", 4)}) {
            Write_Bytes(m_path, bytes);
            Load(m_path);
            EXPECT_EQ(Rows_Of(Numbers()), QStringList("1"));
            EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 1");
        }
        Expect_Back_Does_Not_Ask();
    });
}

TEST_F(Exclusion_Numbers_Test, Without_Numbers_Or_Selection_The_Buttons_Say_So_And_Focus_The_Table)
{
    Run_On_Numbers("", [&] {
        for (const char* button : {"m_update_num_btn", "m_del_num_btn"})
            Expect_Told(button, "\nExclusion number list is empty.", "m_ex_num_list");
        Add_Number("1");
        Add_Number("2");
        for (const char* button : {"m_update_num_btn", "m_del_num_btn"})
            Expect_Told(button, "\nPlease select at least one record from the exclusion number list to continue.",
                        "m_ex_num_list");
        m_window->OnGetSelected();
        Select_Rows_In(Numbers(), {0, 1});
        Expect_Told("m_update_num_btn", Select_One, "m_ex_num_list");
        for (const int row_outside : {-1, 2})
            m_window->Replace_Number(row_outside, "3");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "2"}));
    });
}

TEST_F(Exclusion_Numbers_Test, Selected_Numbers_Are_Removed_And_Row_0_Alone_Is_Selected)
{
    Run_On_Numbers("1\n2\n3\n4\n", [&] {
        Click_Row(Numbers(), 3);
        Click_Row(Numbers(), 1, Qt::ControlModifier);
        Click_Holding_Control("m_del_num_btn");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "3"}));
        EXPECT_EQ(Rows_Selected_In(Numbers()), std::vector<int>{0});
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 2");
        EXPECT_EQ(Focused(), &Numbers());
        Click("m_del_num_btn");
        Click("m_del_num_btn");
        EXPECT_TRUE(Rows_Of(Numbers()).isEmpty());
        EXPECT_FALSE(m_window->Skip_Duplicate_Number("3"));
        Expect_Back_Does_Not_Ask(); // about numbers that were only removed
        Edit_List(0);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "2", "3", "4"}));
    });
}

TEST_F(Exclusion_Numbers_Test, A_Number_Is_Edited_In_Its_Place_And_One_Left_As_It_Was_Still_Counts_As_A_Change)
{
    Run_On_Numbers("1\n2\n3\n", [&] {
        Will_Edit("2", "5", "CancelPressed");
        Double_Click_Row(Numbers(), 1);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "2", "3"}));
        Expect_Back_Does_Not_Ask();
        Edit_List(0);
        Will_Edit("2", "2", "OKPressed");
        Double_Click_Row(Numbers(), 1);
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "2", "3"}));
        Expect_Back_Asks();
        Edit_List(0);
        Will_Edit("2", "+4-4", "OKPressed");
        Click_Row(Numbers(), 1);
        Click("m_update_num_btn");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "0044", "3"}));
        EXPECT_FALSE(m_window->Skip_Duplicate_Number("2"));
        EXPECT_TRUE(m_window->Skip_Duplicate_Number("0044"));
        Expect_Back_Asks();
    });
}
