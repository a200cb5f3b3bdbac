// Only the kernel's termios2 takes any speed, and its header clashes with the C library's; so this stands alone.
#include <asm/termbits.h>

#include <asm/ioctls.h>

// Declared by hand for the same reason.
class Serial_Calls;
int Control_Line(Serial_Calls& calls, int descriptor, unsigned long request, void* argument);

int Request_Arbitrary_Speed(Serial_Calls& calls, int descriptor, long speed)
{
    termios2 record{};
    if (Control_Line(calls, descriptor, TCGETS2, &record) == -1)
        return -1;
    record.c_cflag = (record.c_cflag & ~static_cast<tcflag_t>(CBAUD)) | BOTHER;
    record.c_ospeed = static_cast<speed_t>(speed);
    record.c_ispeed = record.c_ospeed;
    return Control_Line(calls, descriptor, TCSETS2, &record);
}
