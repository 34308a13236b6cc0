#include "host/DescribeMaterialCommand.h"

#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/IMaterialHandler.h"

#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyx_material.h"

#include <utility>

namespace app {

DescribeMaterialCommand::DescribeMaterialCommand(
    zsg::ISceneGraph& root, std::unique_ptr<zsg::IMaterialDescriptor const> before,
    std::unique_ptr<zsg::IMaterialDescriptor const> after)
    : ZUndoCommand(
          ZCommandId::EditMaterial,
          tr("Describe Material (%1)").arg(root.materialHandler()->materialName(before->id()))),
      root_(root),
      before_(std::move(before)),
      after_(std::move(after)) {
    nyxMaterial const* const described = material();
    char const* const text = described ? nyx_material_metadata(*described) : nullptr;
    metadata_ = text ? text : "";
}

bool DescribeMaterialCommand::undo() {
    // First: what is applied leaves the spelling of what it equals, and text that nobody can read.
    nyxMaterial* const described = material();
    if (described && nyx_material_metadata(*described) != metadata_) {
        nyx_material_set_metadata(*described, metadata_.c_str());
    }
    return root_.materialHandler()->applyDescriptor(*before_);
}

bool DescribeMaterialCommand::redo() { return root_.materialHandler()->applyDescriptor(*after_); }

nyxMaterial* DescribeMaterialCommand::material() const {
    return root_.rtApi() ? nyx_material_from_id(root_.rtApi()->scene(), before_->id()) : nullptr;
}

} // namespace app
