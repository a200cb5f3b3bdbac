#include "windows/stores/Store_Globals.h"

Sent_Items* SENT_WND = nullptr;
Templates* Template_Window = nullptr;

int SENT_EXPORT_MODE = 0;
QString Export_File_Path;
