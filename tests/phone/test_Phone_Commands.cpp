// What real phones answer to what other programs ask them, a row for each; and what the commands do.
#include "phone/Mind_Talk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <sstream>
#include <string>
#include <vector>

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

constexpr Row Equipment_Rows[] = {
    {"", "AT+CFUN=1", "OK"},
    {"", "AT+CFUN?", "+CFUN: 1|OK"},
    {"", "AT+CFUN=?", "+CFUN: (0,1,4),(0,1)|OK"},
    {"AT+CFUN=4\r", "AT+CFUN?", "+CFUN: 4|OK"},
    {"AT+CFUN=4\r", "AT+CREG?", "+CREG: 0,2|OK"},
    {"", "AT+CFUN=1,1", "OK"},
    {"", "AT+CFUN=2", "ERROR"},
    {"", "AT+CFUN=1,2", "ERROR"},
    {"", "AT+CFUN=1,1,1", "ERROR"},
    {"AT+CMGF=1\rAT+CFUN=1,1\r", "AT+CMGF?", "+CMGF: 0|OK"},
    {"", "AT+GCAP", "+GCAP: +CGSM|OK"},
    {"", "AT+CPIN?", "+CPIN: READY|OK"},
    {"", "AT+CPIN=?", "OK"},
    {"", "AT+CPIN=\"1234\"", "ERROR"},
    {"", "AT+CNUM", "+CNUM: \"\",\"+15550005555\",145|OK"},
    {"", "AT+CESQ", "+CESQ: 40,99,255,255,255,255|OK"},
    {"", "AT+CIND?", "+CIND: 5,4,1,0,0|OK"},
    {"", "AT+CIND=?",
     "+CIND: (\"battchg\",(0-5)),(\"signal\",(0-5)),(\"service\",(0,1)),"
     "(\"message\",(0,1)),(\"smsfull\",(0,1))|OK"},
    {"", "AT+CLIP=1", "OK"},
    {"AT+CLIP=1\r", "AT+CLIP?", "+CLIP: 1,1|OK"},
    {"", "AT+CLIP=?", "+CLIP: (0,1)|OK"},
    {"", "AT+CRC=1", "OK"},
    {"AT+CRC=1\r", "AT+CRC?", "+CRC: 1|OK"},
};
INSTANTIATE_TEST_SUITE_P(Equipment, Command_Rows, testing::ValuesIn(Equipment_Rows));

constexpr Row Errors_Rows[] = {
    {"", "AT+CMEE=?", "+CMEE: (0-2)|OK"},
    {"", "AT+CMEE?", "+CMEE: 0|OK"},
    {"", "AT+CMEE=1", "OK"},
    {"AT+CMEE=2\r", "AT+CMEE?", "+CMEE: 2|OK"},
    {"AT+CMEE=1\r", "AT+CMEE=3", "+CME ERROR: 50"},
    {"AT+CMEE=2\r", "AT+CREG=7", "+CME ERROR: incorrect parameters"},
    {"AT+CMEE=0\r", "AT+CREG=7", "ERROR"},
    {"", "AT+CREG=7", "ERROR"},
    {"AT+CMEE=1\r", "AT+CPIN=\"1\"", "+CME ERROR: 3"},
    {"AT+CMEE=1\r", "AT+CMGF=7", "+CMS ERROR: 302"},
    {"AT+CMEE=2\r", "AT+CMGF=7", "+CMS ERROR: operation not allowed"},
    {"", "AT+CMGF=7", "ERROR"},
    {"", "AT+CMGS=0", "+CMS ERROR: 304"},
    {"AT+CMEE=1\r", "AT+CMGS=0", "+CMS ERROR: 304"},
    {"AT+CMEE=2\r", "AT+CMGS=0", "+CMS ERROR: invalid PDU mode parameter"},
    {"AT+CMEE=0\r", "AT+CMGS=0", "ERROR"},
    {"AT+CMEE=2\r", "AT+CNMI=9", "+CMS ERROR: operation not allowed"},
    {"AT+CMEE=2\rATZ\r", "AT+CMGS=0", "+CMS ERROR: 304"},
    {"AT+CMEE=2\r", "AT+CXYZ", "ERROR"},
};
INSTANTIATE_TEST_SUITE_P(Errors, Command_Rows, testing::ValuesIn(Errors_Rows));

