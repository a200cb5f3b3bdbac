#include "gui/Sending_Program.h"

#include <algorithm>

// A list of three recipients, sent through a phone in each of its moods. The program judges writes and the first
// answers only: what the phone makes of a message shows in the phone alone.

namespace {

using Mood = Phone_Moods;

enum class Mended
{
    Mood_Goes,      // the phone minds its manners from now on
    Plugged_In_Anew // it comes back on the cable
};

enum class Heard
{
    Everything, // prepared for the mode, and each message announced
    No_Mode,    // asked for its modes; no message was announced
    First_AT    // nothing after the first question
};

struct Row
{
    const char* name;
    void (*mood)(Mood&);
    const char* box = Box::Completed;
    std::vector<int> arrives = {0, 1, 2, 3}; // of Everything; what is beyond its end does not count
    Heard heard = Heard::Everything;
    Mended mended = Mended::Mood_Goes;
    Way way = {};
    double slower = 1; // waits, than usual
};

const std::vector<int> Nothing = {};
constexpr Way Pdu;
constexpr Way Unicode{.m_text_mode = false, .m_unicode = true, .m_flash = false};
constexpr Way Flash{.m_text_mode = false, .m_unicode = false, .m_flash = true};
constexpr Way Unicode_Flash{.m_text_mode = false, .m_unicode = true, .m_flash = true};

const std::vector<int> All = {0, 1, 2, 3};
constexpr auto Whole = Heard::Everything;
constexpr auto Goes = Mended::Mood_Goes;
constexpr auto Anew = Mended::Plugged_In_Anew;

const Row In_PDU_Mode[] = {
    {"That_Minds_Its_Manners_Gets_Everything", [](Mood&) {}},
    {"That_Minds_Its_Manners_Gets_Everything_In_Unicode", [](Mood&) {}, Box::Completed, All, Whole, Goes, Unicode},
    {"That_Minds_Its_Manners_Gets_Everything_As_Flash", [](Mood&) {}, Box::Completed, All, Whole, Goes, Flash},
    {"That_Minds_Its_Manners_Gets_Everything_As_Flash_In_Unicode", [](Mood&) {}, Box::Completed, All, Whole, Goes,
     Unicode_Flash},
    {"That_Does_Not_Echo_Gets_Everything", [](Mood& m) { m.m_no_echo = true; }},
    {"That_Only_Echoes_Is_Connected_But_Has_No_Mode", [](Mood& m) { m.m_echo_only = true; }, Box::No_Modem, Nothing,
     Heard::No_Mode},
    {"That_Is_Silent_Is_No_Modem", [](Mood& m) { m.m_silent = true; }, Box::No_Modem, Nothing, Heard::First_AT},
    {"With_PDU_Mode_Alone_Gets_Everything", [](Mood& m) { m.m_pdu_only = true; }},
    {"With_PDU_Mode_Alone_Gets_Everything_As_Flash_In_Unicode", [](Mood& m) { m.m_pdu_only = true; }, Box::Completed,
     All, Whole, Goes, Unicode_Flash},
    {"Without_Character_Sets_Gets_Everything_In_Unicode", [](Mood& m) { m.m_charsets.clear(); }, Box::Completed, All,
     Whole, Goes, Unicode},
    {"Without_A_Service_Centre_Refuses_Everything_Unnoticed", [](Mood& m) { m.m_no_smsc = true; }, Box::Completed,
     Nothing},
    {"That_Tells_Its_Service_Centre_In_UCS2_Gets_Everything", [](Mood& m) { m.m_smsc_in_ucs2 = true; }},
    {"That_Does_Not_Tell_Its_Service_Centre_Gets_Everything", [](Mood& m) { m.m_smsc_not_supported = true; }},
    {"With_No_Name_Gets_Everything", [](Mood& m) { m.m_undefined_identity = true; }},
    {"That_Says_It_Can_Not_Send_Is_Not_Asked_By_The_Job", [](Mood& m) { m.m_no_sms_sending = true; }},
    {"That_Does_Not_Prompt_Gets_Everything", [](Mood& m) { m.m_no_prompt = true; }},
    {"That_Does_Not_Prompt_Gets_Everything_In_Unicode", [](Mood& m) { m.m_no_prompt = true; }, Box::Completed, All,
     Whole, Goes, Unicode},
    {"That_Prompts_A_Little_Late_Gets_Everything", [](Mood& m) { m.m_late_prompt_ms = 8; }},
    {"That_Prompts_Too_Late_Gets_Everything", [](Mood& m) { m.m_late_prompt_ms = 300; }},
    {"That_Prompts_Without_A_Blank_Gets_Everything", [](Mood& m) { m.m_prompt_without_blank = true; }},
    {"That_Answers_Byte_By_Byte_Gets_Everything", [](Mood& m) { m.m_split_answers = true; }, Box::Completed, All, Whole,
     Goes, Pdu, 2},
    {"That_Answers_Byte_By_Byte_Without_Echo_Gets_Everything", [](Mood& m) { m.m_split_answers = m.m_no_echo = true; },
     Box::Completed, All, Whole, Goes, Pdu, 2},
    {"That_Answers_A_Little_Late_Gets_Everything", [](Mood& m) { m.m_answer_delay_ms = 5; }},
    {"That_Answers_One_Read_Late_Gets_Everything", [](Mood& m) { m.m_one_answer_behind = true; }},
    {"That_Echoes_And_Answers_Too_Late_Has_No_Mode", [](Mood& m) { m.m_answer_delay_ms = 5000; }, Box::No_Modem,
     Nothing, Heard::No_Mode},
    {"That_Answers_Too_Late_Without_Echo_Is_No_Modem",
     [](Mood& m) {
         m.m_answer_delay_ms = 5000;
         m.m_no_echo = true;
     },
     Box::No_Modem, Nothing, Heard::First_AT},
    {"That_Speaks_Unasked_Between_Answers_Gets_Everything", [](Mood& m) { m.m_unsolicited = true; }},
    {"With_PDU_Mode_Alone_That_Speaks_Unasked_Gets_Everything", [](Mood& m) { m.m_unsolicited = m.m_pdu_only = true; }},
    {"That_Ends_Lines_In_CR_Alone_Gets_Everything", [](Mood& m) { m.m_cr_only = true; }},
    {"That_Ends_Lines_In_CR_Alone_Without_Echo_Gets_Everything", [](Mood& m) { m.m_cr_only = m.m_no_echo = true; }},
    {"That_Talks_Garbage_Is_No_Modem", [](Mood& m) { m.m_garbage = true; }, Box::No_Modem, Nothing, Heard::First_AT},
    {"That_Talks_Garbage_Without_Echo_Is_No_Modem", [](Mood& m) { m.m_garbage = m.m_no_echo = true; }, Box::No_Modem,
     Nothing, Heard::First_AT},
    {"That_Never_Stops_Talking_Gets_Everything", [](Mood& m) { m.m_never_stops_talking = true; }},
    {"That_Never_Stops_Talking_Gets_Everything_In_Unicode", [](Mood& m) { m.m_never_stops_talking = true; },
     Box::Completed, All, Whole, Goes, Unicode},
    {"That_Refuses_AT_Is_No_Modem", [](Mood& m) { m.m_error_for["AT"] = "not now"; }, Box::No_Modem, Nothing,
     Heard::First_AT},
    {"That_Refuses_To_Tell_Its_Modes_Has_None", [](Mood& m) { m.m_error_for["AT+CMGF=?"] = "0,1"; }, Box::No_Modem,
     Nothing, Heard::No_Mode},
    {"That_Refuses_The_Message_Service_Is_Sent_To_Even_So",
     [](Mood& m) { m.m_error_for["AT+CSMS=0"] = "no such service"; }},
    {"That_Refuses_To_Set_PDU_Mode_Is_Sent_To_Even_So", [](Mood& m) { m.m_error_for["AT+CMGF=0"] = "is set"; }},
    {"That_Refuses_Every_Message_Gets_None_Unnoticed", [](Mood& m) { m.m_error_for["AT+CMGS=*"] = "no credit"; },
     Box::Completed, Nothing},
    {"That_Fails_The_First_Message_Gets_The_Others",
     [](Mood& m) { m.m_cms_error_at[1] = 500; },
     Box::Completed,
     {1, 2}},
    {"That_Fails_The_Second_Message_Gets_The_Others",
     [](Mood& m) { m.m_cms_error_at[2] = 38; },
     Box::Completed,
     {0, 2}},
    {"That_Fails_A_Part_Of_The_Long_Message_Never_Completes_It",
     [](Mood& m) { m.m_cms_error_at[3] = 42; },
     Box::Completed,
     {0, 1}},
    {"That_Fails_Every_Message_Gets_None_Unnoticed",
     [](Mood& m) {
         m.m_cms_error_at = {{1, 1}, {2, 500}, {3, 512}, {4, 515}};
     },
     Box::Completed, Nothing},
    {"That_Hangs_Up_At_The_First_Message_Ends_The_Job", [](Mood& m) { m.m_hang_up_at = 1; }, Box::Connection_Error,
     Nothing, Whole, Anew},
    {"That_Hangs_Up_At_The_Second_Message_Ends_The_Job",
     [](Mood& m) { m.m_hang_up_at = 2; },
     Box::Connection_Error,
     {0},
     Whole,
     Anew},
    {"That_Hangs_Up_At_The_Long_Message_Ends_The_Job",
     [](Mood& m) { m.m_hang_up_at = 3; },
     Box::Connection_Error,
     {0, 1},
     Whole,
     Anew},
    {"That_Hangs_Up_At_The_Last_Part_Ends_The_Job",
     [](Mood& m) { m.m_hang_up_at = 4; },
     Box::Connection_Error,
     {0, 1},
     Whole,
     Anew},
    {"That_Hangs_Up_At_The_Second_Message_Ends_A_Unicode_Job",
     [](Mood& m) { m.m_hang_up_at = 2; },
     Box::Connection_Error,
     {0},
     Whole,
     Anew,
     Unicode},
    {"That_Hangs_Up_In_The_First_PDU_Ends_The_Job", [](Mood& m) { m.m_hang_up_in_body_at = 1; }, Box::Connection_Error,
     Nothing, Whole, Anew},
    {"That_Hangs_Up_In_The_Second_PDU_Ends_The_Job",
     [](Mood& m) { m.m_hang_up_in_body_at = 2; },
     Box::Connection_Error,
     {0},
     Whole,
     Anew},
    {"That_Hangs_Up_In_The_First_Part_Of_The_Long_Message_Ends_The_Job",
     [](Mood& m) { m.m_hang_up_in_body_at = 3; },
     Box::Connection_Error,
     {0, 1},
     Whole,
     Anew},
    {"That_Takes_No_Byte_Is_No_Modem", [](Mood& m) { m.m_stop_reading_after = 0; }, Box::No_Modem, Nothing,
     Heard::First_AT, Anew},
    {"That_Stops_Reading_While_It_Is_Prepared_Ends_The_Job", [](Mood& m) { m.m_stop_reading_after = 40; },
     Box::Connection_Error, Nothing, Whole, Anew},
    {"That_Stops_Reading_In_The_First_PDU_Ends_The_Job", [](Mood& m) { m.m_stop_reading_after = 80; },
     Box::Connection_Error, Nothing, Whole, Anew},
    {"That_Stops_Reading_At_The_Long_Message_Ends_The_Job",
     [](Mood& m) { m.m_stop_reading_at = 3; },
     Box::Connection_Error,
     {0, 1},
     Whole,
     Anew},
};

constexpr Way Text{.m_text_mode = true, .m_unicode = false, .m_flash = false};
constexpr Way Text_Flash{.m_text_mode = true, .m_unicode = false, .m_flash = true};
constexpr Way Text_Unicode{.m_text_mode = true, .m_unicode = true, .m_flash = false};
constexpr Way Text_Unicode_Flash{.m_text_mode = true, .m_unicode = true, .m_flash = true};

const Row In_Text_Mode[] = {
    {"Gets_Everything", [](Mood&) {}, Box::Completed, All, Whole, Goes, Text},
    {"Gets_Everything_As_Flash", [](Mood&) {}, Box::Completed, All, Whole, Goes, Text_Flash},
    {"That_Lists_HEX_And_UCS2_Gets_Everything_In_Unicode", [](Mood&) {}, Box::Completed, All, Whole, Goes,
     Text_Unicode},
    {"That_Lists_HEX_Gets_Everything_As_Flash_In_Unicode", [](Mood& m) { m.m_charsets = "\"GSM\",\"HEX\""; },
     Box::Completed, All, Whole, Goes, Text_Unicode_Flash},
    {"That_Lists_UCS2_Gets_Everything_In_Unicode", [](Mood& m) { m.m_charsets = "\"IRA\",\"UCS2\""; }, Box::Completed,
     All, Whole, Goes, Text_Unicode},
    {"That_Lists_UCS2_Gets_Everything_As_Flash_In_Unicode", [](Mood& m) { m.m_charsets = "\"UCS2\""; }, Box::Completed,
     All, Whole, Goes, Text_Unicode_Flash},
    {"That_Lists_Neither_HEX_Nor_UCS2_Gets_The_Text_Itself", [](Mood& m) { m.m_charsets = "\"GSM\",\"IRA\""; },
     Box::Completed, All, Whole, Goes, Text_Unicode},
    {"That_Lists_No_Character_Set_Gets_The_Text_Itself", [](Mood& m) { m.m_charsets.clear(); }, Box::Completed, All,
     Whole, Goes, Text_Unicode},
    {"That_Refuses_To_List_Character_Sets_Gets_The_Text_Itself", [](Mood& m) { m.m_error_for["AT+CSCS=?"] = "what?"; },
     Box::Completed, All, Whole, Goes, Text_Unicode},
    {"That_Does_Not_Echo_Gets_Everything", [](Mood& m) { m.m_no_echo = true; }, Box::Completed, All, Whole, Goes, Text},
    {"That_Does_Not_Echo_Gets_Everything_In_Unicode", [](Mood& m) { m.m_no_echo = true; }, Box::Completed, All, Whole,
     Goes, Text_Unicode},
    {"Without_A_Service_Centre_Refuses_Everything_Unnoticed", [](Mood& m) { m.m_no_smsc = true; }, Box::Completed,
     Nothing, Whole, Goes, Text},
    {"That_Does_Not_Prompt_Gets_Everything", [](Mood& m) { m.m_no_prompt = true; }, Box::Completed, All, Whole, Goes,
     Text},
    {"That_Prompts_Too_Late_Gets_Everything", [](Mood& m) { m.m_late_prompt_ms = 300; }, Box::Completed, All, Whole,
     Goes, Text},
    {"That_Prompts_Without_A_Blank_Gets_Everything", [](Mood& m) { m.m_prompt_without_blank = true; }, Box::Completed,
     All, Whole, Goes, Text},
    {"That_Answers_Byte_By_Byte_Gets_Everything", [](Mood& m) { m.m_split_answers = true; }, Box::Completed, All, Whole,
     Goes, Text, 3},
    {"That_Answers_Byte_By_Byte_Gets_Everything_In_Unicode", [](Mood& m) { m.m_split_answers = true; }, Box::Completed,
     All, Whole, Goes, Text_Unicode, 3},
    {"That_Answers_A_Little_Late_Gets_Everything", [](Mood& m) { m.m_answer_delay_ms = 5; }, Box::Completed, All, Whole,
     Goes, Text},
    {"That_Speaks_Unasked_Between_Answers_Gets_Everything", [](Mood& m) { m.m_unsolicited = true; }, Box::Completed,
     All, Whole, Goes, Text},
    {"That_Ends_Lines_In_CR_Alone_Gets_Everything", [](Mood& m) { m.m_cr_only = true; }, Box::Completed, All, Whole,
     Goes, Text},
    {"That_Never_Stops_Talking_Gets_Everything", [](Mood& m) { m.m_never_stops_talking = true; }, Box::Completed, All,
     Whole, Goes, Text},
    {"That_Refuses_The_Parameters_Gets_Everything", [](Mood& m) { m.m_error_for["AT+CSMP=17,255,0,0"] = "set"; },
     Box::Completed, All, Whole, Goes, Text},
    {"That_Refuses_Every_Message_Gets_None_Unnoticed", [](Mood& m) { m.m_error_for["AT+CMGS=*"] = "no"; },
     Box::Completed, Nothing, Whole, Goes, Text},
    {"That_Fails_The_Second_Message_Gets_The_Others",
     [](Mood& m) { m.m_cms_error_at[2] = 500; },
     Box::Completed,
     {0, 2, 3},
     Whole,
     Goes,
     Text},
    {"That_Fails_The_Third_Message_Gets_The_Others_In_Unicode",
     [](Mood& m) { m.m_cms_error_at[3] = 500; },
     Box::Completed,
     {0, 1, 3},
     Whole,
     Goes,
     Text_Unicode},
    {"That_Hangs_Up_At_The_First_Message_Ends_The_Job", [](Mood& m) { m.m_hang_up_at = 1; }, Box::Connection_Error,
     Nothing, Whole, Anew, Text},
    {"That_Hangs_Up_At_The_Last_Message_Ends_The_Job",
     [](Mood& m) { m.m_hang_up_at = 4; },
     Box::Connection_Error,
     {0, 1, 2},
     Whole,
     Anew,
     Text},
    {"That_Hangs_Up_At_The_Second_Message_Ends_A_Unicode_Job",
     [](Mood& m) { m.m_hang_up_at = 2; },
     Box::Connection_Error,
     {0},
     Whole,
     Anew,
     Text_Unicode},
    {"That_Hangs_Up_In_The_Second_Text_Ends_The_Job",
     [](Mood& m) { m.m_hang_up_in_body_at = 2; },
     Box::Connection_Error,
     {0},
     Whole,
     Anew,
     Text},
    {"That_Stops_Reading_At_The_Second_Message_Ends_The_Job",
     [](Mood& m) { m.m_stop_reading_at = 2; },
     Box::Connection_Error,
     {0},
     Whole,
     Anew,
     Text},
    {"That_Stops_Reading_At_The_Second_Message_Ends_A_Unicode_Job",
     [](Mood& m) { m.m_stop_reading_at = 2; },
     Box::Connection_Error,
     {0},
     Whole,
     Anew,
     Text_Unicode},
};

class Sending_In_A_Mood : public Sending_Program
{
public:
    using Fixture = Sending_Program;

