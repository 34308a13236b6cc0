#pragma once

#include "nyxembedded/Faults.h"
#include "nyxembedded/Journal.h"
#include "nyxrender/nyxScene.h"
#include "nyxrender/nyxScene_hierarchy.h"
#include "store/BrushGraph.h"
#include "store/IdList.h"
#include "store/LightLayers.h"
#include "store/NameIndex.h"
#include "store/RecordStore.h"
#include "store/Records.h"
#include "store/SceneLights.h"
#include "store/StringPool.h"
#include "store/Surfaces.h"
#include "store/UseIndex.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class nyxPainter_factory;

/// The scene of the embedded renderer: records under ids, with the indexes over them. A
/// default-made scene is empty and can be filled on its own, then be handed to takeContents(). Main
/// thread.
///
/// `add…` take a whole record. An invalid id in it means the next one; a given id must not be below
/// next…Id(), so records of a file are added in ascending order of ids, and one that goes back is
/// refused with the invalid id. Names are taken as they are. Records may name ids that do not
/// exist.
class nyxScene {
public:
    nyxScene();
    ~nyxScene();
    nyxScene(nyxScene const&) = delete;
    nyxScene& operator=(nyxScene const&) = delete;

    // Colours. The temporary colour (flag 4) is a record like any other here, but its name is not
    // in the index of names and does not count as taken.

    [[nodiscard]] nyx::ColorId addColor(nyx::embedded::ColorRecord record);
    [[nodiscard]] nyx::embedded::ColorRecord const* color(nyx::ColorId id) const;
    /// Gives the record values.id all of `values`. True when that changed anything.
    bool updateColor(nyx::embedded::ColorRecord const& values);
    bool removeColor(nyx::ColorId id);
    /// Visits in creation order.
    template <class Visit>
    void forEachColor(Visit&& visit) const {
        contents_.colors.forEach(visit);
    }
    [[nodiscard]] std::size_t colorCount() const { return contents_.colors.size(); }
    [[nodiscard]] nyx::ColorId nextColorId() const;
    /// The id and flags of a colour, to be written by a borrower until the next call of this.
    nyxColor_record* lendColor(nyx::ColorId id);

    // Colorways.

    [[nodiscard]] nyx::ColorwayId addColorway(nyx::embedded::ColorwayRecord record);
    [[nodiscard]] nyx::embedded::ColorwayRecord const* colorway(nyx::ColorwayId id) const;
    bool updateColorway(nyx::embedded::ColorwayRecord const& values);
    bool removeColorway(nyx::ColorwayId id);
    template <class Visit>
    void forEachColorway(Visit&& visit) const {
        contents_.colorways.forEach(visit);
    }
    [[nodiscard]] nyx::ColorwayId nextColorwayId() const;

    // Settings.

    [[nodiscard]] nyx::ColorwayId activeColorway() const { return contents_.activeColorway; }
    void setActiveColorway(nyx::ColorwayId id) { contents_.activeColorway = id; }
    /// Scene units per metre; 0 when the scene states none.
    [[nodiscard]] double unitScale() const { return contents_.unitScale; }
    void setUnitScale(double scale) { contents_.unitScale = scale; }

    // Lists, names and revisions. Lists are valid until the next change of a colour, and without
    // the temporary colour.

    [[nodiscard]] nyx::Span<nyx::ColorId> plainColors();
    [[nodiscard]] nyx::Span<nyx::ColorId> multiColors();
    [[nodiscard]] nyx::Span<nyx::ColorId> namedColors();
    /// Colours of a name, plain and multi, ascending.
    [[nodiscard]] std::vector<nyx::ColorId> colorsNamed(std::string const& name);
    /// `name` itself when it is empty or free, else the first free numbered form of it.
    [[nodiscard]] std::string uniqueColorName(std::string const& name,
                                              nyx::Span<nyx::ColorId> ignored);
    [[nodiscard]] unsigned colorRevision();
    [[nodiscard]] unsigned colorwayRevision() const { return colorwayRevision_; }

    // Materials.

    [[nodiscard]] nyx::MaterialId addMaterial(nyxMaterial record);
    [[nodiscard]] nyxMaterial const* material(nyx::MaterialId id) const;
    [[nodiscard]] nyxMaterial* material(nyx::MaterialId id);
    template <class Visit>
    void forEachMaterial(Visit&& visit) const {
        contents_.materials.forEach(visit);
    }
    [[nodiscard]] nyx::MaterialId nextMaterialId() const;
    /// The colour at a place; nothing for an unknown material or place.
    [[nodiscard]] std::optional<nyx::ColorId>
    boundColor(nyx::MaterialId material, std::uint32_t node, std::string const& parameter) const;
    /// Binds a place, which is made when `make` allows it; false for an unknown material or place.
    bool bindColor(nyx::MaterialId material, std::uint32_t node, std::string const& parameter,
                   nyx::ColorId color, bool make);
    /// Whether any object uses the material.
    [[nodiscard]] bool isMaterialUsed(nyx::MaterialId material) const;

    // Uses of colours: see UseIndex.

    [[nodiscard]] unsigned referenceCount(nyx::ColorId color) const;
    [[nodiscard]] std::vector<nyx::MaterialId>
    materialsUsing(nyx::ColorId color, bool direct, bool throughMulti, bool unassigned) const;

    // Groups, objects and lights: one tree, one row of ids.

