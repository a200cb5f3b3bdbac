#pragma once

#include <QString>

class Phone_List_Wnd;

/// What the wizard read of the device that it shows, on one line: "Corvane Virtual Phone  ·  Corvane Test  ·  signal
/// Good (20)". Empty when it read nothing. Interface thread.
QString Facts_Of_The_Device(const Phone_List_Wnd& wizard);
