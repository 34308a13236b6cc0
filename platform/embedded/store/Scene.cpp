#include "store/Scene.h"

#include "store/BrushGraph.h"
#include "store/ColorStore.h"
#include "store/ColorwayStore.h"
#include "store/Hierarchy.h"
#include "store/ItemTree.h"
#include "store/LightLayers.h"
#include "store/MaterialStore.h"
#include "store/SceneLights.h"
#include "store/StringPool.h"
#include "store/Surfaces.h"

#include <utility>

using namespace nyx::embedded;

nyxScene::nyxScene()
    : strings_(std::make_unique<StringPool>()),
      brushes_(std::make_unique<BrushGraph>(*strings_)),
      colors_(std::make_unique<ColorStore>()),
      colorways_(std::make_unique<ColorwayStore>()),
      materials_(std::make_unique<MaterialStore>()),
      lightLayers_(std::make_unique<LightLayers>(LightLayers::forScene())),
      items_(std::make_unique<ItemTree>(*lightLayers_)),
      surfaces_(std::make_unique<Surfaces>(*strings_, journal_)),
      hierarchy_(std::make_unique<Hierarchy>(*items_, journal_)) {
    lights_ = std::make_unique<SceneLights>(
        *items_, *lightLayers_, std::unique_ptr<nyxLight_layer_db>(new nyxLight_layer_db(*this)));
}

nyxScene::~nyxScene() = default;

void nyxScene::takeContents(nyxScene& fresh) {
    colors_->takeContents(*fresh.colors_);
    colorways_->takeContents(*fresh.colorways_);
    materials_->takeContents(*fresh.materials_);
    items_->takeContents(*fresh.items_);
    std::swap(*lightLayers_, *fresh.lightLayers_);
    surfaces_->takeContents(*fresh.surfaces_);
    std::swap(unitScale_, fresh.unitScale_);
    ++generation_;
}
