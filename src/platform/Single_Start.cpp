#include "platform/Single_Start.h"

#include "platform/Folders_And_Files.h"
#include "platform/System_Log.h"
#include "platform/Waiting.h"

#include <QFile>
#include <QSocketNotifier>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr unsigned Only_The_User = 0700;
constexpr char Lock_Name[] = "Running.lock";
constexpr char Socket_Name[] = "Running.socket";
constexpr double Seconds_Between_Tries = 0.02;
constexpr int Longest_Queue = 16;

// Through the open folder: a socket's name is cut off after 107 bytes, and a folder's own path may be longer.
sockaddr_un Socket_Address(int folder)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    snprintf(address.sun_path, sizeof address.sun_path, "/proc/self/fd/%d/%s", folder, Socket_Name);
    return address;
}

Descriptor New_Socket()
{
    // Never blocks, not even in connect when the queue of a hung program is full.
    return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

// Unlocks explicitly, because a child just being started may keep the file open for a moment longer.
void Give_Back(Descriptor& locked)
{
    if (locked.Is_Open())
        flock(locked.Number(), LOCK_UN);
    locked.Close();
}

void Log_Failure(const char* what)
{
    Write_System_Log(QStringLiteral("Single start: %1: %2").arg(QLatin1String(what), QLatin1String(strerror(errno))));
}

// Takes the lock unless another program has it.
bool Is_Taken_By_Another(const Descriptor& lock)
{
    if (!lock.Is_Open() || flock(lock.Number(), LOCK_EX | LOCK_NB) == 0)
        return false;
    if (errno == EWOULDBLOCK)
        return true;
    Log_Failure("no lock");
    return false;
}

} // namespace

Single_Start::Single_Start(const QString& private_folder) : m_folder(private_folder) {}

Single_Start::~Single_Start()
{
    Stop_Listening();
    Give_Back(m_lock_file);
    Give_Back(m_open_folder);
}

Single_Start::Outcome Single_Start::Begin(double patience)
{
    if (!Open_Folder())
        return Outcome::First; // whatever needs the folder finds out and reports it
    Open_Lock_File();
    for (const double end = Now_Seconds() + patience;;) {
        if (Take_Locks()) {
            Listen();
            return Outcome::First;
        }
        if (Ask_The_First(end))
            return Outcome::Shown;
        if (Now_Seconds() >= end)
            return Outcome::No_Answer;
        // It is not listening yet, or has already stopped on its way out.
        Wait_For_Descriptor(-1, POLLIN, Seconds_Between_Tries);
    }
}

bool Single_Start::Open_Folder()
{
    // A folder left accessible to others is closed to them before a socket is made in it.
    if (!Make_Folder_If_Missing(m_folder, Only_The_User))
        return false;
    Set_Permissions(m_folder, Only_The_User);
    m_open_folder = Descriptor(open(QFile::encodeName(m_folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return m_open_folder.Is_Open();
}

void Single_Start::Open_Lock_File()
{
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    m_lock_file = Descriptor(openat(m_open_folder.Number(), Lock_Name, O_RDWR | O_CREAT | flags, 0600));
    if (!m_lock_file.Is_Open())
        Log_Failure("no lock file"); // that leaves the folder's own lock
}

// Returns false when another program has one of the two. A lock that the file system does not support counts as taken:
// it must not keep the program from starting.
bool Single_Start::Take_Locks()
{
    if (Is_Taken_By_Another(m_open_folder))
        return false;
    if (!Is_Taken_By_Another(m_lock_file))
        return true;
    flock(m_open_folder.Number(), LOCK_UN);
    return false;
}

bool Single_Start::Is_Alone() const
{
    // Taking a lock that one already holds succeeds.
    const Descriptor* locks[] = {&m_open_folder, &m_lock_file};
    return std::all_of(std::begin(locks), std::end(locks), [](const Descriptor* lock) {
        return lock->Is_Open() && flock(lock->Number(), LOCK_EX | LOCK_NB) == 0;
    });
}

void Single_Start::Listen()
{
    const sockaddr_un address = Socket_Address(m_open_folder.Number());
    m_listener = New_Socket();
    // The socket's name belongs to the holder of the lock: what is there was left by a program that was killed.
    unlinkat(m_open_folder.Number(), Socket_Name, 0);
    if (m_listener.Is_Open() && fchmod(m_listener.Number(), 0600) == 0 &&
        bind(m_listener.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
        listen(m_listener.Number(), Longest_Queue) == 0)
        return;
    Log_Failure("no socket"); // the lock alone keeps further starts away
    m_listener.Close();
}

// Returns whether the program that holds the lock has answered. Waits for that until end, but not for a program that is
// not listening.
bool Single_Start::Ask_The_First(double end)
{
    const sockaddr_un address = Socket_Address(m_open_folder.Number());
    const Descriptor question = New_Socket();
    bool is_answered = false;
    if (question.Is_Open() &&
        connect(question.Number(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
        Wait_For_Descriptor(question.Number(), POLLIN, std::max(0.0, end - Now_Seconds()));
        char answer = 0;
        is_answered = recv(question.Number(), &answer, 1, 0) == 1;
    }
    return is_answered;
}

void Single_Start::When_Asked(std::function<void()> come_to_the_front)
{
    m_come_to_the_front = std::move(come_to_the_front);
    if (!m_listener.Is_Open())
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_listener.Number(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { Answer(); });
}

void Single_Start::Answer()
{
    Descriptor asking(accept4(m_listener.Number(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!asking.Is_Open())
        return;
    // Answered first: the window system may take its time. Nothing is read from the start that asks.
    send(asking.Number(), "!", 1, MSG_NOSIGNAL);
    asking.Close();
    m_come_to_the_front();
}

void Single_Start::Stop_Listening()
{
    m_notifier.reset();
    if (!m_listener.Is_Open())
        return;
    unlinkat(m_open_folder.Number(), Socket_Name, 0);
    m_listener.Close();
}
