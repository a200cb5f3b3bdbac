#include "platform/File_Calls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

thread_local File_Calls* File_Calls::s_current = nullptr;

File_Calls::File_Calls(File_Call_Plan plan) : m_plan(std::move(plan))
{
    s_current = this;
}

File_Calls::~File_Calls()
{
    s_current = nullptr;
}

long File_Calls::Make(const char* name, const std::function<long()>& call, bool is_cut_off_by_signals)
{
    File_Calls* const self = s_current;
    if (self == nullptr)
        return call();
    if (self->m_plan.interrupts && is_cut_off_by_signals && !std::exchange(self->m_was_cut_off, true)) {
        errno = EINTR;
        return -1;
    }
    self->m_was_cut_off = false;
    self->m_made += name;
    const auto count = static_cast<int>(self->m_made.size());
    if (count == self->m_plan.kill_before)
        kill(getpid(), SIGKILL);
    const bool fails = count == self->m_plan.fail_at;
    // A close that fails has closed all the same.
    long result = fails && self->m_made.last() != "close" ? -1 : call();
    if (fails) {
        result = -1;
        errno = self->m_plan.error;
    }
    if (count == self->m_plan.kill_after)
        kill(getpid(), SIGKILL);
    if (self->m_plan.after) {
        const int error = errno;
        s_current = nullptr; // what the listener does is not the program's doing
        self->m_plan.after(self->m_made.last());
        s_current = self;
        errno = error;
    }
    return result;
}

size_t File_Calls::At_Once(size_t size)
{
    const ssize_t longest = s_current != nullptr ? s_current->m_plan.longest : -1;
    return longest < 0 ? size : std::min(size, static_cast<size_t>(longest));
}

size_t File_Calls::With_Room(size_t size)
{
    if (s_current == nullptr || s_current->m_plan.room < 0)
        return size;
    const size_t fitting = std::min(size, static_cast<size_t>(s_current->m_plan.room));
    s_current->m_plan.room -= static_cast<ssize_t>(fitting);
    return fitting;
}

bool Lives_Through(const File_Call_Plan& plan, const std::function<void()>& steps)
{
    const pid_t child = fork();
    if (child == 0) {
        const File_Calls calls(plan);
        steps();
        _exit(0);
    }
    int status = 0;
    while (child > 0 && waitpid(child, &status, 0) == -1 && errno == EINTR)
        continue;
    if (child > 0 && WIFEXITED(status) && WEXITSTATUS(status) == 0)
        return true;
    if (child > 0 && WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
        return false;
    qFatal("The child ended in a way of its own: status %d", status);
}

// What the linker puts in the place of the calls, and what it calls them itself.
// NOLINTBEGIN(readability-identifier-naming,cppcoreguidelines-macro-usage)
#define PASS_ON(call, is_cut_off_by_signals, parameters, arguments)                                                    \
    int __real_##call parameters, __wrap_##call parameters;                                                            \
    int __wrap_##call parameters                                                                                       \
    {                                                                                                                  \
        const auto make = [&] { return __real_##call arguments; };                                                     \
        return static_cast<int>(File_Calls::Make(#call, make, is_cut_off_by_signals));                                 \
    }

extern "C" {
PASS_ON(access, false, (const char* name, int mode), (name, mode))
PASS_ON(chmod, false, (const char* name, mode_t mode), (name, mode))
PASS_ON(close, false, (int descriptor), (descriptor))
PASS_ON(faccessat, false, (int folder, const char* name, int mode, int flags), (folder, name, mode, flags))
PASS_ON(fallocate, true, (int descriptor, int mode, off_t from, off_t size), (descriptor, mode, from, size))
PASS_ON(fchmod, false, (int descriptor, mode_t mode), (descriptor, mode))
PASS_ON(fdatasync, true, (int descriptor), (descriptor))
PASS_ON(flock, true, (int descriptor, int operation), (descriptor, operation))
PASS_ON(fstat, false, (int descriptor, struct stat* found), (descriptor, found))
PASS_ON(fsync, true, (int descriptor), (descriptor))
PASS_ON(ftruncate, true, (int descriptor, off_t size), (descriptor, size))
PASS_ON(lstat, false, (const char* name, struct stat* found), (name, found))
PASS_ON(rename, false, (const char* from, const char* to), (from, to))
PASS_ON(stat, false, (const char* name, struct stat* found), (name, found))
PASS_ON(unlink, false, (const char* name), (name))

int __real_open(const char* name, int flags, ...);
int __wrap_open(const char* name, int flags, ...);
int __wrap_open(const char* name, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(more, mode_t) : 0; // NOLINT: va_start has just been called
    va_end(more);
    const auto make = [&] { return __real_open(name, flags, mode); };
    return static_cast<int>(File_Calls::Make("open", make, true));
}

ssize_t __real_read(int descriptor, void* bytes, size_t size);
ssize_t __wrap_read(int descriptor, void* bytes, size_t size);
ssize_t __wrap_read(int descriptor, void* bytes, size_t size)
{
    const size_t at_once = File_Calls::At_Once(size);
    const auto make = [&] { return __real_read(descriptor, bytes, at_once); };
    return File_Calls::Make("read", make, true);
}

ssize_t __real_write(int descriptor, const void* bytes, size_t size);
ssize_t __wrap_write(int descriptor, const void* bytes, size_t size);
ssize_t __wrap_write(int descriptor, const void* bytes, size_t size)
{
    const auto make = [&]() -> long {
        const size_t fitting = File_Calls::With_Room(File_Calls::At_Once(size));
        if (fitting > 0 || size == 0)
            return __real_write(descriptor, bytes, fitting);
        errno = ENOSPC;
        return -1;
    };
    return File_Calls::Make("write", make, true);
}
}
// NOLINTEND(readability-identifier-naming,cppcoreguidelines-macro-usage)
