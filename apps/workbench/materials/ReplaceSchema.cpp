#include "workbench/materials/ReplaceSchema.h"

#include "zsg/materials/ICMFManager.h"

#include <utility>

namespace workbench {

ReplaceSchema::ReplaceSchema(zsg::ICMFManager& manager, zsg::ZCMFSchema after)
    : ZUndoCommand(static_cast<ZCommandId>(1020), tr("CMF Schema (%1)").arg(after.schemaName)),
      manager_(manager),
      before_(manager.schema()),
      after_(std::move(after)) {}

bool ReplaceSchema::undo() {
    manager_.setSchema(before_);
    return true;
}

bool ReplaceSchema::redo() {
    manager_.setSchema(after_);
    return true;
}

} // namespace workbench
