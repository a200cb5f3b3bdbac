#include "phone/Phone_Manners.h"

#include <array>

namespace Handset {

namespace {

#define OK_ANSWER "\r\nOK\r\n"
#define ANSWER(text) "\r\n" text "\r\n" OK_ANSWER
#define ERROR_ANSWER "\r\nERROR\r\n"

struct Row
{
    const char* m_command;
    Deed m_deed;
    const char* m_answer;
    const char* m_takes = "";
    const char* m_start = "";
};

// V.250, 3GPP TS 27.005 3 and 27.007 5 to 8.
constexpr std::array Default_Rows = {
    Row{"AT", Deed::Nothing, OK_ANSWER},
    Row{"ATE0", Deed::Echo_Off, OK_ANSWER},
    Row{"ATE1", Deed::Echo_On, OK_ANSWER},
    Row{"ATZ0", Deed::Start_Afresh, OK_ANSWER},
    Row{"AT&F0", Deed::Start_Afresh, OK_ANSWER},
    Row{"ATI0", Deed::Nothing, ANSWER("Corvane Virtual Phone")},
    Row{"ATQ0", Deed::Nothing, OK_ANSWER},
    Row{"ATV1", Deed::Nothing, OK_ANSWER},
    Row{"ATX*", Deed::Nothing, OK_ANSWER},
    Row{"ATH0", Deed::Nothing, OK_ANSWER},
    Row{"ATL*", Deed::Nothing, OK_ANSWER},
    Row{"ATM*", Deed::Nothing, OK_ANSWER},
    Row{"ATS0=*", Deed::Nothing, OK_ANSWER},
    Row{"ATS0?", Deed::Nothing, ANSWER("000")},
    Row{"ATS7=*", Deed::Nothing, OK_ANSWER},
    Row{"AT&C0", Deed::Nothing, OK_ANSWER},
    Row{"AT&C1", Deed::Nothing, OK_ANSWER},
    Row{"AT&D0", Deed::Nothing, OK_ANSWER},
    Row{"AT&D1", Deed::Nothing, OK_ANSWER},
    Row{"AT&D2", Deed::Nothing, OK_ANSWER},
    Row{"AT&W0", Deed::Nothing, OK_ANSWER},
    Row{"AT+GCAP", Deed::Nothing, ANSWER("+GCAP: +CGSM")},
    Row{"AT+CLAC", Deed::Nothing, ANSWER("{commands}")},

    Row{"AT+CMGF=?", Deed::Nothing, ANSWER("+CMGF: (0,1)")},
    Row{"AT+CMGF?", Deed::Nothing, ANSWER("+CMGF: {format}")},
    Row{"AT+CMGF=*", Deed::Set_Format, OK_ANSWER},
    Row{"AT+CSMS=?", Deed::Nothing, ANSWER("+CSMS: (0,1)")},
    Row{"AT+CSMS?", Deed::Nothing, ANSWER("+CSMS: {service},1,1,1")},
    Row{"AT+CSMS=*", Deed::Set_Service, ANSWER("+CSMS: 1,1,1")},
    Row{"AT+CMMS=?", Deed::Nothing, ANSWER("+CMMS: (0-2)")},
    Row{"AT+CMMS?", Deed::Nothing, ANSWER("+CMMS: {more}")},
    Row{"AT+CMMS=*", Deed::Set_More, OK_ANSWER},
    Row{"AT+CSCA=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CSCA?", Deed::Nothing, ANSWER("+CSCA: \"{centre}\",{centre type}")},
    Row{"AT+CSCA=*", Deed::Set_Centre, OK_ANSWER},
    Row{"AT+CSMP=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CSMP?", Deed::Nothing, ANSWER("+CSMP: {parameters}")},
    Row{"AT+CSMP=*", Deed::Set_Parameters, OK_ANSWER},
    Row{"AT+CSCS=?", Deed::Nothing, ANSWER("+CSCS: ({charsets})")},
    Row{"AT+CSCS?", Deed::Nothing, ANSWER("+CSCS: \"{charset}\"")},
    Row{"AT+CSCS=*", Deed::Set_Charset, OK_ANSWER},
    Row{"AT+CMGS=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CMGS=*", Deed::Take_Message, ""},
    Row{"AT+CNMA", Deed::Nothing, "\r\n{acknowledged}\r\n"},
    Row{"AT+CNMA=*", Deed::Nothing, "\r\n{acknowledged}\r\n"},

    Row{"AT+CPMS=?", Deed::Nothing, ANSWER("+CPMS: (\"ME\",\"SM\",\"SR\"),(\"ME\",\"SM\"),(\"ME\",\"SM\")")},
    Row{"AT+CPMS?", Deed::Nothing, ANSWER("+CPMS: {storages}")},
    Row{"AT+CPMS=*", Deed::Set_Storages, ""},
    Row{"AT+CMGL=?", Deed::Nothing, ANSWER("+CMGL: {lists}")},
    Row{"AT+CMGL", Deed::List_Messages, ""},
    Row{"AT+CMGL=*", Deed::List_Messages, ""},
    Row{"AT+CMGR=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CMGR=*", Deed::Read_Message, ""},
    Row{"AT+CMGD=?", Deed::Nothing, ANSWER("+CMGD: ({places}),(0-4)")},
    Row{"AT+CMGD=*", Deed::Delete_Message, ""},
    Row{"AT+CMGW=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CMGW", Deed::Write_Message, ""},
    Row{"AT+CMGW=*", Deed::Write_Message, ""},

    Row{"AT+CGMI", Deed::Nothing, ANSWER("Corvane")},
    Row{"AT+GMI", Deed::Nothing, ANSWER("Corvane")},
    Row{"AT+CGMI=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+GMI=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CGMM", Deed::Nothing, ANSWER("Virtual Phone")},
    Row{"AT+GMM", Deed::Nothing, ANSWER("Virtual Phone")},
    Row{"AT+CGMM=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+GMM=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CGMR", Deed::Nothing, ANSWER("1.0")},
    Row{"AT+GMR", Deed::Nothing, ANSWER("1.0")},
    Row{"AT+CGMR=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+GMR=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CGSN", Deed::Nothing, ANSWER("490154203237518")},
    Row{"AT+GSN", Deed::Nothing, ANSWER("490154203237518")},
    Row{"AT+CGSN=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+GSN=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CIMI", Deed::Nothing, ANSWER("001010123456789")},
    Row{"AT+CIMI=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CBC", Deed::Nothing, ANSWER("+CBC: {battery}")},
    Row{"AT+CBC=?", Deed::Nothing, ANSWER("+CBC: (0-3),(0-100)")},
    Row{"AT+CSQ", Deed::Nothing, ANSWER("+CSQ: {signal},99")},
    Row{"AT+CSQ=?", Deed::Nothing, ANSWER("+CSQ: (0-31,99),(99)")},
    Row{"AT+CESQ", Deed::Nothing, ANSWER("+CESQ: {level},99,255,255,255,255")},
    Row{"AT+CESQ=?", Deed::Nothing, ANSWER("+CESQ: (0-63,99),(0-7,99),(0-96,255),(0-49,255),(0-34,255),(0-97,255)")},
    Row{"AT+CIND=?", Deed::Nothing,
        ANSWER("+CIND: (\"battchg\",(0-5)),(\"signal\",(0-5)),(\"service\",(0,1)),"
               "(\"message\",(0,1)),(\"smsfull\",(0,1))")},
    Row{"AT+CIND?", Deed::Nothing, ANSWER("+CIND: {indicators}")},
    Row{"AT+CNUM", Deed::Nothing, ANSWER("+CNUM: \"\",\"+15550005555\",145")},
    Row{"AT+CNUM=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+COPS=?", Deed::Nothing, ANSWER("+COPS: (2,\"Corvane Test\",\"Corvane\",\"00101\",7),,(0-4),(0-2)")},
    Row{"AT+COPS?", Deed::Nothing, ANSWER("+COPS: {operator}")},
    Row{"AT+COPS=*", Deed::Set_Operator, OK_ANSWER},
    Row{"AT+CREG?", Deed::Ask_Registration, ANSWER("+CREG: {registration +CREG}")},
    Row{"AT+CGREG?", Deed::Ask_Registration, ANSWER("+CGREG: {registration +CGREG}")},
    Row{"AT+CEREG?", Deed::Ask_Registration, ANSWER("+CEREG: {registration +CEREG}")},
    Row{"AT+CPIN?", Deed::Nothing, ANSWER("+CPIN: {sim}")},
    Row{"AT+CPIN=?", Deed::Nothing, OK_ANSWER},
    Row{"AT+CPIN=*", Deed::Enter_Pin, ""},
    Row{"AT+CLIP?", Deed::Nothing, ANSWER("+CLIP: {+CLIP|0},1")},
    Row{"AT+CFUN=?", Deed::Nothing, ANSWER("+CFUN: (0,1,4),(0,1)")},
    Row{"AT+CFUN?", Deed::Nothing, ANSWER("+CFUN: {+CFUN|1}")},
    Row{"AT+CFUN=*", Deed::Set_Function, OK_ANSWER, "(0,1,4)", "1"},
};

// Values that a phone keeps: =? shows what it takes, ? what it has. A row of its own above wins.
struct Kept_Row
{
    const char* m_name;
    const char* m_takes;
    const char* m_start;
};

constexpr std::array Kept_Rows = {
    Kept_Row{"+CMEE", "(0-2)", "0"},  Kept_Row{"+CREG", "(0-2)", "0"},
    Kept_Row{"+CGREG", "(0-2)", "0"}, Kept_Row{"+CEREG", "(0-2)", "0"},
    Kept_Row{"+CGATT", "(0,1)", "1"}, Kept_Row{"+CNMI", "(0-2),(0-3),(0-3),(0-2),(0,1)", "0,0,0,0,0"},
    Kept_Row{"+CSDH", "(0,1)", "0"},  Kept_Row{"+CLIP", "(0,1)", "0"},
    Kept_Row{"+CRC", "(0,1)", "0"},
};

// Rows for the moods that only change answers.
struct Mood_Row
{
    bool Phone_Moods::*m_mood;
    Row m_row;
};

constexpr std::array Rows_Of_Moods = {
    Mood_Row{&Phone_Moods::m_pdu_only, {"AT+CMGF=?", Deed::Nothing, ANSWER("+CMGF: (0)")}},
    Mood_Row{&Phone_Moods::m_pdu_only, {"AT+CMGF=1", Deed::Nothing, ERROR_ANSWER}},
    Mood_Row{&Phone_Moods::m_text_only, {"AT+CMGF=?", Deed::Nothing, ANSWER("+CMGF: (1)")}},
    Mood_Row{&Phone_Moods::m_text_only, {"AT+CMGF=0", Deed::Nothing, ERROR_ANSWER}},
    Mood_Row{&Phone_Moods::m_no_sms_sending, {"AT+CMGS=?", Deed::Nothing, ERROR_ANSWER}},
    Mood_Row{&Phone_Moods::m_cpin_without_ok, {"AT+CPIN?", Deed::Nothing, "\r\n+CPIN: {sim}\r\n"}},
    Mood_Row{&Phone_Moods::m_reports_in_memory_alone,
             {"AT+CNMI=?", Deed::Nothing, ANSWER("+CNMI: (0-2),(0-3),(0-3),(0,2),(0,1)")}},
    Mood_Row{&Phone_Moods::m_reports_in_memory_alone,
             {"AT+CNMI=*", Deed::Keep, OK_ANSWER, "(0-2),(0-3),(0-3),(0,2),(0,1)", "0,0,0,0,0"}},
    Mood_Row{&Phone_Moods::m_smsc_not_supported, {"AT+CSCA?", Deed::Nothing, ANSWER("COMMAND NOT SUPPORT")}},
    Mood_Row{&Phone_Moods::m_undefined_identity, {"AT+GMI", Deed::Nothing, ANSWER("Undefined")}},
    Mood_Row{&Phone_Moods::m_undefined_identity, {"AT+GMM", Deed::Nothing, ANSWER("Undefined")}},
    Mood_Row{&Phone_Moods::m_undefined_identity, {"AT+CGSN", Deed::Nothing, ANSWER("Undefined")}},
    Mood_Row{&Phone_Moods::m_undefined_identity, {"AT+GMR", Deed::Nothing, ANSWER("Undefined")}},
};

Manner Manner_Of(const Row& row)
{
    return {row.m_command, row.m_deed, row.m_answer, false, row.m_takes, row.m_start};
}

// The three commands of a kept value.
std::array<Manner, 3> Manners_Of(const Kept_Row& row)
{
    const std::string name = row.m_name;
    const std::string before = "\r\n" + name + ": ";
    return {Manner{"AT" + name + "=?", Deed::Nothing, before + row.m_takes + "\r\n" OK_ANSWER, false, {}, {}},
            Manner{"AT" + name + "?",
                   Deed::Nothing,
                   before + "{" + name + "|" + row.m_start + "}\r\n" OK_ANSWER,
                   false,
                   {},
                   {}},
            Manner{"AT" + name + "=*", Deed::Keep, OK_ANSWER, false, row.m_takes, row.m_start}};
}

#undef ANSWER
#undef OK_ANSWER
#undef ERROR_ANSWER

const std::map<std::string, Manner, std::less<>>& Default_Manners()
{
    static const auto rows = [] {
        std::map<std::string, Manner, std::less<>> made;
        for (const Row& row : Default_Rows)
            made[row.m_command] = Manner_Of(row);
        for (const Kept_Row& row : Kept_Rows) {
            for (const Manner& manner : Manners_Of(row))
                made.try_emplace(manner.m_command, manner);
        }
        return made;
    }();
    return rows;
}

char Upper(char letter)
{
    return letter >= 'a' && letter <= 'z' ? char(letter - 'a' + 'A') : letter;
}

} // namespace

std::string Normal_Command(std::string_view command)
{
    std::string normal;
    bool in_quotes = false;
    for (const char letter : command) {
        in_quotes = in_quotes != (letter == '"');
        if (in_quotes)
            normal += letter;
        else if (letter != ' ' && letter != '\r' && letter != '\n')
            normal += Upper(letter);
    }
    return normal;
}

Phone_Manners::Phone_Manners(const Phone_Moods& moods)
{
    Set_Moods(moods);
}

void Phone_Manners::Set_Moods(const Phone_Moods& moods)
{
    m_of_moods.clear();
    m_command_not_support = moods.m_command_not_support;
    for (const Mood_Row& row : Rows_Of_Moods) {
        if (moods.*row.m_mood)
            m_of_moods[row.m_row.m_command] = Manner_Of(row.m_row);
    }
    for (const auto& [command, text] : moods.m_error_for) {
        const std::string normal = Normal_Command(command);
        m_of_moods[normal] = {normal, Deed::Nothing, "\r\nERROR: " + text + "\r\n", false, {}, {}};
    }
}

void Phone_Manners::Will_Answer(std::string_view command, std::string answer)
{
    const std::string normal = Normal_Command(command);
    m_given[normal] = {normal, Deed::Nothing, std::move(answer), true, {}, {}};
}

Manner Phone_Manners::Find(const std::string& command) const
{
    for (const Rows* rows : {&m_given, &m_of_moods, &Default_Manners()}) {
        if (const Manner* found = Find_In(*rows, command))
            return *found;
    }
    const char* unknown = m_command_not_support ? "\r\nCOMMAND NOT SUPPORT\r\n" : "\r\nERROR\r\n";
    return {command, Deed::Nothing, unknown, false, {}, {}};
}

std::optional<Manner> Phone_Manners::Find_For_Line(const std::string& line) const
{
    if (const Manner* given = Find_In(m_given, line))
        return *given;
    const auto of_moods = m_of_moods.find(line);
    return of_moods == m_of_moods.end() ? std::nullopt : std::optional(of_moods->second);
}

std::vector<std::string> Phone_Manners::Command_Names()
{
    std::vector<std::string> names;
    for (const auto& [command, manner] : Default_Manners()) {
        const std::string name = command.substr(2, command.find_first_of("=?*", 3) - 2);
        if (name.starts_with('+') && (names.empty() || names.back() != name))
            names.push_back(name);
    }
    return names;
}

// The exact row, else the longest one that ends in "*" and begins the command.
const Manner* Phone_Manners::Find_In(const Rows& rows, const std::string& command)
{
    if (const auto exact = rows.find(command); exact != rows.end())
        return &exact->second;
    for (std::size_t length = command.size();; --length) {
        const auto beginning = rows.find(command.substr(0, length) + "*");
        if (beginning != rows.end())
            return &beginning->second;
        if (length == 0)
            return nullptr;
    }
}

} // namespace Handset
