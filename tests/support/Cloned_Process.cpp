#include <cstdarg>
#include <sched.h>

// Qt clones a process that it starts, and both share their memory until the new one is another program. ThreadSanitizer
// takes that for a fork: it begins to ignore the thread in what it takes for the copy, and never looks at it again. The
// clone that it does not know is the C library's own.
extern "C" {
int __clone(int (*)(void*), void*, int, void*, ...); // NOLINT: the library's name

int clone(int (*run)(void*), void* stack, int flags, void* given, ...) noexcept
{
    va_list more;
    va_start(more, given);
    void* parent = va_arg(more, void*);
    void* storage = va_arg(more, void*);
    void* child = va_arg(more, void*);
    va_end(more);
    return __clone(run, stack, flags, given, parent, storage, child);
}
}
