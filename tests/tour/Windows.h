#pragma once

#include <QString>

// The names of the program's windows, by which the visitor finds them.
namespace Windows {

inline const QString Main = QStringLiteral("CorvaneAppDelegate");
inline const QString Connection = QStringLiteral("Connection_Info");
inline const QString Phone_Wizard = QStringLiteral("Phone_List_Wnd");
inline const QString Please_Wait = QStringLiteral("PleaseWait_Modeless");
inline const QString Exclusions = QStringLiteral("Exclusion_Wizard");
inline const QString Exclusion_Number = QStringLiteral("Update_Ex_Num");
inline const QString Templates = QStringLiteral("Templates");
inline const QString Template = QStringLiteral("UpdateTemp");
inline const QString Sent_Items = QStringLiteral("Sent_Items");
inline const QString Import_Question = QStringLiteral("Load_Num_Info");
inline const QString Fill = QStringLiteral("Fill_Msg_In_List");
inline const QString Edit_One_Window = QStringLiteral("Update_Num_SMS");
inline const QString Edit_Selected_Window = QStringLiteral("Update_Sel_Num_SMS");
inline const QString Long_Message = QStringLiteral("Long_SMS_Dlg");
inline const QString Before_Sending = QStringLiteral("Send_Msg_Info");
inline const QString Progress = QStringLiteral("Send_Modeless");
inline const QString Export_Format = QStringLiteral("Export_Option");
inline const QString Export_Done = QStringLiteral("Open_Export_Log");
inline const QString Help = QStringLiteral("Help_Wnd");
inline const QString Message_Box = QStringLiteral("Message_Box");

} // namespace Windows
