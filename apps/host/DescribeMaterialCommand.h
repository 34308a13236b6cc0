#pragma once

#include "zsg/materials/IMaterialDescriptor.h"

#include "zcore/ZUndoCommand.h"

#include <memory>
#include <string>

class nyxMaterial;

namespace zsg {
class ISceneGraph;
}

namespace app {

/// Applies one description of a material, and another to take it back, with the metadata spelt as
/// it was: a description holds what could be read of it only. The root must outlive it.
class DescribeMaterialCommand final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(DescribeMaterialCommand)

public:
    /// `before` is what the material says as this is made.
    DescribeMaterialCommand(zsg::ISceneGraph& root,
                            std::unique_ptr<zsg::IMaterialDescriptor const> before,
                            std::unique_ptr<zsg::IMaterialDescriptor const> after);

    bool undo() override;
    bool redo() override;

private:
    [[nodiscard]] nyxMaterial* material() const;

    zsg::ISceneGraph& root_;
    std::unique_ptr<zsg::IMaterialDescriptor const> before_;
    std::unique_ptr<zsg::IMaterialDescriptor const> after_;
    std::string metadata_; ///< the text before
};

} // namespace app
