#include "store/LightLayers.h"

#include "store/NameIndex.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace nyx::embedded {

namespace {

std::uint8_t number(nyx::LightLayerId id) { return static_cast<std::uint8_t>(id.toUint()); }

} // namespace

LightLayers LightLayers::forScene() {
    LightLayers layers;
    layers.add({"Default", {}}, defaultLayer);
    layers.setEnvironmentMask(layers.mask(defaultLayer));
    return layers;
}

LightLayer const* LightLayers::find(nyx::LightLayerId id) const {
    // The id 0 wraps and is out of range like the invalid one.
    std::uint32_t const slot = id.toUint() - 1;
    return slot < maximum && layers_[slot] ? &*layers_[slot] : nullptr;
}

LightLayer* LightLayers::layer(nyx::LightLayerId id) {
    return const_cast<LightLayer*>(std::as_const(*this).find(id));
}

/// One above the highest; when that is out of range, the lowest that a scene file left out.
nyx::LightLayerId LightLayers::nextId() const {
    std::uint32_t highest = maximum;
    while (highest > 0 && !layers_[highest - 1]) {
        --highest;
    }
    if (highest < maximum) {
        return nyx::LightLayerId(highest + 1);
    }
    for (std::uint32_t slot = 0; slot < maximum; ++slot) {
        if (!layers_[slot]) {
            return nyx::LightLayerId(slot + 1);
        }
    }
    return {};
}

nyx::LightLayerId LightLayers::add(LightLayer added, nyx::LightLayerId wanted) {
    nyx::LightLayerId const id = wanted.isValid() ? wanted : nextId();
    std::uint32_t const slot = id.toUint() - 1;
    if (slot >= maximum || layers_[slot]) {
        return {};
    }
    layers_[slot] = std::move(added);
    return id;
}

void LightLayers::setName(nyx::LightLayerId id, std::string name) {
    if (LightLayer* const found = layer(id)) {
        found->name = std::move(name);
    }
}

void LightLayers::setFlags(nyx::LightLayerId id, nyx::Flags<layerFlags> flags) {
    if (LightLayer* const found = layer(id)) {
        found->flags = flags;
    }
}

bool LightLayers::isTaken(std::string_view name, nyx::LightLayerId except) const {
    for (std::uint32_t slot = 0; slot < maximum; ++slot) {
        if (layers_[slot] && layers_[slot]->name == name && slot + 1 != except.toUint()) {
            return true;
        }
    }
    return false;
}

std::string LightLayers::uniqueName(std::string const& text, nyx::LightLayerId except) const {
    if (text.empty() || !isTaken(text, except)) {
        return text;
    }
    std::string const base(NameIndex::split(text).base);
    std::string name;
    unsigned count = 0;
    do {
        name = base + ' ' + std::to_string(++count);
    } while (isTaken(name, except));
    return name;
}

void LightLayers::copyLayer(nyx::LightLayerId target, nyx::LightLayerId source) {
    LightLayer* const to = layer(target);
    LightLayer const* const from = find(source);
    if (to && from && to != from) {
        to->flags = nyx::Flags<layerFlags>::fromBits(
            from->flags.bits() & ~static_cast<std::uint32_t>(layerFlags::Deleted));
        to->name = uniqueName(from->name, target);
    }
}

std::vector<nyx::LightLayerId> LightLayers::ids() const {
    std::vector<nyx::LightLayerId> ids;
    for (std::uint32_t slot = 0; slot < maximum; ++slot) {
        if (layers_[slot]) {
            ids.emplace_back(slot + 1);
        }
    }
    return ids;
}

std::vector<nyx::LightLayerId> LightLayers::liveIds() const {
    std::vector<nyx::LightLayerId> live = ids();
    live.erase(std::remove_if(live.begin(), live.end(),
                              [this](nyx::LightLayerId id) { return find(id)->isDeleted(); }),
               live.end());
    return live;
}

std::uint32_t LightLayers::mask(nyx::LightLayerId id) const {
    return find(id) ? 1u << (id.toUint() - 1) : 0;
}

nyx::LightLayerId LightLayers::layerOf(std::uint32_t mask) const {
    if (!std::has_single_bit(mask)) {
        return {};
    }
    nyx::LightLayerId const id(static_cast<std::uint32_t>(std::countr_zero(mask)) + 1);
    return find(id) ? id : nyx::LightLayerId();
}

nyx::LightLayerId LightLayers::layerOf(nyx::ObjectId light) const {
    std::uint8_t const layer = layerOfLight_.find(light);
    return layer == 0 ? nyx::LightLayerId() : nyx::LightLayerId(layer);
}

std::vector<nyx::ObjectId> LightLayers::lights(nyx::LightLayerId id) const {
    return find(id) ? layerOfLight_.lights(number(id)) : std::vector<nyx::ObjectId>();
}

void LightLayers::put(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    if (!find(id)) {
        return;
    }
    for (nyx::ObjectId const light : lights) {
        if (light.isValid()) {
            layerOfLight_.put(light, number(id));
        }
    }
}

void LightLayers::take(nyx::Span<nyx::ObjectId> lights, nyx::LightLayerId id) {
    if (find(id) && id != defaultLayer) {
        for (nyx::ObjectId const light : lights) {
            if (layerOfLight_.find(light) == number(id)) {
                layerOfLight_.put(light, fallback());
            }
        }
    }
}

/// A copy that was never made equal to a scene may lack the default layer.
std::uint8_t LightLayers::fallback() const {
    return find(defaultLayer) ? number(defaultLayer) : std::uint8_t(0);
}

std::vector<nyx::ObjectId> LightLayers::markDeleted(nyx::LightLayerId id) {
    LightLayer* const deleted = layer(id);
    if (!deleted || id == defaultLayer) {
        return {};
    }
    deleted->flags = nyx::Flags<layerFlags>::fromBits(
        deleted->flags.bits() | static_cast<std::uint32_t>(layerFlags::Deleted));
    std::vector<nyx::ObjectId> moved = lights(id);
    for (nyx::ObjectId const light : moved) {
        layerOfLight_.put(light, fallback());
    }
    if ((environmentMask_ & mask(id)) != 0) {
        environmentMask_ = (environmentMask_ & ~mask(id)) | mask(defaultLayer);
    }
    return moved;
}

} // namespace nyx::embedded
