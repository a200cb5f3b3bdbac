#include "device/Non_Blocking_Transfer.h"

#include <cerrno>
#include <fcntl.h>

namespace {

class Non_Blocking_Mode
{
public:
    Non_Blocking_Mode(Serial_Calls& calls, int descriptor)
        : m_calls(calls), m_descriptor(descriptor), m_flags(calls.Get_Status_Flags(descriptor))
    {
        m_is_on = m_flags != -1 && (m_flags & O_NONBLOCK) != 0;
        m_was_on = m_is_on;
        if (m_flags != -1 && !m_is_on)
            m_is_on = calls.Set_Status_Flags(descriptor, m_flags | O_NONBLOCK) != -1;
    }
    ~Non_Blocking_Mode()
    {
        const int error = errno;
        if (m_is_on && !m_was_on)
            m_calls.Set_Status_Flags(m_descriptor, m_flags);
        errno = error;
    }
    Non_Blocking_Mode(const Non_Blocking_Mode&) = delete;
    Non_Blocking_Mode& operator=(const Non_Blocking_Mode&) = delete;

    bool Is_On() const { return m_is_on; }

private:
    Serial_Calls& m_calls;
    int m_descriptor;
    int m_flags;
    bool m_is_on;
    bool m_was_on;
};

} // namespace

ssize_t Read_Without_Blocking(Serial_Calls& calls, int descriptor, char* bytes, size_t size)
{
    const Non_Blocking_Mode mode(calls, descriptor);
    return mode.Is_On() ? calls.Read(descriptor, bytes, size) : -1;
}

ssize_t Write_Without_Blocking(Serial_Calls& calls, int descriptor, const char* bytes, size_t size)
{
    const Non_Blocking_Mode mode(calls, descriptor);
    return mode.Is_On() ? calls.Write(descriptor, bytes, size) : -1;
}
