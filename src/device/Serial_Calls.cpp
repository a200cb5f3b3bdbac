#include "device/Serial_Calls.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <unistd.h>

int Serial_Calls::Open(const char* path, int flags)
{
    return ::open(path, flags);
}

int Serial_Calls::Close(int descriptor)
{
    return ::close(descriptor);
}

int Serial_Calls::Get_Status_Flags(int descriptor)
{
    return ::fcntl(descriptor, F_GETFL);
}

int Serial_Calls::Set_Status_Flags(int descriptor, int flags)
{
    return ::fcntl(descriptor, F_SETFL, flags);
}

int Serial_Calls::Lock_Exclusively(int descriptor)
{
    return ::flock(descriptor, LOCK_EX | LOCK_NB);
}

int Serial_Calls::Control(int descriptor, unsigned long request, void* argument)
{
    return ::ioctl(descriptor, request, argument);
}

int Serial_Calls::Get_Attributes(int descriptor, termios& attributes)
{
    return ::tcgetattr(descriptor, &attributes);
}

int Serial_Calls::Set_Attributes(int descriptor, const termios& attributes)
{
    return ::tcsetattr(descriptor, TCSANOW, &attributes);
}

int Serial_Calls::Flush(int descriptor, int queue)
{
    return ::tcflush(descriptor, queue);
}

int Serial_Calls::Send_Break(int descriptor)
{
    return ::tcsendbreak(descriptor, 0);
}

ssize_t Serial_Calls::Read(int descriptor, void* buffer, size_t size)
{
    return ::read(descriptor, buffer, size);
}

ssize_t Serial_Calls::Write(int descriptor, const void* bytes, size_t size)
{
    return ::write(descriptor, bytes, size);
}

Line_Event Serial_Calls::Wait(int descriptor, short events, double seconds, int wake_descriptor)
{
    return Wait_For_Descriptor(descriptor, events, seconds, wake_descriptor);
}

Serial_Calls& Real_Serial_Calls()
{
    static Serial_Calls calls;
    return calls;
}
