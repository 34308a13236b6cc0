#pragma once

#include <cstdint>

/// A colour as three floats, linear, usually 0 to 1; nothing clamps them.
struct nyxColor {
    float r = 0, g = 0, b = 0;

    /// Exact; so are the comparisons of all records.
    friend bool operator==(nyxColor const&, nyxColor const&) = default;
};

/// A colour with alpha.
struct nyxColor_rgba {
    float r = 0, g = 0, b = 0, a = 0;

    friend bool operator==(nyxColor_rgba const&, nyxColor_rgba const&) = default;
};

/// The flag bits of colour records.
struct nyxColor_flags {
    static constexpr std::uint32_t MultiColor = 1; ///< lists sub-colours, one of them active
    static constexpr std::uint32_t Temporary = 4;  ///< the preview colour, left out of all lists
};

/// The flag bits of colorway records.
struct nyxColorway_flags {
    static constexpr std::uint32_t Deleted = 1;
    static constexpr std::uint32_t Active = 2;
};

/// The kinds of colour records that can be listed and created.
struct nyxColor_extended {
    enum ColorType : std::uint32_t {
        PlainColor = 1, ///< a single colour
        MultiColor = 2, ///< an ordered list of colours of which one is active
    };
};
