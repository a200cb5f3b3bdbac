#include "phone/Sim_Lock.h"

#include "phone/Phone_Settings.h"

#include <array>

namespace Handset {

namespace {

constexpr int Pin_Tries = 3; // 3GPP TS 31.101

struct Locked_Row
{
    const char* m_begin;
    bool m_is_message; // refused with a +CMS ERROR
};

constexpr std::array Locked_Rows = {
    Locked_Row{"AT+CMGS=", true}, Locked_Row{"AT+CMGW", true},  Locked_Row{"AT+CMGL", true},
    Locked_Row{"AT+CMGR=", true}, Locked_Row{"AT+CMGD=", true}, Locked_Row{"AT+CPMS", true},
    Locked_Row{"AT+CSCA", true},  Locked_Row{"AT+CNMI=", true}, Locked_Row{"AT+CIMI", false},
    Locked_Row{"AT+CNUM", false}, Locked_Row{"AT+COPS=", false}};

} // namespace

void Sim_Lock::Set_Moods(const Phone_Moods& moods)
{
    if (moods.m_pin == m_pin && moods.m_puk_needed == m_puk_needed)
        return;
    m_pin = moods.m_pin;
    m_puk_needed = moods.m_puk_needed;
    m_need = m_puk_needed ? Need::Puk : Need::Nothing;
    m_tries_left = Pin_Tries;
    Start_Afresh();
}

void Sim_Lock::Start_Afresh()
{
    if (m_need == Need::Nothing && !m_pin.empty())
        m_need = Need::Pin;
}

std::string Sim_Lock::State() const
{
    if (m_need == Need::Nothing)
        return "READY";
    return m_need == Need::Pin ? "SIM PIN" : "SIM PUK";
}

std::string Sim_Lock::Refusal_Of(std::string_view command) const
{
    if (m_need == Need::Nothing || command.ends_with("=?"))
        return {};
    for (const Locked_Row& row : Locked_Rows) {
        if (!command.starts_with(row.m_begin))
            continue;
        if (row.m_is_message)
            return m_need == Need::Pin ? "+CMS ERROR: 311" : "+CMS ERROR: 316";
        return m_need == Need::Pin ? "+CME ERROR: 11" : "+CME ERROR: 12";
    }
    return {};
}

std::string Sim_Lock::Enter(std::string_view argument)
{
    if (m_need == Need::Nothing)
        return "+CME ERROR: 3";
    const auto given = Unquoted(argument).value_or(argument);
    if (m_need == Need::Pin && given == m_pin) {
        m_need = Need::Nothing;
        m_tries_left = Pin_Tries;
        return "OK";
    }
    if (m_need == Need::Pin && --m_tries_left == 0)
        m_need = Need::Puk;
    return "+CME ERROR: 16";
}

} // namespace Handset
