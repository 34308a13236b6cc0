#pragma once

#include "nyxrender/Ids.h"

#include <compare>
#include <cstdint>

namespace zsg {

/// What the identifiers of the material model share: one 32-bit word. All bits set is the invalid
/// id and the default, so the invalid id orders after every valid one. Ids of different kinds
/// neither convert nor compare.
template <class Kind>
class IdBase {
public:
    constexpr IdBase() = default;
    constexpr explicit IdBase(unsigned int value) : value_(value) {}

    [[nodiscard]] constexpr bool isValid() const noexcept { return value_ != 0xFFFFFFFFu; }
    [[nodiscard]] constexpr unsigned int toUint() const noexcept { return value_; }

    friend constexpr auto operator<=>(IdBase, IdBase) = default;

private:
    std::uint32_t value_ = 0xFFFFFFFFu;
};

/// A material. Converts to the renderer's identifier and back, both keep the number.
class MaterialId : public IdBase<MaterialId> {
public:
    using IdBase::IdBase;
    constexpr MaterialId(nyx::MaterialId id) : IdBase(id.toUint()) {}
    constexpr operator nyx::MaterialId() const { return nyx::MaterialId(toUint()); }
};

/// A node of a material's shader graph.
class ShaderNodeId : public IdBase<ShaderNodeId> {
public:
    using IdBase::IdBase;
};

/// A connection between two nodes of a material's shader graph.
class ShaderEdgeId : public IdBase<ShaderEdgeId> {
public:
    using IdBase::IdBase;
};

} // namespace zsg
