#include "device/Chosen_Device.h"
#include "gui/Open_Program.h"
#include "records/Data_Paths.h"

#include <QFile>
#include <QTimer>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// The boxes of the main window that say how a list is sent, in the real window and with real files.
class Send_Options : public Open_Program
{
protected:
    void Press_Box(const char* name) { The<QCheckBox>(name).click(); }

    static void Write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    static void Apply_Lists(const std::vector<std::pair<QString, QByteArray>>& lists)
    {
        QByteArray names;
        for (const auto& [name, numbers] : lists) {
            Write(Exclusion_Folder_Path + "/" + name + ".ZOVA", numbers);
            names += name.toUtf8() + '\n';
        }
        Write(Applied_Exclusion_Path, names);
    }

    QStringList Excluded() const
    {
        QStringList numbers;
        for (int row = 0; row < m_delegate->Exclusions().Count(); ++row)
            numbers.append(m_delegate->Exclusions().At(row));
        return numbers;
    }

    ~Send_Options() override { Write(Applied_Exclusion_Path, {}); }
};

TEST_F(Send_Options, Delayed_Delivery_Begins_With_Fifteen_Messages_And_Two_Minutes)
{
    auto& batch = The<QComboBox>("_delayed_msg_count_combo");
    auto& pause = The<QComboBox>("_delayed_time_combo");
    EXPECT_FALSE(batch.isEnabled() || pause.isEnabled());
    Press_Box("_Delayed_Delivry_Chk");
    EXPECT_TRUE(batch.isEnabled() && pause.isEnabled() && batch.isEditable() && pause.isEditable());
    EXPECT_EQ(batch.currentIndex(), 6);
    EXPECT_EQ(batch.currentText(), "15");
    EXPECT_EQ(pause.currentIndex(), 12);
    EXPECT_EQ(pause.currentText(), " 2  Minutes");
    EXPECT_EQ(batch.count(), 19);
    EXPECT_EQ(pause.count(), 26);
}

TEST_F(Send_Options, Switched_Off_It_Forgets_What_Was_Typed_And_Chosen)
{
    Press_Box("_Delayed_Delivry_Chk");
    The<QComboBox>("_delayed_msg_count_combo").setEditText("7");
    Press_Box("_Delayed_Delivry_Chk");
    for (const char* box : {"_delayed_msg_count_combo", "_delayed_time_combo"}) {
        EXPECT_FALSE(The<QComboBox>(box).isEnabled()) << box;
        EXPECT_EQ(The<QComboBox>(box).currentIndex(), -1) << box;
        EXPECT_EQ(The<QComboBox>(box).currentText(), "") << box;
    }
}

TEST_F(Send_Options, The_Applied_Lists_Are_Read_When_The_Exclusion_Box_Is_Switched_On)
{
    Apply_Lists({{"Staff", "1\r\n 2 \n"}, {"Gone", ""}, {"Admin", "2\n3\n"}});
    QFile::remove(Exclusion_Folder_Path + "/Gone.ZOVA");
    EXPECT_THAT(Excluded(), IsEmpty());
    Press_Box("_Exclusion_Chk");
    EXPECT_THAT(Excluded(), ElementsAre("1", "2", "2", "3"));
    EXPECT_EQ(The<QTableView>("idExclusionTableView").model()->rowCount(), 4);
    EXPECT_TRUE(m_delegate->Check_Exclusion_Number("2"));
}

TEST_F(Send_Options, Without_The_Exclusion_Box_The_Exclusions_Stay_As_They_Were)
{
    Apply_Lists({{"Staff", "1\n"}});
    Press_Box("_Exclusion_Chk");
    Press_Box("_Exclusion_Chk");
    Apply_Lists({{"Staff", "9\n"}});
    m_delegate->Fill_Exclusion_Num_List();
    EXPECT_THAT(Excluded(), ElementsAre("1"));
    Press_Box("_Exclusion_Chk");
    EXPECT_THAT(Excluded(), ElementsAre("9"));
}

TEST_F(Send_Options, A_Text_That_Was_Filled_In_Is_Not_Offered_Again_Before_Sending)
{
    Add("111");
    The<QPlainTextEdit>("_messageEdit").setPlainText("new");
    user.When_Opens("Fill_Msg_In_List", [](QWidget& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>("OKPressed"), Qt::LeftButton);
    });
    user.Will_Press("Yes");
    Click("Fill_Msg_Btn");
    sel_port_bsd_str = QStringLiteral("/nowhere");
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [] {
        QWidget* on_top = QApplication::activeModalWidget();
        if (!on_top || on_top->objectName() != QStringLiteral("Send_Msg_Info"))
            return;
        ADD_FAILURE() << "it was offered";
        on_top->close();
    });
    watch.start(5);
    user.Will_Press("OK");
    Click("_sent_btn");
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    sel_port_bsd_str.clear();
    EXPECT_THAT(user.Was_Shown().last().toStdString(), testing::HasSubstr("Selected device is not working properly"));
}

} // namespace
