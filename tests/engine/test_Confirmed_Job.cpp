#include "engine/Confirmed_Test.h"
#include "engine/Message_Frames.h"
#include "texts/Cause_Texts.h"
#include "texts/Confirmed_Texts.h"
#include "texts/Texts.h"

#include <csignal>
#include <sys/resource.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Confirmed_Job : public Confirmed_Test
{
protected:
    Confirmed_Job()
    {
        Add(QStringLiteral("0700900100"), QStringLiteral("One"));
        Add(QStringLiteral("0700900101"), QStringLiteral("Two"));
        Add(QStringLiteral("0700900102"), QStringLiteral("Three"));
    }

    void Cms(int number, int message = 1)
    {
        Phone_Moods moods;
        moods.m_cms_error_at = {{message, number}};
        m_phone.Set_Moods(moods);
    }

    QList<Unfinished_Job> Unfinished() const { return Unfinished_Jobs(m_options.folder); }

    // The journal's kinds of lines, one character each.
    QString Kinds() const
    {
        QFile file(m_options.folder + QLatin1Char('/') + m_job + QLatin1String(".journal"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QString kinds;
        for (const QByteArray& line : file.readAll().split('\n'))
            if (!line.isEmpty())
                kinds.append(QChar::fromLatin1(line.front()));
        return kinds;
    }
};

} // namespace

TEST_F(Confirmed_Job, Sends_Every_Message_And_Leaves_Nothing_Behind)
{
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent, Row_State::Sent));
    EXPECT_THAT(Texts(), ElementsAre("One", "Two", "Three"));
    EXPECT_THAT(m_witness.m_told, ElementsAre(QString(Texts::Sending::Completed)));
    EXPECT_EQ(m_witness.m_rows[0].references.size(), 1);
    EXPECT_EQ(m_witness.m_rows[0].tries, 1);
    EXPECT_THAT(QDir(m_options.folder).entryList(QDir::Files), IsEmpty());
}

TEST_F(Confirmed_Job, Keeps_Its_Journal_When_That_Is_Wanted)
{
    m_options.keeps_journal = true;
    Run();
    EXPECT_EQ(Kinds(), "JHSHSHSZ");
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Confirmed_Job, A_Number_That_Is_Refused_Is_Passed_Over)
{
    Cms(195, 2);
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Refused, Row_State::Sent));
    EXPECT_EQ(m_witness.m_rows[1].outcome.cause.number, 195);
    EXPECT_EQ(m_witness.m_rows[1].reason, QString(Texts::Causes::Number_Invalid));
    EXPECT_THAT(m_witness.m_told, ElementsAre(QString(Texts::Confirmed::Not_All_Sent)));
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Confirmed_Job, A_Cause_That_Hits_Everybody_Stops_The_Job)
{
    Cms(50, 2);
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Refused));
    EXPECT_THAT(m_witness.m_told, ElementsAre(QString(Texts::Causes::Not_In_Contract)));
    const auto unfinished = Unfinished();
    ASSERT_EQ(unfinished.size(), 1);
    EXPECT_EQ(unfinished.first().counts.not_tried, 1);
}

TEST_F(Confirmed_Job, What_Is_Refused_In_Place_Of_The_Prompt_Was_Not_Sent_And_Is_Not_Tried_Again)
{
    Phone_Moods moods;
    using Kind = Message_Manner::Kind;
    moods.m_message_manners = {{Kind::Refused_At_Once, 1, 1, {}, "+CMS ERROR: 332"},
                               {Kind::Without_Reference, 2, 2, {}, {}}};
    m_phone.Set_Moods(moods);
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Refused, Row_State::May_Have_Been_Sent, Row_State::Sent));
    EXPECT_EQ(Kinds(), "JEHUHS");
    m_witness = {};
    m_options.resumed_path = Unfinished().first().path;
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Refused, Row_State::May_Have_Been_Sent, Row_State::Sent));
    EXPECT_TRUE(m_witness.m_rows[0].is_earlier);
    EXPECT_THAT(Texts(), ElementsAre("Two", "Three"));
}

