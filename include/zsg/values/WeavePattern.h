#pragma once

#include "zsg/Export.h"

#include <QString>

#include <cstdint>

namespace nyx {
struct WeavePattern;
}

namespace zsg {

/// A woven cloth: a periodic grid of crossings, numWarp() columns by numWeft() rows, each saying
/// which yarn lies on top, and per yarn a width, a tension, a modulus and a cross-section.
///
/// An implicitly shared handle. Copies cost one atomic increment; the first change of a shared
/// pattern copies the grid. Handles that share a grid may be copied, read and destroyed on
/// different threads; changing a handle while another thread uses that same handle is not safe. A
/// moved-from handle is a default pattern.
///
/// Coordinates wrap: any integers name a crossing, -1 is the last column or row.
class ZSG_EXPORT WeavePattern {
public:
    /// A yarn, and the cell value that says that it lies on top. The warp runs along the columns.
    enum YarnType : std::int32_t { Warp = 0, Weft = 1 };
    /// The cross-section of a yarn.
    enum YarnKind : std::int32_t { Ribbon = 0, Round = 1 };

    /// 2 x 2, the warp on top everywhere; widths 0.4 (warp) and 0.9 (weft), tensions and moduli 1,
    /// both yarns round. Allocates nothing.
    WeavePattern() noexcept;
    /// A grid of that size with the default yarns. `cells`, when not null, holds numWarp * numWeft
    /// values row after row; whatever is not 0 counts as Weft. A size that setSize() ignores gives
    /// the default pattern, and then `cells` is not read.
    WeavePattern(int numWarp, int numWeft, int const* cells);
    WeavePattern(WeavePattern const& other) noexcept;
    WeavePattern(WeavePattern&& other) noexcept;
    WeavePattern& operator=(WeavePattern const& other) noexcept;
    WeavePattern& operator=(WeavePattern&& other) noexcept;
    ~WeavePattern();

    [[nodiscard]] int numWarp() const noexcept;
    [[nodiscard]] int numWeft() const noexcept;
    /// The grid for the renderer: never null, owned by the pattern, valid until the pattern is
    /// changed, assigned or destroyed.
    [[nodiscard]] nyx::WeavePattern const* nyxWeavePattern() const noexcept;

    [[nodiscard]] YarnType get(int x, int y) const noexcept;
    void set(int x, int y, YarnType type);
    /// Puts the other yarn on top at one crossing.
    void flip(int x, int y);
    /// Puts the other yarn on top everywhere.
    void invert();
    void clear(YarnType type);
    /// Repeats the pattern periodically into a larger grid, crops it into a smaller one. Ignored
    /// when a size is below 1 or the number of cells exceeds the range of an int.
    void setSize(int numWarp, int numWeft);
    /// Takes over size and cells (as they are, also those other than 0 and 1); the yarns stay. A
    /// record without cells, or of a size that setSize() ignores, is ignored.
    void setFromNyxPattern(nyx::WeavePattern const& pattern);

    [[nodiscard]] float width(YarnType type) const noexcept;
    void setWidth(YarnType type, float width);
    [[nodiscard]] float tension(YarnType type) const noexcept;
    void setTension(YarnType type, float tension);
    [[nodiscard]] YarnKind kind(YarnType type) const noexcept;
    void setKind(YarnType type, YarnKind kind);

    /// Same size, cells and kinds, and widths, tensions and moduli equal within one part in 100,000
    /// of the smaller one (so 0 equals only 0, and a NaN nothing but a pattern that shares its
    /// grid).
    [[nodiscard]] bool equals(WeavePattern const& other) const noexcept;
    /// Covers everything that equals() compares except the moduli. Floats enter quantised, so
    /// nearly all equal patterns hash alike, but not those whose floats differ across a
    /// quantisation step.
    [[nodiscard]] std::uint64_t hash() const noexcept;

    /// Compact JSON: "kind", "modulus", "tension" and "width" (warp, then weft), "pattern_mask"
    /// (the cells row after row), "pattern_warps", "pattern_wefts". A float that is not finite
    /// becomes null, which setFromJson() does not read.
    [[nodiscard]] QString toJson() const;
    /// Reads what toJson() wrote; unknown members are ignored. False, and nothing changes, when the
    /// text is empty, the mask does not hold one value per crossing, the size is one that setSize()
    /// ignores, or a size or a kind is beyond the range of an int. A number of the mask is cut to a
    /// whole one, however large; what is not 0 then counts as Weft. The yarns change only when all
    /// four of their arrays have two elements, otherwise just the grid does.
    /// Throws nlohmann::json::exception for text that is not JSON, for a document that is not an
    /// object and for values of a wrong type; the pattern is then unchanged.
    bool setFromJson(QString const& text);
    /// Writes source text that rebuilds the pattern (without moduli) to std::cout, whose precision
    /// is 4 afterwards.
    void printPreset() const;

    [[nodiscard]] static WeavePattern makePlain();
    /// n x n: a diagonal band of `k` weft crossings per row, moving one column per row.
    /// Here and below: n below 1, or too large for setSize(), gives a single crossing.
    [[nodiscard]] static WeavePattern makeTwill(int n, int k);
    /// n x n: one warp crossing per row, `step` columns further in each row.
    [[nodiscard]] static WeavePattern makeSatin(int n, int step);
    /// 2n x 2n: a checkerboard of n x n blocks.
    [[nodiscard]] static WeavePattern makeBasket(int n);
    /// 12 x 8, fixed.
    [[nodiscard]] static WeavePattern makeHerringbone();

private:
    struct Data;

    void wrap(int& x, int& y) const noexcept;
    void detach();

    Data* d_;
};

} // namespace zsg
