#pragma once

#include "support/Own_Seconds.h"
#include "support/Patient_Calls.h"

#include <QByteArray>
#include <cerrno>
#include <numeric>
#include <vector>

// The real system calls, watched. What a test wants to happen at a write is called before it and may throw.
class Watched_Calls : public Patient_Calls
{
    template <typename Work>
    auto Under_Lock(const Work& work) const
    {
        const std::lock_guard guard(m_lock);
        return work();
    }

public:
    struct Written
    {
        QByteArray bytes;
        double seconds;
        double own_seconds; // of the thread that wrote, less its patience with the phone
    };

    int Open(const char* path, int flags) override
    {
        const int descriptor = Patient_Calls::Open(path, flags);
        if (descriptor >= 0)
            Under_Lock([&] { ++m_open[descriptor]; });
        if (m_after_open)
            m_after_open();
        return descriptor;
    }

    int Close(int descriptor) override
    {
        if (m_before_close)
            m_before_close();
        Under_Lock([&] { m_closed_twice += --m_open[descriptor] < 0 ? 1 : 0; });
        return Patient_Calls::Close(descriptor);
    }

    ssize_t Write(int descriptor, const void* bytes, size_t size) override
    {
        const QByteArray text(static_cast<const char*>(bytes), static_cast<qsizetype>(size));
        if (m_before_write)
            m_before_write(text);
        const auto written = Patient_Calls::Write(descriptor, bytes, size);
        const int error = errno;
        const double own_seconds = Own_Seconds() - Patience();
        Under_Lock([&] { m_written.push_back({text, Now_Seconds(), own_seconds}); });
        if (m_after_write)
            m_after_write(text);
        errno = error;
        return written;
    }

    std::vector<Written> Writes() const
    {
        return Under_Lock([&] { return m_written; });
    }
    void Forget_Writes()
    {
        Under_Lock([&] { m_written.clear(); });
    }
    int Closed_Twice() const
    {
        return Under_Lock([&] { return m_closed_twice; });
    }
    int Still_Open() const
    {
        const auto add = [](int count, const auto& open) { return count + open.second; };
        return Under_Lock([&] { return std::accumulate(m_open.begin(), m_open.end(), 0, add); });
    }

    // Set before the job starts; called on its thread.
    std::function<void(const QByteArray&)> m_before_write;
    std::function<void(const QByteArray&)> m_after_write;
    std::function<void()> m_after_open; // also after one that failed
    std::function<void()> m_before_close;

private:
    mutable std::mutex m_lock;
    std::map<int, int> m_open;
    int m_closed_twice = 0;
    std::vector<Written> m_written;
};
