#pragma once

#include "device/Stop_Flag.h"

#include <QString>
#include <atomic>

class Main_Window;

// The values that the rooms share, one of each for the life of the process. Texts belong to the interface thread: a
// worker takes copies of them when it starts. The flags are atomic and may be read anywhere.

extern Main_Window* Main_App_wnd; ///< the main window, through which dialogs call back; set at start-up

// Where the data is kept; set once at start-up by Set_Data_Paths.
extern QString Resource_Path;            ///< the application's resource folder
extern QString Corvane_Data_Folder_Path; ///< the data folder in it
extern QString Sent_Item_Path;           ///< the sent items
extern QString Templates_Path;           ///< the templates
extern QString Applied_Exclusion_Path;   ///< the names of the applied exclusion lists
extern QString Exclusion_Folder_Path;    ///< the folder of the exclusion lists
extern QString Exclusion_Index_Path;     ///< the names of all exclusion lists

// The device that the connection wizard was left with.
extern QString sel_port_bsd_str;  ///< device path; empty when none is selected
extern QString sel_port_name_str; ///< display name; empty when none is selected
extern QString Cus_SMS_Num_STR;   ///< service-centre number to send through, as typed; empty for the device's own

extern QString Message_IS; ///< the composer's text as last cut or taken

extern std::atomic<int> sms_thread_var;       ///< 1 while a send job runs
extern std::atomic<bool> Pause_Timer_Running; ///< whether a pause counts down
extern std::atomic<int> ph_find_thread;       ///< 1 while a device search runs
