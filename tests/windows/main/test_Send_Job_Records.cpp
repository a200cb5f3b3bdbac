#include "windows/main/Sending_Test.h"

// Jobs with everything that surrounds a message: records, templates, exclusions, batches.

class Job_With_Records : public Sending_Test
{
protected:
    void Keep_Everything() { m_window.m_choices.save_sent_items = m_window.m_choices.save_templates = true; }

    void Expect_Kept(const QByteArray& records, const QByteArray& templates)
    {
        EXPECT_EQ(Bytes_Of(Sent_Item_Path), records);
        EXPECT_EQ(Bytes_Of(Templates_Path), templates);
    }

    /// What the progress window showed before each pause.
    QStringList Steps_Before_Pauses() const
    {
        QStringList steps_before;
        const QStringList steps = m_progress.Steps();
        for (int step = 1; step < steps.size(); ++step) {
            if (steps.at(step) == "pause")
                steps_before.append(steps.at(step - 1));
        }
        return steps_before;
    }
};

class Kept_Records : public Job_With_Records, public testing::WithParamInterface<std::tuple<bool, bool, bool>>
{
};

TEST_P(Kept_Records, Are_Those_Of_The_Options_In_Either_Mode)
{
    const auto [text_mode, sent_items, templates] = GetParam();
    Put([is_text = text_mode](Phone_Moods& moods) { moods.m_text_only = is_text; });
    Add("111", "first");
    Add("222", "second\nand a line");
    m_window.m_choices.save_sent_items = sent_items;
    m_window.m_choices.save_templates = templates;
    Send_And_Read({Completed});
    Expect_Kept(sent_items ? Record("111", "first") + Record("222", "second|AP*|DX/and a line") : QByteArray(),
                templates ? "first\nsecond|AP*|DX/and a line\n" : "");
}

INSTANTIATE_TEST_SUITE_P(By, Kept_Records, testing::Combine(testing::Bool(), testing::Bool(), testing::Bool()));

TEST_F(Job_With_Records, The_Same_Message_Is_One_Template)
{
    Add_Each({"111", "222"}, "the same");
    Add("333", " the same");
    Add("444", "   ");
    m_window.m_choices.save_templates = true;
    Send_And_Read({Completed});
    Send_And_Read({Completed});
    Expect_Kept("", "the same\n the same\n");
}

TEST_F(Job_With_Records, A_Message_Of_1601_Characters_Is_Sent_And_Kept_With_1600)
{
    const QString cut(1600, u'a');
    Add("111", cut + u'b');
    Keep_Everything();
    Send_And_Read({Completed});
    EXPECT_EQ(Received(), QStringList{"111: " + cut});
    Expect_Kept(Record("111", cut), cut.toUtf8() + '\n');
}

TEST_F(Job_With_Records, A_Store_That_Went_Missing_Is_Made_Again_And_One_That_Can_Not_Be_Written_To_Holds_Nothing_Up)
{
    Add_Each({"111", "222"});
    Keep_Everything();
    ASSERT_TRUE(QFile::remove(Sent_Item_Path));
    Send_And_Read({Completed});
    Expect_Kept(Record("111", "Hello") + Record("222", "Hello"), "Hello\n");
    Put_A_Folder_At(Sent_Item_Path);
    Put_A_Folder_At(Templates_Path);
    Send_And_Read({Completed});
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "222: Hello", "111: Hello", "222: Hello"}));
}

TEST_F(Job_With_Records, A_Message_That_An_Exception_Cut_Short_In_Text_Mode_Counts_Towards_Its_Batch)
{
    Put([](Phone_Moods& moods) { moods.m_text_only = true; });
    Add_Each({"111", "222"});
    Pause_After_Each("1", "5  Seconds");
    Before_Write("AT+CMGS=", 1, Raise);
    Send_And_Read({Completed});
    EXPECT_EQ(Steps_Before_Pauses(), QStringList{"1 / 2 111"});
}

TEST_F(Job_With_Records, A_Phone_That_Falls_Silent_Ends_No_Job_And_Leaves_Every_Record)
{
    Add_Each({"111", "222", "333"});
    Keep_Everything();
    At_Step("2 / 3 222", [this] { Put([](Phone_Moods& moods) { moods.m_silent = true; }); });
    Send_And_Read({Completed});
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
    Expect_Kept(Record("111", "Hello") + Record("222", "Hello") + Record("333", "Hello"), "Hello\n");
}

