#include "device/Confirmed_Session.h"
#include "device/Device_Test.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

namespace {

// Lets everything pass.
class Nobody : public Part_Watcher
{
public:
    bool May_Be_Handed_Over() override { return true; }
    bool Is_Asked_To_Stop() override { return false; }
    void Still_Waiting(int) override {}
};

class Reports : public Device_Test
{
protected:
    void Open_With(const Phone_Moods& moods)
    {
        m_phone.Set_Moods(moods);
        ASSERT_EQ(m_session.Open(), Confirmed_Session::Opening::Ready);
        m_phone.Forget();
    }

    /// A phone whose reports go to its memory alone, and so many of them there.
    void Open_With_Reports(int count, Phone_Moods moods = {})
    {
        moods.m_reports_in_memory_alone = true;
        moods.m_report_after_seconds = 0;
        Open_With(moods);
        ASSERT_TRUE(m_session.Ask_For_Reports());
        Nobody nobody;
        // "Hello" to 0123456789, a report asked for.
        const Part_To_Send in_pdu_mode{"AT+CMGS=18", "0031000A8110325476980000AA05C8329BFD06"};
        const Part_To_Send in_text_mode{"AT+CMGS=\"0123456789\"", "Hello"};
        if (m_session.Is_Text_Mode()) {
            m_phone.Will_Answer("AT+CSCS=\"UCS2\"", "\r\nOK\r\n"); // not really: what follows is plain
            ASSERT_TRUE(m_session.Set_Text_Parameters(0, true, {}));
        }
        for (int sent = 0; sent < count; ++sent)
            ASSERT_EQ(m_session.Submit(m_session.Is_Text_Mode() ? in_text_mode : in_pdu_mode, nobody).m_kind,
                      Part_Result::Kind::Accepted);
        ASSERT_TRUE(Serve_Until([&] { return m_session.Read_Report_Memory().size() == count; }));
        m_phone.Forget();
    }

    static std::vector<int> References(const QList<Told_Report>& reports)
    {
        std::vector<int> references;
        for (const Told_Report& told : reports)
            references.push_back(told.m_report.m_reference);
        return references;
    }

    std::vector<std::string> Heard_Ways()
    {
        std::vector<std::string> ways;
        for (const std::string& command : m_phone.Heard())
            if (command.starts_with("AT+CNMI="))
                ways.push_back(command.substr(8));
        return ways;
    }

    Virtual_Phone m_phone;
    Confirmed_Session m_session{QString::fromStdString(m_phone.Path())};
};

struct Ways_Row
{
    const char* name;
    const char* listed; ///< nothing for a device that does not list them
    const char* taken;
    std::vector<std::string> tried;
};

std::ostream& operator<<(std::ostream& out, const Ways_Row& row)
{
    return out << row.name;
}

class Report_Ways : public Reports, public testing::WithParamInterface<Ways_Row>
{
};

constexpr char All_Listed[] = "(0-2),(0-3),(0-3),(0-2),(0,1)";

} // namespace