TEST_F(Confirmed_Job, A_Passing_Cause_Is_Tried_Again)
{
    Cms(41);
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent, Row_State::Sent));
    EXPECT_EQ(m_witness.m_rows[0].tries, 2);
    EXPECT_THAT(Texts(), ElementsAre("One", "Two", "Three"));
}

TEST_F(Confirmed_Job, A_Passing_Cause_That_Stays_Refuses_After_Four_Tries)
{
    Phone_Moods moods;
    moods.m_cms_error_at = {{1, 41}, {2, 41}, {3, 41}, {4, 41}};
    m_phone.Set_Moods(moods);
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Refused, Row_State::Sent, Row_State::Sent));
    EXPECT_EQ(m_witness.m_rows[0].tries, 4);
}

TEST_F(Confirmed_Job, Three_Alike_In_A_Row_Stop_The_Job)
{
    Add(QStringLiteral("0700900103"), QStringLiteral("Four"));
    Phone_Moods moods;
    moods.m_cms_error_at = {{1, 500}, {2, 500}, {3, 500}};
    m_phone.Set_Moods(moods);
    Run();
    EXPECT_EQ(m_witness.m_rows.size(), 3U);
    EXPECT_THAT(m_witness.m_told.join(QString()).toStdString(), testing::HasSubstr("Unknown error"));
    EXPECT_THAT(Texts(), IsEmpty());
}

TEST_F(Confirmed_Job, What_May_Have_Been_Sent_Is_Left_Alone_And_The_Job_Goes_On)
{
    Cms(332);
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::May_Have_Been_Sent, Row_State::Sent, Row_State::Sent));
    ASSERT_EQ(Unfinished().size(), 1);
    EXPECT_EQ(Unfinished().first().counts.unknown, 1);
}

TEST_F(Confirmed_Job, Going_On_Tries_Only_What_Is_Left)
{
    m_witness.m_on_row = [this] { m_stop = 1; };
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent));
    m_witness = {};
    const auto unfinished = Unfinished();
    ASSERT_EQ(unfinished.size(), 1);
    m_options.resumed_path = unfinished.first().path;
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent, Row_State::Sent));
    EXPECT_TRUE(m_witness.m_rows[0].is_earlier);
    EXPECT_FALSE(m_witness.m_rows[1].is_earlier);
    EXPECT_THAT(Texts(), ElementsAre("One", "Two", "Three"));
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Confirmed_Job, Going_On_Sends_What_May_Have_Been_Sent_Only_On_A_Persons_Word)
{
    Cms(332, 2);
    Run();
    m_phone.Set_Moods({});
    m_options.resumed_path = Unfinished().first().path;
    Run();
    EXPECT_THAT(Texts(), ElementsAre("One", "Three"));
    m_options.sends_unknown = true;
    Run();
    EXPECT_THAT(Texts(), ElementsAre("One", "Three", "Two"));
    EXPECT_THAT(Unfinished(), IsEmpty());
}

