// What a phone answers to each command, as bytes in and bytes out.
#include "phone/Phone_Mind.h"

#include "handset/Unicode_Text.h"
#include "phone/Phone_Talk.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

using namespace Handset;

namespace {

// A phone without echo, so that the answers stand alone.
struct Talk
{
    explicit Talk(const Phone_Moods& moods = Quiet) : m_mind(moods) {}

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
    EXPECT_EQ(talk.Asks("AT+CMGF=1"), Ok);
    EXPECT_EQ(talk.Asks("AT+CSMP=" + parameters), Ok);
    EXPECT_EQ(talk.Asks("AT+CSCS=\"" + charset + "\""), Ok);
    return talk;
}

} // namespace

TEST(Phone_Mind, Every_Command_Gets_Its_Answer)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"ATI", "Corvane Virtual Phone"},
        {"AT+CMGF=?", "+CMGF: (0,1)"},
        {"AT+CMGF?", "+CMGF: 0"},
        {"AT+CSMS=?", "+CSMS: (0,1)"},
        {"AT+CSMS?", "+CSMS: 0,1,1,1"},
        {"AT+CSMS=0", "+CSMS: 1,1,1"},
        {"AT+CMMS=?", "+CMMS: (0-2)"},
        {"AT+CMMS?", "+CMMS: 0"},
        {"AT+CSCA?", "+CSCA: \"+15550009999\",145"},
        {"AT+CSMP?", "+CSMP: 17,167,0,0"},
        {"AT+CSCS=?", "+CSCS: (\"GSM\",\"IRA\",\"UCS2\",\"HEX\",\"8859-1\")"},
        {"AT+CSCS?", "+CSCS: \"GSM\""},
        {"AT+CGMI", "Corvane"},
        {"AT+GMI", "Corvane"},
        {"AT+CGMM", "Virtual Phone"},
        {"AT+GMM", "Virtual Phone"},
        {"AT+CGMR", "1.0"},
        {"AT+GMR", "1.0"},
        {"AT+CGSN", "490154203237518"},
        {"AT+GSN", "490154203237518"},
        {"AT+CIMI", "001010123456789"},
        {"AT+CBC", "+CBC: 0,85"},
        {"AT+CSQ", "+CSQ: 20,99"},
        {"AT+COPS?", "+COPS: 0,0,\"Corvane Test\""},
        {"AT+CREG?", "+CREG: 0,1"},
        {"AT+CPIN?", "+CPIN: READY"},
    };
    for (const auto& [command, answer] : cases)
        EXPECT_EQ(Talk().Asks(command), With_Ok(answer)) << command;
    for (const char* command :
         {"AT", "at", "ATE", "ATE0", "ATZ", "AT&F", "AT+CMGF=0", "AT+CMGF=1", "AT+CMMS=2", "AT+CSCA=?",
          "AT+CSCA=\"+4917\",145", "AT+CSMP=?", "AT+CSMP=17,255,0,16", "AT+CSCS=\"HEX\"", "AT+CMGS=?"})
        EXPECT_EQ(Talk().Asks(command), Ok) << command;
    for (const char* command : {"AT+CMGF=2", "AT+CMMS=3", "AT+CSCS=\"KOI8\"", "AT+CUNKNOWN=1"})
        EXPECT_EQ(Talk().Asks(command), Error) << command;
}

TEST(Phone_Mind, What_A_Command_Sets_The_Query_Shows)
{
    Talk talk;
    const std::vector<std::pair<std::string, std::string>> settings = {
        {"+CMGF", "1"}, {"+CMMS", "2"}, {"+CSCA", "\"0155\",129"}, {"+CSMP", "17,255,0,24"}, {"+CSCS", "\"8859-1\""}};
    for (const auto& [name, value] : settings)
        EXPECT_EQ(talk.Asks("AT" + std::string(name).append("=").append(value)), Ok) << name;
    EXPECT_EQ(talk.Asks("AT+CSMS=1"), With_Ok("+CSMS: 1,1,1"));
    for (const auto& [name, value] : settings)
        EXPECT_EQ(talk.Asks("AT" + name + "?"), With_Ok(std::string(name).append(": ").append(value)));
    EXPECT_EQ(talk.Asks("AT+CSMS?"), With_Ok("+CSMS: 1,1,1,1"));
    EXPECT_EQ(talk.Asks("ATZ"), Ok);
    EXPECT_EQ(talk.Asks("AT+CMGF?"), With_Ok("+CMGF: 0"));
    EXPECT_EQ(talk.Asks("AT+CSCS?"), With_Ok("+CSCS: \"GSM\""));
}