TEST_F(Job_With_Records, The_Exclusions_Are_Read_Again_Once_The_Device_Has_Opened)
{
    Add_Each({"111", "222", "111"});
    m_window.m_choices.exclusion = true;
    Exclude("222");
    m_window.m_exclusions.Clear(); // as they were before somebody else changed the list
    sel_port_bsd_str = "/dev/null/none";
    Send_And_Read({Does_Not_Open});
    EXPECT_EQ(m_window.m_exclusions_taken, 0);
    sel_port_bsd_str = QString::fromStdString(m_phone.Path());
    Send_And_Read({Completed});
    EXPECT_EQ(m_window.m_exclusions_taken, 1);
    EXPECT_EQ(m_window.m_exclusions.Count(), 1) << "the main window shows them, too";
    EXPECT_EQ(Received(), (QStringList{"111: Hello", "111: Hello"}));
    m_window.m_choices.exclusion = false;
    Send_And_Read({Completed});
    EXPECT_EQ(m_window.m_exclusions_taken, 1) << "without the option they are left alone";
    EXPECT_EQ(Received().mid(2), (QStringList{"111: Hello", "222: Hello", "111: Hello"}));
}

// ---- Batches

TEST_F(Job_With_Records, A_Pause_Follows_Each_Whole_Batch_But_The_Last)
{
    struct Row
    {
        int items;
        const char* batch_size;
        const char* pause;
        QStringList before_pauses;
    };
    const Row rows[] = {{12, "5", "5  Seconds", {"5 / 12 105", "10 / 12 110"}},
                        {3, "1", "5  Seconds", {"1 / 3 101", "2 / 3 102"}},
                        {2, "1", "7 Seconds", {}}}; // a choice without a unit
    for (const Row& row : rows) {
        SCOPED_TRACE(row.items);
        m_phone.Forget();
        m_progress.Forget_Steps();
        m_window.m_recipients.Clear();
        for (int item = 1; item <= row.items; ++item)
            Add(QString::number(100 + item));
        Pause_After_Each(row.batch_size, row.pause);
        Send_And_Read({Completed});
        EXPECT_EQ(Steps_Before_Pauses(), row.before_pauses);
        EXPECT_EQ(m_progress.Steps().count("Pausing the process for 1 Seconds."), row.before_pauses.size());
        EXPECT_EQ(static_cast<int>(m_phone.Inbox().size()), row.items);
    }
}

TEST_F(Job_With_Records, A_Stop_In_A_Pause_Ends_The_Job_Within_A_Second_And_Without_A_Word)
{
    Add_Each({"111", "222"});
    Keep_Everything();
    Pause_After_Each("1", " 1  Hour");
    double stopped_at = 0;
    At_Step("Pausing the process for 1 Hour 0 Minute 0 Seconds.", [&] {
        Set_Pace(1); // what a person would wait
        Press_Stop();
        stopped_at = Now_Seconds();
    });
    Send_And_Read({Stop_Sending});
    EXPECT_GT(stopped_at, 0);
    EXPECT_LT(Now_Seconds() - stopped_at, 1.5);
    Expect_Kept(Record("111", "Hello"), "Hello\n");
    EXPECT_EQ(Received(), QStringList{"111: Hello"});
}

// ---- The composer's text, offered before sending

TEST_F(Job_With_Records, The_Composers_Text_Is_Offered_Once_For_Each_Change)
{
    Add("111", "old");
    Add("222", "");
    m_window.m_choices.composer_text = "new";
    Will_Answer_The_Offer("CancelPressed");
    Send_And_Read({});
    EXPECT_EQ(Received(), QStringList());
    Send_And_Read({Completed});
    EXPECT_EQ(Received(), (QStringList{"111: old", "222: "}));
    m_window.m_choices.composer_text = "newer";
    Will_Answer_The_Offer("ContinuePressed");
    Send_And_Read({Completed});
    EXPECT_EQ(Received().mid(2), (QStringList{"111: old", "222: "}));
    m_window.m_choices.composer_text = "newest";
    Will_Answer_The_Offer("OKPressed");
    Send_And_Read({Completed});
    EXPECT_EQ(Received().mid(4), (QStringList{"111: newest", "222: newest"}));
    EXPECT_EQ(m_window.m_previous_message, "newest");
}
