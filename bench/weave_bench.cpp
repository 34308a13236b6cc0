#include "Rows.h"
#include "values/hashCombine.h"
#include "zsg/values/WeavePattern.h"
#include "zsg/values/hash.h"

#include "nyxrender/WeavePattern.h"
#include "nyxrender/nyx_memory.h"

#include <QImage>
#include <QList>
#include <QString>
#include <nlohmann/json.hpp>
#include <simdjson.h>

#include <algorithm>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <string>
#include <utility>
#include <vector>

namespace {

using bench::contestant;
using bench::ours;
using bench::target;
using nlohmann::json;
using zsg::WeavePattern;

WeavePattern square(int side) {
    WeavePattern pattern = WeavePattern::makeTwill(17, 5);
    pattern.setSize(side, side);
    return pattern;
}

std::pair<int const*, std::size_t> cellsOf(WeavePattern const& pattern) {
    return {pattern.nyxWeavePattern()->cells, static_cast<std::size_t>(pattern.numWarp()) *
                                                  static_cast<std::size_t>(pattern.numWeft())};
}

QList<int> listOf(int side) {
    WeavePattern const pattern = square(side);
    auto const [cells, count] = cellsOf(pattern);
    return {cells, cells + count};
}

QImage imageOf(int side) {
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(0xff123456);
    return image;
}

void hashCells(benchmark::State& state) {
    WeavePattern const pattern = square(1024);
    for (auto _ : state) {
        benchmark::DoNotOptimize(pattern.hash());
    }
}

void hashChain(benchmark::State& state) {
    std::uint64_t one = zsg::hash_int(1);
    benchmark::DoNotOptimize(one);
    for (auto _ : state) {
        std::uint64_t h = 0;
        for (int i = 0; i < 1024 * 1024; ++i) {
            h = zsg::combine(h, one);
        }
        benchmark::DoNotOptimize(h);
    }
}

void readOurs(benchmark::State& state, WeavePattern const& pattern) {
    QString const text = pattern.toJson();
    WeavePattern read;
    for (auto _ : state) {
        read.setFromJson(text);
        benchmark::DoNotOptimize(read);
    }
}

void readNlohmann(benchmark::State& state, WeavePattern const& pattern) {
    QString const text = pattern.toJson();
    for (auto _ : state) {
        json const document = json::parse(text.toUtf8().toStdString());
        auto const mask = document.value("pattern_mask", std::vector<int>{});
        std::vector<float> numbers;
        for (char const* key : {"tension", "width", "modulus"}) {
            auto const two = document.value(key, std::vector<float>{});
            numbers.insert(numbers.end(), two.begin(), two.end());
        }
        benchmark::DoNotOptimize(mask.data());
        benchmark::DoNotOptimize(numbers.data());
        benchmark::DoNotOptimize(document.value("pattern_warps", 0));
    }
}

void readSimdjson(benchmark::State& state, WeavePattern const& pattern) {
    QString const text = pattern.toJson();
    simdjson::ondemand::parser parser;
    for (auto _ : state) {
        simdjson::padded_string const padded(text.toUtf8().toStdString());
        auto document = parser.iterate(padded);
        std::vector<int> cells;
        for (auto value : document["pattern_mask"].get_array()) {
            cells.push_back(static_cast<int>(value.get_int64().value()));
        }
        benchmark::DoNotOptimize(cells.data());
    }
}

void writeOurs(benchmark::State& state, WeavePattern const& pattern) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(pattern.toJson());
    }
}

void writeNlohmann(benchmark::State& state, WeavePattern const& pattern) {
    auto const [cells, count] = cellsOf(pattern);
    for (auto _ : state) {
        json document;
        document["pattern_warps"] = pattern.numWarp();
        document["pattern_wefts"] = pattern.numWeft();
        document["pattern_mask"] = std::vector<int>(cells, cells + count);
        document["tension"] = {pattern.tension(WeavePattern::Warp),
                               pattern.tension(WeavePattern::Weft)};
        document["width"] = {pattern.width(WeavePattern::Warp), pattern.width(WeavePattern::Weft)};
        document["modulus"] = {1.0f, 1.0f};
        document["kind"] = {1, 1};
        benchmark::DoNotOptimize(QString::fromStdString(document.dump()));
    }
}

