#include "toolkit/Main_Window.h"

Main_Window* Main_App_wnd = nullptr;
