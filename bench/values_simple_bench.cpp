#include "Rows.h"
#include "values/BezierSegment.h"
#include "values/hashCombine.h"
#include "zsg/values/AnimationCurve.h"
#include "zsg/values/ColorGradient.h"
#include "zsg/values/hash.h"

#include <QGradient>
#include <QHashFunctions>
#include <boost/container/flat_map.hpp>
#include <boost/functional/hash.hpp>
#include <boost/math/tools/roots.hpp>

#include <algorithm>
#include <array>
#include <numeric>
#include <random>
#include <tuple>
#include <vector>

namespace {

using benchmark::DoNotOptimize;
using benchmark::State;

constexpr std::size_t mask = 1023;

template <class Number>
std::vector<Number> numbers(std::size_t count, Number low, Number high) {
    std::mt19937 random(1);
    std::vector<Number> list(count);
    for (Number& number : list) {
        double const part = static_cast<double>(random()) / 4294967296.0;
        number = static_cast<Number>(low + part * (high - low));
    }
    return list;
}

// Each call waits for the one before: what is measured is the latency that a chain would see.
template <class Number, class Hash>
void hashOne(State& state, Hash const& hash) {
    auto const list = numbers<Number>(mask + 1, -1000, 1000);
    std::uint64_t last = 0;
    for (auto _ : state) {
        last = hash(list[last & mask]);
        DoNotOptimize(last);
    }
}

template <class Hash>
void hashMillion(State& state, Hash const& hash) {
    auto const list = numbers<float>(1'000'000, -1000, 1000);
    for (auto _ : state) {
        DoNotOptimize(hash(list));
    }
}

void registerHashes() {
    using bench::contestant;
    contestant("2a", "hash of 1 M floats", bench::ours, [](State& state) {
        hashMillion(state,
                    [](auto const& list) { return zsg::hash_floats(list.data(), list.size()); });
    });
    contestant("2a", "hash of 1 M floats", "boost::hash_range", [](State& state) {
        hashMillion(state,
                    [](auto const& list) { return boost::hash_range(list.begin(), list.end()); });
    });
    contestant("2a", "hash of 1 M floats", "floor: chain alone", [](State& state) {
        hashMillion(state, [](auto const& list) {
            std::uint64_t seed = list.size();
            for (float const value : list) {
                seed = zsg::combine(seed, std::bit_cast<std::uint32_t>(value));
            }
            return seed;
        });
    });
    bench::target({"2a", "hash of 1 M floats", "boost::hash_range", 1.0});

    contestant("2d", "hash_int", bench::ours,
               [](State& state) { hashOne<int>(state, zsg::hash_int); });
    contestant("2d", "hash_int", "qHash", [](State& state) {
        hashOne<int>(state, [](int value) { return qHash(value, 0); });
    });
    contestant("2d", "hash_float", bench::ours,
               [](State& state) { hashOne<float>(state, zsg::hash_float); });
    contestant("2d", "hash_float", "qHash", [](State& state) {
        hashOne<float>(state, [](float value) { return qHash(value, 0); });
    });
    bench::target({"2d", "hash_int", "qHash", 2.0});
    bench::target({"2d", "hash_float", "qHash", 1.5});
}

void registerGradients(int count, double atMost) {
    std::string const workload = "addColorStop one by one, N = " + std::to_string(count);
    auto const places = [count] { return numbers<float>(static_cast<std::size_t>(count), 0, 1); };
    bench::contestant("7a", workload, bench::ours, [places](State& state) {
        auto const list = places();
        for (auto _ : state) {
            zsg::ColorGradient gradient;
            for (float const place : list) {
                gradient.addColorStop({place, 0, 0, 1}, place, 0, 0);
            }
            DoNotOptimize(gradient);
        }
    });
    bench::contestant("7a", workload, "QGradient::setColorAt", [places](State& state) {
        auto const list = places();
        for (auto _ : state) {
            QLinearGradient gradient;
            for (float const place : list) {
                gradient.setColorAt(place, QColor(1, 2, 3));
            }
            DoNotOptimize(gradient);
        }
    });
    bench::contestant("7a", workload, "floor: flat_multimap", [places](State& state) {
        auto const list = places();
        for (auto _ : state) {
            boost::container::flat_multimap<float, std::array<float, 6>> stops;
            for (float const place : list) {
                stops.emplace(place, std::array<float, 6>{place, 0, 0, 1, 0, 0});
            }
            DoNotOptimize(stops);
        }
    });
    bench::target({"7a", workload, "QGradient::setColorAt", atMost});
}

struct Search {
    zsg::BezierSegment segment;
    double x;
};

// Segments as people draw them, from (0, 0) to (1, 1).
std::vector<Search> searches() {
    auto const parts = numbers<float>(3 * (mask + 1), 0, 1);
    std::vector<Search> list;
    for (std::size_t i = 0; i < parts.size(); i += 3) {
        list.push_back({{{0, 0}, {parts[i], 0}, {parts[i + 1], 1}, {1, 1}}, double{parts[i + 2]}});
    }
    return list;
}

template <class Solve>
void solveEach(State& state, Solve const& solve) {
    auto const list = searches();
    std::size_t i = 0;
    for (auto _ : state) {
        DoNotOptimize(solve(list[++i & mask]));
    }
}

void registerSolver() {
    bench::contestant("7b", "Bezier solve for t", bench::ours, [](State& state) {
        solveEach(state, [](Search const& s) { return s.segment.parameterAt(s.x); });
    });
    bench::contestant("7b", "Bezier solve for t", "Boost Newton", [](State& state) {
        solveEach(state, [](Search const& s) {
            double const c = 3.0 * double{s.segment.out.x};
            double const b = 3.0 * double{s.segment.in.x} - 2 * c;
            double const a = 1 - b - c;
            auto const curve = [&](double t) {
                return std::make_tuple(((a * t + b) * t + c) * t - s.x,
                                       (3 * a * t + 2 * b) * t + c);
            };
            return boost::math::tools::newton_raphson_iterate(curve, s.x, 0.0, 1.0, 31);
        });
    });
    bench::target({"7b", "Bezier solve for t", "Boost Newton", 0.85});
}

void registerInsertion() {
    constexpr int count = 10'000;
    std::string const workload = "insertKey in the middle of 10,000 keys";
    auto const points = [] {
        std::vector<nyxVector2f> list(count);
        for (std::size_t i = 0; i < count; ++i) {
            list[i] = {static_cast<float>(i), 0};
        }
        return list;
    };
    bench::contestant("7c", workload, bench::ours, [points](State& state) {
        std::vector<nyx::KeyType> const types(count, nyx::KeyType::U);
        zsg::AnimationCurve curve(points().data(), types.data(), count);
        for (auto _ : state) {
            curve.removeKey(curve.insertKey(count / 2 + 0.5f));
        }
    });
    // What insertKey() cannot do without: the move, and the solve of a segment.
    bench::contestant("7c", workload, "vector insert + solve", [points](State& state) {
        std::vector<nyx::AnimationKey> keys;
        for (nyxVector2f const& point : points()) {
            keys.push_back({point, point, point, nyx::KeyType::U});
        }
        float x = count / 2 + 0.5f;
        for (auto _ : state) {
            DoNotOptimize(x);
            zsg::BezierSegment const segment{keys[count / 2].pos, keys[count / 2].out,
                                             keys[count / 2 + 1].in, keys[count / 2 + 1].pos};
            nyxVector2f const pos = zsg::split(segment, segment.parameterAt(x)).pos;
            keys.insert(keys.begin() + count / 2 + 1, {pos, pos, pos, nyx::KeyType::U});
            keys.erase(keys.begin() + count / 2 + 1);
            benchmark::ClobberMemory();
        }
    });
    bench::target({"7c", workload, "vector insert + solve", 1.2});
}

// A curve of many keys, from nothing: each key splits the segment that it falls into.
void registerCurveFromNothing() {
    constexpr std::size_t count = 10'000;
    std::string const workload = "10,000 insertKey calls in random order";
    bench::contestant("7c", workload, bench::ours, [](State& state) {
        auto const places = numbers<float>(count, 0, 1);
        for (auto _ : state) {
            zsg::AnimationCurve curve;
            for (float const place : places) {
                curve.insertKey(place);
            }
            DoNotOptimize(curve);
        }
    });
    bench::contestant("7c", workload, "floor: sorted vector insert", [](State& state) {
        auto const places = numbers<float>(count, 0, 1);
        for (auto _ : state) {
            std::vector<nyx::AnimationKey> keys;
            for (float const place : places) {
                auto const at = std::upper_bound(
                    keys.begin(), keys.end(), place,
                    [](float x, nyx::AnimationKey const& key) { return x < key.pos.x; });
                keys.insert(at, {{place, 0}, {place, 0}, {place, 0}, nyx::KeyType::U});
            }
            DoNotOptimize(keys);
        }
    });
}

bool const registered = [] {
    registerHashes();
    registerGradients(16, 1.0);
    registerGradients(256, 0.7);
    registerGradients(4096, 0.7);
    registerGradients(10'000, 0.7);
    registerSolver();
    registerInsertion();
    registerCurveFromNothing();
    return true;
}();

} // namespace
