#include "support/Allocations.h"

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

thread_local std::size_t made = 0;
thread_local std::size_t failing = never;

void* allocate(std::size_t bytes) {
    if (made++ == failing) {
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(bytes == 0 ? 1 : bytes)) {
        return memory;
    }
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t bytes) { return allocate(bytes); }
void* operator new[](std::size_t bytes) { return allocate(bytes); }
// Temporary buffers of the standard library ask like this, and take null for an answer.
void* operator new(std::size_t bytes, std::nothrow_t const&) noexcept {
    return made++ == failing ? nullptr : std::malloc(bytes == 0 ? 1 : bytes);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace Allocations {

std::size_t count() { return made; }

Failure::Failure(std::size_t number, bool& happened) : happened_(happened) {
    failing = made + number;
}

Failure::~Failure() {
    happened_ = made > failing;
    failing = never;
}

} // namespace Allocations