    explicit Sending_In_A_Mood(const Row& row) : m_row(row) {}
    void TestBody() override;

private:
    void Expect_What_Arrived();
    void Expect_What_Was_Heard();

    const Row& m_row;
};

void Sending_In_A_Mood::TestBody()
{
    Slow_Down(m_row.slower);
    Phone_Moods moods;
    moods.m_text_only = m_row.way.m_text_mode;
    m_row.mood(moods);
    phone->Set_Moods(moods);
    Select_The_Phone();
    Fill_The_List(m_row.way);

    EXPECT_EQ(Send(), m_row.box);
    Expect_What_Arrived();
    Expect_What_Was_Heard();

    if (m_row.mended == Mended::Plugged_In_Anew)
        Plug_In_Again();
    else
        phone->Set_Moods({});
    Slow_Down(1);
    Expect_That_Sending_Works();
}

void Sending_In_A_Mood::Expect_What_Arrived()
{
    const auto everything = Everything(m_row.way);
    std::vector<std::string> expected;
    for (const int index : m_row.arrives) {
        if (index < int(everything.size()))
            expected.push_back(everything.at(std::size_t(index)));
    }
    EXPECT_EQ(Inbox(), expected);
}

void Sending_In_A_Mood::Expect_What_Was_Heard()
{
    auto heard = phone->Heard();
    // Until the line is raw, the system throws back what a talkative phone says.
    std::erase_if(heard, [](const std::string& line) { return !line.starts_with("AT"); });
    const std::vector<std::string> nothing;
    const std::vector<std::string> first = {"AT"};
    const std::vector<std::string> asked = {"AT", "AT", "AT+CMGF=?"};
    if (m_row.heard == Heard::First_AT)
        EXPECT_EQ(heard, m_row.mended == Mended::Mood_Goes ? first : nothing);
    else if (m_row.heard == Heard::No_Mode)
        EXPECT_EQ(heard, asked);
    else
        EXPECT_TRUE(heard.size() > asked.size() && std::equal(asked.begin(), asked.end(), heard.begin()))
            << testing::PrintToString(heard);
}

const bool Pdu_Rows_Registered = Register_Each<Sending_In_A_Mood>("Sending_In_PDU_Mode", "A_Phone_", In_PDU_Mode);
const bool Text_Rows_Registered =
    Register_Each<Sending_In_A_Mood>("Sending_In_Text_Mode", "A_Phone_With_Text_Mode_Alone_", In_Text_Mode);

} // namespace