TEST_F(Confirmed_Job, A_Card_That_Wants_Its_Pin_Holds_The_Job_Until_It_Is_Ready)
{
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: SIM PIN\r\n\r\nOK\r\n");
    m_witness.m_on_held = [this] { m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: READY\r\n\r\nOK\r\n"); };
    Run();
    EXPECT_THAT(m_witness.m_held, ElementsAre(QString(Texts::Causes::Pin_Wanted)));
    EXPECT_EQ(m_witness.m_goes_on, 1);
    EXPECT_EQ(Texts().size(), 3U);
    for (const std::string& command : m_phone.Heard())
        EXPECT_THAT(command, testing::Not(testing::StartsWith("AT+CPIN=")));
}

TEST_F(Confirmed_Job, A_Phone_That_Wants_A_Code_Of_Its_Own_Holds_The_Job_And_Is_Named)
{
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: PH-SIM PIN\r\n\r\nOK\r\n");
    m_witness.m_on_held = [this] { m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: READY\r\n\r\nOK\r\n"); };
    Run();
    EXPECT_THAT(m_witness.m_held, ElementsAre(QString(Texts::Causes::Phone_Pin_Wanted)));
    EXPECT_EQ(Texts().size(), 3U);
}

TEST_F(Confirmed_Job, A_Hold_That_Lasts_Too_Long_Leaves_The_Rest_Untried)
{
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: SIM PIN\r\n\r\nOK\r\n");
    m_options.hold_seconds = 10;
    Run();
    EXPECT_THAT(m_witness.m_rows, IsEmpty());
    EXPECT_THAT(m_witness.m_told, ElementsAre(QString(Texts::Confirmed::Waited_Too_Long)));
    EXPECT_FALSE(m_has_handed_over);
}

namespace {

// As long as it lives, no file grows beyond the size of the only journal in a folder.
class Full_Journal
{
public:
    explicit Full_Journal(const QString& folder)
    {
        const auto journals = QDir(folder).entryInfoList({QStringLiteral("*.journal")}, QDir::Files);
        EXPECT_EQ(journals.size(), 1);
        EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &m_before), 0);
        rlimit limit = m_before;
        limit.rlim_cur = static_cast<rlim_t>(journals.value(0).size());
        EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~Full_Journal()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Full_Journal(const Full_Journal&) = delete;
    Full_Journal& operator=(const Full_Journal&) = delete;

private:
    void (*m_handler)(int) = std::signal(SIGXFSZ, SIG_IGN);
    rlimit m_before{};
};

// At every try of the first message.
void Refuse_The_First(Virtual_Phone& phone, const char* cause)
{
    Phone_Moods moods;
    moods.m_message_manners = {{Message_Manner::Kind::Refused, 1, INT_MAX, "0700900100", cause, 0}};
    phone.Set_Moods(moods);
}

} // namespace

TEST_F(Confirmed_Job, A_State_That_The_Device_Denies_Is_Waited_For_Longer_Each_Time_And_Then_Refuses)
{
    constexpr double pace = 500;
    for (const char* cause : {"+CMS ERROR: 331", "+CMS ERROR: 311", "+CME ERROR: 30", "+CMS ERROR: 41"}) {
        m_witness = {};
        Set_Pace(pace);
        Refuse_The_First(m_phone, cause);
        const double begin = Now_Seconds();
        Run();
        EXPECT_GE(Now_Seconds() - begin, (5 + 30 + 120) / pace) << cause;
        EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Refused, Row_State::Sent, Row_State::Sent)) << cause;
        EXPECT_EQ(m_witness.m_rows[0].tries, 4) << cause;
        EXPECT_EQ(m_witness.m_held.size(), std::string(cause) == "+CMS ERROR: 41" ? 0 : 3) << cause;
        EXPECT_THAT(Unfinished(), IsEmpty()) << cause;
    }
}

TEST_F(Confirmed_Job, All_Holds_Of_A_Message_Count_Against_The_Time_That_A_Hold_May_Take)
{
    Set_Pace(50);
    for (const char* cause : {"+CMS ERROR: 331", "+CMS ERROR: 322"}) {
        m_witness = {};
        m_phone.Forget();
        m_options.hold_seconds = 75;
        Refuse_The_First(m_phone, cause);
        Run();
        EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Not_Tried)) << cause;
        EXPECT_GE(m_witness.m_rows[0].tries, 2) << cause;
        EXPECT_LE(m_witness.m_rows[0].tries, 3) << cause;
        EXPECT_THAT(m_witness.m_told, ElementsAre(QString(Texts::Confirmed::Waited_Too_Long))) << cause;
        const auto unfinished = Unfinished();
        ASSERT_EQ(unfinished.size(), 1);
        EXPECT_EQ(unfinished.first().counts.not_tried, 3) << cause << ": none is refused";
        QDir(m_options.folder).removeRecursively();
    }
}

