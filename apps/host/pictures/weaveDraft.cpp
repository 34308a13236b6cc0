#include "host/pictures/weaveDraft.h"

#include "host/Arguments.h"
#include "zsg/values/WeavePattern.h"

#include <algorithm>

namespace app {

namespace {

using zsg::WeavePattern;

constexpr int largestDrawnSide = 512;
constexpr int largestShownTwice = 64;
constexpr int largestSize = 1024; ///< of the longer side, in pixels
constexpr int smallestCell = 2;
constexpr int largestCell = 24;
constexpr int smallestRuled = 6; ///< cells below it would drown in lines
constexpr double margin = 16;
constexpr double legend = 52;
constexpr double leastWidth = 340; ///< what the legend takes

/// Every crossing where the warp is on top, as strokes of the height of a row: the shortest way to
/// write that many squares.
shape::Path warps(WeavePattern const& weave, int columns, int rows, double cell) {
    shape::Path path;
    path.stroke = {Ink::Warp, cell};
    path.crisp = true;
    for (int y = 0; y < rows; ++y) {
        double const middle = margin + cell * (y + 0.5);
        for (int x = 0; x < columns;) {
            if (weave.get(x, y) != WeavePattern::Warp) {
                ++x;
                continue;
            }
            int const first = x;
            while (x < columns && weave.get(x, y) == WeavePattern::Warp) {
                ++x;
            }
            path.moveTo({margin + cell * first, middle});
            path.lineTo({margin + cell * x, middle});
        }
    }
    return path;
}

/// Lines at every `columnStep` columns and `rowStep` rows.
shape::Path rule(int columns, int rows, int columnStep, int rowStep, double cell) {
    shape::Path path;
    for (int x = 0; x <= columns; x += columnStep) {
        path.moveTo({margin + cell * x, margin});
        path.lineTo({margin + cell * x, margin + cell * rows});
    }
    for (int y = 0; y <= rows; y += rowStep) {
        path.moveTo({margin, margin + cell * y});
        path.lineTo({margin + cell * columns, margin + cell * y});
    }
    return path;
}

void explain(Picture& picture, double x, double y, Ink ink, std::string const& text) {
    picture.add(shape::Rectangle{{x, y - 11}, 14, 14, ink, {Ink::Frame, 1}, 2});
    picture.add(shape::Text{{x + 22, y}, text});
}

} // namespace

Picture weaveDraft(WeavePattern const& weave) {
    int const width = weave.numWarp();
    int const height = weave.numWeft();
    if (std::max(width, height) > largestDrawnSide) {
        throw CommandError("the weave is too large to draw");
    }
    bool const twice = std::max(width, height) <= largestShownTwice;
    int const columns = twice ? 2 * width : width;
    int const rows = twice ? 2 * height : height;
    int const side =
        std::clamp(largestSize / std::max({columns, rows, 1}), smallestCell, largestCell);
    double const cell = side;
    std::string const size = std::to_string(width) + " \xC3\x97 " + std::to_string(height);
    Picture picture{std::max(cell * columns + 2 * margin, leastWidth),
                    cell * rows + 2 * margin + legend,
                    "A weave of " + size,
                    {}};
    picture.add(shape::Rectangle{{margin, margin}, cell * columns, cell * rows, Ink::Weft, {}, 0});
    picture.add(warps(weave, columns, rows, cell));
    bool const ruled = side >= smallestRuled;
    if (ruled) {
        shape::Path lines = rule(columns, rows, 1, 1, cell);
        lines.stroke = {Ink::Frame, 0.5};
        picture.add(std::move(lines));
    }
    // The lines of the repeats, or only those around the whole.
    shape::Path lines = rule(columns, rows, ruled ? width : columns, ruled ? height : rows, cell);
    lines.stroke = {Ink::First, ruled ? 2.0 : 1.0};
    picture.add(std::move(lines));
    double const first = margin + cell * rows + 30;
    explain(picture, margin, first, Ink::Warp, "warp on top");
    explain(picture, margin + 120, first, Ink::Weft, "weft on top");
    picture.add(shape::Text{{margin, first + 22},
                            size + (twice ? " crossings, shown twice each way" : " crossings"),
                            12,
                            Ink::Faint});
    return picture;
}

} // namespace app
