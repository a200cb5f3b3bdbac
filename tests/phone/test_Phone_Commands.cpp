// What real phones answer to what other programs ask them, a row for each; and what the commands do.
#include "phone/Mind_Talk.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Row
{
    const char* m_before; // what was asked before, lines
    const char* m_line;
    const char* m_answer; // "|" between its lines
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.m_before << " " << row.m_line;
}

class Command_Rows : public testing::TestWithParam<Row>
{
};

} // namespace

TEST_P(Command_Rows, Gets_The_Answer_Of_A_Real_Phone)
{
    const Row& row = GetParam();
    Mind_Talk talk;
    talk.Hears(row.m_before);
    EXPECT_EQ(talk.Asks(row.m_line), Said(row.m_answer));
}

INSTANTIATE_TEST_SUITE_P(
    Equipment, Command_Rows,
    testing::Values(Row{"", "AT+CFUN=1", "OK"}, Row{"", "AT+CFUN?", "+CFUN: 1|OK"},
                    Row{"", "AT+CFUN=?", "+CFUN: (0,1,4),(0,1)|OK"}, Row{"AT+CFUN=4\r", "AT+CFUN?", "+CFUN: 4|OK"},
                    Row{"AT+CFUN=4\r", "AT+CREG?", "+CREG: 0,2|OK"}, Row{"", "AT+CFUN=1,1", "OK"},
                    Row{"", "AT+CFUN=2", "ERROR"}, Row{"", "AT+CFUN=1,2", "ERROR"}, Row{"", "AT+CFUN=1,1,1", "ERROR"},
                    Row{"AT+CMGF=1\rAT+CFUN=1,1\r", "AT+CMGF?", "+CMGF: 0|OK"}, Row{"", "AT+GCAP", "+GCAP: +CGSM|OK"},
                    Row{"", "AT+CPIN?", "+CPIN: READY|OK"}, Row{"", "AT+CPIN=?", "OK"},
                    Row{"", "AT+CPIN=\"1234\"", "ERROR"}, Row{"", "AT+CNUM", "+CNUM: \"\",\"+15550005555\",145|OK"},
                    Row{"", "AT+CESQ", "+CESQ: 40,99,255,255,255,255|OK"}, Row{"", "AT+CIND?", "+CIND: 5,4,1,0,0|OK"},
                    Row{"", "AT+CIND=?",
                        "+CIND: (\"battchg\",(0-5)),(\"signal\",(0-5)),(\"service\",(0,1)),"
                        "(\"message\",(0,1)),(\"smsfull\",(0,1))|OK"},
                    Row{"", "AT+CLIP=1", "OK"}, Row{"AT+CLIP=1\r", "AT+CLIP?", "+CLIP: 1,1|OK"},
                    Row{"", "AT+CLIP=?", "+CLIP: (0,1)|OK"}, Row{"", "AT+CRC=1", "OK"},
                    Row{"AT+CRC=1\r", "AT+CRC?", "+CRC: 1|OK"}));

INSTANTIATE_TEST_SUITE_P(Errors, Command_Rows,
                         testing::Values(Row{"", "AT+CMEE=?", "+CMEE: (0-2)|OK"}, Row{"", "AT+CMEE?", "+CMEE: 0|OK"},
                                         Row{"", "AT+CMEE=1", "OK"}, Row{"AT+CMEE=2\r", "AT+CMEE?", "+CMEE: 2|OK"},
                                         Row{"AT+CMEE=1\r", "AT+CMEE=3", "+CME ERROR: 50"},
                                         Row{"AT+CMEE=2\r", "AT+CREG=7", "+CME ERROR: incorrect parameters"},
                                         Row{"AT+CMEE=0\r", "AT+CREG=7", "ERROR"}, Row{"", "AT+CREG=7", "ERROR"},
                                         Row{"AT+CMEE=1\r", "AT+CPIN=\"1\"", "+CME ERROR: 3"},
                                         Row{"AT+CMEE=1\r", "AT+CMGF=7", "+CMS ERROR: 302"},
                                         Row{"AT+CMEE=2\r", "AT+CMGF=7", "+CMS ERROR: operation not allowed"},
                                         Row{"", "AT+CMGF=7", "ERROR"}, Row{"", "AT+CMGS=0", "+CMS ERROR: 304"},
                                         Row{"AT+CMEE=1\r", "AT+CMGS=0", "+CMS ERROR: 304"},
                                         Row{"AT+CMEE=2\r", "AT+CMGS=0", "+CMS ERROR: invalid PDU mode parameter"},
                                         Row{"AT+CMEE=0\r", "AT+CMGS=0", "ERROR"},
                                         Row{"AT+CMEE=2\r", "AT+CNMI=9", "+CMS ERROR: operation not allowed"},
                                         Row{"AT+CMEE=2\rATZ\r", "AT+CMGS=0", "+CMS ERROR: 304"},
                                         Row{"AT+CMEE=2\r", "AT+CXYZ", "ERROR"}));

