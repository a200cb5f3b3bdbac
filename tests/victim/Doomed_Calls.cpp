#include "victim/Doomed_Calls.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
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
        Say(m_name + ' ' + std::string(path.substr(path.rfind('/') + 1)) + ' ');
        if (Is_At(Doom::Way::Kill_Before))
            Die();
    }

    bool Is_Cut_Short() const { return !m_is_on_line && Is_At(Doom::Way::Fill_Up); }
    bool Dies_Within() const { return !m_is_on_line && Is_At(Doom::Way::Kill_Within); }

    /// Makes the call, unless it is its turn to fail. errno says why then.
    template <typename Call>
    auto Make(Call call) const
    {
        auto result = static_cast<decltype(call())>(-1);
        if (Fails())
            errno = The_Doom.error;
        else
            result = call();
        const int error = errno;
        Say(result != -1 ? std::to_string(result) + " ok\n" : "failed\n");
        if (Is_At(Doom::Way::Kill_After) || Is_At(Doom::Way::Kill_Within))
            Die();
        errno = error;
        return result;
    }

private:
    bool Is_At(Doom::Way way) const { return The_Doom.way == way && m_number == The_Doom.at; }

    bool Fails() const
    {
        const bool is_later = (The_Doom.way == Doom::Way::Fail_From && m_number >= The_Doom.at) ||
                              (The_Doom.way == Doom::Way::Fill_Up && m_number > The_Doom.at);
        return !m_is_on_line && (Is_At(Doom::Way::Fail_One) || (is_later && Can_Fail_So()));
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

template <std::size_t size>
struct Name
{
    constexpr Name(const char (&name)[size]) { std::copy_n(name, size, text); } // NOLINT: so that a text is one
    char text[size];
};

// The C library's own function.
template <Name name, typename Function>
Function* Next()
{
    static auto* const next = reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name.text));
    return next;
}

std::string Path_Of(int descriptor)
{
    std::array<char, 4096> path = {};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t size = readlink(link.c_str(), path.data(), path.size());
    return size < 0 ? std::string() : std::string(path.data(), static_cast<std::size_t>(size));
}

std::string Path_Of(const char* path)
{
    return path;
}

void Remember(int descriptor, Kind kind)
{
    if (descriptor >= 0 && static_cast<std::size_t>(descriptor) < Kinds.size())
        Kinds[static_cast<std::size_t>(descriptor)] = kind;
}

// Calls the C library; where it is watched, as a counted call that has to do with a file.
template <typename Result, Name name, typename File, typename... Arguments>
Result Pass(bool is_watched, std::string_view counted_as, File file, Arguments... arguments)
{
    const auto call = [&] { return Next<name, Result(Arguments...)>()(arguments...); };
    return is_watched ? Counted(counted_as, Path_Of(file)).Make(call) : call();
}

