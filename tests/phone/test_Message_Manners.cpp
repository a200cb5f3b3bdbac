// What becomes of certain messages, and how prompts and errors may look: each a conversation.
#include "phone/Mind_Talk.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Kind = Message_Manner::Kind;
using Strings = std::vector<std::string>;

namespace {

const std::string To_1234 = "+15550001234 hello";

// One manner for messages from .. to.
Phone_Moods With(Kind kind, int from, int to, const std::string& text = {})
{
    Phone_Moods moods;
    moods.m_message_manners = {{kind, from, to, {}, text, 0}};
    return moods;
}

} // namespace

TEST(Message_Manners, A_Cause_Comes_At_Its_Messages)
{
    Mind_Talk talk(With(Kind::Refused, 2, 3, "+CMS ERROR: 331"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: 331"));
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: 331"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 1|OK")) << "a refused message takes no reference";
    EXPECT_EQ(talk.Inbox(), (Strings{To_1234, To_1234}));
}

TEST(Message_Manners, A_Cause_May_Be_Any_Result_Line)
{
    for (const char* cause : {"+CMS ERROR: 500", "+CME ERROR: 14", "ERROR", "COMMAND NOT SUPPORT", "MODEM ERROR: 3"}) {
        Mind_Talk talk(With(Kind::Refused, 1, 1, cause));
        EXPECT_EQ(talk.Sends(), Said(cause));
        EXPECT_TRUE(talk.Inbox().empty());
    }
}

TEST(Message_Manners, A_Cause_May_Belong_To_The_End_Of_A_Number)
{
    Phone_Moods moods;
    moods.m_message_manners = {{Kind::Refused, 1, INT_MAX, "1234", "+CMS ERROR: 195", 0}};
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: 195"));
    EXPECT_EQ(talk.Sends("19", "0011000B915155001032F50000FF05E8329BFD06"), Said("+CMGS: 0|OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: 195"));
    EXPECT_EQ(talk.Inbox(), Strings{"+15550001235 hello"});
}

TEST(Message_Manners, A_Cause_In_Place_Of_The_Prompt_Leaves_No_Body_Behind)
{
    Mind_Talk talk(With(Kind::Refused_At_Once, 1, 1, "+CMS ERROR: 302"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 302"));
    EXPECT_EQ(talk.Asks("AT"), Said("OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK"));
}

TEST(Message_Manners, A_Message_May_Be_Sent_Though_An_Error_Is_Told)
{
    Mind_Talk talk(With(Kind::Refused_Though_Sent, 1, 1, "+CMS ERROR: 332"));
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: 332"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 1|OK"));
    EXPECT_EQ(talk.Inbox(), (Strings{To_1234, To_1234}));
}

TEST(Message_Manners, A_Result_May_Come_Late_At_The_Pace)
{
    Phone_Moods moods;
    moods.m_message_manners = {{Kind::Delayed, 1, 1, {}, {}, 200}, {Kind::Refused, 1, 1, {}, "ERROR", 0}};
    Mind_Talk slow(moods);
    EXPECT_EQ(slow.Sends(), Said("ERROR")) << "whatever the result is";
    EXPECT_EQ(slow.m_delay_ms, 200'000);
    EXPECT_EQ(slow.Sends(), Said("+CMGS: 0|OK"));
    EXPECT_EQ(slow.m_delay_ms, 0);
    moods.m_pace = 1000;
    Mind_Talk fast(moods);
    fast.Sends();
    EXPECT_EQ(fast.m_delay_ms, 200);
}

TEST(Message_Manners, A_Result_May_Wait_For_The_Next_Command)
{
    Mind_Talk talk(With(Kind::At_The_Next_Command, 1, 1));
    EXPECT_EQ(talk.Sends(), "");
    EXPECT_EQ(talk.Inbox(), Strings{To_1234});
    EXPECT_EQ(talk.Hears("\x1B"), "") << "an escape is no command";
    EXPECT_EQ(talk.Hears("AT\r"), Said("+CMGS: 0|OK|OK"));
    EXPECT_EQ(talk.Asks("AT"), Said("OK")) << "once";
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 1|OK"));
}

TEST(Message_Manners, A_Result_May_Wait_For_A_Certain_Command)
{
    Phone_Moods moods = With(Kind::At_The_Next_Command, 1, 1, "AT+CMGS");
    moods.m_message_manners.push_back({Kind::Refused, 1, 1, {}, "+CMS ERROR: 41", 0});
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Sends(), "");
    EXPECT_EQ(talk.Asks("AT"), Said("OK"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CMS ERROR: 41") + "\r\n> ") << "whatever the result is";
    EXPECT_EQ(talk.Hears("\x1B"), Said("OK"));
    EXPECT_TRUE(talk.Inbox().empty());
}

TEST(Message_Manners, Results_May_Come_Behind_The_Next_Prompt_And_The_Next_Message)
{
    Phone_Moods moods = With(Kind::Behind_The_Next_Prompt, 1, 1);
    moods.m_message_manners.push_back({Kind::Behind_The_Next_Message, 2, 2, {}, {}, 0});
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Sends(), "");
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), "\r\n> " + Said("+CMGS: 0|OK"));
    EXPECT_EQ(talk.Hears("0011000B915155001032F40000FF05E8329BFD06\x1A"), "");
    EXPECT_EQ(talk.Asks("AT"), Said("OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 1|OK|+CMGS: 2|OK"));
}

