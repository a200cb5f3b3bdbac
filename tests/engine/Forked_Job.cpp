#include "engine/Forked_Job.h"

#include "device/Stop_Flag.h"
#include "engine/Confirmed_Test.h"
#include "engine/Patient_Line.h"
#include "victim/Doomed_Calls.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <memory>
#include <new>
#include <sstream>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr double Job_Pace = 10'000; // every wait for a device is as short as any can be
constexpr std::chrono::seconds Longest_Delivery(10);
constexpr unsigned Longest_Life_In_Seconds = 60;

// What a child leaves behind, in memory that it shares with its parent.
struct Remains
{
    Last_Words words;
    std::atomic<int> bytes_written;
    std::atomic<int> bytes_read;
    std::atomic<int> texts_shown;
};

struct Forget_Remains
{
    void operator()(Remains* remains) const { munmap(remains, sizeof(Remains)); }
};

std::unique_ptr<Remains, Forget_Remains> New_Remains()
{
    void* const place = mmap(nullptr, sizeof(Remains), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED)
        throw std::bad_alloc();
    return std::unique_ptr<Remains, Forget_Remains>(new (place) Remains); // all zeros, as the system gives it
}

[[noreturn]] void Die()
{
    for (;;)
        kill(getpid(), SIGKILL);
}

// Dies at a byte.
class Doomed_Line : public Patient_Line
{
public:
    Doomed_Line(std::function<Line_Counts()> ask, const Job_Death& death, Remains& remains)
        : Patient_Line(std::move(ask)), m_death(death), m_remains(remains)
    {
    }

    ssize_t Read(int descriptor, void* buffer, size_t size) override
    {
        Live_On();
        const auto left = static_cast<size_t>(m_death.count - m_remains.bytes_read);
        const ssize_t count =
            Patient_Line::Read(descriptor, buffer, Is(Job_Death::At::Byte_Read) ? std::min(size, left) : size);
        m_remains.bytes_read += static_cast<int>(std::max<ssize_t>(count, 0));
        return count;
    }

    ssize_t Write(int descriptor, const void* bytes, size_t size) override
    {
        Live_On();
        const auto left = static_cast<size_t>(m_death.count - m_remains.bytes_written);
        const bool is_last = Is(Job_Death::At::Byte_Written) && left <= size;
        const ssize_t count = Patient_Line::Write(descriptor, bytes, is_last ? left : size);
        m_remains.bytes_written += static_cast<int>(std::max<ssize_t>(count, 0));
        if (is_last)
            Die();
        return count;
    }

    Line_Event Wait(int descriptor, short events, double seconds, int wake_descriptor) override
    {
        Live_On();
        return Patient_Line::Wait(descriptor, events, seconds, wake_descriptor);
    }

private:
    bool Is(Job_Death::At at) const { return m_death.at == at; }

    void Live_On() const
    {
        if (Is(Job_Death::At::Byte_Read) && m_remains.bytes_read == m_death.count)
            Die();
    }

    Job_Death m_death;
    Remains& m_remains;
};

// The child's end of the questions; an answer is a Line_Counts.
Line_Counts Ask_Through(int socket)
{
    const char question = '?';
    Line_Counts counts;
    if (write(socket, &question, 1) != 1 || recv(socket, &counts, sizeof counts, MSG_WAITALL) != sizeof counts)
        _exit(1);
    return counts;
}

// Answers a child's questions for as long as it lives.
void Answer(int socket, const Virtual_Phone& phone)
{
    char question = 0;
    while (read(socket, &question, 1) == 1) {
        const Line_Counts counts = Counts_Of(phone);
        static_cast<void>(send(socket, &counts, sizeof counts, MSG_NOSIGNAL));
    }
}

Doom Doom_Of(const Job_Death& death)
{
    Doom doom;
    if (death.at == Job_Death::At::Before_Call || death.at == Job_Death::At::After_Call)
        doom = {death.at == Job_Death::At::Before_Call ? Doom::Way::Kill_Before : Doom::Way::Kill_After, death.count};
    return doom;
}

