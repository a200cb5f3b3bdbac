#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <functional>
#include <sys/types.h>

/// What is to happen to the file-system calls that the program under test makes. Calls are counted from 1.
struct File_Call_Plan
{
    int kill_before = 0;     // the process is killed when it makes this call
    int kill_after = 0;      // the process is killed when this call is done, before it knows
    int fail_at = 0;         // this call fails
    int error = 0;           // and this is why
    ssize_t longest = -1;    // no write and no read takes more bytes at once
    ssize_t room = -1;       // the bytes that the disk still has room for: the write that finds none fails
    bool interrupts = false; // every call that a signal can cut off is cut off once before it is made
    std::function<void(const QByteArray& call)> after = {}; // hears each call when it is done
};

/// Carries out a plan on the file-system calls of the thread it lives on, for as long as it lives. The test program is
/// linked so that these calls come by here first; those of the toolkit's and the C library's own do not.
class File_Calls
{
public:
    explicit File_Calls(File_Call_Plan plan);
    ~File_Calls();
    File_Calls(const File_Calls&) = delete;
    File_Calls& operator=(const File_Calls&) = delete;

    /// The names of the calls so far, such as "open".
    const QByteArrayList& Made() const { return m_made; }

    /// For the calls themselves: makes one by its name, or fails it.
    static long Make(const char* name, const std::function<long()>& call, bool is_cut_off_by_signals = false);

    /// For write and read: how many of the bytes may be taken at once.
    static size_t At_Once(size_t size);

    /// For write: how many of the bytes the disk has room for; they count as written.
    static size_t With_Room(size_t size);

private:
    static thread_local File_Calls* s_current;

    File_Call_Plan m_plan;
    QByteArrayList m_made;
    bool m_was_cut_off = false;
};

/// Whether a child process that a plan watches over lives to the end of the steps. It ends without any clean-up.
bool Lives_Through(const File_Call_Plan& plan, const std::function<void()>& steps);
