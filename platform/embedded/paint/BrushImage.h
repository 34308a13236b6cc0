#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace nyx::embedded {

/// A picture that a brush paints with: 8-bit red, green, blue, alpha (not premultiplied), rows from
/// the top.
struct BrushImage {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba; ///< width * height * 4

    /// The pixel's first of four bytes; the coordinates must be inside.
    [[nodiscard]] std::uint8_t const* at(int x, int y) const {
        return &rgba[(static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)) *
                     4];
    }
};

/// The largest number of pixels that readBrushImage() takes: 8192 x 8192.
inline constexpr std::uint64_t mostBrushImagePixels = std::uint64_t(8192) * 8192;

/// The path that UTF-8 text names. Other text names a file on some systems and none on the others.
[[nodiscard]] std::filesystem::path brushImagePath(std::string const& text);

/// Reads a PNG file at a UTF-8 path. When that is impossible the result is null and `message` says
/// why.
[[nodiscard]] std::shared_ptr<BrushImage const> readBrushImage(std::string const& path,
                                                               std::string& message);

} // namespace nyx::embedded
