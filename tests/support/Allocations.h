#pragma once

#include <cstddef>

/// What this thread asks of operator new, in every library of the program. A test program that uses
/// it has its operators replaced.
namespace Allocations {

/// So many so far.
std::size_t count();

/// While it lives, the allocation number `number` (from 0) throws std::bad_alloc; those before and
/// behind it do not. `happened` (borrowed) tells afterwards whether it came to that.
class Failure {
public:
    Failure(std::size_t number, bool& happened);
    ~Failure();
    Failure(Failure const&) = delete;
    Failure& operator=(Failure const&) = delete;

private:
    bool& happened_;
};

} // namespace Allocations
