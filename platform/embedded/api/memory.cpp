#include "store/Accounts.h"

#include "nyxrender/Unique_array.h"
#include "nyxrender/nyx_memory.h"

#include <cstdint>
#include <cstdlib>
#include <new>

#if defined(_WIN32)
    #include <malloc.h>
#endif

namespace nyx::embedded {

Accounts& accounts() {
    static Accounts instance;
    return instance;
}

} // namespace nyx::embedded

using nyx::embedded::accounts;

namespace {

#if defined(_WIN32)
void* allocateAligned(std::size_t bytes, std::size_t alignment) {
    // It adds to the size, and not every one looks whether the sum still fits.
    return bytes > SIZE_MAX / 2 ? nullptr : _aligned_malloc(bytes, alignment);
}
void freeAligned(void* memory) { _aligned_free(memory); }
#else
void* allocateAligned(std::size_t bytes, std::size_t alignment) {
    // aligned_alloc wants a multiple of the alignment.
    std::size_t const rounded = (bytes + alignment - 1) / alignment * alignment;
    return rounded < bytes ? nullptr : std::aligned_alloc(alignment, rounded);
}
void freeAligned(void* memory) { std::free(memory); }
#endif

} // namespace

void* nyx::Unique_array_helper::allocate(std::size_t bytes) {
    if (bytes == 0) {
        return nullptr;
    }
    void* const memory = std::malloc(bytes);
    if (!memory) {
        throw std::bad_alloc();
    }
    ++accounts().arrays;
    return memory;
}

void nyx::Unique_array_helper::free(void* memory) noexcept {
    if (memory) {
        --accounts().arrays;
        std::free(memory);
    }
}

void* nyx_malloc_aligned(std::size_t bytes, std::size_t alignment) {
    if (bytes == 0) {
        return nullptr;
    }
    void* const memory = allocateAligned(bytes, alignment);
    if (!memory) {
        throw std::bad_alloc();
    }
    ++accounts().alignedBlocks;
    return memory;
}

void nyx_free_aligned(void* memory) noexcept {
    if (memory) {
        --accounts().alignedBlocks;
        freeAligned(memory);
    }
}

void nyx_free(void* memory) noexcept {
    if (memory) {
        --accounts().texts;
        std::free(memory);
    }
}
