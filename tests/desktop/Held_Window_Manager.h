#pragma once

#include <sys/types.h>

// The window manager stands still during the life of this object, as on a busy machine: it learns at once, afterwards,
// of everything that has happened to windows meanwhile.
class Held_Window_Manager
{
public:
    Held_Window_Manager();
    ~Held_Window_Manager();
    Held_Window_Manager(const Held_Window_Manager&) = delete;
    Held_Window_Manager& operator=(const Held_Window_Manager&) = delete;

    static inline pid_t process = 0; ///< set where it is started
};
