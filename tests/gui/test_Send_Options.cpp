#include "gui/Open_Program.h"
#include "support/Data_Folder.h"

using testing::ElementsAre;
using testing::IsEmpty;

// The boxes of the main window that say how a list is sent, in the real window and with real files.
class Send_Options : public Open_Program
{
protected:
    void Press_Box(const char* name) { The<QCheckBox>(name).click(); }

    static void Apply_Lists(const std::vector<std::pair<QString, QByteArray>>& lists)
    {
        QByteArray names;
        for (const auto& [name, numbers] : lists) {
            Write_Bytes(Path_Of_List(name), numbers);
            names += name.toUtf8() + '\n';
        }
        Write_Bytes(Applied_Exclusion_Path, names);
    }

    QStringList Excluded() const
    {
        QStringList numbers;
        for (int row = 0; row < m_delegate->Exclusions().Count(); ++row)
            numbers.append(m_delegate->Exclusions().At(row));
        return numbers;
    }

    ~Send_Options() override { Write_Bytes(Applied_Exclusion_Path, {}); }
};

TEST_F(Send_Options, Delayed_Delivery_Begins_With_Fifteen_Messages_And_Two_Minutes_And_Forgets_What_Was_Typed)
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
    batch.setEditText("7");
    Press_Box("_Delayed_Delivry_Chk");
    for (const auto* box : {&batch, &pause}) {
        EXPECT_FALSE(box->isEnabled());
        EXPECT_EQ(box->currentIndex(), -1);
        EXPECT_EQ(box->currentText(), "");
    }
}

TEST_F(Send_Options, The_Applied_Lists_Are_Read_When_The_Exclusion_Box_Is_Switched_On)
{
    Apply_Lists({{"Staff", "1\r\n 2 \n"}, {"Gone", ""}, {"Admin", "2\n3\n"}});
    QFile::remove(Path_Of_List("Gone"));
    EXPECT_THAT(Excluded(), IsEmpty());
    Press_Box("_Exclusion_Chk");
    EXPECT_THAT(Excluded(), ElementsAre("1", "2", "2", "3"));
    EXPECT_EQ(The<QTableView>("idExclusionTableView").model()->rowCount(), 4);
    EXPECT_TRUE(m_delegate->Check_Exclusion_Number("2"));
    Press_Box("_Exclusion_Chk");
    Apply_Lists({{"Staff", "9\n"}});
    m_delegate->Fill_Exclusion_Num_List();
    EXPECT_THAT(Excluded(), ElementsAre("1", "2", "2", "3")) << "without the box they stay as they were";
    Press_Box("_Exclusion_Chk");
    EXPECT_THAT(Excluded(), ElementsAre("9"));
}
