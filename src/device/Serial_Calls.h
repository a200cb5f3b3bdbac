#pragma once

#include "platform/Waiting.h"

#include <sys/types.h>
#include <termios.h>

/// The system calls made on a serial line: -1 and errno on failure. A thin seam that tests override to fail or watch a
/// call. Stateless; any thread.
class Serial_Calls
{
public:
    virtual ~Serial_Calls() = default;

    virtual int Open(const char* path, int flags);
    virtual int Close(int descriptor);
    virtual int Get_Status_Flags(int descriptor);
    virtual int Set_Status_Flags(int descriptor, int flags);
    virtual int Lock_Exclusively(int descriptor);
    virtual int Control(int descriptor, unsigned long request, void* argument);
    virtual int Get_Attributes(int descriptor, termios& attributes);
    virtual int Set_Attributes(int descriptor, const termios& attributes); ///< at once (TCSANOW)
    virtual int Flush(int descriptor, int queue);
    virtual int Send_Break(int descriptor);
    virtual ssize_t Read(int descriptor, void* buffer, size_t size);
    virtual ssize_t Write(int descriptor, const void* bytes, size_t size);

    /// Real seconds, already paced; negative means no limit.
    virtual Line_Event Wait(int descriptor, short events, double seconds, int wake_descriptor = -1);
};

Serial_Calls& Real_Serial_Calls();