void writeRapidJson(benchmark::State& state, WeavePattern const& pattern) {
    auto const [cells, count] = cellsOf(pattern);
    for (auto _ : state) {
        rapidjson::StringBuffer buffer;
        rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
        writer.StartObject();
        writer.Key("pattern_mask");
        writer.StartArray();
        for (std::size_t i = 0; i < count; ++i) {
            writer.Int(cells[i]);
        }
        writer.EndArray();
        writer.EndObject();
        benchmark::DoNotOptimize(
            QString::fromUtf8(buffer.GetString(), static_cast<qsizetype>(buffer.GetSize())));
    }
}

template <class Value>
void copyHandle(benchmark::State& state, Value const& value) {
    for (auto _ : state) {
        Value copy = value;
        benchmark::DoNotOptimize(copy);
    }
}

void setCell(benchmark::State& state) {
    WeavePattern pattern = square(64);
    int i = 0;
    for (auto _ : state) {
        pattern.set(i & 63, 5, WeavePattern::Weft);
        benchmark::DoNotOptimize(pattern);
        ++i;
    }
}

void setElement(benchmark::State& state) {
    QList<int> list = listOf(64);
    int i = 0;
    for (auto _ : state) {
        list[5 * 64 + (i & 63)] = 1;
        benchmark::DoNotOptimize(list);
        ++i;
    }
}

// What a call that cannot be inlined leaves of it.
[[gnu::noinline]] void setBehindCall(QList<int>& list, int index, int value) {
    list[index] = value;
}

void setElementBehindCall(benchmark::State& state) {
    QList<int> list = listOf(64);
    int i = 0;
    for (auto _ : state) {
        setBehindCall(list, 5 * 64 + (i & 63), 1);
        benchmark::DoNotOptimize(list);
        ++i;
    }
}

/// Changes copies that share, or the value itself.
template <class Value, class Change>
auto changing(Value value, bool shared, Change change) {
    return [value, shared, change](benchmark::State& state) mutable {
        Value own = value;
        change(own); // no longer shared
        for (auto _ : state) {
            if (shared) {
                Value copy = own;
                change(copy);
                benchmark::DoNotOptimize(copy);
            } else {
                change(own);
                benchmark::DoNotOptimize(own);
            }
        }
    };
}

template <class Value, class Equal>
auto comparing(Value one, Value other, Equal equal) {
    return [one, other, equal](benchmark::State& state) {
        for (auto _ : state) {
            bool same = equal(one, other);
            benchmark::DoNotOptimize(same);
        }
    };
}

void resize(benchmark::State& state, int side) {
    WeavePattern const half = square(side / 2);
    for (auto _ : state) {
        WeavePattern pattern = half;
        pattern.setSize(side, side);
        benchmark::DoNotOptimize(pattern);
    }
}

void copyRows(benchmark::State& state, int side) {
    auto const half = static_cast<std::size_t>(side / 2);
    auto const [cells, count] = std::pair(std::vector<int>(half * half), half * half * 4);
    for (auto _ : state) {
        auto* const grid = static_cast<int*>(nyx_malloc_aligned(count * sizeof(int), 32));
        for (std::size_t y = 0; y < 2 * half; ++y) {
            for (std::size_t part : {0u, 1u}) {
                std::copy_n(cells.data() + y % half * half, half, grid + (2 * y + part) * half);
            }
        }
        benchmark::DoNotOptimize(grid);
        benchmark::ClobberMemory();
        nyx_free_aligned(grid);
    }
}

