#include "doctor/Phone_Search.h"

#include "device/MFCSMS.h"

std::atomic<int> ph_find_thread{0};

void Search_Phones(MFCSMS& session, Found_Port_List& found)
{
    constexpr int Path_Buffer_Size = 1024;
    Modem_Iterator modems;
    session.FindModems(modems);
    QString last_path;
    session.GetModemPath(modems, last_path, Path_Buffer_Size, found);
}
