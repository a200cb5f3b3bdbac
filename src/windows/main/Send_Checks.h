#pragma once

#include "engine/Send_Order.h"

#include <optional>

class Main_Window;

/// What a send job is to do, after everything that can be checked before a device is opened: a device is selected, no
/// number is left in the number field, there are recipients, the delayed-delivery choices are complete, and blank
/// messages are intended. The first failing check tells or asks the user, and no order is returned. Interface thread.
std::optional<Send_Order> Take_Send_Order(Main_Window& window);
