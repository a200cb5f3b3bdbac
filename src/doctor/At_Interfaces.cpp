#include "doctor/At_Interfaces.h"

#include <algorithm>
#include <iterator>

namespace {

using enum Port_Use;

constexpr int Any = -1;

struct Row
{
    int vendor;
    int product;
    int number;
    Port_Use use;
};

// The first row that fits counts.
constexpr Row Numbered[] = {
    // Quectel
    {0x2c7c, Any, 2, Commands},
    {0x2c7c, Any, 3, Second_Commands},
    {0x2c7c, Any, 0, Diagnostics},
    {0x2c7c, Any, 1, Positions},
    // SIMCom
    {0x1e0e, 0x9001, 2, Commands},
    {0x1e0e, 0x9001, 3, Second_Commands},
    {0x1e0e, 0x9001, 0, Diagnostics},
    {0x1e0e, 0x9001, 1, Positions},
    {0x1e0e, 0x9001, 4, Sound},
    {0x1e0e, 0x9205, 2, Commands},
    {0x1e0e, 0x9206, 2, Commands},
    {0x1e0e, 0x9011, 4, Commands},
    {0x1e0e, 0x9100, 3, Commands},
    {0x1e0e, 0x9100, 1, Second_Commands},
    {0x1e0e, 0x9200, 3, Commands},
    {0x1e0e, 0x9200, 1, Second_Commands},
    // Sierra Wireless
    {0x1199, 0x9071, 3, Commands},
    {0x1199, 0x9071, 0, Diagnostics},
    {0x1199, 0x9071, 2, Positions},
    {0x1199, 0x9079, 3, Commands},
    {0x1199, 0x9079, 0, Diagnostics},
    {0x1199, 0x9079, 2, Positions},
    {0x1199, 0x9091, 3, Commands},
    {0x1199, 0x9091, 0, Diagnostics},
    {0x1199, 0x9091, 2, Positions},
    {0x1199, 0xc001, 0, Commands},
    // u-blox
    {0x1546, Any, 0, Commands},
    {0x1546, Any, 2, Second_Commands},
    {0x1546, Any, 4, Second_Commands},
    {0x05c6, 0x908b, 1, Commands},
    {0x05c6, 0x908b, 2, Second_Commands},
};

struct Class_Row
{
    int vendor;
    int interface_class;
    int interface_subclass;
    int interface_protocol;
    Port_Use use;
};

constexpr Class_Row By_Class[] = {
    // Huawei tells its ports apart by their class alone.
    {0x12d1, 0xff, 0x01, 0x02, Commands},
    {0x12d1, 0xff, 0x02, 0x02, Commands},
    {0x12d1, 0xff, 0x01, 0x01, Calls},
    {0x12d1, 0xff, 0x02, 0x01, Calls},
    // A modem by the standard for communication devices, with the commands of V.250.
    {Any, 0x02, 0x02, 0x01, Commands},
};

bool Fits(int wanted, int value)
{
    return wanted == Any || wanted == value;
}

} // namespace

bool May_Take_Commands(Port_Use use)
{
    return use == Commands || use == Second_Commands || use == Calls || use == Unknown;
}

Port_Use Use_Of_Interface(const Usb_Interface& port)
{
    const auto* numbered = std::find_if(std::begin(Numbered), std::end(Numbered), [&](const Row& row) {
        return row.vendor == port.vendor && Fits(row.product, port.product) && row.number == port.number;
    });
    if (numbered != std::end(Numbered))
        return numbered->use;
    const auto* by_class = std::find_if(std::begin(By_Class), std::end(By_Class), [&](const Class_Row& row) {
        return Fits(row.vendor, port.vendor) && row.interface_class == port.interface_class &&
               row.interface_subclass == port.interface_subclass && row.interface_protocol == port.interface_protocol;
    });
    return by_class == std::end(By_Class) ? Unknown : by_class->use;
}
