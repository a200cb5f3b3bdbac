#include "windows/exclusion/Exclusion_Test.h"

constexpr int Million = 1000000;

class Exclusion_Large_Test : public Exclusion_Test
{
protected:
    Exclusion_Large_Test() { Make_List("Staff", "1\n"); }

    /// Edits the list, the field ready to load a file of these bytes.
    void Run_On_File(const QByteArray& bytes, const std::function<void()>& steps)
    {
        const QString path = m_data.Beside("numbers.txt");
        Write_Bytes(path, bytes);
        Run([&] {
            Edit_List(0);
            Type("m_loadfile_edit", path);
            steps();
        });
    }
    static QByteArray Lines_Up_To(int count)
    {
        QByteArray lines;
        for (int number = 0; number < count; ++number)
            lines += QByteArray::number(440000000 + number) + "\n";
        return lines;
    }
    /// Clicks on Load; meanwhile, a thousand times a second while the sheet is up over the wizard, looks.
    void Load_And_Look(const std::function<void()>& look) const
    {
        const auto& sheet = Control("PleaseWait_Modeless");
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, m_window.get(), [&] {
            if (sheet.isVisible())
                look();
        });
        timer.start(1);
        Click("m_load_btn");
    }
};

TEST_F(Exclusion_Large_Test, A_Million_Numbers_Are_Loaded_Edited_Removed_Saved_And_Opened_With_The_Window_Alive)
{
    Run_On_File(Lines_Up_To(Million), [&] {
        Heartbeat heartbeat;
        QSet<QString> counts;
        Load_And_Look([&] { counts.insert(Label("m_st_num_count")); });
        EXPECT_GT(counts.size(), 2) << "the count grows while the sheet is up";
        EXPECT_EQ(Label("m_st_num_count"), "Total Numbers : 1000001");
        EXPECT_EQ(Numbers().model()->rowCount(), Million + 1);
        m_window->Replace_Number(Million, "77");
        EXPECT_TRUE(m_window->Skip_Duplicate_Number("77"));
        Click("m_load_btn"); // all but the replaced one are there already
        EXPECT_EQ(Numbers().model()->rowCount(), Million + 2);
        Click_Row(Numbers(), 0);
        Click("m_del_num_btn");
        EXPECT_EQ(Numbers().model()->rowCount(), Million + 1);
        Finish();
        EXPECT_TRUE(Is_On_First_Screen());
        Edit_List(0);
        EXPECT_EQ(Numbers().model()->rowCount(), Million + 1);
        Numbers().selectAll();
        Click("m_del_num_btn");
        EXPECT_EQ(Numbers().model()->rowCount(), 0);
        Expect_Boxes("m_back_btn", {{Back_Question, "Yes"}});
        EXPECT_LT(heartbeat.Longest_Gap(), 1);
    });
}

TEST_F(Exclusion_Large_Test, A_Hundred_Megabytes_On_One_Line_Are_Passed_Over_With_The_Window_Alive)
{
    Run_On_File("12\n" + QByteArray(100 << 20, '5') + "\n34\n", [&] {
        Heartbeat heartbeat;
        Click("m_load_btn");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"1", "12", "34"}));
        EXPECT_LT(heartbeat.Longest_Gap(), 1);
    });
}

TEST_F(Exclusion_Large_Test, Clicks_And_The_Close_Button_Do_Nothing_While_A_File_Is_Loaded)
{
    Run_On_File(Lines_Up_To(Million / 4), [&] {
        int tries = 0;
        Load_And_Look([&] {
            ++tries;
            Click("m_cancel2_btn");
            m_window->close();
            m_window->reject();
            EXPECT_TRUE(m_window->isVisible());
        });
        EXPECT_GT(tries, 0);
        EXPECT_TRUE(Is_On_Numbers_Screen());
        EXPECT_EQ(Numbers().model()->rowCount(), Million / 4 + 1);
    });
}