// Opens, counted when it may change something. The place is what the C library's function wants before the path.
template <Name name, typename... Place>
int Open(int folder, const char* path, int flags, mode_t mode, Place... place)
{
    const auto call = [&](Kind kind) {
        const int opened = Next<name, int(Place..., const char*, int, ...)>()(place..., path, flags, mode);
        if (kind != Kind::Unwatched)
            Remember(opened, kind);
        return opened;
    };
    if (Is_Watching && path && path == Watched_Line)
        return call(Kind::Line);
    if (!Is_Watched_At(folder, path))
        return call(Kind::Unwatched);
    if ((flags & O_DIRECTORY) != 0)
        return call(Kind::Folder);
    const bool is_there = faccessat(folder, path, F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    const bool is_written = (flags & O_ACCMODE) != O_RDONLY;
    const bool changes_nothing =
        is_written ? is_there && (flags & O_CREAT) != 0 && (flags & O_EXCL) != 0 : !The_Doom.counts_reads;
    if (changes_nothing)
        return call(Kind::Unwatched);
    return Counted(is_there ? "open" : "create", path).Make([&] {
        return call(is_written ? Kind::Written : Kind::Read);
    });
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
#define CORVANE_IN_PLACE_OF(result, name, arguments)                                                                   \
    result Doomed_##name arguments __asm__(#name) __attribute__((visibility("default"), used));                        \
    result Doomed_##name arguments

#define CORVANE_PASSED_ON(result, name, arguments, is_watched, ...)                                                    \
    CORVANE_IN_PLACE_OF(result, name, arguments)                                                                       \
    {                                                                                                                  \
        return Pass<result, #name>(is_watched, __VA_ARGS__);                                                           \
    }                                                                                                                  \
    static_assert(true)

extern "C" {

// The mode of an open lies where a third argument does, whether or not the caller gave one.
CORVANE_IN_PLACE_OF(int, open, (const char* path, int flags, mode_t mode))
{
    return Open<"open">(AT_FDCWD, path, flags, mode);
}

CORVANE_IN_PLACE_OF(int, open64, (const char* path, int flags, mode_t mode))
{
    return Open<"open64">(AT_FDCWD, path, flags, mode);
}

CORVANE_IN_PLACE_OF(int, openat, (int folder, const char* path, int flags, mode_t mode))
{
    return Open<"openat">(folder, path, flags, mode, folder);
}

CORVANE_IN_PLACE_OF(int, openat64, (int folder, const char* path, int flags, mode_t mode))
{
    return Open<"openat64">(folder, path, flags, mode, folder);
}

CORVANE_IN_PLACE_OF(int, close, (int descriptor))
{
    auto* const next = Next<"close", int(int)>();
    const Kind kind = Kind_Of(descriptor);
    if (kind != Kind::Unwatched)
        Remember(descriptor, Kind::Unwatched);
    if (kind != Kind::Written)
        return next(descriptor);
    const Counted counted("close", Path_Of(descriptor));
    const int closed = next(descriptor); // a close that fails has closed all the same
    return counted.Make([closed] { return closed; });
}

CORVANE_IN_PLACE_OF(ssize_t, write, (int descriptor, const void* bytes, size_t size))
{
    auto* const next = Next<"write", ssize_t(int, const void*, size_t)>();
    const Kind kind = Kind_Of(descriptor);
    if (kind != Kind::Written && kind != Kind::Line)
        return next(descriptor, bytes, size);
    const bool is_on_line = kind == Kind::Line;
    const Counted counted("write", is_on_line ? "the line" : Path_Of(descriptor), is_on_line);
    return counted.Make([&]() -> ssize_t {
        if (counted.Is_Cut_Short() && size == 1) {
            errno = ENOSPC;
            return -1;
        }
        const std::size_t up_to_the_page = counted.Dies_Within() ? Up_To_The_Page(descriptor, size) : size;
        return next(descriptor, bytes, counted.Is_Cut_Short() ? size / 2 : up_to_the_page);
    });
}

CORVANE_PASSED_ON(ssize_t, read, (int descriptor, void* bytes, size_t size), Kind_Of(descriptor) == Kind::Read, "read",
                  descriptor, descriptor, bytes, size);
CORVANE_PASSED_ON(int, rename, (const char* from, const char* to), Is_Watched(from) || Is_Watched(to), "rename", to,
                  from, to);
CORVANE_PASSED_ON(int, unlink, (const char* path), Is_Watched(path), "unlink", path, path);
CORVANE_PASSED_ON(int, unlinkat, (int folder, const char* path, int flags), Is_Watched_At(folder, path), "unlink", path,
                  folder, path, flags);
CORVANE_PASSED_ON(int, mkdir, (const char* path, mode_t mode), Is_Watched(path), "mkdir", path, path, mode);
CORVANE_PASSED_ON(int, chmod, (const char* path, mode_t mode), Is_Watched(path), "chmod", path, path, mode);
CORVANE_PASSED_ON(int, fchmod, (int descriptor, mode_t mode), Kind_Of(descriptor) == Kind::Written, "chmod", descriptor,
                  descriptor, mode);
CORVANE_PASSED_ON(int, ftruncate, (int descriptor, off_t size), Kind_Of(descriptor) == Kind::Written, "cut", descriptor,
                  descriptor, size);
CORVANE_PASSED_ON(int, ftruncate64, (int descriptor, off_t size), Kind_Of(descriptor) == Kind::Written, "cut",
                  descriptor, descriptor, size);
CORVANE_PASSED_ON(int, fallocate, (int descriptor, int mode, off_t from, off_t size),
                  Kind_Of(descriptor) == Kind::Written, "reserve", descriptor, descriptor, mode, from, size);
CORVANE_PASSED_ON(int, fallocate64, (int descriptor, int mode, off_t from, off_t size),
                  Kind_Of(descriptor) == Kind::Written, "reserve", descriptor, descriptor, mode, from, size);
CORVANE_PASSED_ON(int, fsync, (int descriptor), Kind_Of(descriptor) != Kind::Unwatched, "sync", descriptor, descriptor);
CORVANE_PASSED_ON(int, fdatasync, (int descriptor), Kind_Of(descriptor) != Kind::Unwatched, "sync", descriptor,
                  descriptor);
CORVANE_PASSED_ON(int, link, (const char* from, const char* to), Is_Watched(to), "link", to, from, to);
CORVANE_PASSED_ON(int, bind, (int socket, const sockaddr* address, socklen_t size),
                  Is_Watching && address->sa_family == AF_UNIX, "bind", "socket", socket, address, size);
}
// NOLINTEND(readability-identifier-naming)
