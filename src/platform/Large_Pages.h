#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

/// Asks the system to give a large stretch of memory, best before anything is written to it, in pages of some
/// megabytes: with pages of four kilobytes the first touch of each costs more than filling it. A wish: what is small,
/// and a system that does not know of it, stay as they are. Any thread.
void Prefer_Large_Pages(const void* begin, std::size_t bytes);

/// Makes room for so many more in a list, in large pages. All of it, or nothing when memory runs out.
template <typename Value>
void Make_Room_In(std::vector<Value>& list, std::size_t more)
{
    const std::size_t needed = list.size() + more;
    if (needed <= list.capacity())
        return;
    std::vector<Value> larger;
    larger.reserve(std::max(needed, 2 * list.capacity())); // so that one at a time costs no more than many
    Prefer_Large_Pages(larger.data(), larger.capacity() * sizeof(Value));
    larger.assign(list.begin(), list.end());
    larger.swap(list);
}
