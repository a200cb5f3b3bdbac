// Status reports as a phone hands them on, each a conversation. Their times are the clock's and are left out.
#include "phone/Mind_Talk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace std::chrono_literals;
using Strings = std::vector<std::string>;

namespace {

constexpr const char* On_The_Line = "AT+CNMI=2,1,0,1,0";
constexpr const char* In_Memory = "AT+CNMI=2,1,0,2,0";
const std::string Centre = "07915155009099F9";

// "mr status" of each report to +15550001234 among what was said in PDU mode.
Strings Reports_In(const std::string& said)
{
    Strings reports;
    const std::string begin = "+CDS: 25\r\n" + Centre + "06";
    for (auto at = said.find(begin); at != std::string::npos; at = said.find(begin, at + 1)) {
        const std::string frame = said.substr(at + begin.size(), 50);
        EXPECT_EQ(frame.substr(2, 16), "0B915155001032F4") << said;
        reports.push_back(frame.substr(0, 2) + " " + frame.substr(46, 2));
        EXPECT_EQ(frame.substr(48), "\r\n") << said;
    }
    EXPECT_EQ(std::count(said.begin(), said.end(), ':'), std::ptrdiff_t(reports.size())) << said;
    return reports;
}

} // namespace

TEST(Delivery_Reports, They_Come_Where_They_Were_Asked_For)
{
    Mind_Talk talk;
    EXPECT_EQ(talk.Asks(On_The_Line), Said("OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK"));
    EXPECT_EQ(talk.Waits(1h), "") << "the message did not ask";
    EXPECT_EQ(talk.Sends_With_Report(), Said("+CMGS: 1|OK"));
    EXPECT_EQ(talk.Waits(999ms), "");
    EXPECT_EQ(Reports_In(talk.Waits(1ms)), Strings{"01 00"});
    EXPECT_EQ(talk.Waits(1h), "") << "once";
}

TEST(Delivery_Reports, Without_Cnmi_None_Comes)
{
    Mind_Talk talk;
    EXPECT_EQ(talk.Sends_With_Report(), Said("+CMGS: 0|OK"));
    EXPECT_EQ(talk.Waits(1h), "");
    EXPECT_EQ(talk.Asks("AT+CPMS=\"SR\""), Said("+CPMS: 0,20,0,20,0,20|OK"));
}

TEST(Delivery_Reports, A_Message_That_Was_Refused_Has_None)
{
    Phone_Moods moods;
    moods.m_message_manners = {{Message_Manner::Kind::Refused, 1, 1, {}, "+CMS ERROR: 21", 0},
                               {Message_Manner::Kind::Refused_Though_Sent, 2, 2, {}, "+CMS ERROR: 332", 0}};
    Mind_Talk talk(moods);
    talk.Asks(On_The_Line);
    EXPECT_EQ(talk.Sends_With_Report(), Said("+CMS ERROR: 21"));
    EXPECT_EQ(talk.Waits(1h), "");
    EXPECT_EQ(talk.Sends_With_Report(), Said("+CMS ERROR: 332"));
    EXPECT_EQ(Reports_In(talk.Waits(1h)), Strings{"00 00"}) << "the report tells that it went out all the same";
}

TEST(Delivery_Reports, They_Wait_While_A_Message_Is_Being_Typed)
{
    Mind_Talk talk;
    talk.Asks(On_The_Line);
    talk.Sends_With_Report();
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), "\r\n> ");
    EXPECT_EQ(talk.Waits(1h), "");
    EXPECT_EQ(talk.Hears("0011000B915155001032F40000FF05E8329BFD06\x1A"), Said("+CMGS: 1|OK"));
    EXPECT_EQ(Reports_In(talk.Waits(0ms)), Strings{"00 00"});
}

TEST(Delivery_Reports, In_Text_Mode_They_Are_One_Line)
{
    Mind_Talk talk;
    talk.Asks(On_The_Line);
    talk.Asks("AT+CMGF=1;+CSMP=49,167,0,0");
    talk.Asks("AT+CMGS=\"5551234\"");
    EXPECT_EQ(talk.Hears("x\x1A"), Said("+CMGS: 0|OK"));
    const std::string report = talk.Waits(1s);
    EXPECT_TRUE(report.starts_with("\r\n+CDS: 6,0,\"5551234\",129,\"")) << report;
    EXPECT_TRUE(report.ends_with("+00\",0\r\n")) << report;
}

TEST(Delivery_Reports, In_Memory_They_Are_Announced_Read_And_Deleted)
{
    Mind_Talk talk;
    EXPECT_EQ(talk.Asks(In_Memory), Said("OK"));
    talk.Sends_With_Report();
    EXPECT_EQ(talk.Waits(1s), Said("+CDSI: \"SR\",1"));
    EXPECT_EQ(talk.Asks("AT+CMGR=1"), Said("+CMS ERROR: 321")) << "another memory is chosen";
    EXPECT_EQ(talk.Asks("AT+CPMS=\"SR\""), Said("+CPMS: 1,20,0,20,0,20|OK"));
    EXPECT_TRUE(talk.Asks("AT+CMGR=1").starts_with("\r\n+CMGR: 0,,25\r\n" + Centre + "06000B915155001032F4"));
    EXPECT_TRUE(talk.Asks("AT+CMGL=4").starts_with("\r\n+CMGL: 1,1,,25\r\n" + Centre + "0600"));
    talk.Asks("AT+CMGF=1");
    EXPECT_TRUE(talk.Asks("AT+CMGR=1").starts_with("\r\n+CMGR: \"REC READ\",6,0,\"+15550001234\",145,\""));
    EXPECT_EQ(talk.Asks("AT+CMGD=1"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CPMS=\"SM\""), Said("+CPMS: 0,20,0,20,0,20|OK"));
}

