#include "platform/Large_Pages.h"

#include <cstdint>
#include <sys/mman.h>

namespace {

constexpr std::uintptr_t Large_Page = std::uintptr_t{2} << 20;

} // namespace

// Only whole ones: no neighbour of the stretch gets more memory for it.
void Prefer_Large_Pages(const void* begin, std::size_t bytes)
{
    const std::size_t before = (Large_Page - reinterpret_cast<std::uintptr_t>(begin) % Large_Page) % Large_Page;
    if (bytes < before + Large_Page)
        return;
    auto* first = static_cast<char*>(const_cast<void*>(begin)) + before;
    madvise(first, (bytes - before) / Large_Page * Large_Page, MADV_HUGEPAGE);
}
