// What a phone answers to each command, as bytes in and bytes out.
#include "phone/Lines.h"
#include "phone/Phone_Mind.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

constexpr const char* Hello = "0011000B915155001032F40000FF05E8329BFD06"; // 19 octets behind the centre

// A phone without echo, so that the answers stand alone.
struct Talk
{
    explicit Talk(Phone_Moods moods = {}, bool echo = false) : m_mind(With_Echo(moods, echo)) {}

    static Phone_Moods With_Echo(Phone_Moods moods, bool echo)
    {
        moods.m_no_echo = !echo;
        return moods;
    }

    // Everything said to these bytes, delays aside.
    std::string Hears(std::string_view bytes)
    {
        m_mind.Take(bytes);
        m_last = m_mind.Take_Happenings();
        std::string said;
        for (const auto& utterance : m_last.m_said)
            said += utterance.m_bytes;
        return said;
    }

    std::string Asks(const std::string& command) { return Hears(command + "\r"); }

    // A whole submission; what is said to its end.
    std::string Sends(const std::string& command, const std::string& body)
    {
        m_prompt = Asks(command);
        return Hears(body + "\x1A");
    }

    Handset_Part Part() const { return m_last.m_arrivals.empty() ? Handset_Part() : m_last.m_arrivals.back().m_part; }

    Phone_Mind m_mind;
    Happenings m_last;
    std::string m_prompt;
};

Talk Text_Phone(const std::string& parameters, const std::string& charset)
{
    Talk talk;
    EXPECT_EQ(talk.Asks("AT+CMGF=1"), "\r\nOK\r\n");
    EXPECT_EQ(talk.Asks("AT+CSMP=" + parameters), "\r\nOK\r\n");
    EXPECT_EQ(talk.Asks("AT+CSCS=\"" + charset + "\""), "\r\nOK\r\n");
    return talk;
}

const std::string Ok = "\r\nOK\r\n";
const std::string Error = "\r\nERROR\r\n";

std::string With_Ok(const std::string& text)
{
    return "\r\n" + text + "\r\n\r\nOK\r\n";
}
std::string Cms_Error(int number)
{
    return "\r\n+CMS ERROR: " + std::to_string(number) + "\r\n";
}

} // namespace

TEST(Phone_Mind, Every_Command_Gets_Its_Answer)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"AT", Ok},
        {"at", Ok},
        {"ATE", Ok},
        {"ATE0", Ok},
        {"ATZ", Ok},
        {"AT&F", Ok},
        {"ATI", With_Ok("Corvane Virtual Phone")},
        {"AT+CMGF=?", With_Ok("+CMGF: (0,1)")},
        {"AT+CMGF?", With_Ok("+CMGF: 0")},
        {"AT+CMGF=0", Ok},
        {"AT+CMGF=1", Ok},
        {"AT+CMGF=2", Error},
        {"AT+CSMS=?", With_Ok("+CSMS: (0,1)")},
        {"AT+CSMS?", With_Ok("+CSMS: 0,1,1,1")},
        {"AT+CSMS=0", With_Ok("+CSMS: 1,1,1")},
        {"AT+CMMS=?", With_Ok("+CMMS: (0-2)")},
        {"AT+CMMS?", With_Ok("+CMMS: 0")},
        {"AT+CMMS=2", Ok},
        {"AT+CMMS=3", Error},
        {"AT+CSCA=?", Ok},
        {"AT+CSCA?", With_Ok("+CSCA: \"+15550009999\",145")},
        {"AT+CSCA=\"+4917\",145", Ok},
        {"AT+CSMP=?", Ok},
        {"AT+CSMP?", With_Ok("+CSMP: 17,167,0,0")},
        {"AT+CSMP=17,255,0,16", Ok},
        {"AT+CSCS=?", With_Ok("+CSCS: (\"GSM\",\"IRA\",\"UCS2\",\"HEX\",\"8859-1\")")},
        {"AT+CSCS?", With_Ok("+CSCS: \"GSM\"")},
        {"AT+CSCS=\"HEX\"", Ok},
        {"AT+CSCS=\"KOI8\"", Error},
        {"AT+CMGS=?", Ok},
        {"AT+CGMI", With_Ok("Corvane")},
        {"AT+GMI", With_Ok("Corvane")},
        {"AT+CGMM", With_Ok("Virtual Phone")},
        {"AT+GMM", With_Ok("Virtual Phone")},
        {"AT+CGMR", With_Ok("1.0")},
        {"AT+GMR", With_Ok("1.0")},
        {"AT+CGSN", With_Ok("490154203237518")},
        {"AT+GSN", With_Ok("490154203237518")},
        {"AT+CIMI", With_Ok("001010123456789")},
        {"AT+CBC", With_Ok("+CBC: 0,85")},
        {"AT+CSQ", With_Ok("+CSQ: 20,99")},
        {"AT+COPS?", With_Ok("+COPS: 0,0,\"Corvane Test\"")},
        {"AT+CREG?", With_Ok("+CREG: 0,1")},
        {"AT+CPIN?", With_Ok("+CPIN: READY")},
        {"AT+CUNKNOWN=1", Error},
    };
    for (const auto& [command, answer] : cases)
        EXPECT_EQ(Talk().Asks(command), answer) << command;
}

