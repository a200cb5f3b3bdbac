#pragma once

#include "list/Recipient_List.h"

#include <functional>

class Main_Window;

/// Changes a copy of the recipients on a worker and replaces the list by it. Meanwhile the caller keeps user input
/// away, with a sheet or by making it wait. Interface thread only.
void Change_Recipients(Main_Window& window, const std::function<void(Recipient_List&)>& change);
