#include "windows/main/Line_Moods.h"

#include <algorithm>
#include <cstring>

namespace {

using Moods = Phone_Moods;

constexpr int Late = 5;          // milliseconds, well within a read
constexpr int Too_Late = 60'000; // long after the job

const Line_Mood All_Moods[] = {
    {"No_Echo", [](Moods& m) { m.m_no_echo = true; }},
    {"Echo_Only", [](Moods& m) { m.m_echo_only = true; }},
    {"No_Answer", [](Moods& m) { m.m_silent = true; }},
    {"Pdu_Alone", [](Moods& m) { m.m_pdu_only = true; }, Line_Mood::In_Pdu_Mode},
    {"No_Sending", [](Moods& m) { m.m_no_sms_sending = true; }},
    {"Hex_Alone", [](Moods& m) { m.m_charsets = R"("GSM","HEX")"; }, Line_Mood::In_Unicode_Text, "charsets"},
    {"Ucs2_Alone", [](Moods& m) { m.m_charsets = R"("IRA","UCS2")"; }, Line_Mood::In_Unicode_Text, "charsets"},
    {"Neither_Hex_Nor_Ucs2", [](Moods& m) { m.m_charsets = R"("GSM","IRA")"; }, Line_Mood::In_Unicode_Text, "charsets"},
    {"No_Charset", [](Moods& m) { m.m_charsets.clear(); }, Line_Mood::In_Unicode_Text, "charsets"},
    {"No_Centre", [](Moods& m) { m.m_no_smsc = true; }},
    {"Centre_In_Ucs2", [](Moods& m) { m.m_smsc_in_ucs2 = true; }},
    {"Centre_Not_Told", [](Moods& m) { m.m_smsc_not_supported = true; }},
    {"No_Identity", [](Moods& m) { m.m_undefined_identity = true; }},
    {"No_Battery",
     [](Moods& m) {
         m.m_battery_status = 2;
         m.m_signal = 99;
     }},
    {"No_Prompt", [](Moods& m) { m.m_no_prompt = true; }},
    {"Late_Prompt", [](Moods& m) { m.m_late_prompt_ms = Late; }, Line_Mood::Everywhere, "prompt time"},
    {"Prompt_Too_Late", [](Moods& m) { m.m_late_prompt_ms = Too_Late; }, Line_Mood::Everywhere, "prompt time"},
    {"Prompt_Without_Blank", [](Moods& m) { m.m_prompt_without_blank = true; }},
    {"Answers_In_Single_Bytes", [](Moods& m) { m.m_split_answers = true; }},
    {"Late_Answers", [](Moods& m) { m.m_answer_delay_ms = Late; }, Line_Mood::Everywhere, "answer time"},
    {"Answers_Too_Late", [](Moods& m) { m.m_answer_delay_ms = Too_Late; }, Line_Mood::Everywhere, "answer time"},
    {"Unsolicited", [](Moods& m) { m.m_unsolicited = true; }},
    {"Cr_Alone", [](Moods& m) { m.m_cr_only = true; }},
    {"Garbage", [](Moods& m) { m.m_garbage = true; }},
    {"Endless_Talk", [](Moods& m) { m.m_never_stops_talking = true; }},
    {"Error_For_AT", [](Moods& m) { m.m_error_for["AT"] = "not now"; }},
    {"Error_For_Modes", [](Moods& m) { m.m_error_for["AT+CMGF=?"] = "0,1"; }},
    {"Error_For_Service", [](Moods& m) { m.m_error_for["AT+CSMS=0"] = "no such service"; }},
    {"Error_For_Format", [](Moods& m) { m.m_error_for["AT+CMGF=0"] = m.m_error_for["AT+CMGF=1"] = "is set"; }},
    {"Error_For_Message", [](Moods& m) { m.m_error_for["AT+CMGS=*"] = "no credit"; }},
    {"Error_For_Parameters", [](Moods& m) { m.m_error_for["AT+CSMP=*"] = "are set"; }, Line_Mood::In_Text_Mode},
    {"Error_For_Charsets", [](Moods& m) { m.m_error_for["AT+CSCS=?"] = "what?"; }, Line_Mood::In_Unicode_Text},
    {"Error_For_Hex", [](Moods& m) { m.m_error_for["AT+CSCS=\"HEX\""] = "not that"; }, Line_Mood::In_Unicode_Text},
    {"First_Message_Refused", [](Moods& m) { m.m_cms_error_at[1] = 500; }},
    {"Second_Message_Refused", [](Moods& m) { m.m_cms_error_at[2] = 38; }},
    {"Hangs_Up_At_First", [](Moods& m) { m.m_hang_up_at = 1; }, Line_Mood::Everywhere, "hang-up"},
    {"Hangs_Up_At_Second", [](Moods& m) { m.m_hang_up_at = 2; }, Line_Mood::Everywhere, "hang-up"},
    {"Hangs_Up_In_First_Body", [](Moods& m) { m.m_hang_up_in_body_at = 1; }, Line_Mood::Everywhere, "body"},
    {"Hangs_Up_In_Second_Body", [](Moods& m) { m.m_hang_up_in_body_at = 2; }, Line_Mood::Everywhere, "body"},
    {"Takes_Nothing", [](Moods& m) { m.m_stop_reading_after = 0; }, Line_Mood::Everywhere, "bytes"},
    {"Takes_Forty_Bytes", [](Moods& m) { m.m_stop_reading_after = 40; }, Line_Mood::Everywhere, "bytes"},
    {"Stops_At_First", [](Moods& m) { m.m_stop_reading_at = 1; }, Line_Mood::Everywhere, "stop"},
    {"Stops_At_Second", [](Moods& m) { m.m_stop_reading_at = 2; }, Line_Mood::Everywhere, "stop"},
};

bool Matters_In(const Line_Mood& mood, const Line_Way& way)
{
    switch (mood.where) {
    case Line_Mood::In_Pdu_Mode:
        return !way.text_mode;
    case Line_Mood::In_Text_Mode:
        return way.text_mode;
    case Line_Mood::In_Unicode_Text:
        return way.text_mode && way.unicode;
    default:
        return true;
    }
}

bool Exclude_Each_Other(const Line_Mood& one, const Line_Mood& other)
{
    return *one.topic != '\0' && std::strcmp(one.topic, other.topic) == 0;
}

// Deals the ways out evenly: each mood or pair gets, of the ways in which all of it matters, the one dealt least.
class Dealer
{
public:
    void Deal(const std::vector<const Line_Mood*>& moods, std::vector<Line_Combination>& combinations)
    {
        const auto ways = Line_Ways();
        std::size_t chosen = ways.size();
        for (std::size_t place = 0; place < ways.size(); ++place) {
            const bool all_matter = std::all_of(
                moods.begin(), moods.end(), [&](const Line_Mood* mood) { return Matters_In(*mood, ways.at(place)); });
            if (all_matter && (chosen == ways.size() || m_dealt.at(place) < m_dealt.at(chosen)))
                chosen = place;
        }
        if (chosen == ways.size())
            return;
        ++m_dealt.at(chosen);
        combinations.push_back({ways.at(chosen), moods});
    }

private:
    std::vector<int> m_dealt = std::vector<int>(Line_Ways().size());
};

} // namespace

