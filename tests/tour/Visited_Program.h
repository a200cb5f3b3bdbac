#pragma once

#include "app/Program.h"

#include <functional>

/// Runs the program with its windows on this thread, and the visitor on another; prepare is called before the windows
/// take anything. When the visit is over, the program leaves. Returns an exit status: 0 when nothing was thrown.
int Run_Visited(const Command_Line& command_line, const std::function<void(Program&)>& prepare,
                const std::function<void(Program&)>& visit);
