#pragma once

#include "store/LayerOfLight.h"

#include "nyxrender/Flags.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"
#include "nyxrender/layerFlags.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nyx::embedded {

struct LightLayer {
    std::string name;
    nyx::Flags<layerFlags> flags;

    [[nodiscard]] bool isDeleted() const {
        return flags.test(static_cast<std::uint32_t>(layerFlags::Deleted));
    }
};

/// Light layers and the lights in them, of a scene or of a copy of it. Ids go from 1 to 32; the
/// layer n has the bit n-1 of masks. A layer stays for good: a deleted one is only marked, and
/// keeps its id, name and flags. A light is in one layer, or, where it was never put into one, in
/// none. Unknown layers are ignored and give empty answers. Copies are independent.
class LightLayers {
public:
    static constexpr std::uint32_t maximum = 32;
    /// Where lights go that lose their layer. It cannot be deleted.
    static constexpr nyx::LightLayerId defaultLayer{1};

    /// What a new scene has: the layer 1, "Default", which the environment's light is in.
    [[nodiscard]] static LightLayers forScene();

    /// An invalid `wanted` means the next id. The invalid id when that layer exists already, is out
    /// of range, or all are taken.
    nyx::LightLayerId add(LightLayer added, nyx::LightLayerId wanted);
    [[nodiscard]] LightLayer const* find(nyx::LightLayerId id) const;
    /// Names need not be unique here; see uniqueName().
    void setName(nyx::LightLayerId id, std::string name);
    void setFlags(nyx::LightLayerId id, nyx::Flags<layerFlags> flags);
    /// `text` when it is empty or no layer has it, deleted ones included; else numbered as colours
    /// are. `except` does not count.
    [[nodiscard]] std::string uniqueName(std::string const& text,
                                         nyx::LightLayerId except = {}) const;
    /// Gives `target` the flags of `source`, apart from the mark of a deleted layer, and a name
    /// made from its name.
    void copyLayer(nyx::LightLayerId target, nyx::LightLayerId source);

    /// Ascending, those marked as deleted included.
    [[nodiscard]] std::vector<nyx::LightLayerId> ids() const;
    /// The same without those.
    [[nodiscard]] std::vector<nyx::LightLayerId> liveIds() const;

    /// 0 for an unknown layer.
    [[nodiscard]] std::uint32_t mask(nyx::LightLayerId id) const;
    /// The layer that has exactly this mask; the invalid id when none has.
    [[nodiscard]] nyx::LightLayerId layerOf(std::uint32_t mask) const;

    /// The invalid id when the light is in none.
    [[nodiscard]] nyx::LightLayerId layerOf(nyx::ObjectId light) const;
    /// Ascending.
    [[nodiscard]] std::vector<nyx::ObjectId> lights(nyx::LightLayerId id) const;
    void put(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id);
    /// Puts those that are in the layer into the default one.
    void take(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id);
    /// Marks the layer as deleted and puts its lights, which are the result, into the default one;
    /// the environment's light follows.
    std::vector<nyx::ObjectId> markDeleted(nyx::LightLayerId id);

    /// The layers that the environment's light is in.
    [[nodiscard]] std::uint32_t environmentMask() const { return environmentMask_; }
    void setEnvironmentMask(std::uint32_t mask) { environmentMask_ = mask; }

private:
    [[nodiscard]] LightLayer* layer(nyx::LightLayerId id);
    [[nodiscard]] nyx::LightLayerId nextId() const;
    [[nodiscard]] std::uint8_t fallback() const;
    [[nodiscard]] bool isTaken(std::string_view name, nyx::LightLayerId except) const;

    std::array<std::optional<LightLayer>, maximum> layers_;
    LayerOfLight layerOfLight_;
    std::uint32_t environmentMask_ = 0;
};

} // namespace nyx::embedded