    /// The invalid id also when the record names a parent that does not exist (yet).
    [[nodiscard]] nyx::GroupItemId addItem(nyx::embedded::ItemRecord record);
    [[nodiscard]] nyx::embedded::GroupItem const* item(nyx::GroupItemId id) const;
    [[nodiscard]] nyx::embedded::GroupItem* item(nyx::GroupItemId id);
    /// Visits in creation order, so parents come before their children.
    template <class Visit>
    void forEachItem(Visit&& visit) const {
        contents_.items.forEach(visit);
    }
    [[nodiscard]] nyx::GroupItemId nextItemId() const;
    [[nodiscard]] std::vector<nyxGroup_item*> const& topItems() const { return contents_.topItems; }

    // Light layers. lights() keeps the two together; a new light is in the default layer.

    [[nodiscard]] nyx::embedded::LightLayers& lightLayers() { return contents_.lightLayers; }
    [[nodiscard]] nyx::embedded::LightLayers const& lightLayers() const {
        return contents_.lightLayers;
    }
    [[nodiscard]] nyx::embedded::SceneLights& lights() const { return *lights_; }

    /// Keeps the ids below these from being given out.
    void skipIdsBelow(nyx::ColorId color, nyx::ColorwayId colorway, nyx::MaterialId material,
                      nyx::GroupItemId item) {
        contents_.colors.skipIdsBelow(color.toUint());
        contents_.colorways.skipIdsBelow(colorway.toUint());
        contents_.materials.skipIdsBelow(material.toUint());
        contents_.items.skipIdsBelow(item.toUint());
    }

    /// Takes over all records and settings of `fresh`, in no more than constant time but for a step
    /// per paint surface, and leaves it with what this scene had, but for the surfaces: tasks on
    /// their way may hold those. Ids that this scene has given out stay used; both revisions rise.
    /// Strings, brush nodes, journal and faults stay: blocks on loan still point to the strings,
    /// brushes to their nodes.
    void takeContents(nyxScene& fresh);
    /// How often the contents were replaced: ids taken before name other records now.
    [[nodiscard]] unsigned generation() const { return generation_; }

    // What belongs to the scene without being part of its contents.

    [[nodiscard]] nyx::embedded::StringPool& strings() { return strings_; }
    [[nodiscard]] nyx::embedded::BrushGraph& brushes() { return brushes_; }
    [[nodiscard]] nyx::embedded::Journal& journal() const { return journal_; }
    [[nodiscard]] nyx::embedded::Faults& faults() { return faults_; }
    /// What makes records in this scene; borrowed, null while the scene stands alone.
    [[nodiscard]] nyxScene_api* api() { return api_; }
    void setApi(nyxScene_api* api) { api_ = api; }
    [[nodiscard]] nyxPainter_factory* painterFactory() { return painters_; }
    void setPainterFactory(nyxPainter_factory* painters) { painters_ = painters; }
    [[nodiscard]] nyx::embedded::Surfaces& surfaces() { return surfaces_; }
    [[nodiscard]] nyx::embedded::Surfaces const& surfaces() const { return surfaces_; }
    [[nodiscard]] nyxScene_hierarchy* hierarchy() { return hierarchy_.get(); }

private:
    struct Contents {
        nyx::embedded::RecordStore<nyx::embedded::ColorRecord> colors;
        nyx::embedded::RecordStore<nyx::embedded::ColorwayRecord> colorways;
        nyx::embedded::RecordStore<nyxMaterial> materials;
        nyx::embedded::RecordStore<nyx::embedded::GroupItem> items;
        std::vector<nyxGroup_item*> topItems;
        nyx::embedded::LightLayers lightLayers = nyx::embedded::LightLayers::forScene();
        std::unordered_map<nyx::MaterialId, unsigned> objectsOfMaterial;
        nyx::embedded::IdList plainColors;
        nyx::embedded::IdList multiColors;
        nyx::embedded::IdList namedColors;
        nyx::embedded::NameIndex names;
        nyx::embedded::UseIndex uses;
        nyx::ColorwayId activeColorway;
        double unitScale = 0;
    };

    /// Which lists a colour is in; a named one is in the index of names too.
    struct Lists {
        bool plain = false, multi = false, named = false;
    };

    void noticeLentFlags();
    static Lists listsOf(nyx::embedded::ColorRecord const& record, std::uint32_t flags);
    void enlist(nyx::ColorId id, Lists before, Lists after);
    void list(nyx::embedded::ColorRecord const& record, Lists before, Lists after);
    [[nodiscard]] nyx::embedded::UseIndex::Uses const* usesThrough(nyx::ColorId list,
                                                                   nyx::ColorId id) const;

    Contents contents_;
    unsigned colorRevision_ = 1;
    unsigned colorwayRevision_ = 1;
    unsigned generation_ = 0;
    nyxColor_record* lent_ = nullptr;
    std::uint32_t lentFlagsSeen_ = 0;

    nyx::embedded::StringPool strings_;
    nyx::embedded::BrushGraph brushes_{strings_};
    mutable nyx::embedded::Journal journal_; ///< also of calls that only look
    nyx::embedded::Faults faults_;
    nyx::embedded::Surfaces surfaces_{strings_, journal_};
    nyxScene_api* api_ = nullptr;
    nyxPainter_factory* painters_ = nullptr;
    std::unique_ptr<nyxScene_hierarchy> hierarchy_;
    std::unique_ptr<nyx::embedded::SceneLights> lights_;
};
