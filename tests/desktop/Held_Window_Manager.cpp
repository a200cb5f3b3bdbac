#include "desktop/Held_Window_Manager.h"

#include <csignal>

Held_Window_Manager::Held_Window_Manager()
{
    kill(process, SIGSTOP);
}

Held_Window_Manager::~Held_Window_Manager()
{
    kill(process, SIGCONT);
}
