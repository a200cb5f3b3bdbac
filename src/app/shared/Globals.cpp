#include "app/shared/Globals.h"

Main_Window* Main_App_wnd = nullptr;

QString Resource_Path;
QString Corvane_Data_Folder_Path;
QString Sent_Item_Path;
QString Templates_Path;
QString Applied_Exclusion_Path;
QString Exclusion_Folder_Path;
QString Exclusion_Index_Path;

QString sel_port_bsd_str;
QString sel_port_name_str;
QString Cus_SMS_Num_STR;

QString Message_IS;

std::atomic<int> sms_thread_var{0};
std::atomic<bool> Pause_Timer_Running{false};
std::atomic<int> ph_find_thread{0};