TEST(Delivery_Reports, Some_Phones_Have_Them_In_Memory_Alone)
{
    Phone_Moods moods;
    moods.m_reports_in_memory_alone = true;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT+CNMI=?"), Said("+CNMI: (0-2),(0-3),(0-3),(0,2),(0,1)|OK"));
    EXPECT_EQ(talk.Asks(On_The_Line), Said("ERROR"));
    EXPECT_EQ(talk.Asks(In_Memory), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CNMI?"), Said("+CNMI: 2,1,0,2,0|OK"));
    talk.Sends_With_Report();
    EXPECT_EQ(talk.Waits(1s), Said("+CDSI: \"SR\",1"));
}

TEST(Delivery_Reports, Some_Phones_Write_A_Comma_In_Front_Of_The_Length)
{
    Phone_Moods moods;
    moods.m_report_comma = true;
    Mind_Talk talk(moods);
    talk.Asks(On_The_Line);
    talk.Sends_With_Report();
    EXPECT_TRUE(talk.Waits(1s).starts_with("\r\n+CDS: ,25\r\n" + Centre));
}

TEST(Delivery_Reports, They_May_Come_Late_At_The_Pace)
{
    Phone_Moods moods;
    moods.m_report_after_seconds = 3600;
    moods.m_pace = 60;
    Mind_Talk talk(moods);
    talk.Asks(On_The_Line);
    talk.Sends_With_Report();
    EXPECT_EQ(talk.Waits(59s), "");
    EXPECT_EQ(Reports_In(talk.Waits(1s)), Strings{"00 00"});
}

TEST(Delivery_Reports, They_May_Come_Out_Of_Order)
{
    Phone_Moods moods;
    moods.m_reports_out_of_order = true;
    Mind_Talk talk(moods);
    talk.Asks(On_The_Line);
    for (int i = 0; i < 5; ++i)
        talk.Sends_With_Report();
    EXPECT_EQ(Reports_In(talk.Waits(1s)), (Strings{"01 00", "00 00", "03 00", "02 00"}));
    EXPECT_EQ(Reports_In(talk.Waits(2s)), Strings{"04 00"}) << "none overtook it";
}

TEST(Delivery_Reports, They_May_Come_Twice_And_Behind_Those_Of_Other_Jobs)
{
    Phone_Moods moods;
    moods.m_reports_twice = true;
    moods.m_stray_reports = true;
    moods.m_first_reference = 255;
    Mind_Talk talk(moods);
    talk.Asks(On_The_Line);
    talk.Sends_With_Report();
    EXPECT_EQ(Reports_In(talk.Waits(1s)), (Strings{"7F 00", "FF 00", "FF 00"}));
}

TEST(Delivery_Reports, Their_Status_Belongs_To_The_End_Of_A_Number)
{
    Phone_Moods moods;
    moods.m_report_status = {{"234", 0x30}, {"999", 0x49}, {"1234", 0x46}};
    Mind_Talk talk(moods);
    talk.Asks(On_The_Line);
    talk.Sends_With_Report();
    EXPECT_EQ(Reports_In(talk.Waits(1s)), (Strings{"00 30", "00 46"})) << "still trying, then expired";
}

TEST(Delivery_Reports, The_Network_May_Send_None)
{
    Phone_Moods moods;
    moods.m_no_reports = true;
    Mind_Talk talk(moods);
    talk.Asks(On_The_Line);
    EXPECT_EQ(talk.Sends_With_Report(), Said("+CMGS: 0|OK"));
    EXPECT_EQ(talk.Waits(24h), "");
}

TEST(Delivery_Reports, A_Full_Memory_Takes_No_More)
{
    Mind_Talk talk;
    talk.Asks(In_Memory);
    for (int i = 0; i < 21; ++i)
        talk.Sends_With_Report();
    const std::string said = talk.Waits(1s);
    EXPECT_NE(said.find("\"SR\",20"), std::string::npos);
    EXPECT_EQ(said.find("\"SR\",21"), std::string::npos);
}

TEST(Delivery_Reports, What_Was_Forgotten_Is_Not_Reported)
{
    Handset::Phone_Mind mind{Phone_Moods()};
    mind.Take("AT+CNMI=2,1,0,1,0\rAT+CMGS=19\r0031000B915155001032F40000FF05E8329BFD06\x1A");
    EXPECT_TRUE(mind.Next_Moment());
    mind.Forget();
    EXPECT_FALSE(mind.Next_Moment());
}
