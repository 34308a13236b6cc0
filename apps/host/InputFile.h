#pragma once

#include <cstdint>
#include <string>

namespace app {

// Files whose whole contents are read. Scripts are read line by line and may come from anywhere.

/// The most that a file of each format may hold, in bytes: well above what is met, and what the
/// memory of a small machine can take.
inline constexpr std::uintmax_t largestScene = std::uintmax_t{1} << 30;
inline constexpr std::uintmax_t largestWeave = std::uintmax_t{1} << 26;
inline constexpr std::uintmax_t largestPreset = std::uintmax_t{1} << 20;
inline constexpr std::uintmax_t largestPalette = std::uintmax_t{1} << 24;
inline constexpr std::uintmax_t largestCMFSchema = std::uintmax_t{1} << 27;
inline constexpr std::uintmax_t largestMeasurement = std::uintmax_t{1} << 24;

/// Throws CommandError unless the path (UTF-8) names a regular file of 1 to `largest` bytes. The
/// file is not opened: a pipe would wait for its other end, and a device has no end.
void checkInputFile(std::string const& path, std::uintmax_t largest);

/// The contents of such a file; throws CommandError when it is none or cannot be read.
[[nodiscard]] std::string readInputFile(std::string const& path, std::uintmax_t largest);

} // namespace app
