#include "platform/Large_Pages.h"

#include <cstdint>
#include <sys/mman.h>

namespace {

constexpr std::uintptr_t Large_Page = std::uintptr_t{2} << 20;

} // namespace

// Only whole ones: no neighbour of the stretch gets more memory for it.
void Prefer_Large_Pages(const void* begin, std::size_t bytes)
{
    const auto address = reinterpret_cast<std::uintptr_t>(begin);
    const std::uintptr_t first = (address + Large_Page - 1) / Large_Page * Large_Page;
    const std::uintptr_t end = (address + bytes) / Large_Page * Large_Page;
    if (first < end)
        madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
}