std::string Name_Of(const Line_Way& way)
{
    return std::string(way.text_mode ? "Text" : "Pdu") + (way.unicode ? "_Unicode" : "_Seven_Bit") +
           (way.is_long ? "_Long" : "_Short");
}

std::string Line_Combination::Name() const
{
    std::string name = Name_Of(way);
    if (moods.empty())
        name += "_Good_Manners";
    for (const Line_Mood* mood : moods)
        name += (mood == moods.front() ? "_" : "_And_") + std::string(mood->name);
    return name;
}

Phone_Moods Line_Combination::Moods() const
{
    Phone_Moods all;
    all.m_text_only = way.text_mode;
    for (const Line_Mood* mood : moods)
        mood->put(all);
    return all;
}

std::vector<Line_Way> Line_Ways()
{
    std::vector<Line_Way> ways;
    for (const bool text_mode : {false, true})
        for (const bool unicode : {false, true})
            for (const bool is_long : {false, true})
                ways.push_back({text_mode, unicode, is_long});
    return ways;
}

std::vector<Line_Combination> Single_Moods()
{
    std::vector<Line_Combination> combinations;
    for (const Line_Way& way : Line_Ways()) {
        combinations.push_back({way, {}});
        for (const Line_Mood& mood : All_Moods)
            if (!(mood.where == Line_Mood::In_Pdu_Mode && way.text_mode))
                combinations.push_back({way, {&mood}});
    }
    return combinations;
}

std::vector<Line_Combination> Single_Moods_In_One_Way()
{
    std::vector<Line_Combination> combinations;
    Dealer dealer;
    dealer.Deal({}, combinations);
    for (const Line_Mood& mood : All_Moods)
        dealer.Deal({&mood}, combinations);
    return combinations;
}

std::vector<Line_Combination> Pairs_Of_Moods()
{
    std::vector<Line_Combination> combinations;
    Dealer dealer;
    for (const Line_Mood& one : All_Moods)
        for (const Line_Mood& other : All_Moods)
            if (&one < &other && !Exclude_Each_Other(one, other))
                dealer.Deal({&one, &other}, combinations);
    return combinations;
}
