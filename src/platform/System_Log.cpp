#include "platform/System_Log.h"

#include <QByteArray>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <paths.h>
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

    void Put(QStringView line)
    {
        if (m_waiting >= Most_Lines_Waiting) {
            ++m_passed_over;
            return;
        }
        QByteArray printable = Printable_Log_Line(line);
        {
            const std::lock_guard guard(m_lock);
            m_lines.push_back(std::move(printable));
            ++m_waiting;
        }
        m_changed.notify_one();
    }

    void Flush()
    {
        std::unique_lock guard(m_lock);
        m_written.wait_for(guard, std::chrono::seconds(1), [this] { return m_waiting == 0; });
    }

    // A sink that never takes the last lines must not keep the program from ending: the thread is then left behind, and
    // the writer with it (which is why nobody deletes it).
    void End()
    {
        Flush();
        std::unique_lock guard(m_lock);
        const bool is_stuck = m_waiting > 0;
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
        std::deque<QByteArray> lines;
        std::unique_lock guard(m_lock);
        for (;;) {
            m_changed.wait(guard, [this] { return !m_lines.empty() || m_is_ending; });
            if (m_lines.empty())
                return;
            lines.swap(m_lines);
            guard.unlock();
            for (; !lines.empty(); lines.pop_front()) {
                Write_To_Sinks(lines.front(), has_terminal);
                if (lines.size() > 1)
                    --m_waiting;
            }
            const auto passed_over = m_waiting == 1 ? m_passed_over.exchange(0) : 0;
            if (passed_over > 0)
                Write_To_Sinks(QByteArray::number(passed_over) + " log lines were passed over.", has_terminal);
            guard.lock();
            --m_waiting; // the last one, so that whoever waits for none has the count as well
            m_written.notify_all();
        }
    }

    void Write_To_Sinks(const QByteArray& line, bool has_terminal)
    {
        if (Has_Log_Daemon())
            syslog(LOG_INFO, "%s", line.constData());
        if (has_terminal)
            Write_To_Terminal(line + '\n');
    }

    // Where no daemon listens, syslog(3) would try to reach one anew for every line.
    bool Has_Log_Daemon()
    {
        const auto now = std::chrono::steady_clock::now();
        if (now >= m_next_look) {
            m_has_log_daemon = access(_PATH_LOG, W_OK) == 0;
            m_next_look = now + std::chrono::seconds(1);
        }
        return m_has_log_daemon;
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
    std::atomic<std::size_t> m_waiting = 0; // lines that have not reached the sink
    std::atomic<qint64> m_passed_over = 0;
    bool m_is_ending = false;
    std::chrono::steady_clock::time_point m_next_look; // the log's thread alone uses these two
    bool m_has_log_daemon = false;
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
std::atomic<bool> Has_Listener = false;

bool Is_Control(QChar character)
{
    return character < u' ' || (character >= QChar(0x7F) && character < QChar(0xA0));
}

} // namespace

QByteArray Printable_Log_Line(QStringView line)
{
    while (line.endsWith(u'\n') || line.endsWith(u'\r'))
        line.chop(1);
    if (std::none_of(line.begin(), line.end(), Is_Control))
        return line.toUtf8();
    QString printable;
    for (const QChar character : line) {
        if (Is_Control(character))
            printable += QStringLiteral("\\x") + QString::number(character.unicode(), 16).rightJustified(2, u'0');
        else
            printable += character;
    }
    return printable.toUtf8();
}

void Write_System_Log(QStringView line)
{
    if (Has_Listener) {
        const std::lock_guard guard(Listener_Lock);
        if (Listener)
            Listener(line.toString());
    }
    The_Writer().Put(line);
}

void Flush_System_Log()
{
    The_Writer().Flush();
}

void Set_Log_Listener(std::function<void(const QString&)> listener)
{
    const std::lock_guard guard(Listener_Lock);
    Listener = std::move(listener);
    Has_Listener = Listener != nullptr;
}
