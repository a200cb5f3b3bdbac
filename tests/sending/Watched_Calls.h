#pragma once

#include "device/Serial_Calls.h"
#include "phone/Virtual_Phone.h"
#include "platform/Waiting.h"

#include <QByteArray>
#include <cerrno>
#include <chrono>
#include <functional>
#include <map>
#include <mutex>
#include <poll.h>
#include <sys/ioctl.h>
#include <thread>
#include <vector>

// The real system calls, watched: what was written and when, and which descriptors were opened and closed. What a test
// wants to happen at a write is called before it and may throw. The write of a command ends when the device has begun
// to answer, or after a second, so that a busy machine and a fast pace together lose no answer; with the phone at the
// other end known, any write ends when everything has arrived that the phone says to it within a tenth of a second.
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
        if (descriptor >= 0) {
            const std::lock_guard guard(m_lock);
            ++m_open[descriptor];
        }
        if (m_after_open)
            m_after_open();
        return descriptor;
    }

    int Close(int descriptor) override
    {
        if (m_before_close)
            m_before_close();
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
        const long on_the_way = m_peer ? Arrived(descriptor) - static_cast<long>(m_peer->Said()) : 0;
        const auto written = Serial_Calls::Write(descriptor, bytes, size);
        const int error = errno;
        {
            const std::lock_guard guard(m_lock);
            m_written.push_back({text, Now_Seconds()});
        }
        if (m_after_write)
            m_after_write(text);
        if (m_peer)
            Wait_For_All_It_Says(descriptor, on_the_way);
        else if (text.startsWith("AT"))
            Serial_Calls::Wait(descriptor, POLLIN, 1.0);
        errno = error;
        return written;
    }

    ssize_t Read(int descriptor, void* buffer, size_t size) override
    {
        const auto taken = Serial_Calls::Read(descriptor, buffer, size);
        const std::lock_guard guard(m_lock);
        m_taken += taken > 0 ? static_cast<long>(taken) : 0;
        return taken;
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

    // Set before the job starts; called on its thread.
    std::function<void(const QByteArray&)> m_before_write;
    std::function<void(const QByteArray&)> m_after_write;
    std::function<void()> m_after_open; // also after one that failed
    std::function<void()> m_before_close;
    const Virtual_Phone* m_peer = nullptr; // the phone at the other end, where a test knows it

private:
    // What has come to this end of the line, read or not yet.
    long Arrived(int descriptor)
    {
        int waiting = 0;
        Control(descriptor, FIONREAD, &waiting);
        const std::lock_guard guard(m_lock);
        return m_taken + waiting;
    }

    void Wait_For_All_It_Says(int descriptor, long on_the_way)
    {
        using namespace std::chrono_literals;
        if (m_peer->Moods().m_never_stops_talking) // it has something to say every millisecond
            std::this_thread::sleep_for(2ms);
        const long said = static_cast<long>(m_peer->Said(100ms));
        const double end = Now_Seconds() + 1;
        while (Arrived(descriptor) < said + on_the_way && !m_peer->Is_Hung_Up() && Now_Seconds() < end)
            std::this_thread::sleep_for(50us);
    }

    mutable std::mutex m_lock;
    std::map<int, int> m_open;
    int m_closed_twice = 0;
    std::vector<Written> m_written;
    long m_taken = 0;
};