TEST(Phone_Mind, What_A_Command_Sets_The_Query_Shows)
{
    Talk talk;
    for (const char* command :
         {"AT+CMGF=1", "AT+CSMS=1", "AT+CMMS=2", "AT+CSCA=\"0155\",129", "AT+CSMP=17,255,0,24", "AT+CSCS=\"8859-1\""})
        EXPECT_NE(talk.Asks(command).find("OK"), std::string::npos) << command;
    EXPECT_EQ(talk.Asks("AT+CMGF?"), With_Ok("+CMGF: 1"));
    EXPECT_EQ(talk.Asks("AT+CSMS?"), With_Ok("+CSMS: 1,1,1,1"));
    EXPECT_EQ(talk.Asks("AT+CMMS?"), With_Ok("+CMMS: 2"));
    EXPECT_EQ(talk.Asks("AT+CSCA?"), With_Ok("+CSCA: \"0155\",129"));
    EXPECT_EQ(talk.Asks("AT+CSMP?"), With_Ok("+CSMP: 17,255,0,24"));
    EXPECT_EQ(talk.Asks("AT+CSCS?"), With_Ok("+CSCS: \"8859-1\""));
    EXPECT_EQ(talk.Asks("ATZ"), Ok);
    EXPECT_EQ(talk.Asks("AT+CMGF?"), With_Ok("+CMGF: 0"));
    EXPECT_EQ(talk.Asks("AT+CSCS?"), With_Ok("+CSCS: \"GSM\""));
}

TEST(Phone_Mind, Echo_Can_Be_Turned_Off_And_On)
{
    Talk talk({}, true);
    EXPECT_EQ(talk.Asks("AT"), "AT\r" + Ok);
    EXPECT_EQ(talk.Asks("ATE0"), "ATE0\r" + Ok);
    EXPECT_EQ(talk.Asks("AT"), Ok);
    EXPECT_EQ(talk.Asks("ATE1"), Ok);
    EXPECT_EQ(talk.Asks("at"), "at\r" + Ok);
}

TEST(Phone_Mind, The_Body_Of_A_Message_Is_Echoed_Too)
{
    Talk talk({}, true);
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), Hello + With_Ok("+CMGS: 0"));
    EXPECT_EQ(talk.m_prompt, "AT+CMGS=19\r\r\n> ");
}

TEST(Phone_Mind, A_Line_Feed_Behind_A_Command_Is_Passed_Over)
{
    Talk talk({}, true);
    EXPECT_EQ(talk.Hears("AT\r\n"), "AT\r" + Ok);
    EXPECT_EQ(talk.Hears("AT\r"), "AT\r" + Ok);
    EXPECT_EQ(talk.Hears("\nAT\r\n"), "AT\r" + Ok);
}

TEST(Phone_Mind, Several_Commands_In_One_Write_Are_All_Answered)
{
    Talk talk;
    EXPECT_EQ(talk.Hears("AT\r\nAT+CSQ\rAT+CMGF?\r\n"), Ok + With_Ok("+CSQ: 20,99") + With_Ok("+CMGF: 0"));
    EXPECT_EQ(talk.m_last.m_lines, Lines("AT", "AT+CSQ", "AT+CMGF?"));
}

TEST(Phone_Mind, A_Command_May_Come_Byte_By_Byte)
{
    Talk talk;
    std::string said;
    for (const char byte : std::string("AT+CSQ\r\n"))
        said += talk.Hears(std::string(1, byte));
    EXPECT_EQ(said, With_Ok("+CSQ: 20,99"));
}

TEST(Phone_Mind, Lines_That_Are_No_Commands_Are_Heard_And_Not_Answered)
{
    Talk talk({}, true);
    EXPECT_EQ(talk.Hears("\r\r\n\nRING\r0011FF\x1A\r\n\x1B\r"), "");
    EXPECT_EQ(talk.m_last.m_lines, Lines("RING", "0011FF"));
    EXPECT_EQ(talk.Asks("AT"), "AT\r" + Ok) << "the next command is understood";
}