INSTANTIATE_TEST_SUITE_P(
    Lines, Command_Rows,
    testing::Values(Row{"", "AT+CMEE=1;+CREG=2", "OK"},
                    Row{"AT+CMEE=1;+CREG=2\r", "AT+CREG?;+CMEE?", "+CREG: 2,1,\"1A2B\",\"C3D4\"|+CMEE: 1|OK"},
                    Row{"", "ATE0V1", "OK"}, Row{"", "ATE1Q0V1", "AT|OK"}, Row{"", "AT&FE0", "OK"},
                    Row{"", "AT+CSQ;+CXYZ;+CMEE=1", "+CSQ: 20,99|ERROR"},
                    Row{"AT+CXYZ;+CMEE=1\r", "AT+CMEE?", "+CMEE: 0|OK"}, Row{"", "ATV1", "OK"}, Row{"", "ATX4", "OK"},
                    Row{"", "ATQ0", "OK"}, Row{"", "ATQ", "OK"}, Row{"", "AT&C1", "OK"}, Row{"", "AT&D2", "OK"},
                    Row{"", "AT&W", "OK"}, Row{"", "ATS0=0", "OK"}, Row{"", "ATS0?", "000|OK"}, Row{"", "ATH", "OK"},
                    Row{"", "ATV0", "ERROR"}, Row{"", "ATQ1", "ERROR"}, Row{"", "ATD112;", "ERROR"},
                    Row{"", "AT+MODE=2", "ERROR"}, Row{"", "AT^CURC=0", "ERROR"}, Row{"", "AT$GPSP?", "ERROR"},
                    Row{"", "AT*ENAD?", "ERROR"}, Row{"", "AT+ZPAS?", "ERROR"},
                    Row{"", "AT+CMGF=1;+CSCS=\"UCS2\";+CMGS=?", "OK"},
                    Row{"", "AT+CSQ;+CMGS=0", "+CSQ: 20,99|+CMS ERROR: 304"}));

INSTANTIATE_TEST_SUITE_P(
    Network, Command_Rows,
    testing::Values(Row{"", "AT+CREG?", "+CREG: 0,1|OK"}, Row{"", "AT+CREG=?", "+CREG: (0-2)|OK"},
                    Row{"", "AT+CREG=0", "OK"}, Row{"", "AT+CREG=1", "OK"},
                    Row{"AT+CREG=1\r", "AT+CREG?", "+CREG: 1,1|OK"},
                    Row{"AT+CREG=2\r", "AT+CREG?", "+CREG: 2,1,\"1A2B\",\"C3D4\"|OK"}, Row{"", "AT+CGREG=2", "OK"},
                    Row{"AT+CGREG=2\r", "AT+CGREG?", "+CGREG: 2,1,\"1A2B\",\"C3D4\"|OK"},
                    Row{"", "AT+CGREG=?", "+CGREG: (0-2)|OK"},
                    Row{"AT+CEREG=2\r", "AT+CEREG?", "+CEREG: 2,1,\"1A2B\",\"00C3D4E5\",7|OK"},
                    Row{"AT+CEREG=2\r", "AT+CREG?", "+CREG: 0,1|OK"}, Row{"", "AT+CEREG=?", "+CEREG: (0-2)|OK"},
                    Row{"", "AT+CGATT?", "+CGATT: 1|OK"}, Row{"", "AT+CGATT=0", "OK"},
                    Row{"", "AT+COPS?", "+COPS: 0,0,\"Corvane Test\"|OK"}, Row{"", "AT+COPS=3,0", "OK"},
                    Row{"", "AT+COPS=3,2", "OK"}, Row{"AT+COPS=3,2\r", "AT+COPS?", "+COPS: 0,2,\"00101\"|OK"},
                    Row{"AT+COPS=1,2,\"00101\"\r", "AT+COPS?", "+COPS: 1,2,\"00101\"|OK"},
                    Row{"AT+COPS=3,1;+COPS=0\r", "AT+COPS?", "+COPS: 0,1,\"Corvane\"|OK"},
                    Row{"", "AT+COPS=5", "ERROR"}, Row{"", "AT+COPS=3,3", "ERROR"},
                    Row{"", "AT+COPS=?", "+COPS: (2,\"Corvane Test\",\"Corvane\",\"00101\",7),,(0-4),(0-2)|OK"}));

