#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <utility>
#include <vector>

/// The rows of the performance tables. A *case* is one workload; its *contestants* are this
/// library, peers doing the same job, and a floor. A target bounds the ratio of the library's
/// median to a contestant's.
namespace bench {

/// The contestant name of this library.
inline constexpr char const* ours = "ours";

/// Registers one contestant of a case, e.g. ("3a", "post, 10 of 10", ours, function).
template <class Function>
benchmark::internal::Benchmark* contestant(std::string const& row, std::string const& workload,
                                           std::string const& name, Function&& function) {
    return benchmark::RegisterBenchmark((row + "|" + workload + "|" + name).c_str(),
                                        std::forward<Function>(function));
}

struct Target {
    std::string row;
    std::string workload;
    std::string against;         ///< contestant to compare with
    double atMost = 1;           ///< ratio that must hold
    std::string otherWorkload{}; ///< compare with that contestant of another workload of the row
};

std::vector<Target>& targets();

/// States that ours / `against` must be at most `atMost` in a case.
inline void target(Target wanted) { targets().push_back(std::move(wanted)); }

} // namespace bench
