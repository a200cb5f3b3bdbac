#include "device/Device_Paths.h"
#include "records/Job_Journal.h"
#include "support/Report_Frame.h"
#include "windows/jobs/Receipt_Wnd.h"
#include "windows/main/Confirmed_Sending_Test.h"
#include "windows/phone/Phone_List_Wnd.h"

using testing::Contains;
using testing::Each;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

// What a job that is over left in the folder.
struct Left_Behind
{
    std::string name;
    bool has_asked = false;
    bool has_been_told = false; ///< the report has come
    bool has_sent = true;
};

void PrintTo(const Left_Behind& left, std::ostream* out)
{
    *out << left.name;
}

// Delivery reports that have come since their jobs, as the main window looks for them.
class Awaited_Reports_Test : public Confirmed_Sending_Test
{
protected:
    static constexpr char Number[] = "00447700900100";
    static constexpr int Reference = 17;

    Awaited_Reports_Test() { sel_port_bsd_str.clear(); }

    QString Phone() const { return QString::fromStdString(m_phone.Path()); }

    /// A name that stays with the phone.
    QString Lasting_Name() const
    {
        const QString link = m_links.filePath(QStringLiteral("phone"));
        QFile::link(Phone(), link); // where there is none yet
        return link;
    }

    /// A job of one message, through this phone and its card. Its journal's path.
    QString Make_Job(const Left_Behind& left) const { return Make_Job(left, Lasting_Name()); }
    static QString Make_Job(const Left_Behind& left, const QString& device)
    {
        Job_Options options;
        options.report_seconds = left.has_asked ? 0 : -1;
        const QString imsi = QStringLiteral("001010123456789");
        Job_Row row;
        row.number = Number;
        row.text = QStringLiteral("Hello");
        const auto opened =
            Job_Journal::Create(Jobs_Folder_Path, {QStringLiteral("20261121-101500-0001"), imsi, device, options},
                                [row, is_taken = false]() mutable {
                                    return std::exchange(is_taken, true) ? std::nullopt : std::optional(row);
                                });
        EXPECT_TRUE(opened.journal && opened.journal->Hand_Over(1, 1, 1));
        EXPECT_TRUE(left.has_sent ? opened.journal->Accepted(1, 1, Reference)
                                  : opened.journal->Refused(1, 1, "cms:21"));
        EXPECT_TRUE(!left.has_been_told ||
                    opened.journal->Report(imsi, Reference, Number, Local_Time().toSecsSinceEpoch(), 0));
        EXPECT_TRUE(opened.journal->End());
        return opened.journal->Path();
    }

    /// A report lies in the phone's memory.
    void The_Phone_Has_A_Report(int reference = Reference)
    {
        m_phone.Will_Answer("AT+CMGL=4", "\r\n+CMGL: 1,0,,25\r\n" +
                                             Report_Frame(reference, QDateTime::currentDateTimeUtc()) +
                                             "\r\n\r\nOK\r\n");
    }

    void Start_Again()
    {
        m_delegate.reset();
        m_delegate = std::make_unique<CorvaneAppDelegate>();
        ASSERT_TRUE(m_delegate->awakeFromNib());
        m_delegate->applicationDidFinishLaunching();
    }

    /// Chooses the phone in the wizard.
    void Choose_The_Phone()
    {
        Set_Extra_Device_Paths({Phone()});
        Will_Click_In(user, "Connection_Info", "Continue_Btn");
        user.When_Opens("Phone_List_Wnd", [this](QWidget& wizard) {
            auto& table = In<QTableView>(wizard, "idPortList");
            table.selectRow(Row_With(table, Phone(), 1).row());
            EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
            EXPECT_FALSE(In<QLineEdit>(wizard, "_imei_edit").text().isEmpty());
            Click_In(wizard, "_Select_Btn");
        });
        Click("Search_All_Modem");
        Set_Extra_Device_Paths({});
        EXPECT_EQ(sel_port_bsd_str, Phone());
    }

    static void Await_Workers()
    {
        ASSERT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 60));
    }

    static qsizetype Noted(const QString& path)
    {
        const Job_Reading reading = Read_Job(path);
        return reading.record ? reading.record->Reports().size() : -1;
    }

    /// Returns when the look has come so far that it listens; without a stop it would do so for minutes.
    void Start_A_Long_Look()
    {
        const QString path = Make_Job({"awaiting", true});
        Before_The_Next_Answer([this] {
            if (m_phone.Heard_Bytes().find("AT+CMGL=4") != std::string::npos)
                Set_Pace(0.1);
        });
        Start_Again();
        ASSERT_TRUE(Serve_Until([] { return Pace() < 1; }));
        Before_The_Next_Answer({});
        m_phone.Says("\r\n+CDS: 25\r\n" + Report_Frame(Reference, QDateTime::currentDateTimeUtc()) + "\r\n");
        ASSERT_TRUE(Serve_Until([&] { return Noted(path) == 1; }));
        Set_Pace(250);
    }

    QTemporaryDir m_links;
};

} // namespace

