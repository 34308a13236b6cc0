#pragma once

#include "zsg/materials/ISceneMaterialManager.h"

#include "nyxembedded/Export.h"

#include <memory>

class ZUndoStack;

namespace nyx::embedded {

class Renderer;

/// The material edits of the embedded renderer's scene. A binding made in an open edit stays with
/// the edit: endEdit() pushes one command that makes them all (or, without a stack, makes them), so
/// until then the scene and colorPlaces() show the old ones. Main thread.
class NYXEMBEDDED_EXPORT MaterialManager final : public zsg::ISceneMaterialManager {
public:
    /// Both are borrowed. Neither the manager nor its commands may outlive the renderer. Without a
    /// stack edits are made and not recorded.
    MaterialManager(Renderer& renderer, ZUndoStack* undoStack);
    ~MaterialManager() override;
    MaterialManager(MaterialManager const&) = delete;
    MaterialManager& operator=(MaterialManager const&) = delete;

    [[nodiscard]] zsg::IMaterialEdit* materialEdit(nyx::MaterialId material) override;
    zsg::IMaterialEdit* createMaterialEdit(nyx::MaterialId material) override;
    [[nodiscard]] bool isMaterialInUse(nyx::MaterialId material) const override;

private:
    class Impl;
    std::unique_ptr<Impl> impl_;
};

} // namespace nyx::embedded
