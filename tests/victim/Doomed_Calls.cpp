#include "victim/Doomed_Calls.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <string_view>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

enum class Kind : unsigned char
{
    Unwatched,
    Written, // a file that can be written to
    Read,
    Folder,
    Line,
};

constexpr off_t Page_Size = 4096;

std::atomic<bool> Is_Watching = false;
Doom The_Doom;
std::string Watched_Folder;
std::string Watched_Line;
Last_Words* The_Last_Words = nullptr;
std::mutex Words_Mutex;
std::array<std::atomic<Kind>, 4096> Kinds = {};

Kind Kind_Of(int descriptor)
{
    const auto index = static_cast<std::size_t>(descriptor);
    return Is_Watching && index < Kinds.size() ? Kinds[index].load() : Kind::Unwatched;
}

bool Is_Watched(const char* path)
{
    return Is_Watching && path && std::string_view(path).substr(0, Watched_Folder.size()) == Watched_Folder;
}

bool Is_Watched_At(int folder, const char* path)
{
    return Is_Watched(path) || (path && path[0] != '/' && Kind_Of(folder) == Kind::Folder);
}

void Say(const std::string& words)
{
    const std::lock_guard guard(Words_Mutex);
    The_Last_Words->made.Add(words);
}

[[noreturn]] void Die()
{
    for (;;)
        kill(getpid(), SIGKILL);
}

/// One counted call.
class Counted
{
public:
    Counted(std::string_view name, std::string_view path, bool is_on_line = false)
        : m_name(name), m_is_on_line(is_on_line), m_number(++The_Last_Words->calls)
    {
        const auto slash = path.rfind('/');
        Say(m_name + ' ' + std::string(path.substr(slash == std::string_view::npos ? 0 : slash + 1)) + ' ');
        if (The_Doom.way == Doom::Way::Kill_Before && m_number == The_Doom.at)
            Die();
    }

    /// Whether it is its turn to fail. errno says why then.
    bool Fails() const
    {
        if (m_is_on_line || !Is_Its_Turn())
            return false;
        errno = The_Doom.error;
        return true;
    }

    bool Is_Cut_Short() const { return The_Doom.way == Doom::Way::Fill_Up && m_number == The_Doom.at; }
    bool Dies_Within() const { return The_Doom.way == Doom::Way::Kill_Within && m_number == The_Doom.at; }

    template <typename Result>
    Result Done(Result result) const
    {
        const int error = errno;
        const bool is_ok = result != static_cast<Result>(-1);
        Say((is_ok ? std::to_string(result) + " ok\n" : std::string("failed\n")));
        const bool dies = The_Doom.way == Doom::Way::Kill_After || The_Doom.way == Doom::Way::Kill_Within;
        if (dies && m_number == The_Doom.at)
            Die();
        errno = error;
        return result;
    }

    template <typename Call>
    auto Make(Call call) const
    {
        return Done(Fails() ? static_cast<decltype(call())>(-1) : call());
    }

private:
    bool Is_Its_Turn() const
    {
        switch (The_Doom.way) {
        case Doom::Way::Fail_One:
            return m_number == The_Doom.at;
        case Doom::Way::Fail_From:
            return m_number >= The_Doom.at && Can_Fail_So();
        case Doom::Way::Fill_Up:
            return m_number > The_Doom.at && Can_Fail_So();
        default:
            return false;
        }
    }

    // A full disk still lets go of files, and a read-only one keeps the descriptors that are open.
    bool Can_Fail_So() const
    {
        const bool is_full = The_Doom.error == ENOSPC || The_Doom.error == EDQUOT;
        if (is_full)
            return m_name == "write" || m_name == "create" || m_name == "mkdir" || m_name == "bind";
        return m_name != "close";
    }

    std::string m_name;
    bool m_is_on_line;
    int m_number;
};

