#include "store/Scene.h"

#include "store/Hierarchy.h"

#include <algorithm>
#include <utility>

using namespace nyx::embedded;

namespace {

bool sameValue(nyxColor_rgba const& a, nyxColor_rgba const& b) {
    return a.r == b.r && a.g == b.g && a.b == b.b && a.a == b.a;
}

template <class IdType, class Record>
IdType idFor(RecordStore<Record> const& store, IdType wanted) {
    return wanted.isValid() ? wanted : IdType(store.nextId());
}

} // namespace

nyxScene::nyxScene()
    : hierarchy_(std::make_unique<Hierarchy>(*this)),
      lights_(std::make_unique<SceneLights>(
          *this, std::unique_ptr<nyxLight_layer_db>(new nyxLight_layer_db(*this)))) {}

nyxScene::~nyxScene() = default;

nyx::ColorId nyxScene::addColor(ColorRecord record) {
    noticeLentFlags();
    nyx::ColorId const id = idFor(contents_.colors, record.id);
    record.id = id;
    ColorRecord const* const added = contents_.colors.emplace(id.toUint(), std::move(record));
    if (added == nullptr) {
        return {};
    }
    list(*added, {}, listsOf(*added, added->flags));
    contents_.uses.list(id, added->subColors);
    ++colorRevision_;
    return id;
}

ColorRecord const* nyxScene::color(nyx::ColorId id) const {
    return contents_.colors.find(id.toUint());
}

bool nyxScene::updateColor(ColorRecord const& values) {
    noticeLentFlags();
    nyx::ColorId const id = values.id;
    ColorRecord* const record = contents_.colors.find(id.toUint());
    if (record == nullptr) {
        return false;
    }
    bool changed = false;
    if (record->name != values.name || record->flags != values.flags) {
        Lists const before = listsOf(*record, record->flags);
        if (before.named) {
            contents_.names.remove(record->name, id);
        }
        record->name = values.name;
        record->flags = values.flags;
        Lists const after = listsOf(*record, record->flags);
        if (after.named) {
            contents_.names.add(record->name, id);
        }
        enlist(id, before, after);
        if (lent_ == record) {
            lentFlagsSeen_ = record->flags;
        }
        ++colorRevision_;
        changed = true;
    }
    if (record->originalName != values.originalName) {
        record->originalName = values.originalName;
        changed = true;
    }
    if (!sameValue(record->value, values.value)) {
        record->value = values.value;
        changed = true;
    }
    if (record->subColors != values.subColors) {
        contents_.uses.relist(id, record->subColors, values.subColors);
        record->subColors = values.subColors;
        changed = true;
    }
    if (record->activeSub != values.activeSub) {
        record->activeSub = values.activeSub;
        changed = true;
    }
    return changed;
}

nyxScene::Lists nyxScene::listsOf(ColorRecord const& record, std::uint32_t flags) {
    bool const listed = (flags & ColorRecord::Temporary) == 0;
    bool const multi = (flags & ColorRecord::MultiColor) != 0;
    return {listed && !multi, listed && multi, listed && !record.name.empty()};
}

void nyxScene::enlist(nyx::ColorId id, Lists before, Lists after) {
    auto const apply = [id](IdList& list, bool was, bool is) {
        if (was && !is) {
            list.erase(id);
        } else if (is && !was) {
            list.insert(id);
        }
    };
    apply(contents_.plainColors, before.plain, after.plain);
    apply(contents_.multiColors, before.multi, after.multi);
    apply(contents_.namedColors, before.named, after.named);
}

/// The same for a record whose name stays.
void nyxScene::list(ColorRecord const& record, Lists before, Lists after) {
    if (before.named && !after.named) {
        contents_.names.remove(record.name, record.id);
    } else if (after.named && !before.named) {
        contents_.names.add(record.name, record.id);
    }
    enlist(record.id, before, after);
}

bool nyxScene::removeColor(nyx::ColorId id) {
    noticeLentFlags();
    ColorRecord const* const record = color(id);
    if (record == nullptr) {
        return false;
    }
    list(*record, listsOf(*record, record->flags), {});
    contents_.uses.unlist(id, record->subColors);
    if (lent_ == record) {
        lent_ = nullptr;
    }
    contents_.colors.erase(id.toUint());
    ++colorRevision_;
    return true;
}

nyx::ColorId nyxScene::nextColorId() const { return nyx::ColorId(contents_.colors.nextId()); }

