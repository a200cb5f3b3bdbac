// PIN, PUK and network: states that hold up a phone, each a conversation.
#include "phone/Mind_Talk.h"

#include <gtest/gtest.h>

#include <string>

using namespace std::chrono_literals;

TEST(Phone_States, A_Pin_Is_Asked_For_Until_It_Is_Entered)
{
    Phone_Moods moods;
    moods.m_pin = "1234";
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT+CPIN?"), Said("+CPIN: SIM PIN|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 311"));
    EXPECT_EQ(talk.Asks("AT+CIMI"), Said("ERROR"));
    EXPECT_EQ(talk.Asks("AT+CMEE=1"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CIMI"), Said("+CME ERROR: 11"));
    EXPECT_EQ(talk.Asks("AT+CSCA?"), Said("+CMS ERROR: 311"));
    EXPECT_EQ(talk.Asks("AT+CNMI=?"), Said("+CNMI: (0-2),(0-3),(0-3),(0-2),(0,1)|OK"));
    EXPECT_EQ(talk.Asks("AT+CPIN=\"1235\""), Said("+CME ERROR: 16"));
    EXPECT_EQ(talk.Asks("AT+CPIN=\"1234\""), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CPIN?"), Said("+CPIN: READY|OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK"));
    EXPECT_EQ(talk.Asks("AT+CFUN=1,1"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CPIN?"), Said("+CPIN: SIM PIN|OK")) << "it was switched off and on";
}

TEST(Phone_States, Three_Wrong_Pins_Lead_To_The_Puk)
{
    Phone_Moods moods;
    moods.m_pin = "1234";
    Mind_Talk talk(moods);
    for (int tries = 0; tries < 3; ++tries)
        EXPECT_EQ(talk.Asks("AT+CPIN=0000"), Said("ERROR"));
    EXPECT_EQ(talk.Asks("AT+CPIN?"), Said("+CPIN: SIM PUK|OK"));
    EXPECT_EQ(talk.Asks("AT+CPIN=\"1234\""), Said("ERROR"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 316"));
}

TEST(Phone_States, A_Puk_May_Be_Needed_From_The_Start)
{
    Phone_Moods moods;
    moods.m_puk_needed = true;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT+CPIN?"), Said("+CPIN: SIM PUK|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 316"));
    EXPECT_EQ(talk.Asks("AT+CMEE=1;+CNUM"), Said("+CME ERROR: 12"));
}

TEST(Phone_States, The_State_Of_The_Sim_May_Come_Without_Ok)
{
    Phone_Moods moods;
    moods.m_cpin_without_ok = true;
    EXPECT_EQ(Mind_Talk(moods).Asks("AT+CPIN?"), Said("+CPIN: READY"));
    moods.m_pin = "1";
    EXPECT_EQ(Mind_Talk(moods).Asks("AT+CPIN?"), Said("+CPIN: SIM PIN"));
}

TEST(Phone_States, A_Network_May_Be_Missing_For_Good)
{
    Phone_Moods moods;
    moods.m_no_network = true;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT+CREG=2"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CREG?"), Said("+CREG: 2,2|OK"));
    EXPECT_EQ(talk.Asks("AT+COPS?"), Said("+COPS: 0|OK"));
    EXPECT_EQ(talk.Asks("AT+CSQ"), Said("+CSQ: 99,99|OK"));
    EXPECT_EQ(talk.Asks("AT+CESQ"), Said("+CESQ: 99,99,255,255,255,255|OK"));
    EXPECT_EQ(talk.Waits(24h), "");
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 331"));
    EXPECT_EQ(talk.Asks("AT"), Said("OK"));
}

TEST(Phone_States, A_Network_Comes_Back_After_So_Many_Questions)
{
    Phone_Moods moods;
    moods.m_no_network = true;
    moods.m_network_back_after_queries = 3;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT+CREG?"), Said("+CREG: 0,2|OK"));
    EXPECT_EQ(talk.Asks("AT+CGREG?;+CEREG?"), Said("+CGREG: 0,2|+CEREG: 0,2|OK"));
    EXPECT_EQ(talk.Asks("AT+CREG?"), Said("+CREG: 0,1|OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK"));
}

TEST(Phone_States, A_Network_Comes_Back_After_So_Many_Seconds_At_The_Pace)
{
    Phone_Moods moods;
    moods.m_no_network = true;
    moods.m_network_back_after_seconds = 60;
    moods.m_pace = 2;
    Mind_Talk talk(moods);
    talk.Waits(29'999ms);
    EXPECT_EQ(talk.Asks("AT+CREG?"), Said("+CREG: 0,2|OK"));
    talk.Waits(1ms);
    EXPECT_EQ(talk.Asks("AT+CREG?"), Said("+CREG: 0,1|OK"));
}

TEST(Phone_States, A_Network_May_Be_Lost_At_A_Message)
{
    Phone_Moods moods;
    moods.m_network_lost_at = 2;
    moods.m_network_back_after_queries = 1;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 331"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 331"));
    EXPECT_EQ(talk.Asks("AT+CREG?"), Said("+CREG: 0,2|OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 1|OK"));
}
