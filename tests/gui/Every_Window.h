#pragma once

#include "windows/main/CorvaneAppDelegate.h"

#include <functional>
#include <vector>

// A window, and what to do for it to show the longest texts that it ever shows.
struct Sight
{
    const char* what;
    std::function<QWidget&(CorvaneAppDelegate&)> window;
    std::vector<std::pair<const char*, QString>> labels = {}; // with their texts; they are shown

    QWidget& Prepared(CorvaneAppDelegate& main) const;
};

/// Every window of the program, some of them more than once.
const std::vector<Sight>& Every_Window();
