#pragma once

#include <QString>

class Sent_Items;
class Templates;

// What the windows of this room share with each other and with the main window. Interface thread only.

extern Sent_Items* SENT_WND;       ///< the sent items window; null while there is none
extern Templates* Template_Window; ///< the templates window; null while there is none

extern int SENT_EXPORT_MODE;     ///< the format to export: 0 text, 1 HTML; set by Export_Option
extern QString Export_File_Path; ///< the file last exported, which Open_Export_Log opens
