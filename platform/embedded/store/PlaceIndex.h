#pragma once

#include "nyxrender/Ids.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

namespace nyx::embedded {

/// Where the place of a node and a parameter stands among the places of its material, by a hash of
/// the three. The places themselves are kept elsewhere, so whoever asks says which one he means.
class PlaceIndex {
public:
    void add(nyx::MaterialId material, std::uint32_t node, std::string const& parameter,
             std::uint32_t position) {
        positions_.emplace(hash(material, node, parameter), position);
    }

    /// The position for which isMeant(position) is true: asked of those with the same hash, hardly
    /// ever more than one. Positions of another material may be asked for too.
    template <class IsMeant>
    [[nodiscard]] std::optional<std::uint32_t> find(nyx::MaterialId material, std::uint32_t node,
                                                    std::string const& parameter,
                                                    IsMeant const& isMeant) const {
        auto const [first, last] = positions_.equal_range(hash(material, node, parameter));
        for (auto candidate = first; candidate != last; ++candidate) {
            if (isMeant(candidate->second)) {
                return candidate->second;
            }
        }
        return std::nullopt;
    }

private:
    static std::size_t hash(nyx::MaterialId material, std::uint32_t node,
                            std::string const& parameter) {
        constexpr std::uint64_t odd = 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = std::hash<std::string>{}(parameter);
        mixed = (mixed ^ material.toUint()) * odd;
        mixed = ((mixed ^ (mixed >> 32)) + node) * odd;
        return static_cast<std::size_t>(mixed ^ (mixed >> 32));
    }

    std::unordered_multimap<std::size_t, std::uint32_t> positions_;
};

} // namespace nyx::embedded
