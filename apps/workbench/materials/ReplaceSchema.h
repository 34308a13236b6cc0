#pragma once

#include "zsg/materials/ZCMFSchema.h"

#include "zcore/ZUndoCommand.h"

#include <QCoreApplication>

namespace zsg {
class ICMFManager;
}

namespace workbench {

/// Puts a CMF schema in force, and the one before to take it back; id 1020. What materials store is
/// not touched by either. The manager must outlive it.
class ReplaceSchema final : public ZUndoCommand {
    Q_DECLARE_TR_FUNCTIONS(workbench::ReplaceSchema)

public:
    ReplaceSchema(zsg::ICMFManager& manager, zsg::ZCMFSchema after);

    bool undo() override;
    bool redo() override;

private:
    zsg::ICMFManager& manager_;
    zsg::ZCMFSchema before_;
    zsg::ZCMFSchema after_;
};

} // namespace workbench