TEST_F(Confirmed_Job, A_Stop_Before_A_Further_Try_Leaves_The_Row_Untried)
{
    for (const int part : {1, 2}) {
        m_witness = {};
        m_phone.Forget();
        m_stop = 0;
        m_options.resumed_path.clear();
        m_order.recipients.Replace(0, QStringLiteral("0700900100"), QString(part * 150, u'x'));
        Cms(41, part);
        m_witness.m_on_shown = [this] { m_stop = 1; };
        Run();
        EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Not_Tried));
        EXPECT_EQ(m_witness.m_rows[0].parts_sent, part - 1);
        m_witness = {};
        m_phone.Set_Moods({});
        ASSERT_EQ(Unfinished().size(), 1);
        EXPECT_EQ(Unfinished().first().counts.not_tried, 3);
        m_options.resumed_path = Unfinished().first().path;
        Run();
        EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent, Row_State::Sent));
        EXPECT_EQ(m_witness.m_rows[0].references.size(), part) << "those of both walks";
        EXPECT_EQ(m_witness.m_rows[0].tries, 2);
    }
}

TEST_F(Confirmed_Job, A_Journal_That_Fails_At_The_Last_Message_Or_At_The_End_Is_Told)
{
    m_order.recipients.Clear();
    Add(QStringLiteral("0700900100"), QStringLiteral("One"));
    for (const bool is_at_the_end : {false, true}) {
        m_witness = {};
        Phone_Moods moods;
        moods.m_pace = 20;
        moods.m_message_manners = {{Message_Manner::Kind::Delayed, 1, INT_MAX, {}, {}, 15}};
        m_phone.Set_Moods(moods);
        std::optional<Full_Journal> failing;
        const auto fail = [&] { failing.emplace(m_options.folder); };
        // Behind the result, the number is shown again where the network was waited for.
        m_witness.m_on_shown = [&] {
            if (!is_at_the_end && m_witness.m_shown.last() == QStringLiteral("0700900100"))
                fail();
        };
        m_witness.m_on_row = [&] {
            if (is_at_the_end)
                fail();
        };
        Run();
        ASSERT_TRUE(failing);
        failing.reset();
        EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent));
        ASSERT_EQ(m_witness.m_told.size(), 1);
        EXPECT_THAT(m_witness.m_told.first().toStdString(), testing::HasSubstr("journal cannot be written"));
        EXPECT_NE(m_journal_trouble, Job_Trouble::None);
        ASSERT_EQ(Unfinished().size(), 1);
        EXPECT_EQ(Unfinished().first().counts.unknown, is_at_the_end ? 0 : 1);
        QDir(m_options.folder).removeRecursively();
    }
}

TEST_F(Confirmed_Job, Going_On_Tells_What_Is_Settled_As_The_First_Walk_Did)
{
    Cms(332);
    m_witness.m_on_row = [this] { m_stop = 1; };
    Run();
    ASSERT_EQ(m_witness.m_rows.size(), 1U);
    const Row_Details first = m_witness.m_rows[0];
    m_witness = {};
    m_options.resumed_path = Unfinished().first().path;
    Run();
    EXPECT_EQ(m_witness.m_rows[0].reason, first.reason);
    EXPECT_EQ(m_witness.m_rows[0].outcome.cause, first.outcome.cause);
    EXPECT_EQ(m_witness.m_rows[0].outcome.cause.number, 332);
}

TEST_F(Confirmed_Job, A_Card_That_Wants_Its_Puk_Ends_The_Job_Before_It_Begins)
{
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: SIM PUK\r\n\r\nOK\r\n");
    Run();
    EXPECT_THAT(m_witness.m_told, ElementsAre(QString(Texts::Causes::Puk_Wanted)));
    EXPECT_THAT(Texts(), IsEmpty());
    EXPECT_FALSE(QDir(m_options.folder).exists());
}

TEST_F(Confirmed_Job, A_Journal_That_Cannot_Be_Made_Sends_Nothing)
{
    m_options.folder = QStringLiteral("/dev/null/Jobs");
    Run();
    EXPECT_THAT(Texts(), IsEmpty());
    ASSERT_EQ(m_witness.m_told.size(), 1);
    EXPECT_THAT(m_witness.m_told.first().toStdString(), testing::HasSubstr("journal cannot be written"));
}

