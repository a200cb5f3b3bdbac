#pragma once

#include <QString>

// The names of the program's windows, by which a visitor finds them.
namespace Windows {

inline const QString Main = "CorvaneAppDelegate";
inline const QString Connection = "Connection_Info";
inline const QString Phone_Wizard = "Phone_List_Wnd";
inline const QString Please_Wait = "PleaseWait_Modeless";
inline const QString Exclusions = "Exclusion_Wizard";
inline const QString Exclusion_Number = "Update_Ex_Num";
inline const QString Templates = "Templates";
inline const QString Template = "UpdateTemp";
inline const QString Sent_Items = "Sent_Items";
inline const QString Import_Question = "Load_Num_Info";
inline const QString Fill = "Fill_Msg_In_List";
inline const QString Edit_One_Window = "Update_Num_SMS";
inline const QString Edit_Selected_Window = "Update_Sel_Num_SMS";
inline const QString Long_Message = "Long_SMS_Dlg";
inline const QString Before_Sending = "Send_Msg_Info";
inline const QString Progress = "Send_Modeless";
inline const QString Export_Format = "Export_Option";
inline const QString Export_Done = "Open_Export_Log";
inline const QString Help = "Help_Wnd";
inline const QString Message_Box = "Message_Box";
inline const QString Unknown_Rows = "Unknown_Rows_Sheet";
inline const QString Receipt = "Receipt_Wnd";
inline const QString Contacts = "Contacts_Wnd";

} // namespace Windows
