#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace nyx {

/// An identifier that the renderer assigned: one 32-bit word, a distinct type per kind of object.
/// All bits set is the invalid id and the default, so the invalid id orders after every valid one.
template <class Tag>
struct Id {
    static constexpr std::uint32_t invalidValue = 0xFFFFFFFFu;

    std::uint32_t value = invalidValue;

    constexpr Id() = default;
    constexpr explicit Id(std::uint32_t v) : value(v) {}

    [[nodiscard]] constexpr bool isValid() const { return value != invalidValue; }
    [[nodiscard]] constexpr std::uint32_t toUint() const { return value; }

    friend constexpr auto operator<=>(Id, Id) = default;
};

using ColorId = Id<struct ColorIdTag>;
using ColorwayId = Id<struct ColorwayIdTag>;
using MaterialId = Id<struct MaterialIdTag>;
using SurfaceId = Id<struct SurfaceIdTag>;
using LightLayerId = Id<struct LightLayerIdTag>;
/// An object of the scene. Where the object is an item of a group, its GroupItemId has the same
/// number.
using ObjectId = Id<struct ObjectIdTag>;
using GroupItemId = Id<struct GroupItemIdTag>;

} // namespace nyx

/// @cond
template <class Tag>
struct std::hash<nyx::Id<Tag>> {
    std::size_t operator()(nyx::Id<Tag> id) const noexcept {
        return std::hash<std::uint32_t>{}(id.value);
    }
};
/// @endcond
