#pragma once

#include "device/Serial_Calls.h"
#include "platform/Waiting.h"

#include <QByteArray>
#include <functional>
#include <map>
#include <mutex>
#include <poll.h>
#include <vector>

// The real system calls, watched: what was written and when, and which descriptors were opened and closed. What a test
// wants to happen at a write is called before it and may throw. The write of a command ends when the device has begun
// to answer, or after a second, so that a busy machine and a fast pace together lose no answer.
class Watched_Calls : public Serial_Calls
{
public:
    struct Written
    {
        QByteArray bytes;
        double seconds;
    };

    int Open(const char* path, int flags) override
    {
        const int descriptor = Serial_Calls::Open(path, flags);
        const std::lock_guard guard(m_lock);
        if (descriptor >= 0)
            ++m_open[descriptor];
        return descriptor;
    }

    int Close(int descriptor) override
    {
        {
            const std::lock_guard guard(m_lock);
            if (--m_open[descriptor] < 0)
                ++m_closed_twice;
        }
        return Serial_Calls::Close(descriptor);
    }

    ssize_t Write(int descriptor, const void* bytes, size_t size) override
    {
        const QByteArray text(static_cast<const char*>(bytes), static_cast<qsizetype>(size));
        if (m_before_write)
            m_before_write(text);
        const auto written = Serial_Calls::Write(descriptor, bytes, size);
        {
            const std::lock_guard guard(m_lock);
            m_written.push_back({text, Now_Seconds()});
        }
        if (text.startsWith("AT"))
            Serial_Calls::Wait(descriptor, POLLIN, 1.0);
        return written;
    }

    std::vector<Written> Writes() const
    {
        const std::lock_guard guard(m_lock);
        return m_written;
    }
    void Forget_Writes()
    {
        const std::lock_guard guard(m_lock);
        m_written.clear();
    }
    int Still_Open() const
    {
        const std::lock_guard guard(m_lock);
        int count = 0;
        for (const auto& [descriptor, opened] : m_open)
            count += opened;
        return count;
    }
    int Closed_Twice() const
    {
        const std::lock_guard guard(m_lock);
        return m_closed_twice;
    }

    std::function<void(const QByteArray&)> m_before_write; // set before the job starts

private:
    mutable std::mutex m_lock;
    std::map<int, int> m_open;
    int m_closed_twice = 0;
    std::vector<Written> m_written;
};
