#include "require.h"
#include "zsg/values/WeavePattern.h"

#include "nyxrender/WeavePattern.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <utility>
#include <vector>

using zsg::WeavePattern;

namespace {

/// A pattern beside a plain grid.
struct Pair {
    WeavePattern pattern;
    int warps = 2;
    int wefts = 2;
    std::vector<int> cells = std::vector<int>(4);

    [[nodiscard]] int& at(int x, int y) {
        auto const wrapped = [](int value, int size) { return (value % size + size) % size; };
        return cells[static_cast<std::size_t>(wrapped(y, wefts) * warps + wrapped(x, warps))];
    }
    void resize(int newWarps, int newWefts) {
        Pair const old = *this;
        warps = newWarps;
        wefts = newWefts;
        cells.assign(static_cast<std::size_t>(warps * wefts), 0);
        for (int y = 0; y < wefts; ++y) {
            for (int x = 0; x < warps; ++x) {
                at(x, y) = Pair(old).at(x % old.warps, y % old.wefts);
            }
        }
    }
    void check() const {
        nyx::WeavePattern const& record = *pattern.nyxWeavePattern();
        require(record.numWarp == warps && record.numWeft == wefts);
        require(std::equal(cells.begin(), cells.end(), record.cells));
    }
};

} // namespace

/// Edits of two patterns that share and part, each against its grid; texts lead back to the same.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    std::array<Pair, 2> pairs;
    for (int edits = 0; input.remaining_bytes() > 0 && edits < 200; ++edits) {
        auto const which = input.ConsumeIntegralInRange<std::size_t>(0, 1);
        Pair& mine = pairs[which];
        int const x = input.ConsumeIntegral<std::int8_t>();
        int const y = input.ConsumeIntegral<std::int8_t>();
        auto const yarn = input.ConsumeBool() ? WeavePattern::Weft : WeavePattern::Warp;
        switch (input.ConsumeIntegralInRange(0, 8)) {
        case 0:
            mine.pattern.set(x, y, yarn);
            mine.at(x, y) = yarn;
            break;
        case 1:
            mine.pattern.flip(x, y);
            mine.at(x, y) ^= 1;
            break;
        case 2:
            mine.pattern.invert();
            for (int& cell : mine.cells) {
                cell ^= 1;
            }
            break;
        case 3:
            mine.pattern.clear(yarn);
            mine.cells.assign(mine.cells.size(), yarn);
            break;
        case 4: // smaller than 1 is ignored
            mine.pattern.setSize(x % 16, y % 16);
            if (x % 16 > 0 && y % 16 > 0) {
                mine.resize(x % 16, y % 16);
            }
            break;
        case 5:
            mine.pattern.setWidth(yarn, input.ConsumeFloatingPoint<float>());
            break;
        case 6:
            mine.pattern.setKind(yarn, static_cast<WeavePattern::YarnKind>(x));
            break;
        case 7:
            mine = pairs[1 - which];
            require(mine.pattern.equals(pairs[1 - which].pattern) &&
                    mine.pattern.hash() == pairs[1 - which].pattern.hash());
            break;
        default: {
            QString const text = mine.pattern.toJson();
            WeavePattern read = pairs[1 - which].pattern;
            require(text.contains("null") || (read.setFromJson(text) && read.toJson() == text));
        }
        }
        require(mine.pattern.get(x, y) == mine.at(x, y));
        pairs[0].check();
        pairs[1].check();
    }
    return 0;
}
