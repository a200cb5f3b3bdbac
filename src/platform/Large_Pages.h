#pragma once

#include <cstddef>

/// Asks the system to give a large stretch of memory, best before anything is written to it, in pages of some
/// megabytes: with pages of four kilobytes the first touch of each costs more than filling it. A wish: what is small,
/// and a system that does not know of it, stay as they are. Any thread.
void Prefer_Large_Pages(const void* begin, std::size_t bytes);
