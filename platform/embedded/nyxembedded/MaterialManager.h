#pragma once

#include "zsg/materials/ISceneMaterialManager.h"

#include <memory>
#include <unordered_map>

class ZUndoStack;
class nyxScene;

namespace nyx::embedded {

/// The material edits of a scene. A binding made in an open edit stays with the edit: endEdit()
/// pushes one command that makes them all (or, without a stack, makes them), so until then the
/// scene and colorPlaces() show the old ones.
class MaterialManager final : public zsg::ISceneMaterialManager {
public:
    MaterialManager(nyxScene& scene, ZUndoStack* undoStack)
        : scene_(scene), undoStack_(undoStack) {}

    [[nodiscard]] zsg::IMaterialEdit* materialEdit(nyx::MaterialId material) override;
    zsg::IMaterialEdit* createMaterialEdit(nyx::MaterialId material) override;
    [[nodiscard]] bool isMaterialInUse(nyx::MaterialId material) const override;

private:
    nyxScene& scene_;
    ZUndoStack* undoStack_;
    std::unordered_map<nyx::MaterialId, std::unique_ptr<zsg::IMaterialEdit>> edits_;
};

} // namespace nyx::embedded
