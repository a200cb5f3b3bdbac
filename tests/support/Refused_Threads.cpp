#include "support/Refused_Threads.h"

#include "platform/Waiting.h"

#include <atomic>
#include <cerrno>
#include <dlfcn.h>
#include <memory>
#include <pthread.h>
#include <thread>

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

constexpr double Latest_Begin_Seconds = 20;

std::atomic<bool> Are_Late{false};

struct Late_Work
{
    void* (*run)(void*);
    void* argument;
};

void* Run_Late(void* what)
{
    const std::unique_ptr<Late_Work> work(static_cast<Late_Work*>(what));
    const double end = Now_Seconds() + Latest_Begin_Seconds;
    while (Are_Late && Now_Seconds() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return work->run(work->argument);
}

} // namespace

// Stands before the system's own: the standard library and the toolkit find this one first.
extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*run)(void*),
                              void* argument) noexcept
{
    using Create = int (*)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);
    static const auto create = reinterpret_cast<Create>(dlsym(RTLD_NEXT, "pthread_create"));
    if (Is_Refused())
        return EAGAIN;
    if (!Are_Late)
        return create(thread, attributes, run, argument);
    auto late = std::make_unique<Late_Work>(Late_Work{run, argument});
    const int error = create(thread, attributes, Run_Late, late.get());
    if (error == 0)
        (void)late.release(); // the thread has it
    return error;
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

Late_Threads::Late_Threads()
{
    Are_Late = true;
}

Late_Threads::~Late_Threads()
{
    Are_Late = false;
}