nyxColor_record* nyxScene::lendColor(nyx::ColorId id) {
    noticeLentFlags();
    ColorRecord* const record = contents_.colors.find(id.toUint());
    lent_ = record == nullptr ? nullptr : record;
    lentFlagsSeen_ = record == nullptr ? 0 : lent_->flags;
    return lent_;
}

/// The borrower of the last record writes its flags without a call; what depends on flags is put
/// right before anybody can see it.
void nyxScene::noticeLentFlags() {
    if (lent_ == nullptr || lent_->flags == lentFlagsSeen_) {
        return;
    }
    ColorRecord const& record = *color(lent_->id);
    Lists const before = listsOf(record, lentFlagsSeen_);
    lentFlagsSeen_ = lent_->flags;
    list(record, before, listsOf(record, lent_->flags));
    ++colorRevision_;
}

nyx::ColorwayId nyxScene::addColorway(ColorwayRecord record) {
    nyx::ColorwayId const id = idFor(contents_.colorways, record.id);
    record.id = id;
    if (contents_.colorways.emplace(id.toUint(), std::move(record)) == nullptr) {
        return {};
    }
    ++colorwayRevision_;
    return id;
}

ColorwayRecord const* nyxScene::colorway(nyx::ColorwayId id) const {
    return contents_.colorways.find(id.toUint());
}

bool nyxScene::updateColorway(ColorwayRecord const& values) {
    ColorwayRecord* const record = contents_.colorways.find(values.id.toUint());
    if (record == nullptr) {
        return false;
    }
    bool const listed = record->name != values.name || record->flags != values.flags;
    bool const changed = listed || record->multiColors != values.multiColors ||
                         record->activeSubs != values.activeSubs;
    if (listed) {
        ++colorwayRevision_;
    }
    if (changed) {
        *record = values;
    }
    return changed;
}

bool nyxScene::removeColorway(nyx::ColorwayId id) {
    if (!contents_.colorways.erase(id.toUint())) {
        return false;
    }
    ++colorwayRevision_;
    return true;
}

nyx::ColorwayId nyxScene::nextColorwayId() const {
    return nyx::ColorwayId(contents_.colorways.nextId());
}

nyx::Span<nyx::ColorId> nyxScene::plainColors() {
    noticeLentFlags();
    return contents_.plainColors.ids();
}

nyx::Span<nyx::ColorId> nyxScene::multiColors() {
    noticeLentFlags();
    return contents_.multiColors.ids();
}

nyx::Span<nyx::ColorId> nyxScene::namedColors() {
    noticeLentFlags();
    return contents_.namedColors.ids();
}

std::vector<nyx::ColorId> nyxScene::colorsNamed(std::string const& name) {
    noticeLentFlags();
    return contents_.names.holders(name);
}

std::string nyxScene::uniqueColorName(std::string const& name, nyx::Span<nyx::ColorId> ignored) {
    noticeLentFlags();
    return contents_.names.unique(name, ignored, [this](nyx::ColorId id) {
        ColorRecord const* const record = color(id);
        return record == nullptr ? nullptr : &record->name;
    });
}

unsigned nyxScene::colorRevision() {
    noticeLentFlags();
    return colorRevision_;
}

nyx::MaterialId nyxScene::addMaterial(nyxMaterial record) {
    nyx::MaterialId const id = idFor(contents_.materials, record.id);
    record.id = id;
    nyxMaterial const* const added = contents_.materials.emplace(id.toUint(), std::move(record));
    if (added == nullptr) {
        return {};
    }
    for (MaterialPlace const& place : added->places) {
        contents_.uses.bind(place.color, id);
    }
    return id;
}

nyxMaterial const* nyxScene::material(nyx::MaterialId id) const {
    return contents_.materials.find(id.toUint());
}

nyxMaterial* nyxScene::material(nyx::MaterialId id) {
    return contents_.materials.find(id.toUint());
}

nyx::MaterialId nyxScene::nextMaterialId() const {
    return nyx::MaterialId(contents_.materials.nextId());
}

namespace {

template <class Places>
auto findPlace(Places& places, std::uint32_t node, std::string const& parameter) {
    return std::find_if(places.begin(), places.end(), [&](MaterialPlace const& place) {
        return place.node == node && place.parameter == parameter;
    });
}

} // namespace

std::optional<nyx::ColorId> nyxScene::boundColor(nyx::MaterialId materialId, std::uint32_t node,
                                                 std::string const& parameter) const {
    nyxMaterial const* const record = material(materialId);
    if (record == nullptr) {
        return std::nullopt;
    }
    auto const place = findPlace(record->places, node, parameter);
    return place == record->places.end() ? std::nullopt : std::optional(place->color);
}

