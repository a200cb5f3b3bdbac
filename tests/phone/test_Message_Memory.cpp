// Messages that a phone keeps, as a program reads, writes and deletes them.
#include "phone/Mind_Talk.h"

#include <gtest/gtest.h>

#include <string>

namespace {

const std::string Hello = "0011000B915155001032F40000FF05E8329BFD06";  // 19 octets, to +15550001234
const std::string Hi = "00040B915155001032F400006211220120000002C834"; // received; 21 octets

std::string Written(Mind_Talk& talk, const std::string& command, const std::string& body)
{
    EXPECT_EQ(talk.Asks(command), "\r\n> ");
    return talk.Hears(body + "\x1A");
}

} // namespace

TEST(Message_Memory, What_Is_Written_Is_Listed_Read_And_Deleted)
{
    Mind_Talk talk;
    EXPECT_EQ(Written(talk, "AT+CMGW=19", Hello), Said("+CMGW: 1|OK"));
    EXPECT_EQ(Written(talk, "AT+CMGW=21,0", Hi), Said("+CMGW: 2|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGL=4"),
              "\r\n+CMGL: 1,2,,19\r\n" + Hello + "\r\n+CMGL: 2,0,,21\r\n" + Hi + "\r\n" + Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CMGR=2"), "\r\n+CMGR: 1,,21\r\n" + Hi + "\r\n" + Said("OK")) << "it has been read";
    EXPECT_EQ(talk.Asks("AT+CMGL=0"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CMGL=2"), "\r\n+CMGL: 1,2,,19\r\n" + Hello + "\r\n" + Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CMGD=?"), Said("+CMGD: (1,2),(0-4)|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGD=1"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CMGR=1"), Said("+CMS ERROR: 321"));
    EXPECT_EQ(talk.Asks("AT+CPMS?"), Said("+CPMS: \"SM\",1,20,\"SM\",1,20,\"SM\",1,20|OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK")) << "a draft takes no reference and is no message";
    EXPECT_EQ(talk.Inbox(), std::vector<std::string>{"+15550001234 hello"});
}

TEST(Message_Memory, In_Text_Mode_It_Shows_Texts_And_Takes_Them)
{
    Mind_Talk talk;
    EXPECT_EQ(Written(talk, "AT+CMGW=19", Hello), Said("+CMGW: 1|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGF=1"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CMGR=1"), "\r\n+CMGR: \"STO UNSENT\",\"+15550001234\",,\r\nhello\r\n" + Said("OK"));
    EXPECT_EQ(Written(talk, "AT+CMGW=\"5551234\",129,\"STO SENT\"", "caf\xC3\xA9 [1]"), Said("+CMGW: 2|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGL=\"STO SENT\""),
              "\r\n+CMGL: 2,\"STO SENT\",\"5551234\",,\r\ncaf\xC3\xA9 [1]\r\n" + Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CMGF=0"), Said("OK"));
    EXPECT_TRUE(talk.Asks("AT+CMGR=2").starts_with("\r\n+CMGR: 3,,21\r\n0011000781551532F40000A70A"));
}

TEST(Message_Memory, A_Text_Becomes_A_Frame_That_Says_The_Same)
{
    struct Row
    {
        const char* m_parameters;
        const char* m_charset;
        const char* m_body;
        const char* m_text;
    };
    for (const Row& row : {Row{"17,167,0,0", "GSM", "[caf\xC3\xA9] 5 \xE2\x82\xAC @", "[caf\xC3\xA9] 5 \xE2\x82\xAC @"},
                           Row{"17,167,0,8", "UCS2", "043FD83DDE00", "\xD0\xBF\xF0\x9F\x98\x80"},
                           Row{"17,167,0,4", "GSM", "41FC", "A\xC3\xBC"}}) {
        Mind_Talk talk;
        talk.Hears("AT+CMGF=1;+CSMP=" + std::string(row.m_parameters) + ";+CSCS=\"" + row.m_charset + "\"\r");
        EXPECT_EQ(Written(talk, "AT+CMGW=\"+15550001234\"", row.m_body), Said("+CMGW: 1|OK"));
        talk.Asks("AT+CMGF=0");
        const std::string read = talk.Asks("AT+CMGR=1");
        const auto comma = read.rfind(',');
        const auto line_end = read.find("\r\n", comma);
        const auto pdu_end = read.find("\r\n", line_end + 2);
        EXPECT_EQ(
            talk.Sends(read.substr(comma + 1, line_end - comma - 1), read.substr(line_end + 2, pdu_end - line_end - 2)),
            Said("+CMGS: 0|OK"));
        EXPECT_EQ(talk.Inbox(), std::vector<std::string>{"+15550001234 " + std::string(row.m_text)});
    }
}

TEST(Message_Memory, A_Draft_May_Have_No_Number)
{
    Mind_Talk talk;
    talk.Asks("AT+CMGF=1");
    EXPECT_EQ(Written(talk, "AT+CMGW", "later"), Said("+CMGW: 1|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGR=1"), "\r\n+CMGR: \"STO UNSENT\",\"\",,\r\nlater\r\n" + Said("OK"));
}

TEST(Message_Memory, What_Is_No_Frame_Is_Not_Kept)
{
    Mind_Talk talk;
    for (const std::string body : {"", "hello", "00", "0011000B91"})
        EXPECT_EQ(Written(talk, "AT+CMGW=19", body), Said("+CMS ERROR: 304")) << body;
    EXPECT_EQ(Written(talk, "AT+CMGW=20,1", Hi), Said("+CMS ERROR: 304")) << "not its length";
    EXPECT_EQ(talk.Asks("AT+CMGL=4"), Said("OK"));
}

TEST(Message_Memory, Flags_Delete_What_They_Name)
{
    for (const auto& [flag, left] :
         {std::pair("1", "2,3,0"), std::pair("2", "2,0"), std::pair("3", "0"), std::pair("4", "")}) {
        Mind_Talk talk;
        Written(talk, "AT+CMGW=21,1", Hi);
        Written(talk, "AT+CMGW=19,3", Hello);
        Written(talk, "AT+CMGW=19,2", Hello);
        Written(talk, "AT+CMGW=21,0", Hi);
        EXPECT_EQ(talk.Asks("AT+CMGD=1," + std::string(flag)), Said("OK"));
        std::string kept; // the unread ones last, as listing them makes them read
        for (const char status : {'1', '2', '3', '0'}) {
            if (talk.Asks(std::string("AT+CMGL=") + status) != Said("OK"))
                kept += (kept.empty() ? "" : ",") + std::string(1, status);
        }
        EXPECT_EQ(kept, left) << flag;
    }
}

TEST(Message_Memory, A_Full_Storage_Takes_No_More)
{
    Mind_Talk talk;
    for (int place = 1; place <= 20; ++place)
        EXPECT_EQ(Written(talk, "AT+CMGW=19", Hello), Said("+CMGW: " + std::to_string(place) + "|OK"));
    EXPECT_EQ(Written(talk, "AT+CMGW=19", Hello), Said("+CMS ERROR: 322"));
    EXPECT_EQ(talk.Asks("AT+CMGD=7"), Said("OK"));
    EXPECT_EQ(Written(talk, "AT+CMGW=19", Hello), Said("+CMGW: 7|OK"));
    EXPECT_EQ(talk.Asks("AT+CPMS=\"ME\",\"ME\",\"ME\""), Said("+CPMS: 0,50,0,50,0,50|OK"));
    EXPECT_EQ(Written(talk, "AT+CMGW=19", Hello), Said("+CMGW: 1|OK"));
}

TEST(Message_Memory, A_Full_Sim_Sends_Nothing_Until_Something_Was_Deleted)
{
    Phone_Moods moods;
    moods.m_memory_full = true;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT+CPMS?"), Said("+CPMS: \"SM\",20,20,\"SM\",20,20,\"SM\",20,20|OK"));
    EXPECT_EQ(talk.Asks("AT+CIND?"), Said("+CIND: 5,4,1,0,1|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 322"));
    EXPECT_EQ(talk.Asks("AT+CMGR=20"), "\r\n+CMGR: 0,,21\r\n" + Hi + "\r\n" + Said("OK"));
    talk.Asks("AT+CMGF=1");
    EXPECT_EQ(talk.Asks("AT+CMGR=20"),
              "\r\n+CMGR: \"REC READ\",\"+15550001234\",,\"26/11/22,10:02:00+00\"\r\nHi\r\n" + Said("OK"));
    talk.Asks("AT+CMGF=0");
    EXPECT_EQ(talk.Asks("AT+CMGD=1"), Said("OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK"));
}