TEST_F(Confirmed_Job, The_Alphabet_Follows_The_Text_And_Long_Messages_Are_Joined)
{
    m_order.recipients.Clear();
    const QString euros = QStringLiteral("€ [x] ").repeated(40);
    const QString smiles = QStringLiteral("🙂").repeated(70);
    Add(QStringLiteral("004915550001"), euros);
    Add(QStringLiteral("0700900100"), smiles);
    Run();
    EXPECT_THAT(Texts(), ElementsAre(euros.toStdString(), smiles.toStdString()));
    EXPECT_EQ(m_phone.Inbox()[0].m_alphabet, "GSM 7-bit");
    EXPECT_EQ(m_phone.Inbox()[0].m_number, "+4915550001");
    EXPECT_EQ(m_phone.Inbox()[1].m_parts, 3);
    EXPECT_NE(m_phone.Inbox()[0].m_reference, m_phone.Inbox()[1].m_reference);
    EXPECT_EQ(m_witness.m_rows[1].references.size(), 3);
}

TEST_F(Confirmed_Job, A_Device_With_Text_Mode_Alone_Gets_The_Same_Texts)
{
    Phone_Moods moods;
    moods.m_text_only = true;
    m_phone.Set_Moods(moods);
    m_order.recipients.Clear();
    Add(QStringLiteral("004915550001"), QStringLiteral("10 € [net]\nOK"));
    Add(QStringLiteral("0700900100"), QStringLiteral("Привет"));
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent));
    EXPECT_THAT(Texts(), ElementsAre("10 € [net]\nOK", "Привет"));
    EXPECT_EQ(m_phone.Inbox()[0].m_number, "+4915550001");
}

TEST_F(Confirmed_Job, A_Device_That_Refuses_What_Text_Mode_Needs_Refuses_In_The_Journal_Too)
{
    Phone_Moods moods;
    moods.m_text_only = true;
    m_phone.Set_Moods(moods);
    m_phone.Will_Answer("AT+CSMP=*", "\r\nERROR\r\n");
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Refused));
    EXPECT_EQ(m_witness.m_rows[0].reason, QString(Texts::Confirmed::No_Messages));
    EXPECT_EQ(Kinds(), "JE");
    ASSERT_EQ(Unfinished().size(), 1);
    EXPECT_EQ(Unfinished().first().counts.refused, 1);
    EXPECT_EQ(Unfinished().first().counts.not_tried, 2);
}

TEST_F(Confirmed_Job, A_Pulled_Cable_After_The_End_Of_A_Message_Leaves_It_In_Doubt)
{
    // The number of a terminal that is gone is soon another's; a link is gone with its phone.
    const QString link = m_folder.path() + QStringLiteral("/modem");
    ASSERT_TRUE(QFile::link(m_order.device_path, link));
    m_order.device_path = link;
    Phone_Moods moods;
    moods.m_hang_up_in_body_at = 2;
    m_phone.Set_Moods(moods);
    m_phone.Set_Listeners({{}, {}, [link] { QFile::remove(link); }});
    m_options.hold_seconds = 5;
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::May_Have_Been_Sent));
    EXPECT_THAT(m_witness.m_held, ElementsAre(QString(Texts::Confirmed::Device_Is_Gone)));
    ASSERT_EQ(Unfinished().size(), 1);
    EXPECT_EQ(Unfinished().first().counts.sent, 1);
    EXPECT_EQ(Unfinished().first().counts.unknown, 1);
    EXPECT_EQ(Unfinished().first().counts.not_tried, 1);
}

namespace {

// A report in a frame (3GPP TS 23.040, 9.2.2.3) about a part to 0700900100.
std::string Report_Frame(int reference, const char* status)
{
    const QByteArray octets = "0006" + QByteArray::number(reference, 16).rightJustified(2, '0').toUpper() +
                              "0A817000091000" + "62112101000000" + "62112101000500" + status;
    return "\r\n+CDS: " + std::to_string(octets.size() / 2 - 1) + "\r\n" + octets.toStdString() + "\r\n";
}

} // namespace

