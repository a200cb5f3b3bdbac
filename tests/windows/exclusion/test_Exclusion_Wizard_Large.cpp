#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "records/Exclusion_Files.h"
#include "windows/exclusion/Exclusion_Test.h"

#include <QApplication>
#include <QElapsedTimer>

namespace {

constexpr int Million = 1000000;

QByteArray Lines_Up_To(int count)
{
    QByteArray lines;
    for (int number = 0; number < count; ++number)
        lines += QByteArray::number(440000000 + number) + "\n";
    return lines;
}

// What the sheet over the wizard lets happen: the counts that were seen while it was up.
class Sheet_Watch : public QObject
{
public:
    explicit Sheet_Watch(const QLabel& count)
    {
        connect(&m_timer, &QTimer::timeout, this, [this, &count] {
            const auto windows = QApplication::topLevelWidgets();
            for (const QWidget* window : windows) {
                if (window->objectName() == "PleaseWait_Modeless" && window->isVisible() &&
                    (m_counts.isEmpty() || m_counts.last() != count.text()))
                    m_counts.append(count.text());
            }
        });
        m_timer.start(1);
    }

    QStringList m_counts;

private:
    QTimer m_timer;
};

TEST_F(Exclusion_Test, A_Million_Numbers_Are_Loaded_Edited_Removed_And_Saved_With_The_Window_Alive)
{
    const QString path = m_data.Beside("million.txt");
    Write_Bytes(path, Lines_Up_To(Million));
    Make_List("Staff", "1\n");
    Run([&] {
        Edit_List(0);
        Type("m_loadfile_edit", path);
        Heartbeat heartbeat;
        {
            const Sheet_Watch watch(Control<QLabel>("m_st_num_count"));
            const double begin = Now_Seconds();
            Click("m_load_btn");
            RecordProperty("load_ms", static_cast<int>((Now_Seconds() - begin) * 1000));
            EXPECT_GT(watch.m_counts.size(), 2) << "the count grows while the sheet is up";
        }
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
        RecordProperty("longest_gap_ms", static_cast<int>(heartbeat.Longest_Gap() * 1000));
        EXPECT_LT(heartbeat.Longest_Gap(), 1);
        EXPECT_TRUE(Is_On_First_Screen());
    });
    EXPECT_EQ(Exclusion_Files::Read_List("Staff").Count(), Million + 1);
}

TEST_F(Exclusion_Test, A_List_Of_A_Million_Numbers_Opens_With_The_Window_Alive_And_Goes_Back)
{
    Make_List("Staff", Lines_Up_To(Million));
    Run([&] {
        Heartbeat heartbeat;
        Edit_List(0);
        EXPECT_EQ(Numbers().model()->rowCount(), Million);
        Numbers().selectAll();
        Click("m_del_num_btn");
        EXPECT_EQ(Numbers().model()->rowCount(), 0);
        Click("m_back_btn");
        EXPECT_LT(heartbeat.Longest_Gap(), 1);
        RecordProperty("longest_gap_ms", static_cast<int>(heartbeat.Longest_Gap() * 1000));
    });
}

TEST_F(Exclusion_Test, A_Hundred_Megabytes_On_One_Line_Are_Passed_Over_With_The_Window_Alive)
{
    const QString path = m_data.Beside("line.txt");
    Write_Bytes(path, "12\n" + QByteArray(100 << 20, '5') + "\n34\n");
    Make_List("Staff", "");
    Run([&] {
        Edit_List(0);
        Type("m_loadfile_edit", path);
        Heartbeat heartbeat;
        Click("m_load_btn");
        EXPECT_EQ(Rows_Of(Numbers()), QStringList({"12", "34"}));
        EXPECT_LT(heartbeat.Longest_Gap(), 1);
    });
}

TEST_F(Exclusion_Test, Clicks_And_The_Close_Button_Do_Nothing_While_A_File_Is_Loaded)
{
    const QString path = m_data.Beside("million.txt");
    Write_Bytes(path, Lines_Up_To(Million / 4));
    Make_List("Staff", "1\n");
    Run([&] {
        Edit_List(0);
        Type("m_loadfile_edit", path);
        bool was_tried = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, m_window.get(), [&] {
            if (was_tried || !m_window->findChild<QWidget*>("PleaseWait_Modeless")->isVisible())
                return;
            was_tried = true;
            Click("m_cancel2_btn");
            m_window->close();
            m_window->reject();
            EXPECT_TRUE(m_window->isVisible());
        });
        look.start(1);
        Click("m_load_btn");
        EXPECT_TRUE(was_tried);
        EXPECT_TRUE(Is_On_Numbers_Screen());
        EXPECT_EQ(Numbers().model()->rowCount(), Million / 4 + 1);
    });
}

} // namespace
