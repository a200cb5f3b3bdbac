#pragma once

#include <QString>

// The device chosen in the connection wizard. Interface thread only; a worker copies what it needs at its start.

extern QString sel_port_bsd_str;  ///< device path; empty when none is selected
extern QString sel_port_name_str; ///< display name; empty when none is selected
extern QString Cus_SMS_Num_STR;   ///< service-centre number to send through, as typed; empty for the device's own
