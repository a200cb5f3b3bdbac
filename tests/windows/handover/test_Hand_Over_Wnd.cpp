#include "windows/handover/Hand_Over_Wnd.h"

#include "plan/Chosen_Manner.h"
#include "support/Data_Folder.h"
#include "support/In_Windows.h"
#include "toolkit/Window_Look.h"

#include <QDir>

namespace {

// The window over a list of the test's, and the person who hands it over.
class Hand_Over_Wnd_Test : public testing::Test
{
protected:
    Hand_Over_Wnd_Test()
    {
        Apply_Application_Look(*qApp);
        m_order.recipients.Append(QStringLiteral("00447700900100"), "Say \"hi\"");
        m_order.recipients.Append(QStringLiteral("0170"), QString::fromUtf8("\xD0\xB6"));
        m_order.recipients.Append(QStringLiteral("0171"), "");
        m_order.choices.confirm.confirms = true;
        m_window.Bring_Up();
    }
    ~Hand_Over_Wnd_Test() override { Finish_Workers(); }

    void Hand_Over_To(const QString& folder)
    {
        Will_Enter_Path(m_user, folder);
        Click_In(m_window, "Hand_Over_Btn");
    }
    QString Result()
    {
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        QCoreApplication::processEvents();
        EXPECT_EQ(In<QPushButton>(m_window, "Hand_Over_Btn").text(), "Hand over to a &folder ...");
        const auto& label = In<QLabel>(m_window, "_Hand_Over_Result");
        EXPECT_TRUE(label.isVisible());
        return label.text();
    }

    Data_Folder m_data;
    User m_user;
    Send_Order m_order;
    Hand_Over_Wnd m_window{[this] {
                               return Hand_Over_Wnd::Plan{m_order, Manner_Of(m_order.choices)};
                           },
                           Program_Settings(Settings_Path)};
    const QTemporaryDir m_folder;
};

} // namespace

TEST_F(Hand_Over_Wnd_Test, Writes_The_Texts_As_A_Table_And_As_A_Spool_And_Says_What_Was_Left_Out)
{
    EXPECT_FALSE(m_window.isModal());
    EXPECT_FALSE(In<QLabel>(m_window, "_Hand_Over_Result").isVisible());
    Hand_Over_To(m_folder.path());
    EXPECT_EQ(Result(),
              "Handed over: 2 messages, in " + m_folder.path() + ". Nothing was sent. Recipients left out: 1.");
    EXPECT_EQ(Bytes_Of(m_folder.filePath("list.csv")), "\xEF\xBB\xBFnumber,text,encoding,parts\r\n"
                                                       "+447700900100,\"Say \"\"hi\"\"\",gsm,1\r\n"
                                                       "0170,\"\xD0\xB6\",unicode,1\r\n");
    EXPECT_EQ(QDir(m_folder.filePath("spool")).entryList(QDir::Files),
              (QStringList{"corvane-0000001", "corvane-0000002"}));
}

TEST_F(Hand_Over_Wnd_Test, Does_Not_Add_To_An_Earlier_Hand_Over)
{
    Write_Bytes(m_folder.filePath("list.csv"), "of before");
    Hand_Over_To(m_folder.path());
    EXPECT_EQ(Result(), "Not handed over: " + m_folder.path() + " is not used (it holds an earlier hand-over).");
    EXPECT_EQ(Bytes_Of(m_folder.filePath("list.csv")), "of before");
}

TEST_F(Hand_Over_Wnd_Test, Says_Why_A_Folder_Cannot_Be_Written_To)
{
    Write_Bytes(m_folder.filePath("spool"), "in the way");
    Hand_Over_To(m_folder.path());
    EXPECT_TRUE(Result().startsWith("Not handed over: " + m_folder.filePath("spool") + " cannot be written ("));
}

TEST_F(Hand_Over_Wnd_Test, Says_That_There_Is_Nobody_And_A_Cancelled_Panel_Does_Nothing)
{
    m_user.Will_Do([](QDialog* panel) { panel->reject(); });
    Click_In(m_window, "Hand_Over_Btn");
    EXPECT_FALSE(In<QLabel>(m_window, "_Hand_Over_Result").isVisible());
    m_order.recipients.Clear();
    Hand_Over_To(m_folder.path());
    EXPECT_EQ(Result(), "There is nobody in the list.");
}

TEST_F(Hand_Over_Wnd_Test, Can_Be_Stopped_And_Then_Says_That_What_Is_There_Is_Not_Whole)
{
    for (int added = 0; added < 100'000; ++added)
        m_order.recipients.Append(QString::number(10'000'000'000 + added), "Hello");
    Hand_Over_To(m_folder.path());
    EXPECT_EQ(In<QPushButton>(m_window, "Hand_Over_Btn").text(), "&Stop");
    ASSERT_TRUE(Serve_Until([this] { return QFile::exists(m_folder.filePath("spool/corvane-0000002")); }));
    Click_In(m_window, "Hand_Over_Btn");
    EXPECT_EQ(Result(), "Stopped. What is in the folder is not whole: remove it before it is used.");
    EXPECT_FALSE(QFile::exists(m_folder.filePath("list.csv")));
}

TEST_F(Hand_Over_Wnd_Test, Ends_While_It_Writes)
{
    const QTemporaryDir folder;
    {
        Hand_Over_Wnd window(
            [this] {
                for (int added = 0; added < 100'000; ++added)
                    m_order.recipients.Append(QString::number(10'000'000'000 + added), "Hello");
                return Hand_Over_Wnd::Plan{m_order, Manner_Of(m_order.choices)};
            },
            Program_Settings(Settings_Path));
        window.Bring_Up();
        Will_Enter_Path(m_user, folder.path());
        Click_In(window, "Hand_Over_Btn");
    }
    EXPECT_FALSE(QFile::exists(folder.filePath("list.csv")));
}

TEST_F(Hand_Over_Wnd_Test, Remembers_That_The_Notice_Is_Not_Wanted_Until_It_Is)
{
    auto& box = In<QCheckBox>(m_window, "_Do_Not_Tell_Chk");
    std::vector<bool> told;
    QObject::connect(&m_window, &Hand_Over_Wnd::Notice_Chosen, &m_window,
                     [&](bool is_wanted) { told.push_back(is_wanted); });
    EXPECT_FALSE(box.isChecked());
    box.click();
    EXPECT_FALSE(Program_Settings(Settings_Path).Wants_Notice(Hand_Over_Wnd::Notice));
    m_window.Bring_Up();
    EXPECT_TRUE(box.isChecked());
    box.click();
    EXPECT_TRUE(Program_Settings(Settings_Path).Wants_Notice(Hand_Over_Wnd::Notice));
    EXPECT_EQ(told, (std::vector<bool>{false, true}));
}

TEST_F(Hand_Over_Wnd_Test, The_Box_Goes_Back_Where_Nothing_Can_Be_Remembered)
{
    ASSERT_TRUE(QDir().mkpath(Settings_Path));
    auto& box = In<QCheckBox>(m_window, "_Do_Not_Tell_Chk");
    box.click();
    EXPECT_FALSE(box.isChecked());
}
