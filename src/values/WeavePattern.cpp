#include "zsg/values/WeavePattern.h"

#include "values/WeaveJson.h"
#include "values/WeavePatternData.h"
#include "values/hashCombine.h"
#include "zsg/values/hash.h"

#include <cmath>
#include <cstring>
#include <iostream>
#include <optional>

namespace zsg {

namespace {

constexpr int wrapped(int value, int modulus) noexcept {
    if (static_cast<unsigned>(value) < static_cast<unsigned>(modulus)) {
        return value; // spares the division
    }
    int const remainder = value % modulus;
    return remainder < 0 ? remainder + modulus : remainder;
}

constexpr int yarn(WeavePattern::YarnType type) noexcept {
    return type == WeavePattern::Warp ? 0 : 1;
}

bool fuzzyEqual(float a, float b) noexcept {
    return std::abs(a - b) * 100000.0f <= std::min(std::abs(a), std::abs(b));
}

WeaveGrid resized(WeaveGrid const& old, int numWarp, int numWeft) {
    WeaveGrid grid(numWarp, numWeft);
    auto const oldWidth = static_cast<std::size_t>(old.record().numWarp);
    auto const oldHeight = static_cast<std::size_t>(old.record().numWeft);
    auto const width = static_cast<std::size_t>(numWarp);
    auto const height = static_cast<std::size_t>(numWeft);
    for (std::size_t y = 0; y < height; ++y) {
        WeaveGrid::Cell* const row = grid.cells() + y * width;
        WeaveGrid::Cell const* const oldRow = old.cells() + y % oldHeight * oldWidth;
        std::size_t done = std::min(width, oldWidth);
        std::copy_n(oldRow, done, row);
        while (done < width) { // what is there repeats with the old period, so double it
            std::size_t const more = std::min(done, width - done);
            std::copy_n(row, more, row + done);
            done += more;
        }
    }
    return grid;
}

} // namespace

// Patterns are made far more often than they are filled, so all default ones share one record,
// which is there before any of them, outlives them all and is never freed.
WeavePattern::Data& WeavePattern::Data::standard() noexcept {
    union Immortal {
        constexpr Immortal(WeaveGrid::Cell* cells) noexcept : data(2, 2, cells) {}
        ~Immortal() {}
        Data data;
    };
    alignas(32) static constinit WeaveGrid::Cell cells[4] = {};
    static constinit Immortal immortal(cells);
    return immortal.data;
}

// Inline, because calls of exported functions go through the dynamic linker even in here.
inline void WeavePattern::wrap(int& x, int& y) const noexcept {
    x = wrapped(x, d_->grid.record().numWarp);
    y = wrapped(y, d_->grid.record().numWeft);
}

inline void WeavePattern::detach() {
    if (d_->isShared()) {
        Data::unshare(*this);
    }
}

WeavePattern::WeavePattern() noexcept : d_(Data::standard().share()) {}

WeavePattern::WeavePattern(int numWarp, int numWeft, int const* cells) : WeavePattern() {
    if (!WeaveGrid::isValidSize(numWarp, numWeft)) {
        return;
    }
    WeaveGrid grid(numWarp, numWeft);
    if (cells) {
        std::transform(cells, cells + grid.count(), grid.cells(),
                       [](int cell) { return cell != 0 ? Weft : Warp; });
    } else {
        std::fill_n(grid.cells(), grid.count(), Warp);
    }
    Data::replaceGrid(*this, std::move(grid));
}

WeavePattern::WeavePattern(WeavePattern const& other) noexcept : d_(other.d_->share()) {}

WeavePattern::WeavePattern(WeavePattern&& other) noexcept
    : d_(std::exchange(other.d_, Data::standard().share())) {}

WeavePattern& WeavePattern::operator=(WeavePattern const& other) noexcept {
    Data::release(std::exchange(d_, other.d_->share()));
    return *this;
}

WeavePattern& WeavePattern::operator=(WeavePattern&& other) noexcept {
    WeavePattern taken(std::move(other));
    std::swap(d_, taken.d_);
    return *this;
}

WeavePattern::~WeavePattern() { Data::release(d_); }

int WeavePattern::numWarp() const noexcept { return d_->grid.record().numWarp; }

int WeavePattern::numWeft() const noexcept { return d_->grid.record().numWeft; }

nyx::WeavePattern const* WeavePattern::nyxWeavePattern() const noexcept {
    return &d_->grid.record();
}

WeavePattern::YarnType WeavePattern::get(int x, int y) const noexcept {
    wrap(x, y);
    return static_cast<YarnType>(d_->grid.cells()[d_->grid.index(x, y)]);
}

void WeavePattern::set(int x, int y, YarnType type) {
    if (d_->isShared()) { // as a call at the end, for which the usual case saves no registers
        return Data::setUnshared(*this, x, y, type);
    }
    wrap(x, y);
    d_->grid.cells()[d_->grid.index(x, y)] = type;
}

void WeavePattern::flip(int x, int y) {
    detach();
    wrap(x, y);
    d_->grid.cells()[d_->grid.index(x, y)] ^= 1;
}

void WeavePattern::invert() {
    std::size_t const count = d_->grid.count();
    if (d_->isShared()) { // in one pass rather than copy and change
        WeaveGrid grid(numWarp(), numWeft());
        std::transform(d_->grid.cells(), d_->grid.cells() + count, grid.cells(),
                       [](WeaveGrid::Cell cell) { return cell ^ 1; });
        Data::replaceGrid(*this, std::move(grid));
        return;
    }
    WeaveGrid::Cell* const cells = d_->grid.cells();
    for (std::size_t i = 0; i < count; ++i) {
        cells[i] ^= 1;
    }
}

void WeavePattern::clear(YarnType type) {
    if (d_->isShared()) {
        Data::replaceGrid(*this, WeaveGrid(numWarp(), numWeft()));
    }
    std::fill_n(d_->grid.cells(), d_->grid.count(), type);
}

void WeavePattern::setSize(int numWarp, int numWeft) {
    if (WeaveGrid::isValidSize(numWarp, numWeft)) {
        Data::replaceGrid(*this, resized(d_->grid, numWarp, numWeft));
    }
}

void WeavePattern::setFromNyxPattern(nyx::WeavePattern const& pattern) {
    if (!pattern.cells || !WeaveGrid::isValidSize(pattern.numWarp, pattern.numWeft)) {
        return;
    }
    WeaveGrid grid(pattern.numWarp, pattern.numWeft);
    std::copy_n(pattern.cells, grid.count(), grid.cells());
    Data::replaceGrid(*this, std::move(grid));
}

float WeavePattern::width(YarnType type) const noexcept { return d_->yarns.width[yarn(type)]; }

void WeavePattern::setWidth(YarnType type, float width) {
    detach();
    d_->yarns.width[yarn(type)] = width;
}

float WeavePattern::tension(YarnType type) const noexcept { return d_->yarns.tension[yarn(type)]; }

void WeavePattern::setTension(YarnType type, float tension) {
    detach();
    d_->yarns.tension[yarn(type)] = tension;
}

WeavePattern::YarnKind WeavePattern::kind(YarnType type) const noexcept {
    return d_->yarns.kind[yarn(type)];
}

void WeavePattern::setKind(YarnType type, YarnKind kind) {
    if (d_->yarns.kind[yarn(type)] != kind) {
        detach();
        d_->yarns.kind[yarn(type)] = kind;
    }
}

bool WeavePattern::equals(WeavePattern const& other) const noexcept {
    if (d_ == other.d_) {
        return true;
    }
    if (numWarp() != other.numWarp() || numWeft() != other.numWeft()) {
        return false;
    }
    WeaveYarns const& a = d_->yarns;
    WeaveYarns const& b = other.d_->yarns;
    for (int type : {Warp, Weft}) {
        if (a.kind[type] != b.kind[type] || !fuzzyEqual(a.width[type], b.width[type]) ||
            !fuzzyEqual(a.tension[type], b.tension[type]) ||
            !fuzzyEqual(a.modulus[type], b.modulus[type])) {
            return false;
        }
    }
    WeaveGrid const& grid = d_->grid;
    return std::memcmp(grid.cells(), other.d_->grid.cells(),
                       grid.count() * sizeof(WeaveGrid::Cell)) == 0;
}

std::uint64_t WeavePattern::hash() const noexcept {
    // The moduli are left out although equals() compares them: stored hashes rely on it.
    WeaveYarns const& yarns = d_->yarns;
    std::uint64_t h = hash_float(yarns.tension[Warp]);
    h = combine(h, hash_float(yarns.tension[Weft]));
    h = combine(h, hash_float(yarns.width[Warp]));
    h = combine(h, hash_float(yarns.width[Weft]));
    h = combine(h, hash_int(yarns.kind[Warp]));
    h = combine(h, hash_int(yarns.kind[Weft]));
    h = combine(h, hash_int(numWarp()));
    h = combine(h, hash_int(numWeft()));
    // Nearly all cells are one of two values; each link of the chain waits for the one before, so a
    // look-up costs nothing beside it.
    std::uint64_t const known[] = {prepared(hash_int(Warp)), prepared(hash_int(Weft))};
    WeaveGrid::Cell const* const cells = d_->grid.cells();
    std::size_t const count = d_->grid.count();
    for (std::size_t i = 0; i < count; ++i) {
        auto const cell = static_cast<std::uint32_t>(cells[i]);
        h = combinePrepared(h, cell <= 1 ? known[cell] : prepared(hash_int(cells[i])));
    }
    return h;
}

QString WeavePattern::toJson() const { return weaveToJson(d_->grid, d_->yarns); }

bool WeavePattern::setFromJson(QString const& text) {
    std::optional<WeaveText> read = weaveFromJson(text);
    if (!read) {
        return false;
    }
    Data::replaceGrid(*this, std::move(read->grid));
    if (read->yarns) {
        d_->yarns = *read->yarns;
    }
    return true;
}

void WeavePattern::printPreset() const {
    std::cout << "const int pattern[] = {";
    for (std::size_t i = 0; i < d_->grid.count(); ++i) {
        std::cout << d_->grid.cells()[i] << ", ";
    }
    std::cout << "};\n\n"
              << "std::unique_ptr<WeavePattern> weave = std::make_unique<WeavePattern>("
              << numWarp() << "," << numWeft() << ", pattern);";
    std::cout.precision(4); // stays set: what a host prints next follows it
    for (YarnType type : {Warp, Weft}) {
        char const* const name = type == Warp ? "YarnType::Warp" : "YarnType::Weft";
        std::cout << "weave.setWidth(" << name << ", " << width(type) << ");\n"
                  << "weave.setTension(" << name << ", " << tension(type) << ");\n"
                  << "weave.setKind(" << name << ", "
                  << (kind(type) == Round ? "YarnKind::Round" : "YarnKind::Ribbon") << ");\n";
    }
    std::cout << "return weave;";
}

} // namespace zsg
