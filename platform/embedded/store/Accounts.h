#pragma once

#include <atomic>
#include <cstddef>

namespace nyx::embedded {

/// Process-wide counts of memory that crossed the library boundary and has not come back.
struct Accounts {
    std::atomic<std::size_t> arrays{0};
    std::atomic<std::size_t> alignedBlocks{0};
    std::atomic<std::size_t> texts{0};
};

Accounts& accounts();

} // namespace nyx::embedded