TEST(Phone_Mind, An_Endless_Line_Is_Refused_At_Its_End_And_Not_Kept)
{
    Talk talk;
    EXPECT_EQ(talk.Hears("AT" + std::string(1'000'000, 'x')), "");
    EXPECT_EQ(talk.Hears("\r"), Error);
    ASSERT_EQ(talk.m_last.m_lines.size(), 1u);
    EXPECT_EQ(talk.m_last.m_lines.front().size(), 1024u);
    EXPECT_EQ(talk.Asks("AT"), Ok);
}

TEST(Phone_Mind, Every_Byte_Can_Come_Anywhere_Without_Harm)
{
    Talk talk;
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += char(i);
    talk.Hears(all + all);
    talk.Hears("\x1B\r");
    EXPECT_EQ(talk.Asks("AT"), Ok);
}

// -- messages in PDU mode

TEST(Phone_Mind, A_Pdu_Is_Taken_And_Numbered)
{
    Talk talk;
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0"));
    EXPECT_EQ(talk.m_prompt, "\r\n> ");
    EXPECT_EQ(talk.Part().m_number, "+15550001234");
    EXPECT_EQ(talk.Part().m_text, "hello");
    EXPECT_EQ(talk.Part().m_alphabet, "GSM 7-bit");
    EXPECT_EQ(talk.Part().m_class, -1);
    EXPECT_EQ(talk.Part().m_smsc, "+15550009999");
    EXPECT_EQ(talk.Part().m_pdu, Hello);
    EXPECT_FALSE(talk.Part().m_text_mode);
    ASSERT_TRUE(talk.m_last.m_arrivals.back().m_message);
    EXPECT_EQ(talk.m_last.m_arrivals.back().m_message->m_text, "hello");
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 1"));
}

TEST(Phone_Mind, Message_References_Begin_Again_After_255)
{
    Talk talk;
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: " + std::to_string(i)));
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0"));
}

TEST(Phone_Mind, The_Centre_Of_The_Frame_Wins_And_Is_Not_Counted)
{
    Talk talk;
    EXPECT_EQ(talk.Sends("AT+CMGS=18", "07915155009099F811000A8110325476980010FF05E8329BFD06"), With_Ok("+CMGS: 0"));
    EXPECT_EQ(talk.Part().m_smsc, "+15550009998");
    EXPECT_EQ(talk.Part().m_class, 0);
    EXPECT_EQ(talk.Part().m_number, "0123456789");
}

TEST(Phone_Mind, The_Length_Must_Be_That_Of_The_Frame)
{
    Talk talk;
    for (const char* length : {"18", "20", "1", "255"})
        EXPECT_EQ(talk.Sends("AT+CMGS=" + std::string(length), Hello), Cms_Error(304)) << length;
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0")) << "a refused message takes no reference";
}

TEST(Phone_Mind, A_Length_That_Is_None_Gets_No_Prompt)
{
    Talk talk;
    for (const char* length : {"", "0", "-1", "256", "x", "19,1", "\"123\""})
        EXPECT_EQ(talk.Asks("AT+CMGS=" + std::string(length)), Cms_Error(304)) << length;
}

TEST(Phone_Mind, Bodies_That_Are_No_Frames_Are_Refused)
{
    Talk talk;
    for (const std::string body : {"", "hello", "00", "0011000B91", "-011000B915155001032F40000FF05E8329BFD06"})
        EXPECT_EQ(talk.Sends("AT+CMGS=19", body), Cms_Error(304)) << body;
    EXPECT_EQ(talk.Sends("AT+CMGS=19", std::string(1'000'000, '0')), Cms_Error(304));
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0"));
}

TEST(Phone_Mind, Line_Ends_And_Small_Letters_In_A_Pdu_Do_Not_Matter)
{
    Talk talk;
    EXPECT_EQ(talk.Sends("AT+CMGS=19", "\n0011000b915155001032f4\r\n0000ff05e8329bfd06\r\n"), With_Ok("+CMGS: 0"));
    EXPECT_EQ(talk.Part().m_text, "hello");
}

TEST(Phone_Mind, Escape_Cancels_A_Message)
{
    Talk talk;
    EXPECT_EQ(talk.Asks("AT+CMGS=19"), "\r\n> ");
    EXPECT_EQ(talk.Hears(std::string(Hello) + "\x1B"), Ok);
    EXPECT_TRUE(talk.m_last.m_arrivals.empty());
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0"));
}

