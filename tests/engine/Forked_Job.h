#pragma once

#include "engine/Confirmed_Manner.h"
#include "engine/Send_Order.h"
#include "phone/Virtual_Phone.h"

#include <string>
#include <vector>

// A confirmed job in a process of its own, on the line of a phone that lives in this one, and its death at any moment.

/// Where the process dies, counted from 1.
struct Job_Death
{
    enum class At
    {
        Never,
        Before_Call, ///< that changes files
        After_Call,
        Byte_Written, ///< to the phone, and no more of that write
        Byte_Read,    ///< from the phone, once everything has been done that follows from it
        Text_Shown    ///< in front of a try, a hold or another wait
    };
    At at = At::Never;
    int count = 0;
};

/// How it went.
struct Job_Life
{
    bool was_killed = false;
    int calls = 0; ///< that change files
    int bytes_written = 0;
    int bytes_read = 0;
    int texts_shown = 0;
    std::vector<std::string> made; ///< a line for each of the calls: its name, its file's name, its bytes, "ok"
    std::vector<std::string> rows; ///< a line for each row that was told: its index, its state as a number, "earlier"
};

/// Lives through one; the phone has heard all that was written to it then. The caller has no other threads but the
/// phone's.
Job_Life Live(const Virtual_Phone& phone, const Send_Order& order, const Confirmed_Options& options,
              const Job_Death& death);
