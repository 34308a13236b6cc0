#pragma once

#include "zsg/materials/IMaterialDescriptor.h"
#include "zsg/materials/IMaterialHandler.h"

#include "zcore/ZUndoCommand.h"

#include <memory>

namespace app {

/// Applies one description of a material, and another to take it back. The handler must outlive it.
class DescribeMaterialCommand final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(DescribeMaterialCommand)

public:
    DescribeMaterialCommand(zsg::IMaterialHandler& handler,
                            std::unique_ptr<zsg::IMaterialDescriptor const> before,
                            std::unique_ptr<zsg::IMaterialDescriptor const> after);

    bool undo() override { return handler_.applyDescriptor(*before_); }
    bool redo() override { return handler_.applyDescriptor(*after_); }

private:
    zsg::IMaterialHandler& handler_;
    std::unique_ptr<zsg::IMaterialDescriptor const> before_;
    std::unique_ptr<zsg::IMaterialDescriptor const> after_;
};

} // namespace app
