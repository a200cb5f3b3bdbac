#include "doctor/Device_State.h"

Device_State::Network Network_Of_Number(int number)
{
    switch (number) {
    case 1:
    case 6:
    case 9:
        return Device_State::Network::Home;
    case 5:
    case 7:
    case 10:
        return Device_State::Network::Roaming;
    case 8:
        return Device_State::Network::Emergency_Calls;
    case 3:
        return Device_State::Network::Denied;
    case 2:
        return Device_State::Network::Searching;
    case 0:
        return Device_State::Network::Not_Searching;
    default:
        return Device_State::Network::Unknown;
    }
}
