#pragma once

#include "list/Recipient_List.h"

#include <functional>

class Main_Window;

/// Changes a copy of the recipients on a worker and puts it in the list's place. The caller keeps the user away
/// meanwhile: with a sheet, or by input that waits. Interface thread only.
void Change_Recipients(Main_Window& window, const std::function<void(Recipient_List&)>& change);
