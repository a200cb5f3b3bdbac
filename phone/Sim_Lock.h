#pragma once

#include "phone/Phone_Moods.h"

#include <string>
#include <string_view>

namespace Handset {

/// Whether the SIM card asks for its PIN or PUK (3GPP TS 27.007 8.3). Owned by the phone, used under its lock.
class Sim_Lock
{
public:
    explicit Sim_Lock(const Phone_Moods& moods) { Set_Moods(moods); }

    void Set_Moods(const Phone_Moods& moods); ///< a PIN or PUK that changed is asked for anew
    void Start_Afresh();                      ///< the phone was switched on: a PIN is asked for again

    bool Is_Ready() const { return m_need == Need::Nothing; }
    std::string State() const; ///< as +CPIN? shows it

    /// Whether this command is refused in this state, and how: a result line, or an empty text.
    std::string Refusal_Of(std::string_view command) const;

    /// What follows "+CPIN=": the result line.
    std::string Enter(std::string_view argument);

private:
    enum class Need
    {
        Nothing,
        Pin,
        Puk
    };

    std::string m_pin;
    bool m_puk_needed = false;
    Need m_need = Need::Nothing;
    int m_tries_left = 0;
};

} // namespace Handset
