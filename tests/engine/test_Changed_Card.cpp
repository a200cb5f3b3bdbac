#include "engine/Confirmed_Test.h"
#include "engine/Job_Receipt.h"
#include "support/Report_Frame.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr char First_Card[] = "001010123456789";
constexpr char Second_Card[] = "262010000000001";
constexpr char Third_Card[] = "310150000000009";

std::string Answer_Of_Card(const char* imsi)
{
    return std::string("\r\n") + imsi + "\r\n\r\nOK\r\n";
}

// What a phone says when its memory for reports holds one on the part with the reference 0.
std::string Report_In_Memory()
{
    const QDateTime time = QDateTime::currentDateTimeUtc().addSecs(-3600);
    return "\r\n+CMGL: 1,0,,25\r\n" + Report_Frame(0, time) + "\r\n\r\nOK\r\n";
}

/// A job of two messages to one number, whose phone is pulled in front of the second and comes back with another SIM
/// card. Either card's network gives its message the reference 0.
class Changed_Card : public Confirmed_Test
{
protected:
    Changed_Card()
    {
        m_order.device_path = Link();
        Plug_In(m_phone);
        for (const char* text : {"One", "Two"})
            Add(QStringLiteral("00447700900100"), QString::fromLatin1(text));
        m_phone.Will_Answer("AT+CIMI", Answer_Of_Card(First_Card));
        m_other.Will_Answer("AT+CIMI", Answer_Of_Card(Second_Card));
        for (Virtual_Phone* phone : {&m_phone, &m_other})
            phone->Will_Answer("AT+CMGL=4", "\r\nOK\r\n");
        Phone_Moods moods;
        moods.m_no_reports = true;
        m_other.Set_Moods(moods);
        moods.m_hang_up_at = 2; // in place of the prompt
        m_phone.Set_Moods(moods);
        m_phone.Set_Listeners({{}, {}, [this] { Plug_In(m_other); }});
        m_options.job.report_seconds = 0;
        m_options.keeps_journal = true;
    }

    void Plug_In(const Virtual_Phone& phone) const
    {
        QFile::remove(Link());
        ASSERT_TRUE(QFile::link(QString::fromStdString(phone.Path()), Link()));
    }

    /// With a card in the other phone, whose memory holds a report on the reference 0. How many were noted.
    int Collect(const char* imsi)
    {
        m_other.Will_Answer("AT+CIMI", Answer_Of_Card(imsi));
        m_other.Will_Answer("AT+CMGL=4", Report_In_Memory());
        m_other.Forget();
        Plug_In(m_other);
        return Collect_Late_Reports(Link(), m_options.folder, 0, m_stop);
    }

    QString Journal() const
    {
        const QStringList names = QDir(m_options.folder).entryList({QStringLiteral("*.journal")}, QDir::Files);
        EXPECT_EQ(names.size(), 1);
        return m_options.folder + u'/' + names.value(0);
    }

    std::vector<std::string> Deliveries() const
    {
        const Job_Receipt receipt(*Read_Job(Journal()).record);
        return {receipt.Row(1).delivery.toStdString(), receipt.Row(2).delivery.toStdString()};
    }

    QString Link() const { return m_folder.path() + QStringLiteral("/modem"); }

    Virtual_Phone m_other;
};

} // namespace

TEST_F(Changed_Card, The_Journal_Says_Which_Card_Each_Part_Went_Through)
{
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent));
    EXPECT_EQ(m_witness.m_rows[0].references, m_witness.m_rows[1].references);
    const Job_Reading reading = Read_Job(Journal());
    ASSERT_TRUE(reading.record);
    EXPECT_EQ(reading.record->Part(1, 1).imsi, First_Card);
    EXPECT_EQ(reading.record->Part(2, 1).imsi, Second_Card);
    EXPECT_EQ(reading.record->Cards(), QStringList({First_Card, Second_Card}));
    EXPECT_TRUE(Job_Receipt(*reading.record)
                    .Facts()
                    .contains(std::pair(QStringLiteral("SIM card"), QStringLiteral("ends with 6789, 0001"))));
}

TEST_F(Changed_Card, A_Report_In_The_Course_Of_The_Job_Is_About_What_Went_Through_The_Card_In_The_Device)
{
    m_other.Will_Answer("AT+CNMI=2,0,0,1,0", "\r\nOK\r\n");
    m_options.job.report_seconds = 1;
    m_witness.m_on_row = [this] {
        if (m_witness.m_rows.size() == 2) // nearer in time to the first
            m_other.Says("\r\n+CDS: 25\r\n" + Report_Frame(0, QDateTime::currentDateTimeUtc().addSecs(-3600)) + "\r\n");
    };
    Run();
    EXPECT_THAT(m_witness.m_reports, ElementsAre(std::array{1, 1, 0}));
    EXPECT_THAT(Deliveries(), ElementsAre("no report", "delivered"));
}

TEST_F(Changed_Card, Late_Reports_Find_Their_Parts_By_The_Card_That_Is_In_The_Device_Then)
{
    Run();
    EXPECT_EQ(Collect(Third_Card), 0);
    EXPECT_THAT(m_other.Heard(), testing::Not(testing::Contains("AT+CMGL=4"))) << "no job has gone through it";
    EXPECT_THAT(Deliveries(), ElementsAre("no report", "no report"));
    EXPECT_EQ(Collect(Second_Card), 1);
    EXPECT_THAT(Deliveries(), ElementsAre("no report", "delivered"));
    EXPECT_EQ(Collect(Second_Card), 0) << "it has been counted";
    EXPECT_EQ(Collect(First_Card), 1);
    EXPECT_THAT(Deliveries(), ElementsAre("delivered", "delivered"));
}

TEST_F(Changed_Card, A_Job_That_Is_Gone_On_With_Keeps_Apart_What_Went_Through_Each)
{
    m_phone.Set_Moods({});
    m_witness.m_on_row = [this] { m_stop = 1; };
    Run();
    m_witness = {};
    m_options.resumed_path = Journal();
    m_other.Will_Answer("AT+CMGL=4", Report_In_Memory()); // on a part that another program has sent
    Plug_In(m_other);
    m_stop = 0;
    Run();
    EXPECT_THAT(m_witness.m_reports, IsEmpty());
    EXPECT_EQ(Read_Job(Journal()).record->Cards(), QStringList({First_Card, Second_Card}));
    EXPECT_EQ(Collect(Second_Card), 1);
    EXPECT_THAT(Deliveries(), ElementsAre("no report", "delivered"));
}

TEST_F(Changed_Card, A_Card_Whose_Number_Nobody_Knows_May_Be_Any)
{
    m_other.Will_Answer("AT+CIMI", "\r\nERROR\r\n");
    Run();
    EXPECT_EQ(Read_Job(Journal()).record->Part(2, 1).imsi, "");
    EXPECT_EQ(Read_Job(Journal()).record->Cards(), QStringList({First_Card}));
    EXPECT_EQ(Collect(First_Card), 1) << "that of the first";
    EXPECT_THAT(Deliveries(), ElementsAre("delivered", "no report"));
}