TEST_F(Confirmed_Job, Delivery_Reports_Find_Their_Parts)
{
    m_phone.Will_Answer("AT+CNMI=2,0,0,1,0", "\r\n+CMS ERROR: 303\r\n");
    m_phone.Will_Answer("AT+CNMI=1,0,0,1,0", "\r\nOK\r\n");
    m_options.job.report_seconds = 1;
    m_witness.m_on_row = [this] {
        if (m_witness.m_rows.size() == 1)
            m_phone.Says(Report_Frame(m_witness.m_rows[0].references[0], "00"));
    };
    Run();
    EXPECT_THAT(m_witness.m_reports, ElementsAre(std::array{0, 1, 0}));
    EXPECT_EQ(m_phone.Parts()[0].m_first_octet & 0x20, 0x20) << "a report was asked for";
}

TEST_F(Confirmed_Job, A_Report_That_Lies_In_The_Memory_Is_Taken_From_There)
{
    m_phone.Will_Answer("AT+CNMI=*", "\r\nERROR\r\n");
    m_phone.Will_Answer("AT+CNMI=2,0,0,2,0", "\r\nOK\r\n");
    m_phone.Will_Answer("AT+CPMS?", "\r\n+CPMS: \"SM\",0,10,\"SM\",0,10,\"SM\",0,10\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+CPMS=\"SR\"", "\r\n+CPMS: 1,10,1,10,1,10\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+CPMS=\"SM\"", "\r\n+CPMS: 0,10,0,10,0,10\r\n\r\nOK\r\n");
    m_phone.Will_Answer("AT+CMGD=3", "\r\nOK\r\n");
    m_options.job.report_seconds = 1;
    m_witness.m_on_row = [this] {
        if (m_witness.m_rows.size() > 1)
            return;
        const std::string frame = Report_Frame(m_witness.m_rows[0].references[0], "46");
        m_phone.Will_Answer("AT+CMGR=3", "\r\n+CMGR: 0,,25" + frame.substr(frame.find("\r\n", 2)) + "\r\nOK\r\n");
        m_phone.Says("\r\n+CDSI: \"SR\",3\r\n");
    };
    Run();
    EXPECT_THAT(m_witness.m_reports, ElementsAre(std::array{0, 1, 0x46}));
    EXPECT_THAT(m_phone.Heard(), testing::Contains("AT+CMGD=3"));
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent, Row_State::Sent))
        << "not delivered is another matter";
}

TEST_F(Confirmed_Job, A_Device_That_Is_Plugged_In_Again_Goes_On_With_The_Next_Message)
{
    const QString link = m_folder.path() + QStringLiteral("/modem");
    ASSERT_TRUE(QFile::link(m_order.device_path, link));
    m_order.device_path = link;
    Phone_Moods moods;
    moods.m_hang_up_at = 2; // in place of the prompt: nothing was sent
    m_phone.Set_Moods(moods);
    Virtual_Phone::Listeners listeners;
    listeners.m_on_hang_up = [this, link] {
        m_phone.Set_Moods({});
        QFile::remove(link);
        QFile::link(QString::fromStdString(m_phone.Plug_In_Again()), link);
    };
    m_phone.Set_Listeners(listeners);
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent, Row_State::Sent));
    EXPECT_THAT(m_witness.m_held, IsEmpty()) << "a plug that was out for a moment is no hold";
    EXPECT_THAT(Texts(), ElementsAre("One", "Two", "Three"));
}

TEST_F(Confirmed_Job, A_Stop_While_The_Job_Is_Held_Leaves_No_Journal)
{
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: SIM PIN\r\n\r\nOK\r\n");
    m_witness.m_on_held = [this] { m_stop = 1; };
    Run();
    EXPECT_THAT(m_witness.m_rows, IsEmpty());
    EXPECT_THAT(m_witness.m_told, IsEmpty());
    EXPECT_FALSE(QDir(m_options.folder).exists());
}
