#pragma once

#include "nyxembedded/Faults.h"
#include "nyxembedded/Journal.h"
#include "nyxrender/nyxScene.h"

#include <memory>

class nyxPainter_factory;
class nyxScene_hierarchy;

namespace nyx::embedded {

class BrushGraph;
class ColorStore;
class ColorwayStore;
class ItemTree;
class LightLayers;
class MaterialStore;
class SceneLights;
class StringPool;
class Surfaces;

} // namespace nyx::embedded

/// The scene of the embedded renderer: the owner of what keeps each subject. A default-made scene
/// is empty and can be filled on its own, then be handed to takeContents(). Main thread.
class nyxScene {
public:
    nyxScene();
    ~nyxScene();
    nyxScene(nyxScene const&) = delete;
    nyxScene& operator=(nyxScene const&) = delete;

    // Its contents.

    [[nodiscard]] nyx::embedded::ColorStore& colors() { return *colors_; }
    [[nodiscard]] nyx::embedded::ColorStore const& colors() const { return *colors_; }
    [[nodiscard]] nyx::embedded::ColorwayStore& colorways() { return *colorways_; }
    [[nodiscard]] nyx::embedded::ColorwayStore const& colorways() const { return *colorways_; }
    [[nodiscard]] nyx::embedded::MaterialStore& materials() { return *materials_; }
    [[nodiscard]] nyx::embedded::MaterialStore const& materials() const { return *materials_; }
    /// Groups, objects and lights; lights() keeps them and the light layers together.
    [[nodiscard]] nyx::embedded::ItemTree& items() { return *items_; }
    [[nodiscard]] nyx::embedded::ItemTree const& items() const { return *items_; }
    [[nodiscard]] nyx::embedded::LightLayers& lightLayers() { return *lightLayers_; }
    [[nodiscard]] nyx::embedded::LightLayers const& lightLayers() const { return *lightLayers_; }
    [[nodiscard]] nyx::embedded::SceneLights& lights() const { return *lights_; }
    [[nodiscard]] nyx::embedded::Surfaces& surfaces() { return *surfaces_; }
    [[nodiscard]] nyx::embedded::Surfaces const& surfaces() const { return *surfaces_; }
    /// Scene units per metre; 0 when the scene states none.
    [[nodiscard]] double unitScale() const { return unitScale_; }
    void setUnitScale(double scale) { unitScale_ = scale; }

    /// Takes over all records and settings of `fresh`, in no more than constant time but for a step
    /// per paint surface, and leaves it with what this scene had, but for the surfaces: tasks on
    /// their way may hold those. Ids that this scene has given out stay used; the revisions rise.
    /// Strings, brush nodes, journal and faults stay: blocks on loan still point to the strings,
    /// brushes to their nodes.
    void takeContents(nyxScene& fresh);
    /// How often the contents were replaced: ids taken before name other records now.
    [[nodiscard]] unsigned generation() const { return generation_; }

    // What belongs to the scene without being part of its contents.

    [[nodiscard]] nyx::embedded::StringPool& strings() { return *strings_; }
    [[nodiscard]] nyx::embedded::BrushGraph& brushes() { return *brushes_; }
    [[nodiscard]] nyx::embedded::Journal& journal() const { return journal_; }
    [[nodiscard]] nyx::embedded::Faults& faults() { return faults_; }
    [[nodiscard]] nyxScene_hierarchy* hierarchy() { return hierarchy_.get(); }
    /// What makes records in this scene; borrowed, null while the scene stands alone.
    [[nodiscard]] nyxScene_api* api() { return api_; }
    void setApi(nyxScene_api* api) { api_ = api; }
    [[nodiscard]] nyxPainter_factory* painterFactory() { return painters_; }
    void setPainterFactory(nyxPainter_factory* painters) { painters_ = painters; }

private:
    // By pointer, so that a change of one subject is not everybody's. In the order of who needs
    // whom.
    mutable nyx::embedded::Journal journal_; ///< also of calls that only look
    nyx::embedded::Faults faults_;
    std::unique_ptr<nyx::embedded::StringPool> strings_;
    std::unique_ptr<nyx::embedded::BrushGraph> brushes_;
    std::unique_ptr<nyx::embedded::ColorStore> colors_;
    std::unique_ptr<nyx::embedded::ColorwayStore> colorways_;
    std::unique_ptr<nyx::embedded::MaterialStore> materials_;
    std::unique_ptr<nyx::embedded::LightLayers> lightLayers_;
    std::unique_ptr<nyx::embedded::ItemTree> items_;
    std::unique_ptr<nyx::embedded::SceneLights> lights_;
    std::unique_ptr<nyx::embedded::Surfaces> surfaces_;
    std::unique_ptr<nyxScene_hierarchy> hierarchy_;
    double unitScale_ = 0;
    unsigned generation_ = 0;
    nyxScene_api* api_ = nullptr;
    nyxPainter_factory* painters_ = nullptr;
};
