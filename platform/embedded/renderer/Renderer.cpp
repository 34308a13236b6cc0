#include "nyxembedded/Renderer.h"

#include "api/Notifications.h"
#include "api/Painter.h"
#include "api/RtApi.h"
#include "api/SceneApi.h"
#include "nyxembedded/Painting.h"
#include "scenefile/SceneDump.h"
#include "scenefile/SceneFile.h"
#include "store/Accounts.h"
#include "store/Scene.h"

#include <algorithm>
#include <cmath>
#include <utility>

#if defined(__GLIBC__)
    #include <malloc.h>
#endif

namespace nyx::embedded {

namespace {

/// Reading a big scene needs several times its memory; the allocator keeps that unless it is asked.
void returnMemory() {
#if defined(__GLIBC__)
    malloc_trim(0);
#endif
}

/// Names end at a zero byte: what follows would be in no text that the library sees, and in no
/// scene file.
std::string upToZero(std::string const& text) { return text.c_str(); }

} // namespace

class Renderer::Impl {
public:
    Impl() {
        scene.setApi(&sceneApi);
        scene.setPainterFactory(&painters);
    }

    nyxScene scene;
    SceneApi sceneApi{scene};
    PainterFactory painters{scene};
    Notifications notifications{scene.faults()};
    RtApi api{scene, notifications};
    Painting painting{scene.surfaces()};

    void replaceScene(nyxScene& fresh, std::function<void()> const& beforeReplacing) {
        if (beforeReplacing) {
            beforeReplacing();
        }
        scene.takeContents(fresh);
        notifications.forgetMessages(); // they name records that are no more
        api.setUnmodified();
        announceColors();
    }