TEST_P(Report_Ways, Are_Tried_Until_The_Device_Takes_One)
{
    const Ways_Row& row = GetParam();
    Open_With({});
    const std::string list = row.listed ? "\r\n+CNMI: " + std::string(row.listed) + "\r\n\r\nOK\r\n" : "\r\nERROR\r\n";
    m_phone.Will_Answer("AT+CNMI=?", list);
    m_phone.Will_Answer("AT+CNMI=*", "\r\n+CMS ERROR: 303\r\n");
    m_phone.Will_Answer("AT+CNMI=" + std::string(row.taken), "\r\nOK\r\n");
    EXPECT_TRUE(m_session.Ask_For_Reports());
    std::vector<std::string> expected{"?"};
    expected.insert(expected.end(), row.tried.begin(), row.tried.end());
    EXPECT_EQ(Heard_Ways(), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Report_Ways,
    testing::Values(Ways_Row{"On_The_Line", All_Listed, "2,0,0,1,0", {"2,0,0,1,0"}},
                    Ways_Row{"Mode_2_Is_Listed_And_Refused", All_Listed, "1,0,0,1,0", {"2,0,0,1,0", "1,0,0,1,0"}},
                    Ways_Row{"The_Line_Is_Listed_And_Refused",
                             "(0-2),(0-3),(0,2),(0-2),(0)",
                             "2,0,0,2,0",
                             {"2,0,0,1,0", "1,0,0,1,0", "2,0,0,2,0"}},
                    Ways_Row{"Its_Only_Way_Comes_First", "(0,1),(0,1),(0),(0,2),(1)", "1,0,0,2,1", {"1,0,0,2,1"}},
                    Ways_Row{"Messages_Must_Be_Announced", "(1,2),(1),(0),(0,1),(0)", "2,1,0,1,0", {"2,1,0,1,0"}},
                    Ways_Row{"What_Is_Not_Listed_Is_Tried_Last",
                             "(0,1),(0,1),(0),(0,1),(0)",
                             "1,0,0,2,0",
                             {"1,0,0,1,0", "2,0,0,1,0", "2,0,0,1,1", "1,0,0,1,1", "2,0,0,2,0", "1,0,0,2,0"}},
                    Ways_Row{"Nothing_Is_Listed", nullptr, "1,0,0,1,0", {"2,0,0,1,0", "1,0,0,1,0"}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Reports, A_Device_That_Takes_No_Way_Is_Left_Without_Any)
{
    Open_With({});
    m_phone.Will_Answer("AT+CNMI=*", "\r\nERROR\r\n");
    m_phone.Will_Answer("AT+CNMI=2,0,0,0,0", "\r\nOK\r\n");
    EXPECT_FALSE(m_session.Ask_For_Reports());
    EXPECT_EQ(Heard_Ways().back(), "2,0,0,0,0");
    EXPECT_THAT(Heard_Ways(), SizeIs(10));
}

TEST_F(Reports, A_Maker_Whose_Memory_Hands_Out_Other_Messages_Is_Asked_For_The_Line_Alone)
{
    m_phone.Will_Answer("AT+CGMI", "\r\nQuectel\r\n\r\nOK\r\n");
    Open_With({});
    m_phone.Will_Answer("AT+CNMI=*", "\r\nERROR\r\n");
    EXPECT_FALSE(m_session.Ask_For_Reports());
    EXPECT_THAT(Heard_Ways(), ElementsAre("?", "2,0,0,1,0", "1,0,0,1,0", "2,0,0,1,1", "1,0,0,1,1", "2,0,0,0,0"));
}

TEST_F(Reports, Those_In_The_Memory_Are_Read_And_Stay_Until_They_Are_Deleted)
{
    Open_With_Reports(2);
    const QList<Told_Report> reports = m_session.Read_Report_Memory();
    EXPECT_THAT(References(reports), ElementsAre(0, 1));
    EXPECT_THAT(m_phone.Heard(), ElementsAre("AT+CPMS?", "AT+CPMS=\"SR\"", "AT+CMGL=4", "AT+CPMS=\"SM\""));
    m_session.Delete_Reports({*reports.first().m_place});
    EXPECT_THAT(m_phone.Heard(), testing::Contains("AT+CMGD=1"));
    EXPECT_EQ(m_phone.Heard().back(), "AT+CPMS=\"SM\"");
    EXPECT_THAT(References(m_session.Read_Report_Memory()), ElementsAre(1));
}

TEST_F(Reports, In_Text_Mode_They_Are_Read_As_Well)
{
    Phone_Moods moods;
    moods.m_text_only = true;
    Open_With_Reports(2, moods);
    const QList<Told_Report> reports = m_session.Read_Report_Memory();
    EXPECT_THAT(References(reports), ElementsAre(0, 1));
    EXPECT_EQ(reports.first().m_report.m_number, "0123456789");
    EXPECT_THAT(m_phone.Heard(), Contains("AT+CMGL=\"ALL\""));
    m_session.Take_Reports();
    m_phone.Says("\r\n+CDSI: \"SR\",2\r\n");
    QList<Told_Report> announced;
    ASSERT_TRUE(Serve_Until([&] { return !(announced = m_session.Take_Reports()).isEmpty(); }));
    EXPECT_THAT(References(announced), ElementsAre(1));
}

TEST_F(Reports, A_Device_That_Lists_Nothing_Is_Asked_Place_By_Place)
{
    Open_With_Reports(2);
    m_phone.Will_Answer("AT+CMGL=4", "\r\n+CMS ERROR: 303\r\n");
    const QList<Told_Report> reports = m_session.Read_Report_Memory();
    EXPECT_THAT(References(reports), ElementsAre(0, 1));
    EXPECT_EQ(reports.last().m_place, (Report_Place{"SR", 2}));
    EXPECT_THAT(m_phone.Heard(), IsSupersetOf({"AT+CMGR=0", "AT+CMGR=20"})) << "the memory has twenty places";
}

TEST_F(Reports, An_Announced_One_Is_Found_Where_It_Lies_And_Not_Where_It_Was_Announced)
{
    Open_With_Reports(1);
    m_session.Take_Reports();
    Phone_Moods moods = m_phone.Moods();
    moods.m_memory_full = true; // ordinary messages at all places of the card
    m_phone.Set_Moods(moods);
    m_phone.Says("\r\n+CDSI: \"SM\",1\r\n");
    QList<Told_Report> reports;
    ASSERT_TRUE(Serve_Until([&] { return !(reports = m_session.Take_Reports()).isEmpty(); }));
    EXPECT_THAT(References(reports), ElementsAre(0));
    EXPECT_EQ(reports.first().m_place, (Report_Place{"SR", 1}));
    EXPECT_EQ(m_phone.Heard().back(), "AT+CPMS=\"SM\"");
}

TEST_F(Reports, Where_There_Is_No_Memory_For_Them_None_Lie_There)
{
    Open_With({});
    m_phone.Will_Answer("AT+CPMS=\"SR\"", "\r\n+CMS ERROR: 302\r\n");
    EXPECT_THAT(m_session.Read_Report_Memory(), IsEmpty());
    EXPECT_THAT(m_phone.Heard(), ElementsAre("AT+CPMS?", "AT+CPMS=\"SR\""));
    for (const char* answer : {"\r\nERROR\r\n", "\r\n+CPMS: \r\n\r\nOK\r\n", "\r\n+CPMS: S;+CFUN=0,1\r\n\r\nOK\r\n"}) {
        m_phone.Will_Answer("AT+CPMS?", answer);
        m_phone.Forget();
        EXPECT_THAT(m_session.Read_Report_Memory(), IsEmpty());
        EXPECT_THAT(m_phone.Heard(), ElementsAre("AT+CPMS?")) << "a memory that could not be given back is not chosen";
    }
}

TEST_F(Reports, A_List_Is_Read_Whatever_Stands_In_It)
{
    Open_With({});
    const std::string frame = "0006110A817000091000621121010000006211210100050000";
    m_phone.Will_Answer("AT+CMGL=4", "\r\n+CMGL: 1,0,,25\r\n" + frame + // a report
                                         "\r\n+CMGL: 2,0,,25\r\n"       // nothing below
                                         "+CMGL: x,0,,25\r\n" +
                                         frame + "\r\n+CMGL: 4,1,,24\r\n0004\r\n\r\nRING\r\n" + // no report
                                         "+CMGL: 5,1,\"A,B\",25\r\n" + frame + "\r\n+CMGL:\r\n\r\nOK\r\n");
    const QList<Told_Report> reports = m_session.Read_Report_Memory();
    ASSERT_THAT(reports, SizeIs(2));
    EXPECT_EQ(reports.first().m_place, (Report_Place{"SR", 1}));
    EXPECT_EQ(reports.last().m_place, (Report_Place{"SR", 5}));
}

TEST_F(Reports, A_Line_That_Is_Gone_Is_Told_To_Who_Listens)
{
    Open_With({});
    EXPECT_TRUE(m_session.Listen(0.1));
    m_phone.Hang_Up();
    EXPECT_FALSE(m_session.Listen(100));
}

TEST_F(Reports, The_Cards_Number_Is_Asked_For_Again_Once_It_Is_Ready)
{
    m_phone.Will_Answer("AT+CIMI", "\r\n+CME ERROR: 11\r\n");
    Open_With({});
    EXPECT_TRUE(m_session.Imsi().isEmpty());
    m_phone.Will_Answer("AT+CIMI", "\r\n001010123456789\r\n\r\nOK\r\n");
    m_session.Condition();
    EXPECT_EQ(m_session.Imsi(), "001010123456789");
}

TEST_F(Reports, A_Card_That_Was_Not_Ready_May_Be_Another_One_When_It_Is)
{
    Open_With({});
    EXPECT_EQ(m_session.Imsi(), "001010123456789");
    m_phone.Will_Answer("AT+CIMI", "\r\n262010000000001\r\n\r\nOK\r\n");
    m_session.Condition();
    EXPECT_EQ(m_session.Imsi(), "001010123456789") << "it is not asked for at each look";
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CME ERROR: 10\r\n");
    m_session.Condition();
    EXPECT_EQ(m_session.Imsi(), "");
    m_phone.Will_Answer("AT+CPIN?", "\r\n+CPIN: READY\r\n\r\nOK\r\n");
    m_session.Condition();
    EXPECT_EQ(m_session.Imsi(), "262010000000001");
}
