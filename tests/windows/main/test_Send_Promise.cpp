#include "windows/main/Send_Promise.h"

#include "device/Chosen_Device.h"
#include "list/Table_File.h"
#include "plan/Plan_Pace.h"
#include "platform/Pace.h"
#include "support/Data_Folder.h"
#include "support/Heartbeat.h"
#include "support/In_Windows.h"
#include "support/Window_For_Tests.h"

namespace {

const char* const Much = "\nThat is much for one phone.";

// The promise beside a Send button, in a window whose list and choices are the test's, at a quarter to ten.
class Send_Promise_Test : public testing::Test
{
protected:
    Send_Promise_Test()
    {
        Cus_SMS_Num_STR.clear();
        m_other_ways.setObjectName("Other_Ways_Btn");
        m_promise = Made();
    }
    ~Send_Promise_Test() override
    {
        m_promise.reset();
        Finish_Workers();
    }

    std::unique_ptr<Send_Promise> Made()
    {
        return std::make_unique<Send_Promise>(Send_Promise::Controls{&m_words, &m_other_ways, &m_send, &m_check},
                                              m_window, m_pace, Program_Settings(Settings_Path),
                                              [this] { return m_now; });
    }

    void Add(int count, const QString& message = "Hello")
    {
        for (int added = 0; added < count; ++added)
            m_window.m_recipients.Append(QString::number(10'000'000'000 + m_window.m_recipients.Count()), message);
    }

    /// What it says once it has counted.
    QString Said()
    {
        m_promise->Changed();
        QCoreApplication::processEvents(); // it is to count
        EXPECT_TRUE(Serve_Until([this] { return m_words.text() != "Counting ..." && Workers_Running() == 0; }));
        QCoreApplication::processEvents();
        EXPECT_EQ(m_send.accessibleDescription(), m_words.text());
        return m_words.text();
    }

    void Begin_To_Count()
    {
        m_promise->Changed();
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() > 0; }));
    }

    Data_Folder m_data;
    User m_user;
    Window_For_Tests m_window;
    QLabel m_words;
    QPushButton m_other_ways;
    QPushButton m_send;
    QPushButton m_check;
    Plan_Pace m_pace;
    QDateTime m_now{QDate(2026, 11, 22), QTime(21, 44, 10)};
    std::unique_ptr<Send_Promise> m_promise;
};

} // namespace

TEST_F(Send_Promise_Test, Says_Nothing_Of_An_Empty_List)
{
    EXPECT_EQ(Said(), "");
    EXPECT_TRUE(m_other_ways.isHidden());
}

