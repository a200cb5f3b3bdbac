#include "support/Lanes.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int Lanes = 6;

[[noreturn]] void Live_In_A_Lane(std::atomic<int>& next, int pieces, const std::function<void(int)>& work)
{
    for (int piece = next++; piece < pieces && !testing::Test::HasFailure(); piece = next++)
        work(piece);
    fflush(nullptr);
    _exit(testing::Test::HasFailure() ? 1 : 0);
}

bool Ended_Well(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) == -1 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

bool Do_In_Lanes(int pieces, const std::function<void(int piece)>& work)
{
    void* const place =
        mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (place == MAP_FAILED)
        throw std::bad_alloc();
    auto& next = *std::construct_at(static_cast<std::atomic<int>*>(place), 0);
    fflush(nullptr); // or every lane would print it, too
    std::vector<pid_t> children;
    for (int lane = 0; lane < Lanes; ++lane) {
        const pid_t child = fork();
        if (child == 0)
            Live_In_A_Lane(next, pieces, work);
        children.push_back(child);
    }
    bool is_well = true;
    for (const pid_t child : children)
        is_well = child > 0 && Ended_Well(child) && is_well;
    munmap(place, sizeof(std::atomic<int>));
    return is_well;
}