template <typename Function>
Function* Next(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

std::string Path_Of(int descriptor)
{
    std::array<char, 4096> path = {};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t size = readlink(link.c_str(), path.data(), path.size());
    return size < 0 ? std::string() : std::string(path.data(), static_cast<std::size_t>(size));
}

void Remember(int descriptor, Kind kind)
{
    if (descriptor >= 0 && static_cast<std::size_t>(descriptor) < Kinds.size())
        Kinds[static_cast<std::size_t>(descriptor)] = kind;
}

// Opens by the call, counted when it may change something.
template <typename Call>
int Open(int folder, const char* path, int flags, Call call)
{
    if (!Is_Watching)
        return call();
    if (path && path == Watched_Line) {
        const int line = call();
        Remember(line, Kind::Line);
        return line;
    }
    if (!Is_Watched_At(folder, path))
        return call();
    if ((flags & O_DIRECTORY) != 0) {
        const int opened = call();
        Remember(opened, Kind::Folder);
        return opened;
    }
    const bool is_there = faccessat(folder, path, F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    const bool is_written = (flags & O_ACCMODE) != O_RDONLY;
    const bool changes_nothing =
        is_written ? is_there && (flags & O_CREAT) != 0 && (flags & O_EXCL) != 0 : !The_Doom.counts_reads;
    if (changes_nothing)
        return call();
    const Counted counted(is_there ? "open" : "create", path);
    const int opened = counted.Fails() ? -1 : call();
    Remember(opened, is_written ? Kind::Written : Kind::Read);
    return counted.Done(opened);
}

// How much of a write gets into its file before the file's page ends; all of it when the page has room.
std::size_t Up_To_The_Page(int descriptor, std::size_t size)
{
    struct stat found = {};
    const bool is_append = (fcntl(descriptor, F_GETFL) & O_APPEND) != 0;
    const off_t at = is_append && fstat(descriptor, &found) == 0 ? found.st_size : lseek(descriptor, 0, SEEK_CUR);
    const auto room = static_cast<std::size_t>(Page_Size - at % Page_Size);
    return std::min(room, size);
}

} // namespace

void Begin_Doom(const Doom& doom, const std::string& folder, const std::string& line, Last_Words& last_words)
{
    The_Doom = doom;
    Watched_Folder = folder;
    Watched_Line = line;
    The_Last_Words = &last_words;
    Is_Watching = true;
}

void End_Doom()
{
    Is_Watching = false;
}

// These stand in the place of the C library's functions, for the program and for every library that it is linked to.
// NOLINTBEGIN(readability-identifier-naming)
extern "C" {
#define CORVANE_IN_PLACE_OF(name) __asm__(name) __attribute__((visibility("default"), used))

int Doomed_Open(const char* path, int flags, ...) CORVANE_IN_PLACE_OF("open");
int Doomed_Open_64(const char* path, int flags, ...) CORVANE_IN_PLACE_OF("open64");
int Doomed_Open_At(int folder, const char* path, int flags, ...) CORVANE_IN_PLACE_OF("openat");
int Doomed_Open_At_64(int folder, const char* path, int flags, ...) CORVANE_IN_PLACE_OF("openat64");
int Doomed_Close(int descriptor) CORVANE_IN_PLACE_OF("close");
ssize_t Doomed_Read(int descriptor, void* bytes, size_t size) CORVANE_IN_PLACE_OF("read");
ssize_t Doomed_Write(int descriptor, const void* bytes, size_t size) CORVANE_IN_PLACE_OF("write");
int Doomed_Rename(const char* from, const char* to) CORVANE_IN_PLACE_OF("rename");
int Doomed_Unlink(const char* path) CORVANE_IN_PLACE_OF("unlink");
int Doomed_Unlink_At(int folder, const char* path, int flags) CORVANE_IN_PLACE_OF("unlinkat");
int Doomed_Mkdir(const char* path, mode_t mode) CORVANE_IN_PLACE_OF("mkdir");
int Doomed_Chmod(const char* path, mode_t mode) CORVANE_IN_PLACE_OF("chmod");
int Doomed_Fchmod(int descriptor, mode_t mode) CORVANE_IN_PLACE_OF("fchmod");
int Doomed_Ftruncate(int descriptor, off_t size) CORVANE_IN_PLACE_OF("ftruncate");
int Doomed_Ftruncate_64(int descriptor, off_t size) CORVANE_IN_PLACE_OF("ftruncate64");
int Doomed_Fsync(int descriptor) CORVANE_IN_PLACE_OF("fsync");
int Doomed_Fdatasync(int descriptor) CORVANE_IN_PLACE_OF("fdatasync");
int Doomed_Link(const char* from, const char* to) CORVANE_IN_PLACE_OF("link");
int Doomed_Bind(int socket, const sockaddr* address, socklen_t size) CORVANE_IN_PLACE_OF("bind");

int Doomed_Open(const char* path, int flags, ...)
{
    static auto* const next = Next<int(const char*, int, ...)>("open");
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Open(AT_FDCWD, path, flags, [&] { return next(path, flags, mode); });
}

int Doomed_Open_64(const char* path, int flags, ...)
{
    static auto* const next = Next<int(const char*, int, ...)>("open64");
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Open(AT_FDCWD, path, flags, [&] { return next(path, flags, mode); });
}

int Doomed_Open_At(int folder, const char* path, int flags, ...)
{
    static auto* const next = Next<int(int, const char*, int, ...)>("openat");
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Open(folder, path, flags, [&] { return next(folder, path, flags, mode); });
}

int Doomed_Open_At_64(int folder, const char* path, int flags, ...)
{
    static auto* const next = Next<int(int, const char*, int, ...)>("openat64");
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0;
    va_end(more);
    return Open(folder, path, flags, [&] { return next(folder, path, flags, mode); });
}

int Doomed_Close(int descriptor)
{
    static auto* const next = Next<int(int)>("close");
    const Kind kind = Kind_Of(descriptor);
    if (kind != Kind::Unwatched)
        Remember(descriptor, Kind::Unwatched);
    if (kind != Kind::Written)
        return next(descriptor);
    const Counted counted("close", Path_Of(descriptor));
    const bool fails = counted.Fails();
    const int error = errno;
    const int closed = next(descriptor); // a close that fails has closed all the same
    if (fails)
        errno = error;
    return counted.Done(fails ? -1 : closed);
}

ssize_t Doomed_Read(int descriptor, void* bytes, size_t size)
{
    static auto* const next = Next<ssize_t(int, void*, size_t)>("read");
    if (Kind_Of(descriptor) != Kind::Read)
        return next(descriptor, bytes, size);
    return Counted("read", Path_Of(descriptor)).Make([&] { return next(descriptor, bytes, size); });
}

ssize_t Doomed_Write(int descriptor, const void* bytes, size_t size)
{
    static auto* const next = Next<ssize_t(int, const void*, size_t)>("write");
    const Kind kind = Kind_Of(descriptor);
    if (kind != Kind::Written && kind != Kind::Line)
        return next(descriptor, bytes, size);
    const bool is_on_line = kind == Kind::Line;
    const Counted counted("write", is_on_line ? "the line" : Path_Of(descriptor), is_on_line);
    std::size_t taken = size;
    if (!is_on_line && counted.Is_Cut_Short())
        taken = size / 2;
    else if (!is_on_line && counted.Dies_Within())
        taken = Up_To_The_Page(descriptor, size);
    if (counted.Is_Cut_Short() && taken == 0 && size > 0 && !is_on_line) {
        errno = ENOSPC;
        return counted.Done(ssize_t{-1});
    }
    return counted.Make([&] { return next(descriptor, bytes, taken); });
}

int Doomed_Rename(const char* from, const char* to)
{
    static auto* const next = Next<int(const char*, const char*)>("rename");
    if (!Is_Watched(from) && !Is_Watched(to))
        return next(from, to);
    return Counted("rename", to).Make([&] { return next(from, to); });
}

int Doomed_Unlink(const char* path)
{
    static auto* const next = Next<int(const char*)>("unlink");
    if (!Is_Watched(path))
        return next(path);
    return Counted("unlink", path).Make([&] { return next(path); });
}

int Doomed_Unlink_At(int folder, const char* path, int flags)
{
    static auto* const next = Next<int(int, const char*, int)>("unlinkat");
    if (!Is_Watched_At(folder, path))
        return next(folder, path, flags);
    return Counted("unlink", path).Make([&] { return next(folder, path, flags); });
}

int Doomed_Mkdir(const char* path, mode_t mode)
{
    static auto* const next = Next<int(const char*, mode_t)>("mkdir");
    if (!Is_Watched(path))
        return next(path, mode);
    return Counted("mkdir", path).Make([&] { return next(path, mode); });
}

int Doomed_Chmod(const char* path, mode_t mode)
{
    static auto* const next = Next<int(const char*, mode_t)>("chmod");
    if (!Is_Watched(path))
        return next(path, mode);
    return Counted("chmod", path).Make([&] { return next(path, mode); });
}

int Doomed_Fchmod(int descriptor, mode_t mode)
{
    static auto* const next = Next<int(int, mode_t)>("fchmod");
    if (Kind_Of(descriptor) != Kind::Written)
        return next(descriptor, mode);
    return Counted("chmod", Path_Of(descriptor)).Make([&] { return next(descriptor, mode); });
}

int Doomed_Ftruncate(int descriptor, off_t size)
{
    static auto* const next = Next<int(int, off_t)>("ftruncate");
    if (Kind_Of(descriptor) != Kind::Written)
        return next(descriptor, size);
    return Counted("cut", Path_Of(descriptor)).Make([&] { return next(descriptor, size); });
}

int Doomed_Ftruncate_64(int descriptor, off_t size)
{
    return Doomed_Ftruncate(descriptor, size);
}

int Doomed_Fsync(int descriptor)
{
    static auto* const next = Next<int(int)>("fsync");
    if (Kind_Of(descriptor) == Kind::Unwatched)
        return next(descriptor);
    return Counted("sync", Path_Of(descriptor)).Make([&] { return next(descriptor); });
}

int Doomed_Fdatasync(int descriptor)
{
    static auto* const next = Next<int(int)>("fdatasync");
    if (Kind_Of(descriptor) == Kind::Unwatched)
        return next(descriptor);
    return Counted("sync", Path_Of(descriptor)).Make([&] { return next(descriptor); });
}

int Doomed_Link(const char* from, const char* to)
{
    static auto* const next = Next<int(const char*, const char*)>("link");
    if (!Is_Watched(to))
        return next(from, to);
    return Counted("link", to).Make([&] { return next(from, to); });
}

int Doomed_Bind(int socket, const sockaddr* address, socklen_t size)
{
    static auto* const next = Next<int(int, const sockaddr*, socklen_t)>("bind");
    if (!Is_Watching || address->sa_family != AF_UNIX)
        return next(socket, address, size);
    return Counted("bind", "socket").Make([&] { return next(socket, address, size); });
}
}
// NOLINTEND(readability-identifier-naming)