TEST_F(Send_Promise_Test, Counts_What_Send_Would_Send)
{
    Add(192);
    Add(6, QString(300, u'a'));
    EXPECT_EQ(Said(), "198 recipients, 204 messages, about 41 min, until 22:24, no record will be kept");
    EXPECT_FALSE(m_other_ways.isHidden());
    EXPECT_EQ(m_other_ways.text(), "Other ways ...");
    m_window.m_choices.confirm.confirms = true;
    EXPECT_EQ(Said(), "198 recipients, 204 messages, about 14 min, until 21:57, the record goes when all is done");
    m_window.m_choices.exclusion = true;
    for (int index = 0; index < 197; ++index)
        m_window.m_exclusions.Append(QString::number(10'000'000'000 + index));
    EXPECT_EQ(Said(), "1 recipient, 2 messages, less than a minute, until 21:44, the record goes when all is done");
    m_window.m_recipients.Clear();
    EXPECT_EQ(Said(), "");
}

TEST_F(Send_Promise_Test, Names_Who_Gets_Nothing_As_Long_As_There_Is_Somebody)
{
    const auto table = std::make_shared<const Contact_Table>(
        Table_Of_Bytes("Number,Name\n447700900100,Ann\n447700900101,\n447700900102, \n", "a.csv", {}).table);
    for (int row = 0; row < 3; ++row)
        m_window.m_recipients.Append_From_Table(table->Field(row, 0), QStringLiteral("Dear {{Name}}"), table, row);
    EXPECT_EQ(Said(), "1 recipient, 1 message, less than a minute, until 21:44, no record will be kept\n"
                      "2 recipients have no Name: they get nothing.");
    EXPECT_EQ(m_check.text(), "Show who gets nothing ...");
    EXPECT_TRUE(m_promise->Names_Unfilled_Rows());
    m_window.m_recipients.Set_Messages({0, 1, 2}, QStringLiteral("Dear {{Name|friend}}"));
    EXPECT_EQ(Said(), "3 recipients, 3 messages, less than a minute, until 21:44, no record will be kept");
    EXPECT_EQ(m_check.text(), "Check before sending ...");
    m_window.m_recipients.Set_Messages({0, 1, 2}, QStringLiteral("{{Town}}"));
    EXPECT_EQ(Said(), "Nobody in the list will be sent anything.\n"
                      "There is no field Town: 3 recipients get nothing.");
    m_window.m_recipients.Clear();
    EXPECT_EQ(Said(), "");
    EXPECT_EQ(m_check.text(), "Check before sending ...");
}

TEST_F(Send_Promise_Test, Knows_The_Pauses_And_How_Long_Parts_Have_Taken)
{
    Add(10);
    m_window.m_choices.delayed_delivery = true;
    m_window.m_choices.batch_size = "5";
    m_window.m_choices.pause_choice = "10 Minutes";
    EXPECT_EQ(Said(), "10 recipients, 10 messages, about 12 min, until 21:56, no record will be kept");
    m_pace.Add(true, 60, 1);
    EXPECT_EQ(Said(), "10 recipients, 10 messages, about 20 min, until 22:04, no record will be kept");
}

TEST_F(Send_Promise_Test, Shows_No_Figures_Of_A_Long_List_That_Have_Become_Untrue_And_Keeps_No_Event_Waiting)
{
    Add(200'000);
    EXPECT_TRUE(Said().startsWith("200000 recipients, 200000 messages, about 667 h, until "));
    Begin_To_Count();
    EXPECT_EQ(m_words.text(), "Counting ...");
    m_promise->List_Will_Change();
    Heartbeat heartbeat;
    m_window.m_recipients.Append(QStringLiteral("1"), "Hello"); // copies nothing: the worker has let go
    EXPECT_LT(heartbeat.Longest_Gap(), 0.005);
    EXPECT_TRUE(Said().startsWith("200001 recipients, 200001 messages, "));
}

TEST_F(Send_Promise_Test, Ends_While_It_Counts)
{
    Add(200'000);
    Begin_To_Count();
    m_promise.reset();
    Finish_Workers();
    EXPECT_EQ(m_words.text(), "Counting ...");
}

TEST_F(Send_Promise_Test, The_Moment_Of_The_End_Moves_On_With_The_Minutes)
{
    Add(1);
    m_now = QDateTime(QDate(2026, 11, 22), QTime(21, 44, 59, 950));
    EXPECT_EQ(Said(), "1 recipient, 1 message, less than a minute, until 21:45, no record will be kept");
    m_now = QDateTime(QDate(2026, 11, 22), QTime(21, 51));
    EXPECT_TRUE(Serve_Until([this] { return m_words.text().contains("until 21:51"); }));
}

TEST_F(Send_Promise_Test, Says_Once_That_A_List_Is_Much_For_One_Phone)
{
    m_window.m_choices.confirm.confirms = true;
    Add(1001);
    EXPECT_TRUE(Said().endsWith(Much)) << qPrintable(m_words.text());
    EXPECT_EQ(m_other_ways.text(), "What to do instead");
    m_other_ways.click();
    EXPECT_TRUE(Is_Shown("Hand_Over_Wnd"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_FALSE(m_words.text().contains(Much));
    EXPECT_FALSE(Said().contains(Much));
    EXPECT_EQ(m_other_ways.text(), "Other ways ...");
}

TEST_F(Send_Promise_Test, Does_Not_Say_It_Again_Where_That_Is_Wanted)
{
    Add(2000);
    EXPECT_TRUE(Said().endsWith(Much));
    m_other_ways.click();
    Click_In(m_window, "_Do_Not_Tell_Chk");
    m_promise = Made(); // at the next start
    EXPECT_FALSE(Said().contains(Much));
    EXPECT_FALSE(m_other_ways.isHidden());
}

TEST_F(Send_Promise_Test, Hands_Over_The_List_As_It_Is_Then)
{
    Add(1);
    Said();
    m_other_ways.click();
    Add(2, "Hello \"you\"");
    const QTemporaryDir folder;
    Will_Enter_Path(m_user, folder.path());
    Click_In(m_window, "Hand_Over_Btn");
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(Bytes_Of(folder.filePath("list.csv")), "\xEF\xBB\xBFnumber,text,encoding,parts\r\n"
                                                     "10000000000,\"Hello\",gsm,1\r\n"
                                                     "10000000001,\"Hello \"\"you\"\"\",gsm,1\r\n"
                                                     "10000000002,\"Hello \"\"you\"\"\",gsm,1\r\n");
}