bool nyxScene::bindColor(nyx::MaterialId materialId, std::uint32_t node,
                         std::string const& parameter, nyx::ColorId color, bool make) {
    nyxMaterial* const record = material(materialId);
    if (record == nullptr) {
        return false;
    }
    auto place = findPlace(record->places, node, parameter);
    if (place == record->places.end()) {
        if (!make) {
            return false;
        }
        place = record->places.insert(place, MaterialPlace{node, parameter, {}});
    }
    contents_.uses.bind(color, materialId);
    contents_.uses.unbind(std::exchange(place->color, color), materialId);
    return true;
}

bool nyxScene::isMaterialUsed(nyx::MaterialId material) const {
    return contents_.objectsOfMaterial.contains(material);
}

/// The uses of a record that lists `id`, as far as they are uses of `id`: those of a multi-colour
/// other than `id` itself. The flag is asked now because a borrower may write it at any time.
UseIndex::Uses const* nyxScene::usesThrough(nyx::ColorId list, nyx::ColorId id) const {
    return list != id && color(list)->isMulti() ? contents_.uses.uses(list) : nullptr;
}

unsigned nyxScene::referenceCount(nyx::ColorId id) const {
    UseIndex::Uses const* const uses = contents_.uses.uses(id);
    if (uses == nullptr || color(id) == nullptr) {
        return 0;
    }
    unsigned count = uses->places;
    for (nyx::ColorId const list : uses->lists) {
        UseIndex::Uses const* const usesOfList = usesThrough(list, id);
        if (usesOfList != nullptr) {
            count += usesOfList->places;
        }
    }
    return count;
}

std::vector<nyx::MaterialId> nyxScene::materialsUsing(nyx::ColorId id, bool direct,
                                                      bool throughMulti, bool unassigned) const {
    std::vector<nyx::MaterialId> materials;
    UseIndex::Uses const* const uses = contents_.uses.uses(id);
    if (uses == nullptr || color(id) == nullptr) {
        return materials;
    }
    auto const collect = [&](UseIndex::Uses const& from) {
        for (auto const& [material, places] : from.materials) {
            if (unassigned || isMaterialUsed(material)) {
                materials.push_back(material);
            }
        }
    };
    if (direct) {
        collect(*uses);
    }
    if (throughMulti) {
        for (nyx::ColorId const list : uses->lists) {
            UseIndex::Uses const* const usesOfList = usesThrough(list, id);
            if (usesOfList != nullptr) {
                collect(*usesOfList);
            }
        }
        std::sort(materials.begin(), materials.end());
        materials.erase(std::unique(materials.begin(), materials.end()), materials.end());
    }
    return materials;
}

nyx::GroupItemId nyxScene::addItem(ItemRecord record) {
    GroupItem* const parent = item(record.parent);
    if (record.parent.isValid() && parent == nullptr) {
        return {};
    }
    nyx::GroupItemId const id = idFor(contents_.items, record.id);
    record.id = id;
    GroupItem* const added = contents_.items.emplace(id.toUint(), std::move(record));
    if (added == nullptr) {
        return {};
    }
    (parent == nullptr ? contents_.topItems : parent->childItems).push_back(added);
    if (added->record.material.isValid()) {
        ++contents_.objectsOfMaterial[added->record.material];
    }
    if (added->is_light()) {
        lights_->put({added->object_id()}, LightLayers::defaultLayer);
    }
    return id;
}

GroupItem const* nyxScene::item(nyx::GroupItemId id) const {
    return contents_.items.find(id.toUint());
}

GroupItem* nyxScene::item(nyx::GroupItemId id) { return contents_.items.find(id.toUint()); }

nyx::GroupItemId nyxScene::nextItemId() const { return nyx::GroupItemId(contents_.items.nextId()); }

void nyxScene::takeContents(nyxScene& fresh) {
    std::swap(contents_, fresh.contents_);
    contents_.colors.skipIdsBelow(fresh.contents_.colors.nextId());
    contents_.colorways.skipIdsBelow(fresh.contents_.colorways.nextId());
    contents_.materials.skipIdsBelow(fresh.contents_.materials.nextId());
    contents_.items.skipIdsBelow(fresh.contents_.items.nextId());
    surfaces_.takeContents(fresh.surfaces_);
    ++colorRevision_;
    ++colorwayRevision_;
    ++generation_;
    lent_ = nullptr;
    fresh.lent_ = nullptr;
}