INSTANTIATE_TEST_SUITE_P(
    Messages, Command_Rows,
    testing::Values(
        Row{"", "AT+CNMI=?", "+CNMI: (0-2),(0-3),(0-3),(0-2),(0,1)|OK"}, Row{"", "AT+CNMI?", "+CNMI: 0,0,0,0,0|OK"},
        Row{"", "AT+CNMI=2,1,0,1,0", "OK"}, Row{"AT+CNMI=2,1,0,1,0\r", "AT+CNMI?", "+CNMI: 2,1,0,1,0|OK"},
        Row{"AT+CNMI=2,1,0,1,0\rAT+CNMI=1,,,2\r", "AT+CNMI?", "+CNMI: 1,1,0,2,0|OK"}, Row{"", "AT+CNMI=2,4", "ERROR"},
        Row{"", "AT+CNMI=", "ERROR"}, Row{"", "AT+CNMI=1,1,1,1,1,1", "ERROR"}, Row{"", "AT+CSMS=?", "+CSMS: (0,1)|OK"},
        Row{"", "AT+CMMS=?", "+CMMS: (0-2)|OK"}, Row{"AT+CMMS=2\r", "AT+CMMS?", "+CMMS: 2|OK"},
        Row{"", "AT+CSDH=1", "OK"}, Row{"", "AT+CNMA", "+CMS ERROR: 340"}, Row{"AT+CSMS=1\r", "AT+CNMA=0", "OK"},
        Row{"", "AT+CPMS=?", "+CPMS: (\"ME\",\"SM\",\"SR\"),(\"ME\",\"SM\"),(\"ME\",\"SM\")|OK"},
        Row{"", "AT+CPMS?", "+CPMS: \"SM\",0,20,\"SM\",0,20,\"SM\",0,20|OK"},
        Row{"", "AT+CPMS=\"SM\",\"SM\",\"SM\"", "+CPMS: 0,20,0,20,0,20|OK"},
        Row{"", "AT+CPMS=\"ME\"", "+CPMS: 0,50,0,20,0,20|OK"},
        Row{"AT+CPMS=\"ME\"\r", "AT+CPMS?", "+CPMS: \"ME\",0,50,\"SM\",0,20,\"SM\",0,20|OK"},
        Row{"", "AT+CPMS=\"XX\"", "+CMS ERROR: 302"}, Row{"", "AT+CPMS=\"SM\",\"SR\"", "+CMS ERROR: 302"},
        Row{"", "AT+CPMS=\"SM\",\"SM\",\"SM\",\"SM\"", "+CMS ERROR: 302"}, Row{"", "AT+CMGL=4", "OK"},
        Row{"", "AT+CMGL", "OK"}, Row{"", "AT+CMGL=5", "+CMS ERROR: 302"}, Row{"", "AT+CMGL=?", "+CMGL: (0-4)|OK"},
        Row{"AT+CMGF=1\r", "AT+CMGL=?", "+CMGL: (\"REC UNREAD\",\"REC READ\",\"STO UNSENT\",\"STO SENT\",\"ALL\")|OK"},
        Row{"AT+CMGF=1\r", "AT+CMGL=\"ALL\"", "OK"}, Row{"AT+CMGF=1\r", "AT+CMGL=4", "+CMS ERROR: 302"},
        Row{"", "AT+CMGR=1", "+CMS ERROR: 321"}, Row{"", "AT+CMGR=x", "+CMS ERROR: 321"}, Row{"", "AT+CMGD=1", "OK"},
        Row{"", "AT+CMGD=21", "+CMS ERROR: 321"}, Row{"", "AT+CMGD=0,4", "OK"},
        Row{"", "AT+CMGD=1,5", "+CMS ERROR: 321"}, Row{"", "AT+CMGD=?", "+CMGD: (),(0-4)|OK"},
        Row{"", "AT+CMGW=0", "+CMS ERROR: 304"}, Row{"", "AT+CMGW=19,4", "+CMS ERROR: 304"},
        Row{"AT+CMGF=1\r", "AT+CMGW=\"x\"", "+CMS ERROR: 305"}, Row{"", "AT+CMGW=?", "OK"}));

