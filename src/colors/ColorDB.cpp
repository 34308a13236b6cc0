#include "zsg/colors/ColorDB.h"

#include "colors/EditIndex.h"
#include "colors/ZColorLinker.h"
#include "colors/announce.h"
#include "core/AliveGuard.h"

#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyx_color.h"
#include "nyxrender/nyx_memory.h"

// What is read; ColorDBColors.cpp and ColorDBColorways.cpp write.

namespace zsg {

namespace {

template <class Id>
Id firstOf(nyx::Unique_array<Id> const& ids) {
    return ids.empty() ? Id() : ids[0];
}

struct Revisions {
    unsigned color = 0;
    unsigned colorway = 0;
};

Revisions revisionsOf(nyxScene* scene) {
    Revisions revisions;
    nyx_get_colordb_revision(scene, revisions.color, revisions.colorway);
    return revisions;
}

} // namespace

ColorDB::ColorDB(IEventQueue* eventQueue, nyxRT_api* rtApi)
    : eventQueue_(eventQueue),
      rtApi_(rtApi),
      colorEdits_(std::make_unique<EditIndex<nyx::ColorId, ZColorExtEdit>>()),
      colorwayEdits_(std::make_unique<EditIndex<nyx::ColorwayId, ZColorwayEdit>>()),
      aliveGuard_(std::make_unique<AliveGuard>()) {}

ColorDB::~ColorDB() = default;

AliveGuard const& ColorDB::aliveGuard() const { return *aliveGuard_; }

nyx::ColorId ColorDB::colorFromName(ScopedRTApiLock&, std::string const& name) {
    if (name.empty()) {
        return {};
    }
    auto const ids = nyx_color_from_name(scene(), name.c_str());
    for (nyx::ColorId const id : ids) {
        if (nyx_color_reference_count(scene(), id) != 0) {
            return id;
        }
    }
    return {};
}

nyx::ColorId ColorDB::multiColorFromName(ScopedRTApiLock&, std::string const& name) {
    return name.empty() ? nyx::ColorId()
                        : firstOf(nyx_multi_color_from_name(scene(), name.c_str()));
}

nyx::ColorwayId ColorDB::colorwayFromName(ScopedRTApiLock&, std::string const& name) {
    return name.empty() ? nyx::ColorwayId()
                        : firstOf(nyx_colorway_from_name(scene(), name.c_str()));
}

ZColorExtEdit* ColorDB::getColorParameters(nyx::ColorId id) {
    if (ZColorExtEdit* const cached = colorEdits_->find(id)) {
        return cached;
    }
    auto edit = ZColorExtEdit::read(rtApi_, id);
    return edit ? colorEdits_->set(id, std::move(edit)) : nullptr;
}

std::string ColorDB::colorName(nyx::ColorId id) const {
    if (ZColorExtEdit const* const cached = colorEdits_->find(id)) {
        return cached->displayName();
    }
    auto const edit = ZColorExtEdit::read(rtApi_, id);
    return edit ? edit->displayName() : std::string();
}

ZColorSettingsEdit* ColorDB::getColorSettingsParameters() {
    if (!settingsEdit_) {
        settingsEdit_ = ZColorSettingsEdit::read(rtApi_);
    }
    return settingsEdit_.get();
}

std::optional<std::string> ColorDB::findUniqueColorName(std::string const& name,
                                                        nyx::Span<nyx::ColorId> colors,
                                                        nyxColor_extended::ColorType type) {
    std::unique_ptr<char, decltype(&nyx_free)> const found(
        nyx_color_find_unique_name(scene(), name.c_str(), colors, type), &nyx_free);
    return found ? std::optional<std::string>(found.get()) : std::nullopt;
}

ZColorExt ColorDB::colorFromId(nyx::ColorId id) {
    ZColorExt color;
    ZColorExtEdit const* const edit = getColorParameters(id);
    if (!edit) {
        return color;
    }
    color.setMultiColor(edit->hasFlag(ColorFlags::MultiColor));
    color.setId(id);
    color.setRevision(edit->revision());
    color.setColorName(edit->displayName());

    std::vector<ZColorExt::ZColorWithId> elements;
    int active = 0;
    if (edit->hasFlag(ColorFlags::MultiColor)) {
        nyx::ColorId const activeSub = edit->activeSub();
        std::vector<nyx::ColorId> const subs = copied(edit->subColors());
        elements.reserve(subs.size());
        for (std::size_t i = 0; i < subs.size(); ++i) {
            if (ZColorExtEdit const* const sub = getColorParameters(subs[i])) {
                elements.emplace_back(ZColor(sub->color(), sub->displayName()), subs[i]);
            }
            if (subs[i] == activeSub) {
                active = static_cast<int>(i);
            }
        }
    } else {
        elements.emplace_back(ZColor(edit->color(), edit->displayName()), id);
    }
    color.setColors(elements);
    color.setActiveIndex(active);
    return color;
}

unsigned int ColorDB::totalSceneReferenceCount(nyx::ColorId id) const {
    return nyx_color_reference_count(scene(), id);
}

ZColorwayEdit* ColorDB::getColorwayParameters(nyx::ColorwayId id) {
    if (ZColorwayEdit* const cached = cachedColorway(id)) {
        return cached;
    }
    auto edit = ZColorwayEdit::read(rtApi_, id);
    if (!edit) {
        return nullptr;
    }
    colorwayEdits_->set(id, std::move(edit));
    checkForUnusedMultiColors(id);
    return cachedColorway(id);
}

nyx::Span<nyx::ColorId> ColorDB::colors() {
    nyxScene* const current = scene();
    unsigned const revision = revisionsOf(current).color;
    if (revision != plainRevision_) {
        namedIds_ = nyx_get_colors_named(current);
        plainIds_ = nyx_get_colors(current, nyxColor_extended::PlainColor);
        plainRevision_ = revision;
    }
    return plainIds_;
}

std::vector<nyx::ColorId> ColorDB::namedColors() {
    return copied<nyx::ColorId>(nyx_get_colors_named(scene()));
}

nyx::Span<nyx::ColorId> ColorDB::multiColors() {
    nyxScene* const current = scene();
    unsigned const revision = revisionsOf(current).color;
    if (revision != multiRevision_) {
        multiIds_ = nyx_get_colors(current, nyxColor_extended::MultiColor);
        multiRevision_ = revision;
    }
    return multiIds_;
}

nyx::Span<nyx::ColorwayId> ColorDB::colorways() {
    nyxScene* const current = scene();
    if (!current) {
        return {};
    }
    unsigned const revision = revisionsOf(current).colorway;
    if (revision != colorwayRevision_) {
        colorwayIds_ = nyx_get_colorways(current);
        colorwayRevision_ = revision;
    }
    return colorwayIds_;
}

bool ColorDB::anyMultiColorsInScene() {
    for (nyx::ColorId const id : copied(multiColors())) {
        if (totalSceneReferenceCount(id) != 0) {
            return true;
        }
    }
    return false;
}

std::vector<nyx::MaterialId> ColorDB::getMaterialsUsingColor(nyx::ColorId id, unsigned int how,
                                                             bool unassigned) {
    return copied<nyx::MaterialId>(nyx_get_materials_using_color(scene(), id, how, unassigned));
}

std::unique_ptr<ScopedRTApiLock> ColorDB::createRtApiLock() {
    return std::make_unique<ScopedRTApiLock>(rtApi_);
}

nyx::ColorwayId ColorDB::activeColorwayId() {
    ZColorSettingsEdit const* const settings = getColorSettingsParameters();
    return settings ? settings->activeColorwayId() : nyx::ColorwayId();
}

std::string ColorDB::activeColorwayName() { return colorwayName(activeColorwayId()); }

std::string ColorDB::colorwayName(nyx::ColorwayId id) {
    ZColorwayEdit const* const edit = id.isValid() ? getColorwayParameters(id) : nullptr;
    return edit ? edit->displayName() : std::string();
}

nyxScene* ColorDB::scene() const { return rtApi_ ? rtApi_->scene() : nullptr; }

ZColorwayEdit* ColorDB::cachedColorway(nyx::ColorwayId id) const {
    return colorwayEdits_->find(id);
}

std::unique_ptr<IColorLinker> ColorDB::getColorLinker(IColorController* controller,
                                                      IColorLinkHandler* handler) {
    return controller ? std::make_unique<ZColorLinker>(controller, handler) : nullptr;
}

} // namespace zsg
