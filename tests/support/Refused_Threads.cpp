#include "support/Refused_Threads.h"

#include <atomic>
#include <cerrno>
#include <dlfcn.h>
#include <pthread.h>

namespace {

constexpr int None = 0;

std::atomic<int> First_Refused{None};
std::atomic<bool> Refuses_Later{false};
std::atomic<int> Asked{0};

bool Is_Refused()
{
    const int first = First_Refused;
    if (first == None)
        return false;
    const int number = ++Asked;
    return number == first || (number > first && Refuses_Later);
}

} // namespace

// Stands before the system's own: the standard library and the toolkit find this one first.
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*),
                              void* argument) noexcept
{
    using Create = int (*)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);
    static const auto create = reinterpret_cast<Create>(dlsym(RTLD_NEXT, "pthread_create"));
    return Is_Refused() ? EAGAIN : create(thread, attributes, run, argument);
}

Refused_Threads::Refused_Threads(int first, And_Later later)
{
    Asked = 0;
    Refuses_Later = later == And_Later::Are_Refused;
    First_Refused = first;
}

Refused_Threads::~Refused_Threads()
{
    First_Refused = None;
}

int Refused_Threads::Asked_For() const
{
    return Asked;
}
