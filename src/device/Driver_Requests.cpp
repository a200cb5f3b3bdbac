#include "device/Driver_Requests.h"

#include "device/Open_Elsewhere.h"
#include "platform/Leaving_Wait.h"
#include "platform/Pace.h"

#include <algorithm>
#include <cerrno>
#include <linux/serial.h>
#include <sys/ioctl.h>

namespace {

constexpr double Drain_Seconds = 2;
constexpr double Shortest_Drain = 0.2; // real seconds, so that a fast pace loses no bytes

bool Means_Unsupported(int error)
{
    return error == ENOTTY || error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EPERM ||
           error == EACCES;
}

} // namespace

// For Arbitrary_Speed.cpp, which cannot include the seam's header.
int Control_Line(Serial_Calls& calls, int descriptor, unsigned long request, void* argument);

int Control_Line(Serial_Calls& calls, int descriptor, unsigned long request, void* argument)
{
    return calls.Control(descriptor, request, argument);
}

int Request_Low_Latency(Serial_Calls& calls, int descriptor)
{
    serial_struct driver{};
    if (calls.Control(descriptor, TIOCGSERIAL, &driver) == -1)
        return Means_Unsupported(errno) ? 0 : -1;
    if (driver.flags & ASYNC_LOW_LATENCY)
        return 0;
    driver.flags |= ASYNC_LOW_LATENCY;
    if (calls.Control(descriptor, TIOCSSERIAL, &driver) == -1)
        return Means_Unsupported(errno) ? 0 : -1;
    return 0;
}

void Release_Exclusive_Use(Serial_Calls& calls, int descriptor)
{
    calls.Control(descriptor, TIOCNXCL, nullptr);
}

bool Is_Claimed_Exclusively(Serial_Calls& calls, int descriptor)
{
    int is_claimed = 0;
    if (calls.Control(descriptor, TIOCGEXCL, &is_claimed) != 0 || is_claimed == 0)
        return false;
    return !Is_Pseudo_Terminal(descriptor) || Is_Open_Elsewhere(descriptor);
}

double Seconds_To_Drain()
{
    return std::max(Drain_Seconds, Shortest_Drain * Pace());
}

int Drain_With_An_End(Serial_Calls& calls, int descriptor)
{
    int waiting = 0;
    int result = 0;
    Wait_Seconds_Also_In_Leaving(Seconds_To_Drain(), [&] {
        result = calls.Control(descriptor, TIOCOUTQ, &waiting);
        return result == -1 || waiting == 0;
    });
    if (result == -1)
        return -1;
    if (waiting == 0)
        return 0;
    calls.Flush(descriptor, TCOFLUSH);
    errno = ETIMEDOUT;
    return -1;
}