TEST(Phone_Mind, A_Conversation_Is_The_Same_In_One_Write_And_Byte_By_Byte)
{
    const std::string sent = With_Ok("+CMGS: 0");
    const std::string ask = "AT+CMGS=19";
    const struct
    {
        const char* name;
        Phone_Moods moods;
        std::string heard, said;
        std::vector<std::string> lines;
        std::size_t parts;
    } rows[] = {
        {"echo until it is turned off",
         {},
         "AT\r" + ask + "\r" + Hello + "\x1A" + "ATE0\rAT\rATE1\rat\r",
         "AT\r" + Ok + ask + "\r" + Prompt + Hello + sent + "ATE0\r" + Ok + Ok + Ok + "at\r" + Ok,
         Lines("AT", ask, "ATE0", "AT", "ATE1", "at"),
         1},
        {"line feeds", {}, "AT\r\nAT\r\nAT\r\n", "AT\r" + Ok + "AT\r" + Ok + "AT\r" + Ok, Lines("AT", "AT", "AT"), 0},
        {"several commands", Quiet, "AT\r\nAT+CSQ\rAT+CMGF?\r\n", Ok + With_Ok("+CSQ: 20,99") + With_Ok("+CMGF: 0"),
         Lines("AT", "AT+CSQ", "AT+CMGF?"), 0},
        {"no commands before one",
         {},
         "\r\r\n\nRING\r0011FF\x1A\r\n\x1B\rAT\r",
         "AT\r" + Ok,
         Lines("RING", "0011FF", "AT"),
         0},
        {"line ends and small letters", Quiet, ask + "\r\n0011000b915155001032f4\r\n0000ff05e8329bfd06\r\n\x1A",
         Prompt + sent, Lines(ask), 1},
        {"a terminator with its line end", Quiet, ask + "\r\n" + Hello + "\x1A\r\nAT\r\n", Prompt + sent + Ok,
         Lines(ask, "AT"), 1},
        {"a message that is cancelled", Quiet, ask + "\r" + Hello + "\x1B" + ask + "\r" + Hello + "\x1A",
         Prompt + Ok + Prompt + sent, Lines(ask, ask), 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        Talk whole(row.moods);
        EXPECT_EQ(whole.Hears(row.heard), row.said);
        EXPECT_EQ(whole.m_last.m_lines, row.lines);
        EXPECT_EQ(whole.m_last.m_arrivals.size(), row.parts);
        Talk by_bytes(row.moods);
        std::string said;
        for (const char byte : row.heard)
            said += by_bytes.Hears(std::string(1, byte));
        EXPECT_EQ(said, row.said);
    }
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

TEST(Phone_Mind, A_Pdu_Is_Taken_And_Numbered_And_Its_Centre_Wins)
{
    Talk talk;
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0"));
    EXPECT_EQ(talk.m_prompt, Prompt);
    EXPECT_EQ(talk.Part().m_number, "+15550001234");
    EXPECT_EQ(talk.Part().m_text, "hello");
    EXPECT_EQ(talk.Part().m_alphabet, "GSM 7-bit");
    EXPECT_EQ(talk.Part().m_class, -1);
    EXPECT_EQ(talk.Part().m_smsc, "+15550009999");
    EXPECT_EQ(talk.Part().m_pdu, Hello);
    EXPECT_FALSE(talk.Part().m_text_mode);
    ASSERT_TRUE(talk.m_last.m_arrivals.back().m_message);
    EXPECT_EQ(talk.m_last.m_arrivals.back().m_message->m_text, "hello");
    for (int reference = 1; reference < 256; ++reference)
        EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: " + std::to_string(reference)));
    // The centre of the frame wins and is not counted.
    EXPECT_EQ(talk.Sends("AT+CMGS=18", "07915155009099F811000A8110325476980010FF05E8329BFD06"), With_Ok("+CMGS: 0"));
    EXPECT_EQ(talk.Part().m_smsc, "+15550009998");
    EXPECT_EQ(talk.Part().m_class, 0);
    EXPECT_EQ(talk.Part().m_number, "0123456789");
}

TEST(Phone_Mind, The_Length_Must_Be_That_Of_The_Frame_And_One_That_Is_None_Gets_No_Prompt)
{
    Talk talk;
    for (const char* length : {"18", "20", "1", "255"})
        EXPECT_EQ(talk.Sends("AT+CMGS=" + std::string(length), Hello), Cms_Error(304)) << length;
    for (const char* length : {"", "0", "-1", "256", "x", "19,1", "\"123\""})
        EXPECT_EQ(talk.Asks("AT+CMGS=" + std::string(length)), Cms_Error(304)) << length;
}

TEST(Phone_Mind, Bodies_That_Are_No_Frames_Are_Refused)
{
    Talk talk;
    for (const std::string body : {"", "hello", "00", "0011000B91", "-011000B915155001032F40000FF05E8329BFD06"})
        EXPECT_EQ(talk.Sends("AT+CMGS=19", body), Cms_Error(304)) << body;
    EXPECT_EQ(talk.Sends("AT+CMGS=19", std::string(1'000'000, '0')), Cms_Error(304));
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0")) << "a refused message takes no reference";
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
    const struct
    {
        const char *m_parameters, *m_charset;
        std::string m_body, m_text;
        const char* m_alphabet;
        int m_class;
    } rows[] = {
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
        {"17,255,0,0", "GSM", std::string(160, 'x'), std::string(160, 'x'), "GSM 7-bit", -1}, // the longest that fit
        {"17,255,0,8", "GSM", std::string(70, 'x'), std::string(70, 'x'), "UCS2", -1},
        {"17,255,0,8", "HEX", Hex_Utf16_Of(std::string(70, 'A')), std::string(70, 'A'), "UCS2", -1},
    };
    for (const auto& row : rows) {
        Talk talk = Text_Phone(row.m_parameters, row.m_charset);
        EXPECT_EQ(talk.Sends("AT+CMGS=\"0123\"", row.m_body), With_Ok("+CMGS: 0")) << row.m_body;
        EXPECT_EQ(talk.m_prompt, Prompt);
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

TEST(Phone_Mind, A_Text_Message_Wants_A_Number_In_Quotes)
{
    Talk talk = Text_Phone("17,255,0,0", "GSM");
    for (const char* number : {"", "0123", "\"\"", "\"x\"", "\"0123", "\"0123\",129,1", "19"})
        EXPECT_EQ(talk.Asks("AT+CMGS=" + std::string(number)), Cms_Error(305)) << number;
    EXPECT_EQ(talk.Sends("AT+CMGS=\"49123\",145", "x"), With_Ok("+CMGS: 0"));
    EXPECT_EQ(talk.Part().m_number, "+49123");
}

TEST(Phone_Mind, A_Line_Feed_Behind_The_Command_Is_Not_Part_Of_The_Text_And_The_Centre_Set_Is_The_One_Used)
{
    Talk talk = Text_Phone("17,255,0,0", "GSM");
    EXPECT_EQ(talk.Asks("AT+CSCA=\"+4917\",145"), Ok);
    talk.Hears("AT+CMGS=\"1\"\r\n");
    talk.Hears("\nx\x1A");
    EXPECT_EQ(talk.Part().m_text, "\nx") << "only the one behind the carriage return is passed over";
    EXPECT_EQ(talk.Part().m_smsc, "+4917");
}

// -- moods that are a matter of what is said

TEST(Phone_Mind, Counting_Begins_Again_After_Forgetting)
{
    Talk talk({.m_no_echo = true, .m_cms_error_at = {{2, 500}}});
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 0"));
    talk.m_mind.Forget();
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 1"));
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), Cms_Error(500));
    EXPECT_TRUE(talk.m_last.m_arrivals.empty());
    EXPECT_EQ(talk.Sends("AT+CMGS=19", Hello), With_Ok("+CMGS: 2"));
}

TEST(Phone_Mind, A_Line_Of_Ones_Own_Goes_Out_As_Given_And_Does_Nothing_Else)
{
    Talk talk({.m_no_echo = true, .m_cr_only = true});
    talk.m_mind.Will_Answer("at+cmgf=1", "\r\n{format} sure\r\n");
    EXPECT_EQ(talk.Asks("AT+CMGF=1"), "\r\n{format} sure\r\n");
    EXPECT_EQ(talk.Asks("AT+CMGF?"), "\r+CMGF: 0\r\rOK\r");
}

TEST(Phone_Mind, What_Is_Held_Back_Is_Heard_When_It_Reads_On)
{
    Talk talk({.m_no_echo = true, .m_stop_reading_after = 3});
    EXPECT_EQ(talk.Hears("AT\rAT+CSQ\r"), Ok);
    EXPECT_TRUE(talk.m_mind.Has_Stopped_Reading());
    EXPECT_EQ(talk.m_last.m_bytes, "AT\r");
    talk.m_mind.Set_Moods(Quiet);
    EXPECT_EQ(talk.Hears(""), With_Ok("+CSQ: 20,99"));
}