constexpr Row Lines_Rows[] = {
    {"", "AT+CMEE=1;+CREG=2", "OK"},
    {"AT+CMEE=1;+CREG=2\r", "AT+CREG?;+CMEE?", "+CREG: 2,1,\"1A2B\",\"C3D4\"|+CMEE: 1|OK"},
    {"", "ATE0V1", "OK"},
    {"", "ATE1Q0V1", "OK"},
    {"", "AT&FE0", "OK"},
    {"", "AT+CSQ;+CXYZ;+CMEE=1", "+CSQ: 20,99|ERROR"},
    {"AT+CXYZ;+CMEE=1\r", "AT+CMEE?", "+CMEE: 0|OK"},
    {"", "ATV1", "OK"},
    {"", "ATX4", "OK"},
    {"", "ATQ0", "OK"},
    {"", "ATQ", "OK"},
    {"", "AT&C1", "OK"},
    {"", "AT&D2", "OK"},
    {"", "AT&W", "OK"},
    {"", "ATS0=0", "OK"},
    {"", "ATS0?", "000|OK"},
    {"", "ATH", "OK"},
    {"", "ATV0", "ERROR"},
    {"", "ATQ1", "ERROR"},
    {"", "ATD112;", "ERROR"},
    {"", "AT+MODE=2", "ERROR"},
    {"", "AT^CURC=0", "ERROR"},
    {"", "AT$GPSP?", "ERROR"},
    {"", "AT*ENAD?", "ERROR"},
    {"", "AT+ZPAS?", "ERROR"},
    {"", "AT+CMGF=1;+CSCS=\"UCS2\";+CMGS=?", "OK"},
    {"", "AT+CSQ;+CMGS=0", "+CSQ: 20,99|+CMS ERROR: 304"},
};
INSTANTIATE_TEST_SUITE_P(Lines, Command_Rows, testing::ValuesIn(Lines_Rows));

constexpr Row Network_Rows[] = {
    {"", "AT+CREG?", "+CREG: 0,1|OK"},
    {"", "AT+CREG=?", "+CREG: (0-2)|OK"},
    {"", "AT+CREG=0", "OK"},
    {"", "AT+CREG=1", "OK"},
    {"AT+CREG=1\r", "AT+CREG?", "+CREG: 1,1|OK"},
    {"AT+CREG=2\r", "AT+CREG?", "+CREG: 2,1,\"1A2B\",\"C3D4\"|OK"},
    {"", "AT+CGREG=2", "OK"},
    {"AT+CGREG=2\r", "AT+CGREG?", "+CGREG: 2,1,\"1A2B\",\"C3D4\"|OK"},
    {"", "AT+CGREG=?", "+CGREG: (0-2)|OK"},
    {"AT+CEREG=2\r", "AT+CEREG?", "+CEREG: 2,1,\"1A2B\",\"00C3D4E5\",7|OK"},
    {"AT+CEREG=2\r", "AT+CREG?", "+CREG: 0,1|OK"},
    {"", "AT+CEREG=?", "+CEREG: (0-2)|OK"},
    {"", "AT+CGATT?", "+CGATT: 1|OK"},
    {"", "AT+CGATT=0", "OK"},
    {"", "AT+COPS?", "+COPS: 0,0,\"Corvane Test\"|OK"},
    {"", "AT+COPS=3,0", "OK"},
    {"", "AT+COPS=3,2", "OK"},
    {"AT+COPS=3,2\r", "AT+COPS?", "+COPS: 0,2,\"00101\"|OK"},
    {"AT+COPS=1,2,\"00101\"\r", "AT+COPS?", "+COPS: 1,2,\"00101\"|OK"},
    {"AT+COPS=3,1;+COPS=0\r", "AT+COPS?", "+COPS: 0,1,\"Corvane\"|OK"},
    {"", "AT+COPS=5", "ERROR"},
    {"", "AT+COPS=3,3", "ERROR"},
    {"", "AT+COPS=?", "+COPS: (2,\"Corvane Test\",\"Corvane\",\"00101\",7),,(0-4),(0-2)|OK"},
};
INSTANTIATE_TEST_SUITE_P(Network, Command_Rows, testing::ValuesIn(Network_Rows));

