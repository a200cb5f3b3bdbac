#pragma once

#include <QString>

// The virtual phone in place of a real one, to try the program with: nothing is really sent. Interface thread.
namespace Virtual_Phone_Offer {

/// Whether its program stands beside this one.
bool Is_Installed();

/// Starts it, unless it runs already, and has searches offer it until the program ends. Returns nothing, or why it does
/// not run.
QString Start();

/// Of its line, as searches offer it; empty while it does not run.
QString Path();

} // namespace Virtual_Phone_Offer
