#pragma once

/// What a port of a device is for.
enum class Port_Use
{
    Commands,        ///< the best port for AT commands
    Second_Commands, ///< another one
    Calls,           ///< for data calls; it takes AT commands as well
    Unknown,
    Positions,   ///< a satellite receiver's
    Diagnostics, ///< the maker's
    Packets,     ///< QMI or MBIM
    Sound,
    Left_Alone ///< the system says that nothing should try it
};

/// Whether AT commands may be tried on it.
bool May_Take_Commands(Port_Use use);

/// An interface of a USB device as the kernel describes it; -1 where it does not say.
struct Usb_Interface
{
    int vendor = -1;
    int product = -1;
    int number = -1;
    int interface_class = -1;
    int interface_subclass = -1;
    int interface_protocol = -1;
};

/// What an interface is for, by the habits of its maker and by its class.
Port_Use Use_Of_Interface(const Usb_Interface& port);
