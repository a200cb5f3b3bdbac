#pragma once

/// Whether the open descriptor is a pseudo-terminal's, on which a claim to exclusive use outlives a program that was
/// killed.
bool Is_Pseudo_Terminal(int descriptor);

/// Whether anybody has the same terminal open besides this descriptor, the calling program included. Yes where this
/// account may not see that. Asks the system about every open file: for a rare case only. Any thread.
bool Is_Open_Elsewhere(int descriptor);
