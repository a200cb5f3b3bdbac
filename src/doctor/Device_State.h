#pragma once

#include "device/Sim_State.h"

#include <QString>
#include <optional>

/// What a device says about itself when it is asked whether it could send. A value.
struct Device_State
{
    enum class Line
    {
        Closed, ///< it could not be opened; error says why
        Silent, ///< nothing that understands AT
        Answers
    };
    /// The best of what the device says about each kind of network counts: the first here.
    enum class Network
    {
        Home,
        Roaming,
        Emergency_Calls,
        Denied,
        Searching,
        Not_Searching,
        Unknown
    };
    enum class Centre
    {
        Unknown,   ///< the device does not say
        Not_Asked, ///< nobody was there to be asked
        Set,
        Empty,
        Odd ///< something stands there that is no number
    };

    Line line = Line::Closed;
    int error = 0; ///< an errno
    QString label; ///< maker and model
    Sim_State card = Sim_State::Unknown;
    std::optional<int> tries; ///< that are left for the PIN or the PUK that is wanted
    Network network = Network::Unknown;
    std::optional<int> signal;         ///< 0 to 31 (3GPP TS 27.007, 8.5)
    std::optional<int> signal_percent; ///< where it is told so instead
    Centre centre = Centre::Unknown;
    bool takes_messages = true;
    bool is_whole = false; ///< every question was asked
};

/// What a number for a registration means (3GPP TS 27.007, 7.2, 10.1.20 and 10.1.22).
Device_State::Network Network_Of_Number(int number);