bool const registered = [] {
    contestant("2b", "weave hash, 1 M cells", ours, hashCells);
    contestant("2b", "weave hash, 1 M cells", "combine chain alone", hashChain);
    target({"2b", "weave hash, 1 M cells", "combine chain alone", 1.1});

    auto const text = [](char const* row, std::string const& workload, WeavePattern pattern,
                         auto function, char const* name) {
        contestant(row, workload, name,
                   [function, pattern](benchmark::State& state) { function(state, pattern); });
    };
    // Made at registration, so that no row pays for it.
    WeavePattern const large = square(1024);
    WeavePattern const small = WeavePattern::makeHerringbone();
    text("5a", "read JSON, 1024 x 1024", large, readOurs, ours);
    text("5a", "read JSON, 1024 x 1024", large, readNlohmann, "nlohmann");
    text("5a", "read JSON, 1024 x 1024", large, readSimdjson, "simdjson");
    target({"5a", "read JSON, 1024 x 1024", "nlohmann", 0.05});
    target({"5a", "read JSON, 1024 x 1024", "simdjson", 0.5});
    text("5b", "write JSON, 1024 x 1024", large, writeOurs, ours);
    text("5b", "write JSON, 1024 x 1024", large, writeNlohmann, "nlohmann");
    text("5b", "write JSON, 1024 x 1024", large, writeRapidJson, "RapidJSON");
    target({"5b", "write JSON, 1024 x 1024", "nlohmann", 0.05});
    target({"5b", "write JSON, 1024 x 1024", "RapidJSON", 0.3});
    text("5c", "read JSON, 12 x 8", small, readOurs, ours);
    text("5c", "read JSON, 12 x 8", small, readNlohmann, "nlohmann");
    text("5c", "write JSON, 12 x 8", small, writeOurs, ours);
    text("5c", "write JSON, 12 x 8", small, writeNlohmann, "nlohmann");
    target({"5c", "read JSON, 12 x 8", "nlohmann", 0.5});
    target({"5c", "write JSON, 12 x 8", "nlohmann", 0.5});

    contestant("8a", "weave copy handle", ours,
               [](benchmark::State& state) { copyHandle(state, square(64)); });
    contestant("8a", "weave copy handle", "QList",
               [](benchmark::State& state) { copyHandle(state, listOf(64)); });
    contestant("8a", "weave set one cell", ours, setCell);
    contestant("8a", "weave set one cell", "QList", setElement);
    contestant("8a", "weave set one cell", "QList behind a call", setElementBehindCall);
    target({"8a", "weave copy handle", "QList", 1.2});
    target({"8a", "weave set one cell", "QList", 3});

    struct {
        int side;
        char const* size;
        double invert, invertShared;
    } const sizes[] = {{1024, "4 MiB", 0.35, 0.45}, {4096, "64 MiB", 0.55, 1.0}};
    for (auto const& [side, size, invert, invertShared] : sizes) {
        // Built inside, so that only the row that runs holds memory.
        auto const row = [side = side](char const* number, std::string const& workload,
                                       char const* name, auto make) {
            contestant(number, workload, name,
                       [side, make](benchmark::State& state) { make(side)(state); });
        };
        std::string const detach = std::string("weave detach, ") + size;
        row("8b", detach, ours,
            [](int n) { return changing(square(n), true, [](WeavePattern& p) { p.flip(0, 0); }); });
        row("8b", detach, "QImage", [](int n) {
            return changing(imageOf(n), true,
                            [](QImage& i) { benchmark::DoNotOptimize(i.bits()); });
        });
        target({"8b", detach, "QImage", 1.1});
        for (bool const shared : {false, true}) {
            char const* const number = shared ? "8d" : "8c";
            std::string const workload =
                std::string(shared ? "weave invert shared, " : "weave invert, ") + size;
            row(number, workload, ours, [shared](int n) {
                return changing(square(n), shared, [](WeavePattern& p) { p.invert(); });
            });
            row(number, workload, "QImage", [shared](int n) {
                return changing(imageOf(n), shared, [](QImage& i) { i.invertPixels(); });
            });
            target({number, workload, "QImage", shared ? invertShared : invert});
        }
        std::string const equals = std::string("weave equals, ") + size;
        row("8e", equals, ours, [](int n) {
            return comparing(square(n), square(n),
                             [](auto const& a, auto const& b) { return a.equals(b); });
        });
        row("8e", equals, "QList", [](int n) {
            return comparing(listOf(n), listOf(n),
                             [](auto const& a, auto const& b) { return a == b; });
        });
        target({"8e", equals, "QList", 1.1});
        std::string const doubling = std::string("weave setSize doubling to ") + size;
        contestant("8f", doubling, ours, [n = side](benchmark::State& state) { resize(state, n); });
        contestant("8f", doubling, "row copies",
                   [n = side](benchmark::State& state) { copyRows(state, n); });
        target({"8f", doubling, "row copies", 1.3});
    }
    // A diagonal band: every cell is cleared, three of each row are set.
    contestant("8g", "makeTwill(2048, 3)", ours, [](benchmark::State& state) {
        for (auto _ : state) {
            benchmark::DoNotOptimize(WeavePattern::makeTwill(2048, 3));
        }
    });
    contestant("8g", "makeTwill(2048, 3)", "floor: cells of zero", [](benchmark::State& state) {
        for (auto _ : state) {
            std::vector<int> cells(std::size_t{2048} * 2048);
            benchmark::DoNotOptimize(cells.data());
        }
    });
    return true;
}();

} // namespace