TEST(Message_Manners, A_Message_May_Get_No_Result_At_All)
{
    Mind_Talk talk(With(Kind::Without_Result, 1, 1));
    EXPECT_EQ(talk.Sends(), "");
    EXPECT_EQ(talk.Asks("AT"), Said("OK"));
    EXPECT_EQ(talk.Inbox(), Strings{To_1234});
}

TEST(Message_Manners, A_Result_May_Lack_Its_Reference)
{
    Mind_Talk talk(With(Kind::Without_Reference, 1, 1));
    EXPECT_EQ(talk.Sends(), Said("OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 1|OK"));
    EXPECT_EQ(talk.Inbox(), (Strings{To_1234, To_1234}));
}

TEST(Message_Manners, A_Second_Prompt_Ends_In_An_Error)
{
    Mind_Talk talk(With(Kind::Second_Prompt, 1, 1));
    EXPECT_EQ(talk.Sends(), "\r\n> " + Said("ERROR"));
    EXPECT_EQ(talk.Asks("AT"), Said("OK")) << "it takes commands again";
    EXPECT_TRUE(talk.Inbox().empty());
}

TEST(Message_Manners, The_First_Row_That_Fits_Is_Followed)
{
    Phone_Moods moods;
    moods.m_message_manners = {{Kind::Without_Reference, 2, 2, {}, {}, 0},
                               {Kind::Refused, 1, INT_MAX, {}, "+CMS ERROR: 21", 0}};
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: 21"));
    EXPECT_EQ(talk.Sends(), Said("OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: 21"));
}

TEST(Message_Manners, Prompts_Have_Three_Shapes)
{
    Phone_Moods moods;
    EXPECT_EQ(Mind_Talk(moods).Asks("AT+CMGS=19"), "\r\n> ");
    moods.m_prompt_without_blank = true;
    EXPECT_EQ(Mind_Talk(moods).Asks("AT+CMGS=19"), "\r\n>");
    moods.m_prompt_with_line_end = true;
    EXPECT_EQ(Mind_Talk(moods).Asks("AT+CMGS=19"), "\r\n>\r\n");
}

TEST(Message_Manners, An_Escape_At_The_Prompt_Is_Answered_With_Ok_And_Sends_Nothing)
{
    Phone_Moods moods;
    moods.m_prompt_with_line_end = true;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), "\r\n>\r\n");
    EXPECT_EQ(talk.Hears("\x1B"), Said("OK"));
    EXPECT_TRUE(talk.Inbox().empty());
}