TEST(Phone_Mind, A_Terminator_With_Its_Line_End_Leaves_The_Next_Command_Whole)
{
    Talk talk;
    EXPECT_EQ(talk.Hears("AT+CMGS=19\r\n"), "\r\n> ");
    EXPECT_EQ(talk.Hears(std::string(Hello) + "\x1A\r\n" + "AT\r\n"), With_Ok("+CMGS: 0") + Ok);
    EXPECT_EQ(talk.m_last.m_lines, Lines("AT"));
}

TEST(Phone_Mind, Parts_Become_One_Message_When_All_Have_Come)
{
    Talk talk;
    EXPECT_EQ(talk.Sends("AT+CMGS=23", "0051000B915155001032F40008FF09060804000002010048"), With_Ok("+CMGS: 0"));
    EXPECT_FALSE(talk.m_last.m_arrivals.back().m_message);
    EXPECT_EQ(talk.Part().m_parts, 2);
    EXPECT_EQ(talk.Part().m_part, 1);
    EXPECT_EQ(talk.Part().m_reference, 0);
    EXPECT_EQ(talk.Sends("AT+CMGS=23", "0051000B915155001032F40008FF09060804000002020069"), With_Ok("+CMGS: 1"));
    ASSERT_TRUE(talk.m_last.m_arrivals.back().m_message);
    EXPECT_EQ(talk.m_last.m_arrivals.back().m_message->m_text, "Hi");
}

// -- messages in text mode

TEST(Phone_Mind, A_Text_Message_Honours_Parameters_And_Charset)
{
    struct Row
    {
        const char* m_parameters;
        const char* m_charset;
        const char* m_body;
        const char* m_text;
        const char* m_alphabet;
        int m_class;
    };
    const Row rows[] = {
        {"17,255,0,0", "GSM", "hello @ €", "hello @ €", "GSM 7-bit", -1},
        {"17,255,0,16", "IRA", "now", "now", "GSM 7-bit", 0},
        {"17,255,0,0", "8859-1", "gr\xFC\xDF", "grüß", "GSM 7-bit", -1},
        {"17,255,0,0", "GSM", "grüß", "grüß", "GSM 7-bit", -1},
        {"17,255,0,0", "HEX", "1B650041", "€@A", "GSM 7-bit", -1},
        {"17,255,0,0", "UCS2", "00480069", "Hi", "GSM 7-bit", -1},
        {"17,255,0,8", "HEX", "00480069002003A9", "Hi Ω", "UCS2", -1},
        {"17,255,0,8", "UCS2", "00480069002003a9", "Hi Ω", "UCS2", -1},
        {"17,255,0,24", "UCS2", "D83DDE00", "😀", "UCS2", 0},
        {"17,255,0,8", "IRA", "Hi Ω", "Hi Ω", "UCS2", -1},
        {"17,255,0,4", "GSM", "41FC", "Aü", "8-bit", -1},
        {"17,255,0,0", "GSM", "", "", "GSM 7-bit", -1},
        {"17,255,0,0", "GSM", "two\r\nlines\n", "two\r\nlines\n", "GSM 7-bit", -1},
    };
    for (const Row& row : rows) {
        Talk talk = Text_Phone(row.m_parameters, row.m_charset);
        EXPECT_EQ(talk.Sends("AT+CMGS=\"0123\"", row.m_body), With_Ok("+CMGS: 0")) << row.m_body;
        EXPECT_EQ(talk.m_prompt, "\r\n> ");
        EXPECT_EQ(talk.Part().m_text, row.m_text);
        EXPECT_EQ(talk.Part().m_alphabet, row.m_alphabet) << row.m_body;
        EXPECT_EQ(talk.Part().m_class, row.m_class) << row.m_body;
        EXPECT_EQ(talk.Part().m_number, "0123");
        EXPECT_TRUE(talk.Part().m_text_mode);
        EXPECT_EQ(talk.Part().m_pdu, "");
        EXPECT_TRUE(talk.m_last.m_arrivals.back().m_message);
    }
}