TEST_F(Awaited_Reports_Test, Are_Noted_When_Their_Phone_Is_Chosen_And_Nothing_Is_Said)
{
    const QString path = Make_Job({"awaiting", true});
    The_Phone_Has_A_Report();
    Choose_The_Phone();
    Await_Workers();
    EXPECT_EQ(Noted(path), 1);
    EXPECT_THAT(m_phone.Heard(), Contains("AT+CMGD=1"));
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    m_phone.Forget();
    Choose_The_Phone();
    Await_Workers();
    EXPECT_THAT(m_phone.Heard(), Not(Contains(StartsWith("AT+CMGL")))) << "it awaits no more";
}

TEST_F(Awaited_Reports_Test, Are_Noted_At_The_Next_Start_Through_The_Device_Of_Their_Job)
{
    const QString path = Make_Job({"awaiting", true});
    The_Phone_Has_A_Report();
    Start_Again();
    Await_Workers();
    EXPECT_EQ(Noted(path), 1);
    EXPECT_TRUE(sel_port_bsd_str.isEmpty()) << "nobody has chosen it";
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Awaited_Reports_Test, Are_Not_Looked_For_On_A_Line_That_May_Be_Another_Devices_By_Now)
{
    const QString path = Make_Job({"awaiting", true}, Phone());
    The_Phone_Has_A_Report();
    m_phone.Forget();
    Start_Again();
    Await_Workers();
    EXPECT_EQ(Noted(path), 0);
    EXPECT_EQ(m_phone.Heard_Bytes(), "");
    Choose_The_Phone();
    Await_Workers();
    EXPECT_EQ(Noted(path), 1);
}

TEST_F(Awaited_Reports_Test, Whose_Device_Is_Gone_Wait)
{
    const QString path = Make_Job({"awaiting", true});
    m_phone.Hang_Up();
    Start_Again();
    Await_Workers();
    EXPECT_EQ(Noted(path), 0);
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Awaited_Reports_Test, Are_In_The_Open_Receipt_As_They_Come)
{
    Tick("_Reports_Chk");
    Tick("_Keep_Receipt_Chk");
    Have([](Phone_Moods& moods) { moods.m_report_after_seconds = 3600; });
    sel_port_bsd_str = Phone();
    Add(Number);
    Send_With_One_Box();
    Click("Show_Receipt");
    const auto& receipt = *m_delegate->findChild<Receipt_Wnd*>();
    const auto& sums = In<QLabel>(receipt, "_Sums");
    ASSERT_TRUE(Serve_Until([&] { return sums.text().contains("No report: 1"); })) << sums.text().toStdString();
    The_Phone_Has_A_Report(0);
    m_delegate->activateWindow();
    Choose_The_Phone();
    EXPECT_TRUE(Serve_Until([&] { return sums.text().contains("Delivered: 1"); })) << sums.text().toStdString();
    Await_Workers();
}

TEST_F(Awaited_Reports_Test, Leave_The_Device_To_A_Job_At_Once)
{
    Start_A_Long_Look();
    sel_port_bsd_str = Phone();
    The<QPlainTextEdit>("_messageEdit").setPlainText(QStringLiteral("Hello"));
    Tick("_Confirm_Chk");
    Add("222");
    Send_With_One_Box();
    EXPECT_THAT(Shown_Outcomes(), Each(QStringLiteral("✓ sent")));
    EXPECT_EQ(Submissions(), 1);
}

TEST_F(Awaited_Reports_Test, Leave_The_Device_To_The_Wizard_At_Once)
{
    Start_A_Long_Look();
    Choose_The_Phone();
    Await_Workers();
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
}

TEST_F(Awaited_Reports_Test, Do_Not_Keep_A_Window_That_Goes)
{
    Start_A_Long_Look();
    m_delegate.reset();
    EXPECT_EQ(Workers_Running(), 0);
    Start_Again();
    Await_Workers();
}

// ---- Where none are awaited

class Nothing_Awaited : public Awaited_Reports_Test, public testing::WithParamInterface<Left_Behind>
{
};

TEST_P(Nothing_Awaited, The_Line_Hears_Not_A_Byte_More)
{
    Choose_The_Phone();
    Await_Workers();
    const std::string as_ever = m_phone.Heard_Bytes();
    m_phone.Forget();
    sel_port_bsd_str.clear();
    Make_Job(GetParam());
    Start_Again();
    Await_Workers();
    EXPECT_EQ(m_phone.Heard_Bytes(), "");
    Choose_The_Phone();
    Await_Workers();
    EXPECT_EQ(m_phone.Heard_Bytes(), as_ever);
}

INSTANTIATE_TEST_SUITE_P(Jobs, Nothing_Awaited,
                         testing::Values(Left_Behind{"That_Asked_For_None"},
                                         Left_Behind{"That_Were_Told_Everything", true, true},
                                         Left_Behind{"That_Sent_Nothing", true, false, false}),
                         [](const auto& job) { return job.param.name; });
