#include "device/Chosen_Device.h"

QString sel_port_bsd_str;
QString sel_port_name_str;
QString Cus_SMS_Num_STR;