TEST(Phone_Mind, Text_Bodies_That_Do_Not_Fit_Their_Parameters_Are_Refused)
{
    const std::vector<std::tuple<std::string, std::string, std::string, int>> cases = {
        {"17,255,0,8", "HEX", "Hi", 305},
        {"17,255,0,8", "UCS2", "004", 305},
        {"17,255,0,8", "UCS2", "0048FF", 305},
        {"17,255,0,0", "UCS2", "0048FF", 305},
        {"17,255,0,0", "HEX", "80", 305},
        {"17,255,0,4", "GSM", "text", 305},
        {"17,255,0,0", "GSM", std::string(161, 'x'), 305},
        {"17,255,0,8", "GSM", std::string(71, 'x'), 305},
        {"17,255,0,0", "GSM", std::string(1'000'000, 'x'), 305},
        {"81,255,0,0", "GSM", "a header in text mode", 303},
        {"17,255,0,32", "GSM", "compressed", 303},
    };
    for (const auto& [parameters, charset, body, error] : cases) {
        Talk talk = Text_Phone(parameters, charset);
        EXPECT_EQ(talk.Sends("AT+CMGS=\"0123\"", body), Cms_Error(error))
            << parameters << charset << body.substr(0, 20);
        EXPECT_TRUE(talk.m_last.m_arrivals.empty());
    }
}

TEST(Phone_Mind, The_Longest_Text_Messages_Fit)
{
    EXPECT_EQ(Text_Phone("17,255,0,0", "GSM").Sends("AT+CMGS=\"1\"", std::string(160, 'x')), With_Ok("+CMGS: 0"));
    EXPECT_EQ(Text_Phone("17,255,0,8", "GSM").Sends("AT+CMGS=\"1\"", std::string(70, 'x')), With_Ok("+CMGS: 0"));
    std::string hex;
    for (int i = 0; i < 70; ++i)
        hex += "0041";
    EXPECT_EQ(Text_Phone("17,255,0,8", "HEX").Sends("AT+CMGS=\"1\"", hex), With_Ok("+CMGS: 0"));
}

TEST(Phone_Mind, A_Text_Message_Wants_A_Number_In_Quotes)
{
    Talk talk = Text_Phone("17,255,0,0", "GSM");
    for (const char* number : {"", "0123", "\"\"", "\"x\"", "\"0123", "\"0123\",129,1", "19"})
        EXPECT_EQ(talk.Asks("AT+CMGS=" + std::string(number)), Cms_Error(305)) << number;
    EXPECT_EQ(talk.Sends("AT+CMGS=\"49123\",145", "x"), With_Ok("+CMGS: 0"));
    EXPECT_EQ(talk.Part().m_number, "+49123");
}

TEST(Phone_Mind, A_Line_Feed_Behind_The_Command_Is_Not_Part_Of_The_Text)
{
    Talk talk = Text_Phone("17,255,0,0", "GSM");
    talk.Hears("AT+CMGS=\"1\"\r\n");
    talk.Hears("\nx\x1A");
    EXPECT_EQ(talk.Part().m_text, "\nx") << "only the one behind the carriage return is passed over";
}

TEST(Phone_Mind, The_Centre_Set_In_Text_Mode_Is_The_One_Used)
{
    Talk talk = Text_Phone("17,255,0,0", "GSM");
    EXPECT_EQ(talk.Asks("AT+CSCA=\"+4917\",145"), Ok);
    talk.Sends("AT+CMGS=\"1\"", "x");
    EXPECT_EQ(talk.Part().m_smsc, "+4917");
}

// -- moods that are a matter of what is said

TEST(Phone_Mind, Counting_Begins_Again_After_Forgetting)
{
    Phone_Moods moods;
    moods.m_cms_error_at = {{2, 500}};
    Talk talk(moods);
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0"));
    talk.m_mind.Forget();
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 1"));
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), Cms_Error(500));
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 2"));
}

TEST(Phone_Mind, A_Line_Of_Ones_Own_Goes_Out_As_Given_And_Does_Nothing_Else)
{
    Phone_Moods moods;
    moods.m_cr_only = true;
    Talk talk(moods);
    talk.m_mind.Will_Answer("at+cmgf=1", "\r\n{format} sure\r\n");
    EXPECT_EQ(talk.Asks("AT+CMGF=1"), "\r\n{format} sure\r\n");
    EXPECT_EQ(talk.Asks("AT+CMGF?"), "\r+CMGF: 0\r\rOK\r");
}

TEST(Phone_Mind, What_Is_Held_Back_Is_Heard_When_It_Reads_On)
{
    Phone_Moods moods;
    moods.m_stop_reading_after = 3;
    Talk talk(moods);
    EXPECT_EQ(talk.Hears("AT\rAT+CSQ\r"), Ok);
    EXPECT_TRUE(talk.m_mind.Has_Stopped_Reading());
    EXPECT_EQ(talk.m_last.m_bytes, "AT\r");
    moods = talk.m_mind.Moods();
    moods.m_stop_reading_after = -1;
    talk.m_mind.Set_Moods(moods);
    EXPECT_EQ(talk.Hears(""), With_Ok("+CSQ: 20,99"));
}
