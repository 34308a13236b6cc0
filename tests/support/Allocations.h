#pragma once

#include <cstddef>

/// What this thread asks of operator new, in every library of the program. A test program that uses
/// it has its operators replaced.
namespace Allocations {

/// So many so far.
std::size_t count();

/// While it lives, the allocation number `number` (from 0) throws std::bad_alloc; those before and
/// behind it do not.
class Failure {
public:
    explicit Failure(std::size_t number);
    ~Failure();
    Failure(Failure const&) = delete;
    Failure& operator=(Failure const&) = delete;

    /// Whether it has come to that.
    [[nodiscard]] bool hasHappened() const;
};

} // namespace Allocations
