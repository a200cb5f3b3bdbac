#pragma once

#include "phone/Message_Memory.h"
#include "phone/Network.h"
#include "phone/Phone_Manners.h"
#include "phone/Phone_Moods.h"
#include "phone/Phone_Settings.h"
#include "phone/Sim_Lock.h"

#include <optional>
#include <string>
#include <string_view>

namespace Handset {

/// What a command line leads to.
struct Command_Reply
{
    enum class Wants
    {
        Nothing,
        Message_To_Send,
        Message_To_Keep
    };
    std::string m_text;      ///< whole lines, the result among them
    bool m_as_given = false; ///< goes out byte for byte, whatever the moods
    Wants m_wants = Wants::Nothing;
    std::string m_argument; ///< what was said about the message wanted
};

/// What a phone does at its commands, with all that they change. Owned by the phone's mind, used under the phone's
/// lock.
class Phone_Commands
{
public:
    using Time = Network::Time;

    Phone_Commands(const Phone_Moods& moods, Time now);

    void Set_Moods(const Phone_Moods& moods, Time now);
    void Will_Answer(std::string_view command, std::string answer);
    void Plug_In(); ///< settings are at their start

    /// Carries out a line in its normal form, one command after the other up to the first that fails (V.250 5.7.2).
    Command_Reply Obey(const std::string& line, Time now);

    /// A result line as an answer, in the style that +CMEE asks for.
    std::string Error_Answer(std::string_view line) const;

    const Phone_Settings& Settings() const { return m_settings; }
    Message_Memory& Memory() { return m_memory; }
    Network& Net() { return m_network; }
    bool Has_Network(Time now) const;

private:
    Command_Reply Do(const Manner& manner, const std::string& command, Time now);
    std::string Answer_Of(const Manner& manner, const std::string& command, std::string_view argument, Time now);
    bool Set_Function(const Manner& manner, std::string_view argument);
    std::string Wrong_Argument(std::string_view command) const;
    std::string Filled(std::string_view answer, Time now) const;
    std::optional<std::string> Value(std::string_view name, Time now) const;
    std::string Registration(std::string_view command, Time now) const;

    Phone_Manners m_manners;
    Phone_Settings m_settings;
    Sim_Lock m_sim;
    Network m_network;
    Message_Memory m_memory;
};

} // namespace Handset
