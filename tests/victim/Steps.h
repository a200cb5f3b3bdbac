#pragma once

#include "victim/Doomed_Calls.h"

/// What the disk is like that the program's data are on.
enum class Disk : char
{
    Usual = 'u',
    Full = 'f', ///< there is no room from the program's start on, on a small file system of its own if we may have one
    Read_Only = 'r', ///< the data folder is, from the program's start on, for a user without power over it
};

/// What a victim is to do, and how.
struct Order
{
    std::string steps = "start"; ///< and nothing more, "look", "job", "sent_items", "templates", "import", "export",
                                 ///< "exclusion", or "wizard", which selects the phone
    int items = 0;               ///< the recipients of a job
    int first = 0;               ///< the number that they begin with
    Disk disk = Disk::Usual;
    Doom doom = {};
    std::string phone = "-"; ///< the path of the phone's line; "-" for none
    std::string world = {};  ///< the folder that is all its world: data, home, and the files that a person picks
    double pace = 1000;      ///< a victim sets it
};

/// Starts the program in its world, does the steps as a person at its windows would, and leaves it. Says in the last
/// words' journal how it went, a line each: "outcome first", "started", "boxes <step> <box>..", and what the files hold
/// after each step, "file <step> <name> <bytes>"; after a look also "sent <cells of a row, with tabs>", "template ..",
/// "list .." and "applied ..". What is in brackets is in base 64, but for the steps' names.
void Live(const Order& order, Last_Words& last_words);