    void announceColors() {
        scene.forEachColor([this](ColorRecord const& color) {
            if (!color.isTemporary()) {
                notifications.colorChanged(color.head.id);
            }
        });
    }
};

Renderer::Renderer() : impl_(std::make_unique<Impl>()) {}

Renderer::~Renderer() = default;

nyxRT_api* Renderer::api() { return &impl_->api; }

nyxScene* Renderer::scene() { return &impl_->scene; }

nyx::ColorId Renderer::addColor(std::string const& name, nyxColor_rgba const& value) {
    ColorRecord record;
    record.name = impl_->scene.uniqueColorName(upToZero(name), {});
    record.value = value;
    return impl_->scene.addColor(std::move(record));
}

nyx::ColorId Renderer::addMultiColor(std::string const& name, nyx::Span<nyx::ColorId> subColors,
                                     nyx::ColorId active) {
    ColorRecord record;
    record.head.flags = MultiColorFlag;
    record.name = impl_->scene.uniqueColorName(upToZero(name), {});
    record.subColors.assign(subColors.begin(), subColors.end());
    record.activeSub = active;
    return impl_->scene.addColor(std::move(record));
}

nyx::ColorwayId Renderer::addColorway(std::string const& name, nyx::Span<ColorwayPair> pairs) {
    ColorwayRecord record;
    record.name = upToZero(name);
    for (ColorwayPair const& pair : pairs) {
        record.multiColors.push_back(pair.multiColor);
        record.activeSubs.push_back(pair.subColor);
    }
    return impl_->scene.addColorway(std::move(record));
}

nyx::MaterialId Renderer::addMaterial(std::string const& name) {
    nyxMaterial record;
    record.name = upToZero(name);
    return impl_->scene.addMaterial(std::move(record));
}

bool Renderer::bindColor(nyx::MaterialId material, std::uint32_t node, std::string const& parameter,
                         nyx::ColorId color) {
    return impl_->scene.bindColor(material, node, upToZero(parameter), color, true);
}

bool Renderer::rebindColor(nyx::MaterialId material, std::uint32_t node,
                           std::string const& parameter, nyx::ColorId color) {
    return impl_->scene.bindColor(material, node, upToZero(parameter), color, false);
}

bool Renderer::setMaterialItems(nyx::MaterialId material, std::vector<unsigned> items) {
    nyxMaterial* const record = impl_->scene.material(material);
    if (record == nullptr) {
        return false;
    }
    record->items = std::move(items);
    return true;
}

nyx::GroupItemId Renderer::addGroup(std::string const& name, nyx::GroupItemId parent) {
    return impl_->scene.addItem({{}, ItemKind::Group, upToZero(name), parent, {}});
}

nyx::ObjectId Renderer::addObject(std::string const& name, nyx::GroupItemId parent,
                                  nyx::MaterialId material) {
    auto const id = impl_->scene.addItem({{}, ItemKind::Object, upToZero(name), parent, material});
    return nyx::ObjectId(id.toUint());
}

nyx::ObjectId Renderer::addLight(std::string const& name, nyx::GroupItemId parent) {
    auto const id = impl_->scene.addItem({{}, ItemKind::Light, upToZero(name), parent, {}});
    return nyx::ObjectId(id.toUint());
}

bool Renderer::setUnlisted(nyx::ObjectId light, bool unlisted) {
    GroupItem* const item = impl_->scene.item(nyx::GroupItemId(light.toUint()));
    if (item == nullptr || !item->is_light()) {
        return false;
    }
    item->lightShader.unlisted = unlisted;
    return true;
}

void Renderer::setEnvironmentLightMask(std::uint32_t mask) {
    impl_->scene.lightLayers().setEnvironmentMask(mask);
}

nyxLight_layer_db& Renderer::lightLayers() { return *impl_->scene.lights().database(); }

nyx::SurfaceId Renderer::addSurface(std::string const& name, int resolution) {
    return impl_->scene.surfaces().create(upToZero(name), resolution);
}

Painting& Renderer::painting() { return impl_->painting; }

void Renderer::setUnitScale(double scale) {
    impl_->scene.setUnitScale(std::isfinite(scale) && scale > 0 ? scale : 0);
}

bool Renderer::removeColor(nyx::ColorId id) { return impl_->scene.removeColor(id); }

bool Renderer::removeColorway(nyx::ColorwayId id) { return impl_->scene.removeColorway(id); }

bool Renderer::changeColor(nyx::ColorId id, nyxColor_rgba const& value) {
    ColorRecord const* const record = impl_->scene.color(id);
    if (record == nullptr) {
        return false;
    }
    ColorRecord changed = *record;
    changed.value = value;
    impl_->scene.updateColor(changed);
    impl_->notifications.colorChanged(id);
    return true;
}

bool Renderer::activateColorway(nyx::ColorwayId id) {
    nyxScene& scene = impl_->scene;
    ColorwayRecord const* const wanted = scene.colorway(id);
    if (wanted == nullptr) {
        return false;
    }
    std::vector<ColorwayRecord> flagged;
    scene.forEachColorway([&](ColorwayRecord const& colorway) {
        std::uint32_t const flags = colorway.id == id ? colorway.flags | ActiveColorwayFlag
                                                      : colorway.flags & ~ActiveColorwayFlag;
        if (flags != colorway.flags) {
            flagged.push_back(colorway);
            flagged.back().flags = flags;
        }
    });
    for (ColorwayRecord const& colorway : flagged) {
        scene.updateColorway(colorway);
    }
    scene.setActiveColorway(id);
    std::size_t const pairs = std::min(wanted->multiColors.size(), wanted->activeSubs.size());
    for (std::size_t i = 0; i < pairs; ++i) {
        ColorRecord const* const multi = scene.color(wanted->multiColors[i]);
        nyx::ColorId const sub = wanted->activeSubs[i];
        if (multi != nullptr && multi->isMulti() &&
            std::find(multi->subColors.begin(), multi->subColors.end(), sub) !=
                multi->subColors.end()) {
            ColorRecord changed = *multi;
            changed.activeSub = sub;
            scene.updateColor(changed);
        }
    }
    impl_->notifications.colorwayActivated(id);
    return true;
}

void Renderer::announceColors() { impl_->announceColors(); }

void Renderer::setMessageHandler(std::function<void(nyxMessage const&)> handler) {
    impl_->notifications.setHandler(std::move(handler));
}

void Renderer::processEvents() { impl_->notifications.processEvents(); }

Journal& Renderer::journal() { return impl_->scene.journal(); }

std::string Renderer::dump() const { return dumpScene(impl_->scene); }

nyx::ColorId Renderer::findColor(std::string const& name) const {
    nyx::Span<nyx::ColorId> const holders = impl_->scene.colorsNamed(name);
    return holders.empty() ? nyx::ColorId() : holders[0];
}

nyx::ColorwayId Renderer::findColorway(std::string const& name) const {
    nyx::ColorwayId found;
    impl_->scene.forEachColorway([&](ColorwayRecord const& record) {
        found = !found.isValid() && record.name == name ? record.id : found;
    });
    return found;
}

nyx::MaterialId Renderer::findMaterial(std::string const& name) const {
    nyx::MaterialId found;
    impl_->scene.forEachMaterial([&](nyxMaterial const& record) {
        found = !found.isValid() && record.name == name ? record.id : found;
    });
    return found;
}

nyx::GroupItemId Renderer::findItem(std::string const& name) const {
    nyx::GroupItemId found;
    impl_->scene.forEachItem([&](GroupItem const& item) {
        found = !found.isValid() && item.record.name == name ? item.id() : found;
    });
    return found;
}

std::optional<ColorInfo> Renderer::color(nyx::ColorId id) const {
    ColorRecord const* const record = impl_->scene.color(id);
    if (record == nullptr) {
        return std::nullopt;
    }
    return ColorInfo{
        id, record->head.flags, record->name, record->value, record->subColors, record->activeSub};
}

std::optional<ColorwayInfo> Renderer::colorway(nyx::ColorwayId id) const {
    ColorwayRecord const* const record = impl_->scene.colorway(id);
    if (record == nullptr) {
        return std::nullopt;
    }
    return ColorwayInfo{id, record->flags, record->name, record->multiColors, record->activeSubs};
}

std::optional<MaterialInfo> Renderer::material(nyx::MaterialId id) const {
    nyxMaterial const* const record = std::as_const(impl_->scene).material(id);
    if (record == nullptr) {
        return std::nullopt;
    }
    MaterialInfo info{id, record->name, {}, impl_->scene.isMaterialUsed(id)};
    for (MaterialPlace const& place : record->places) {
        info.places.push_back({place.node, place.parameter, place.color});
    }
    return info;
}

std::optional<ItemInfo> Renderer::item(nyx::GroupItemId id) const {
    GroupItem const* const item = std::as_const(impl_->scene).item(id);
    if (item == nullptr) {
        return std::nullopt;
    }
    ItemRecord const& record = item->record;
    return ItemInfo{id,
                    record.kind == ItemKind::Group,
                    record.kind == ItemKind::Light,
                    record.name,
                    record.parent,
                    record.material,
                    impl_->scene.lightLayers().layerOf(item->object_id()),
                    item->lightShader.unlisted};
}

std::vector<nyx::ColorId> Renderer::colors() const {
    std::vector<nyx::ColorId> ids;
    impl_->scene.forEachColor([&](ColorRecord const& record) { ids.push_back(record.head.id); });
    return ids;
}

std::vector<nyx::ColorwayId> Renderer::colorways() const {
    std::vector<nyx::ColorwayId> ids;
    impl_->scene.forEachColorway([&](ColorwayRecord const& record) { ids.push_back(record.id); });
    return ids;
}

std::vector<nyx::MaterialId> Renderer::materials() const {
    std::vector<nyx::MaterialId> ids;
    impl_->scene.forEachMaterial([&](nyxMaterial const& record) { ids.push_back(record.id); });
    return ids;
}

std::vector<nyx::GroupItemId> Renderer::items() const {
    std::vector<nyx::GroupItemId> ids;
    impl_->scene.forEachItem([&](GroupItem const& item) { ids.push_back(item.id()); });
    return ids;
}

nyx::ColorwayId Renderer::activeColorway() const { return impl_->scene.activeColorway(); }

Faults& Renderer::faults() { return impl_->scene.faults(); }

Ledger Renderer::ledger() const {
    Ledger ledger;
    ledger.blocks = impl_->api.blocksOnLoan();
    ledger.arrays = accounts().arrays;
    ledger.alignedBlocks = accounts().alignedBlocks;
    ledger.texts = accounts().texts;
    ledger.painters = impl_->painters.count();
    ledger.lockDepth = impl_->api.lockDepth();
    ledger.strings = impl_->scene.strings().count();
    return ledger;
}

bool Renderer::isModified() const { return impl_->api.isModified(); }

unsigned Renderer::refreshCount() const { return impl_->api.refreshCount(); }

std::string Renderer::loadScene(std::string const& path,
                                std::function<void()> const& beforeReplacing) {
    std::string error;
    {
        nyxScene fresh;
        error = loadSceneFile(fresh, path);
        if (error.empty()) {
            impl_->replaceScene(fresh, beforeReplacing);
        }
    }
    returnMemory();
    return error;
}

std::string Renderer::loadSceneText(std::string const& json,
                                    std::function<void()> const& beforeReplacing) {
    std::string error;
    {
        nyxScene fresh;
        error = embedded::loadSceneText(fresh, json);
        if (error.empty()) {
            impl_->replaceScene(fresh, beforeReplacing);
        }
    }
    returnMemory();
    return error;
}

std::string Renderer::saveScene(std::string const& path) {
    std::string error = saveSceneFile(impl_->scene, path, impl_->scene.faults().failSaveStep);
    if (error.empty()) {
        impl_->api.setUnmodified();
    }
    return error;
}

std::string Renderer::saveSceneText() const { return embedded::saveSceneText(impl_->scene); }

} // namespace nyx::embedded