// The child's whole life.
[[noreturn]] void Live_Here(int socket, Send_Order order, const Confirmed_Options& options, const Job_Death& death,
                            Remains& remains)
{
    alarm(Longest_Life_In_Seconds);
    Set_Pace(Job_Pace);
    Job_Witness witness;
    witness.m_on_shown = [&] {
        if (++remains.texts_shown == death.count && death.at == Job_Death::At::Text_Shown)
            Die();
    };
    {
        Stop_Flag stop;
        Doomed_Line line([socket] { return Ask_Through(socket); }, death, remains);
        Confirmed_Manner manner(order, options, witness, witness, stop, line);
        Begin_Doom(Doom_Of(death), options.folder.section(u'/', 0, -2).toStdString(), {}, remains.words);
        Send_Job(order, manner, witness, witness, stop).Send_SMS_Func();
        End_Doom();
    }
    for (std::size_t i = 0; i < witness.m_rows.size(); ++i) {
        const Row_Details& row = witness.m_rows[i];
        std::ostringstream line;
        line << i << ' ' << static_cast<int>(row.outcome.state) << (row.is_earlier ? " earlier" : "") << '\n';
        remains.words.journal.Add(line.str());
    }
    _exit(0);
}

std::vector<std::string> Lines_Of(const std::string& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

Job_Life Life_In(const Remains& remains, bool was_killed)
{
    return {was_killed,
            remains.words.calls,
            remains.bytes_written,
            remains.bytes_read,
            remains.texts_shown,
            Lines_Of(remains.words.made.All()),
            Lines_Of(remains.words.journal.All())};
}

// A child inherits the locks of its parent's threads as they are, and a sanitizer's allocator has some that nobody
// gives back: the phone's thread must be waiting for the line.
void Wait_For_Quiet_Threads()
{
    const auto is_at_rest = [](const std::filesystem::path& task) {
        std::string line;
        std::getline(std::ifstream(task / "stat"), line);
        const auto name_end = line.rfind(')'); // the state comes after the name
        return name_end == std::string::npos || line.compare(name_end, 3, ") S") == 0;
    };
    const auto end = std::chrono::steady_clock::now() + Longest_Delivery;
    for (int at_rest = 0; at_rest < 3 && std::chrono::steady_clock::now() < end; ++at_rest) {
        for (const auto& task : std::filesystem::directory_iterator("/proc/self/task"))
            if (task.path().filename() != std::to_string(gettid()) && !is_at_rest(task.path()))
                at_rest = -1;
        std::this_thread::sleep_for(std::chrono::microseconds(50));
    }
}

} // namespace

Job_Life Live(const Virtual_Phone& phone, const Send_Order& order, const Confirmed_Options& options,
              const Job_Death& death)
{
    const auto remains = New_Remains();
    const std::uint64_t heard = Counts_Of(phone).heard;
    int sockets[2] = {-1, -1};
    EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, sockets), 0);
    Wait_For_Quiet_Threads();
    const pid_t child = fork();
    if (child == 0) {
        close(sockets[0]);
        Live_Here(sockets[1], order, options, death, *remains);
    }
    close(sockets[1]);
    Answer(sockets[0], phone);
    close(sockets[0]);
    int status = 0;
    while (waitpid(child, &status, 0) == -1 && errno == EINTR) {
    }
    const bool was_killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    EXPECT_TRUE(was_killed || (WIFEXITED(status) && WEXITSTATUS(status) == 0)) << "status " << status;
    Job_Life life = Life_In(*remains, was_killed);
    const auto end = std::chrono::steady_clock::now() + Longest_Delivery;
    const auto has_heard_all = [&] {
        return Counts_Of(phone).heard - heard == static_cast<std::uint64_t>(life.bytes_written);
    };
    while (!has_heard_all() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::microseconds(50));
    EXPECT_TRUE(has_heard_all());
    EXPECT_FALSE(phone.Somebody_Is_There());
    return life;
}