constexpr Row Messages_Rows[] = {
    {"", "AT+CNMI=?", "+CNMI: (0-2),(0-3),(0-3),(0-2),(0,1)|OK"},
    {"", "AT+CNMI?", "+CNMI: 0,0,0,0,0|OK"},
    {"", "AT+CNMI=2,1,0,1,0", "OK"},
    {"AT+CNMI=2,1,0,1,0\r", "AT+CNMI?", "+CNMI: 2,1,0,1,0|OK"},
    {"AT+CNMI=2,1,0,1,0\rAT+CNMI=1,,,2\r", "AT+CNMI?", "+CNMI: 1,1,0,2,0|OK"},
    {"", "AT+CNMI=2,4", "ERROR"},
    {"", "AT+CNMI=", "ERROR"},
    {"", "AT+CNMI=1,1,1,1,1,1", "ERROR"},
    {"", "AT+CSMS=?", "+CSMS: (0,1)|OK"},
    {"", "AT+CMMS=?", "+CMMS: (0-2)|OK"},
    {"AT+CMMS=2\r", "AT+CMMS?", "+CMMS: 2|OK"},
    {"", "AT+CSDH=1", "OK"},
    {"", "AT+CNMA", "+CMS ERROR: 340"},
    {"AT+CSMS=1\r", "AT+CNMA=0", "OK"},
    {"", "AT+CPMS=?", "+CPMS: (\"ME\",\"SM\",\"SR\"),(\"ME\",\"SM\"),(\"ME\",\"SM\")|OK"},
    {"", "AT+CPMS?", "+CPMS: \"SM\",0,20,\"SM\",0,20,\"SM\",0,20|OK"},
    {"", "AT+CPMS=\"SM\",\"SM\",\"SM\"", "+CPMS: 0,20,0,20,0,20|OK"},
    {"", "AT+CPMS=\"ME\"", "+CPMS: 0,50,0,20,0,20|OK"},
    {"AT+CPMS=\"ME\"\r", "AT+CPMS?", "+CPMS: \"ME\",0,50,\"SM\",0,20,\"SM\",0,20|OK"},
    {"", "AT+CPMS=\"XX\"", "+CMS ERROR: 302"},
    {"", "AT+CPMS=\"SM\",\"SR\"", "+CMS ERROR: 302"},
    {"", "AT+CPMS=\"SM\",\"SM\",\"SM\",\"SM\"", "+CMS ERROR: 302"},
    {"", "AT+CMGL=4", "OK"},
    {"", "AT+CMGL", "OK"},
    {"", "AT+CMGL=5", "+CMS ERROR: 302"},
    {"", "AT+CMGL=?", "+CMGL: (0-4)|OK"},
    {"AT+CMGF=1\r", "AT+CMGL=?", "+CMGL: (\"REC UNREAD\",\"REC READ\",\"STO UNSENT\",\"STO SENT\",\"ALL\")|OK"},
    {"AT+CMGF=1\r", "AT+CMGL=\"ALL\"", "OK"},
    {"AT+CMGF=1\r", "AT+CMGL=4", "+CMS ERROR: 302"},
    {"", "AT+CMGR=1", "+CMS ERROR: 321"},
    {"", "AT+CMGR=x", "+CMS ERROR: 321"},
    {"", "AT+CMGD=1", "OK"},
    {"", "AT+CMGD=21", "+CMS ERROR: 321"},
    {"", "AT+CMGD=0,4", "OK"},
    {"", "AT+CMGD=1,5", "+CMS ERROR: 321"},
    {"", "AT+CMGD=?", "+CMGD: (),(0-4)|OK"},
    {"", "AT+CMGW=0", "+CMS ERROR: 304"},
    {"", "AT+CMGW=19,4", "+CMS ERROR: 304"},
    {"AT+CMGF=1\r", "AT+CMGW=\"x\"", "+CMS ERROR: 305"},
    {"", "AT+CMGW=?", "OK"},
};
INSTANTIATE_TEST_SUITE_P(Messages, Command_Rows, testing::ValuesIn(Messages_Rows));

TEST(Phone_Commands, The_List_Of_Commands_Names_Each_Once_In_Their_Order)
{
    const std::string list = Mind_Talk().Asks("AT+CLAC");
    const std::string ok = Said("OK");
    ASSERT_TRUE(list.starts_with("\r\n") && list.ends_with("\r\n" + ok)) << list;
    std::vector<std::string> names;
    std::istringstream lines(list.substr(2, list.size() - ok.size() - 2));
    for (std::string line; std::getline(lines, line);)
        names.push_back(line);
    EXPECT_THAT(names, testing::IsSupersetOf({"+CBC\r", "+CFUN\r", "+CMGS\r", "+CNMI\r", "+CREG\r", "+GSN\r"}));
    for (std::size_t place = 1; place < names.size(); ++place)
        EXPECT_LT(names[place - 1], names[place]);
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
