#include "platform/System_Log.h"

#include "platform/Waiting.h"

#include <QByteArray>
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <paths.h>
#include <pthread.h>
#include <string>
#include <string_view>
#include <syslog.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t Most_Lines_Waiting = 65536;
constexpr std::chrono::milliseconds Between_Batches(2);
constexpr std::size_t Largest_Kept = 1024 * 1024; // bytes of a batch, once it is written

QStringView Without_Line_Ends(QStringView line)
{
    while (line.endsWith(u'\n') || line.endsWith(u'\r'))
        line.chop(1);
    return line;
}

// Appends the line and a "\0" if it consists of visible ASCII only, as almost every line does, since it is then already
// in printable form. Otherwise appends nothing.
bool Append_Plain(std::string& lines, QStringView line)
{
    const std::size_t begin = lines.size();
    lines.resize(begin + static_cast<std::size_t>(line.size()) + 1);
    char* next = lines.data() + begin;
    for (const QChar character : line) {
        if (character < u' ' || character > u'~') {
            lines.resize(begin);
            return false;
        }
        *next++ = character.toLatin1();
    }
    return true;
}

std::atomic<bool> Terminal_Is_Taken = false;

bool Has_Terminal()
{
    return !Terminal_Is_Taken && isatty(STDERR_FILENO) == 1;
}

class Log_Writer
{
public:
    Log_Writer()
    {
        openlog("corvane", LOG_PID, LOG_USER);
        Start_Thread();
    }

    void Put(QStringView line)
    {
        if (m_waiting >= Most_Lines_Waiting) {
            ++m_passed_over;
            return;
        }
        bool is_first = false;
        {
            const std::lock_guard guard(m_lock);
            is_first = m_lines.empty();
            if (!Append_Plain(m_lines, Without_Line_Ends(line))) {
                const QByteArray printable = Printable_Log_Line(line);
                m_lines.append(printable.constData(), static_cast<std::size_t>(printable.size()) + 1); // and its "\0"
            }
            ++m_waiting;
            if (!m_thread.joinable())
                Start_Thread();
        }
        if (is_first)
            m_changed.notify_one();
    }

    void Flush()
    {
        std::unique_lock guard(m_lock);
        if (!m_thread.joinable())
            Start_Thread();
        m_written.wait_for(guard, std::chrono::seconds(1), [this] { return m_waiting == 0; });
    }

    // A sink that never takes the last lines must not keep the program from ending: the thread is then left behind, and
    // the writer with it (which is why it is never deleted).
    void End()
    {
        Flush();
        std::unique_lock guard(m_lock);
        const bool is_stuck = m_waiting > 0;
        m_is_ending = true;
        guard.unlock();
        m_changed.notify_one();
        if (!m_thread.joinable()) {
            Write_Batch(m_lines, Has_Terminal());
            return;
        }
        if (is_stuck)
            m_thread.detach();
        else
            m_thread.join();
    }

private:
    // Where the system refuses a thread, the lines wait and the next one tries again.
    void Start_Thread()
    {
        try {
            m_thread = std::thread([this] { Write_Lines(); });
            pthread_setname_np(m_thread.native_handle(), "log");
        } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch): there is nobody to tell
        }
    }

    void Write_Lines()
    {
        const bool has_terminal = Has_Terminal();
        std::string lines;
        std::unique_lock guard(m_lock);
        for (;;) {
            m_changed.wait(guard, [this] { return !m_lines.empty() || m_is_ending; });
            if (m_lines.empty())
                return;
            lines.swap(m_lines);
            guard.unlock();
            Write_Batch(lines, has_terminal);
            lines.clear();
            if (lines.capacity() > Largest_Kept)
                lines.shrink_to_fit();
            guard.lock();
            --m_waiting;
            m_written.notify_all();
            // Lines in quick succession are written together: waking up for each would cost more than writing it.
            m_changed.wait_for(guard, Between_Batches, [this] { return m_is_ending.load(); });
        }
    }

    // The last line still counts as waiting afterwards, so that whoever waits for zero gets the other count written as
    // well.
    void Write_Batch(const std::string& lines, bool has_terminal)
    {
        const bool has_daemon = Has_Log_Daemon();
        for (std::size_t begin = 0; begin < lines.size();) {
            const std::string_view line = lines.data() + begin;
            Write_To_Sinks(line, has_daemon, has_terminal);
            begin += line.size() + 1;
            if (begin < lines.size())
                --m_waiting;
        }
        const auto passed_over = m_waiting == 1 ? m_passed_over.exchange(0) : 0;
        if (passed_over > 0)
            Write_To_Sinks(std::to_string(passed_over) + " log lines were passed over.", has_daemon, has_terminal);
    }

    static void Write_To_Sinks(std::string_view line, bool has_daemon, bool has_terminal)
    {
        if (has_daemon)
            syslog(LOG_INFO, "%.*s", static_cast<int>(line.size()), line.data());
        if (has_terminal)
            Write_To_Terminal(std::string(line) + '\n');
    }

    // Where no daemon listens, syslog(3) would try again to reach one for every line. A daemon that appears is noticed
    // within a second.
    bool Has_Log_Daemon()
    {
        const double now = Now_Seconds();
        if (now >= m_next_look) {
            m_has_log_daemon = access(_PATH_LOG, W_OK) == 0;
            m_next_look = now + 1;
        }
        return m_has_log_daemon;
    }

    // Not through stdio: its lock, held while a stopped terminal takes nothing, would keep the process from ending.
    static void Write_To_Terminal(std::string_view bytes)
    {
        while (!bytes.empty()) {
            const auto written = write(STDERR_FILENO, bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR)
                return;
            bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(0, written)));
        }
    }

    std::mutex m_lock;
    std::condition_variable m_changed;
    std::condition_variable m_written;
    std::string m_lines;                    // each followed by a "\0"
    std::atomic<std::size_t> m_waiting = 0; // lines that have not reached the sink
    std::atomic<qint64> m_passed_over = 0;
    std::atomic<bool> m_is_ending = false;
    double m_next_look = 0; // the log's thread alone uses these two
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
    line = Without_Line_Ends(line);
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

void Keep_Log_Off_The_Terminal()
{
    Terminal_Is_Taken = true;
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
