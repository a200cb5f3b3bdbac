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
};

// V.250, 3GPP TS 27.005 3 and 27.007 5 to 8.
constexpr std::array Default_Rows = {
    Row{"AT", Deed::Nothing, OK_ANSWER},
    Row{"ATE", Deed::Echo_Off, OK_ANSWER},
    Row{"ATE0", Deed::Echo_Off, OK_ANSWER},
    Row{"ATE1", Deed::Echo_On, OK_ANSWER},
    Row{"ATZ", Deed::Start_Afresh, OK_ANSWER},
    Row{"ATZ0", Deed::Start_Afresh, OK_ANSWER},
    Row{"AT&F", Deed::Start_Afresh, OK_ANSWER},
    Row{"AT&F0", Deed::Start_Afresh, OK_ANSWER},
    Row{"ATI", Deed::Nothing, ANSWER("Corvane Virtual Phone")},

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
    Row{"AT+COPS?", Deed::Nothing, ANSWER("+COPS: 0,0,\"Corvane Test\"")},
    Row{"AT+CREG?", Deed::Nothing, ANSWER("+CREG: 0,1")},
    Row{"AT+CPIN?", Deed::Nothing, ANSWER("+CPIN: READY")},
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
    Mood_Row{&Phone_Moods::m_smsc_not_supported, {"AT+CSCA?", Deed::Nothing, ANSWER("COMMAND NOT SUPPORT")}},
    Mood_Row{&Phone_Moods::m_undefined_identity, {"AT+GMI", Deed::Nothing, ANSWER("Undefined")}},
    Mood_Row{&Phone_Moods::m_undefined_identity, {"AT+GMM", Deed::Nothing, ANSWER("Undefined")}},
    Mood_Row{&Phone_Moods::m_undefined_identity, {"AT+CGSN", Deed::Nothing, ANSWER("Undefined")}},
    Mood_Row{&Phone_Moods::m_undefined_identity, {"AT+GMR", Deed::Nothing, ANSWER("Undefined")}},
};

#undef ANSWER
#undef OK_ANSWER
#undef ERROR_ANSWER

Manner Manner_Of(const Row& row)
{
    return {row.m_command, row.m_deed, row.m_answer, false};
}

const std::map<std::string, Manner, std::less<>>& Default_Manners()
{
    static const auto rows = [] {
        std::map<std::string, Manner, std::less<>> made;
        for (const Row& row : Default_Rows)
            made[row.m_command] = Manner_Of(row);
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
    for (const Mood_Row& row : Rows_Of_Moods) {
        if (moods.*row.m_mood)
            m_of_moods[row.m_row.m_command] = Manner_Of(row.m_row);
    }
    for (const auto& [command, text] : moods.m_error_for) {
        const std::string normal = Normal_Command(command);
        m_of_moods[normal] = {normal, Deed::Nothing, "\r\nERROR: " + text + "\r\n", false};
    }
}

void Phone_Manners::Will_Answer(std::string_view command, std::string answer)
{
    const std::string normal = Normal_Command(command);
    m_given[normal] = {normal, Deed::Nothing, std::move(answer), true};
}

Manner Phone_Manners::Find(const std::string& command) const
{
    for (const Rows* rows : {&m_given, &m_of_moods, &Default_Manners()}) {
        if (const Manner* found = Find_In(*rows, command))
            return *found;
    }
    return {command, Deed::Nothing, "\r\nERROR\r\n", false};
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
