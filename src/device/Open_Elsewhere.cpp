#include "device/Open_Elsewhere.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

namespace {

namespace Fs = std::filesystem;

// The kernel's devices.txt: Unix98 PTY slaves.
constexpr unsigned First_Pty_Major = 136;
constexpr unsigned Last_Pty_Major = 143;

bool Is_Process(const Fs::path& path)
{
    const std::string name = path.filename();
    return std::all_of(name.begin(), name.end(), [](unsigned char letter) { return std::isdigit(letter) != 0; });
}

// The names of a process's descriptors are links to what is open. Only devices are looked at: others may not answer.
bool Leads_To(const Fs::path& link, dev_t device)
{
    std::error_code error;
    const std::string target = Fs::read_symlink(link, error);
    struct stat found
    {
    };
    return !error && target.starts_with("/dev/") && stat(link.c_str(), &found) == 0 && S_ISCHR(found.st_mode) &&
           found.st_rdev == device;
}

// Processes that end meanwhile have nothing open.
bool Has_It_Open(const Fs::path& process, dev_t device, const Fs::path& except)
{
    std::error_code error;
    Fs::directory_iterator descriptors(process / "fd", error);
    if (error)
        return error == std::errc::permission_denied;
    for (; !error && descriptors != Fs::directory_iterator(); descriptors.increment(error))
        if (descriptors->path() != except && Leads_To(descriptors->path(), device))
            return true;
    return false;
}

} // namespace

bool Is_Pseudo_Terminal(int descriptor)
{
    struct stat terminal
    {
    };
    return fstat(descriptor, &terminal) == 0 && S_ISCHR(terminal.st_mode) &&
           major(terminal.st_rdev) >= First_Pty_Major && major(terminal.st_rdev) <= Last_Pty_Major;
}

bool Is_Open_Elsewhere(int descriptor)
{
    struct stat terminal
    {
    };
    std::error_code error;
    Fs::directory_iterator processes("/proc", error);
    if (error || fstat(descriptor, &terminal) != 0)
        return true;
    const Fs::path own = Fs::path("/proc") / std::to_string(getpid()) / "fd" / std::to_string(descriptor);
    for (; !error && processes != Fs::directory_iterator(); processes.increment(error))
        if (Is_Process(processes->path()) && Has_It_Open(processes->path(), terminal.st_rdev, own))
            return true;
    return static_cast<bool>(error);
}
