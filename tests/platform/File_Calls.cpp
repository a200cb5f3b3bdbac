#include "platform/File_Calls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <fcntl.h>
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
// NOLINTBEGIN(readability-identifier-naming)
extern "C" {
int __real_access(const char* name, int mode);
int __real_chmod(const char* name, mode_t mode);
int __real_close(int descriptor);
int __real_faccessat(int folder, const char* name, int mode, int flags);
int __real_fchmod(int descriptor, mode_t mode);
int __real_fstat(int descriptor, struct stat* found);
int __real_fsync(int descriptor);
int __real_ftruncate(int descriptor, off_t size);
int __real_lstat(const char* name, struct stat* found);
int __real_open(const char* name, int flags, ...);
ssize_t __real_read(int descriptor, void* bytes, size_t size);
int __real_rename(const char* from, const char* to);
int __real_stat(const char* name, struct stat* found);
int __real_unlink(const char* name);
ssize_t __real_write(int descriptor, const void* bytes, size_t size);

int __wrap_access(const char* name, int mode);
int __wrap_chmod(const char* name, mode_t mode);
int __wrap_close(int descriptor);
int __wrap_faccessat(int folder, const char* name, int mode, int flags);
int __wrap_fchmod(int descriptor, mode_t mode);
int __wrap_fstat(int descriptor, struct stat* found);
int __wrap_fsync(int descriptor);
int __wrap_ftruncate(int descriptor, off_t size);
int __wrap_lstat(const char* name, struct stat* found);
int __wrap_open(const char* name, int flags, ...);
ssize_t __wrap_read(int descriptor, void* bytes, size_t size);
int __wrap_rename(const char* from, const char* to);
int __wrap_stat(const char* name, struct stat* found);
int __wrap_unlink(const char* name);
ssize_t __wrap_write(int descriptor, const void* bytes, size_t size);

int __wrap_access(const char* name, int mode)
{
    return static_cast<int>(File_Calls::Make("access", [&] { return __real_access(name, mode); }));
}

int __wrap_chmod(const char* name, mode_t mode)
{
    return static_cast<int>(File_Calls::Make("chmod", [&] { return __real_chmod(name, mode); }));
}

int __wrap_close(int descriptor)
{
    return static_cast<int>(File_Calls::Make("close", [&] { return __real_close(descriptor); }));
}

int __wrap_faccessat(int folder, const char* name, int mode, int flags)
{
    return static_cast<int>(File_Calls::Make("faccessat", [&] { return __real_faccessat(folder, name, mode, flags); }));
}

int __wrap_fchmod(int descriptor, mode_t mode)
{
    return static_cast<int>(File_Calls::Make("fchmod", [&] { return __real_fchmod(descriptor, mode); }));
}

int __wrap_fstat(int descriptor, struct stat* found)
{
    return static_cast<int>(File_Calls::Make("fstat", [&] { return __real_fstat(descriptor, found); }));
}

int __wrap_fsync(int descriptor)
{
    return static_cast<int>(File_Calls::Make(
        "fsync", [&] { return __real_fsync(descriptor); }, true));
}

int __wrap_ftruncate(int descriptor, off_t size)
{
    return static_cast<int>(File_Calls::Make(
        "ftruncate", [&] { return __real_ftruncate(descriptor, size); }, true));
}

int __wrap_lstat(const char* name, struct stat* found)
{
    return static_cast<int>(File_Calls::Make("lstat", [&] { return __real_lstat(name, found); }));
}

int __wrap_open(const char* name, int flags, ...)
{
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list more;
        va_start(more, flags);
        mode = va_arg(more, mode_t);
        va_end(more);
    }
    return static_cast<int>(File_Calls::Make(
        "open", [&] { return __real_open(name, flags, mode); }, true));
}

ssize_t __wrap_read(int descriptor, void* bytes, size_t size)
{
    const size_t at_once = File_Calls::At_Once(size);
    return File_Calls::Make(
        "read", [&] { return __real_read(descriptor, bytes, at_once); }, true);
}

int __wrap_rename(const char* from, const char* to)
{
    return static_cast<int>(File_Calls::Make("rename", [&] { return __real_rename(from, to); }));
}

int __wrap_stat(const char* name, struct stat* found)
{
    return static_cast<int>(File_Calls::Make("stat", [&] { return __real_stat(name, found); }));
}

int __wrap_unlink(const char* name)
{
    return static_cast<int>(File_Calls::Make("unlink", [&] { return __real_unlink(name); }));
}

ssize_t __wrap_write(int descriptor, const void* bytes, size_t size)
{
    const auto call = [&]() -> long {
        const size_t fitting = File_Calls::With_Room(File_Calls::At_Once(size));
        if (fitting > 0 || size == 0)
            return __real_write(descriptor, bytes, fitting);
        errno = ENOSPC;
        return -1;
    };
    return File_Calls::Make("write", call, true);
}
}
// NOLINTEND(readability-identifier-naming)
