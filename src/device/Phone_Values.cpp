#include "device/Phone_Values.h"

const char* Phone_Value_Field(Phone_Value value)
{
    static constexpr const char* fields[Phone_Value_Count] = {"_manfacturer_edit", "_model_edit",    "_imei_edit",
                                                              "_imsi_edit",        "_battery_edit",  "_signal_edit",
                                                              "_operator_edit",    "_revision_edit", "_def_smsc_edit"};
    return fields[static_cast<int>(value)];
}