TEST(Message_Manners, Errors_May_Be_In_Words)
{
    Phone_Moods moods = With(Kind::Refused, 1, 1, "+CMS ERROR: 331");
    moods.m_error_words = true;
    moods.m_cms_error_at = {{2, 500}, {3, 1234}};
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: no network service"));
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: unknown error"));
    EXPECT_EQ(talk.Sends(), Said("+CMS ERROR: 1234")) << "a maker's own has no words";
    EXPECT_EQ(talk.Asks("AT+CREG=9"), Said("+CME ERROR: incorrect parameters"));
    EXPECT_EQ(talk.Sends("18"), Said("+CMS ERROR: invalid PDU mode parameter"));
}

TEST(Message_Manners, Causes_Of_Moods_Follow_Words_And_No_Other_Style)
{
    Mind_Talk talk(With(Kind::Refused, 1, INT_MAX, "+CME ERROR: 14"));
    EXPECT_EQ(talk.Asks("AT+CMEE=0"), Said("OK"));
    EXPECT_EQ(talk.Sends(), Said("+CME ERROR: 14"));
    EXPECT_EQ(talk.Asks("AT+CMEE=2"), Said("OK"));
    EXPECT_EQ(talk.Sends(), Said("+CME ERROR: SIM busy"));
}

TEST(Message_Manners, Unknown_Commands_May_Not_Be_Supported)
{
    Phone_Moods moods;
    moods.m_command_not_support = true;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT+CXYZ"), Said("COMMAND NOT SUPPORT"));
    EXPECT_EQ(talk.Asks("AT+CMGF=5"), Said("ERROR"));
    EXPECT_EQ(talk.Asks("AT+CSQ;^X"), Said("+CSQ: 20,99|COMMAND NOT SUPPORT"));
}

TEST(Message_Manners, Lines_Come_Between_Any_Two_Of_An_Answer)
{
    Phone_Moods moods;
    moods.m_between_lines = Handset::Unsolicited_Lines("ring,creg");
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Asks("AT"), Said("RING|OK"));
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), Said("+CREG: 1,\"1A2B\",\"C3D4\"") + "\r\n> ");
    EXPECT_EQ(talk.Hears("0011000B915155001032F40000FF05E8329BFD06\x1A"),
              Said("RING|+CMGS: 0|+CREG: 1,\"1A2B\",\"C3D4\"|OK"));
}

TEST(Message_Manners, The_Lines_Between_Are_Known_By_Name)
{
    using Handset::Unsolicited_Lines;
    const auto all = Unsolicited_Lines("all");
    ASSERT_EQ(all.size(), 5u);
    EXPECT_EQ(all, Unsolicited_Lines("ring,cmti,creg,rssi,cds"));
    EXPECT_EQ(all[1], "+CMTI: \"SM\",1");
    EXPECT_EQ(all[3], "^RSSI:18");
    EXPECT_TRUE(all[4].starts_with("+CDS: 25\r\n07915155009099F906FB0B915155007077F7")) << all[4];
    EXPECT_TRUE(Unsolicited_Lines("ring,bell").empty());
    EXPECT_TRUE(Unsolicited_Lines("").empty());
}

TEST(Message_Manners, References_May_Begin_Anywhere_And_Wrap)
{
    Phone_Moods moods;
    moods.m_first_reference = 255;
    Mind_Talk talk(moods);
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 255|OK"));
    EXPECT_EQ(talk.Sends(), Said("+CMGS: 0|OK"));
}

TEST(Message_Manners, It_Hangs_Up_At_A_Byte_That_It_Hears_And_Once)
{
    Phone_Moods moods;
    moods.m_hang_up_after_heard = 11 + 40;
    Mind_Talk talk(moods);
    talk.Asks("AT+CMGS=19");
    talk.Hears("0011000B915155001032F40000FF05E8329BFD0");
    EXPECT_FALSE(talk.m_hangs_up);
    talk.Hears("6\x1A");
    EXPECT_TRUE(talk.m_hangs_up);
    EXPECT_TRUE(talk.Inbox().empty()) << "the end of the message is not among them";
    moods.m_hang_up_after_heard = 11 + 41;
    Mind_Talk later(moods);
    later.Sends();
    EXPECT_TRUE(later.m_hangs_up);
    EXPECT_EQ(later.Inbox(), Strings{To_1234});
    later.m_hangs_up = false;
    later.Sends();
    EXPECT_FALSE(later.m_hangs_up);
}
