#pragma once

#include "nyxrender/AnimationKey.h"

#include <string_view>

namespace zsg {

/// The letter of each key type in the exchange format of curves, in the order of their values.
inline constexpr std::string_view keyLetters = "UTsSL";

/// '0' for a type that has none.
[[nodiscard]] constexpr char letterOf(nyx::KeyType type) noexcept {
    auto const value = static_cast<std::int32_t>(type);
    bool const known = value >= 0 && value < static_cast<std::int32_t>(keyLetters.size());
    return known ? keyLetters[static_cast<std::size_t>(value)] : '0';
}

/// U for a letter that names none.
[[nodiscard]] constexpr nyx::KeyType keyTypeOf(char letter) noexcept {
    auto const place = keyLetters.find(letter);
    return place == std::string_view::npos ? nyx::KeyType::U
                                           : static_cast<nyx::KeyType>(static_cast<int>(place));
}

} // namespace zsg
