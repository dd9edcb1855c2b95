// Counts what this test program asks of the heap. Linking it in replaces the operators new and delete.
#pragma once

#include <cstddef>

namespace prismfall::heap {

inline std::size_t allocations = 0;
inline std::size_t liveBytes = 0;

}  // namespace prismfall::heap