TEST(Phone_Commands, The_List_Of_Commands_Names_Each_Once)
{
    const std::string list = Mind_Talk().Asks("AT+CLAC");
    EXPECT_TRUE(list.starts_with("\r\n+CBC\r\n+CEREG\r\n+CESQ\r\n")) << list;
    EXPECT_TRUE(list.ends_with("\r\n+GSN\r\n\r\nOK\r\n")) << list;
    for (const char* name : {"+CFUN", "+CMEE", "+CMGS", "+CNMI", "+CREG"})
        EXPECT_EQ(list.find("\r\n" + std::string(name) + "\r\n"), list.rfind("\r\n" + std::string(name) + "\r\n"));
}

TEST(Phone_Commands, A_Slash_Repeats_The_Last_Line_At_Once)
{
    Mind_Talk talk;
    EXPECT_EQ(talk.Hears("A/"), Said("OK")) << "nothing was said before";
    EXPECT_EQ(talk.Asks("AT+CSQ"), Said("+CSQ: 20,99|OK"));
    EXPECT_EQ(talk.Hears("A/"), Said("+CSQ: 20,99|OK"));
    EXPECT_EQ(talk.Hears("a/a/"), Said("+CSQ: 20,99|OK|+CSQ: 20,99|OK"));
    EXPECT_EQ(talk.Hears("\rAT\r"), Said("OK")) << "the next command is whole";
    EXPECT_EQ(talk.Hears("A/"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CMGF=1;+CSCS=\"8859-1/A/\""), Said("ERROR")) << "inside a line it is a text";
}

TEST(Phone_Commands, A_Slash_Is_Echoed)
{
    Mind_Talk talk;
    talk.Asks("ATE1");
    EXPECT_EQ(talk.Hears("A/"), "A/" + Said("OK"));
}

TEST(Phone_Commands, A_Message_May_Be_Announced_Behind_Other_Commands)
{
    Mind_Talk talk;
    EXPECT_EQ(talk.Asks("AT+CSQ;+CMGS=19"), Said("+CSQ: 20,99") + "\r\n> ");
    EXPECT_EQ(talk.Hears("0011000B915155001032F40000FF05E8329BFD06\x1A"), Said("+CMGS: 0|OK"));
}

TEST(Phone_Commands, A_Row_Of_Ones_Own_Is_Found_Inside_A_Line_And_For_A_Line)
{
    Handset::Phone_Mind mind{Phone_Moods()};
    mind.Will_Answer("AT+CSQ", "mine");
    mind.Will_Answer("ATE0V1", "both");
    mind.Take("ATE0\rAT+CREG?;+CSQ;+CMEE?\rATE0V1\r");
    std::string said;
    for (const auto& utterance : mind.Take_Happenings().m_said)
        said += utterance.m_bytes;
    EXPECT_EQ(said, "ATE0\r" + Said("OK|+CREG: 0,1") + "mine" + "both") << "its bytes end the line, whatever they are";
}
