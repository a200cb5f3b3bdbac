#include "platform/System_Log.h"

#include <QByteArray>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <pthread.h>
#include <syslog.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t Most_Lines_Waiting = 65536;

class Log_Writer
{
public:
    Log_Writer()
    {
        openlog("corvane", LOG_PID, LOG_USER);
        m_thread = std::thread([this] { Write_Lines(); });
        pthread_setname_np(m_thread.native_handle(), "log");
    }

    void Put(QByteArray line)
    {
        {
            const std::lock_guard guard(m_lock);
            if (m_lines.size() >= Most_Lines_Waiting) {
                ++m_passed_over;
                return;
            }
            m_lines.push_back(std::move(line));
        }
        m_changed.notify_one();
    }

    void Flush()
    {
        std::unique_lock guard(m_lock);
        m_written.wait_for(guard, std::chrono::seconds(1), [this] { return m_lines.empty() && !m_is_writing; });
    }

    // A sink that never takes the last lines must not keep the program from ending: the thread is then left behind, and
    // the writer with it (which is why nobody deletes it).
    void End()
    {
        Flush();
        std::unique_lock guard(m_lock);
        const bool is_stuck = m_is_writing || !m_lines.empty();
        m_is_ending = true;
        guard.unlock();
        m_changed.notify_one();
        if (is_stuck)
            m_thread.detach();
        else
            m_thread.join();
    }

private:
    void Write_Lines()
    {
        const bool has_terminal = isatty(STDERR_FILENO) == 1;
        std::unique_lock guard(m_lock);
        for (;;) {
            m_changed.wait(guard, [this] { return !m_lines.empty() || m_is_ending; });
            if (m_lines.empty())
                return;
            const QByteArray line = std::move(m_lines.front());
            m_lines.pop_front();
            const auto passed_over = m_lines.empty() ? std::exchange(m_passed_over, 0) : 0;
            m_is_writing = true;
            guard.unlock();
            Write_To_Sinks(line, has_terminal);
            if (passed_over > 0)
                Write_To_Sinks(QByteArray::number(passed_over) + " log lines were passed over.", has_terminal);
            guard.lock();
            m_is_writing = false;
            m_written.notify_all();
        }
    }

    static void Write_To_Sinks(const QByteArray& line, bool has_terminal)
    {
        syslog(LOG_INFO, "%s", line.constData());
        if (has_terminal)
            Write_To_Terminal(line + '\n');
    }

    // Not through stdio: its lock, held while a stopped terminal takes nothing, would keep the process from ending.
    static void Write_To_Terminal(const QByteArray& bytes)
    {
        for (qsizetype at = 0; at < bytes.size();) {
            const auto written = write(STDERR_FILENO, bytes.constData() + at, static_cast<size_t>(bytes.size() - at));
            if (written < 0 && errno != EINTR)
                return;
            at += std::max<qsizetype>(0, written);
        }
    }

    std::mutex m_lock;
    std::condition_variable m_changed;
    std::condition_variable m_written;
    std::deque<QByteArray> m_lines;
    qint64 m_passed_over = 0;
    bool m_is_writing = false;
    bool m_is_ending = false;
    std::thread m_thread;
};

Log_Writer& The_Writer()
{
    static auto* writer = new Log_Writer;
    static const struct Ender
    {
        ~Ender() { writer->End(); }
    } ender;
    return *writer;
}

std::mutex Listener_Lock;
std::function<void(const QString&)> Listener;

} // namespace

QByteArray Printable_Log_Line(const QString& line)
{
    QString printable;
    qsizetype length = line.size();
    while (length > 0 && (line[length - 1] == u'\n' || line[length - 1] == u'\r'))
        --length;
    printable.reserve(length);
    for (const QChar character : QStringView(line).left(length)) {
        if (character.category() == QChar::Other_Control)
            printable += QStringLiteral("\\x") + QString::number(character.unicode(), 16).rightJustified(2, u'0');
        else
            printable += character;
    }
    return printable.toUtf8();
}

void Write_System_Log(const QString& line)
{
    {
        const std::lock_guard guard(Listener_Lock);
        if (Listener)
            Listener(line);
    }
    The_Writer().Put(Printable_Log_Line(line));
}

void Flush_System_Log()
{
    The_Writer().Flush();
}

void Set_Log_Listener(std::function<void(const QString&)> listener)
{
    const std::lock_guard guard(Listener_Lock);
    Listener = std::move(listener);
}
