#pragma once

#include "doctor/Connection_Advice.h"
#include "doctor/Device_Modes.h"
#include "doctor/Finding.h"
#include "doctor/Port_Facts.h"
#include "doctor/Port_Holders.h"

// What is known without opening a port, in words. Pure.
namespace Port_Findings {

Finding On_No_Port();
Finding On_Missing_Port(const QString& path);
Finding On_Other_Mode(const Device_In_Another_Mode& device);
/// That it is there, or that it is for something else than messages.
Finding On_Use(const Port_Facts& port);
Finding On_Missing_Right(const Port_Facts& port, const Connection_Facts::Barred_Port& barred);
Finding On_Holder(const Port_Facts& port, const Port_Holder& holder);
Finding On_Service(const Port_Facts& port);
/// Of a port for mobile data: what it takes, and that it is no serial port.
Finding On_Wwan_Port(const Port_Facts& port);

} // namespace Port_Findings
