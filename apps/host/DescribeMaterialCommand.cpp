#include "host/DescribeMaterialCommand.h"

#include <utility>

namespace app {

DescribeMaterialCommand::DescribeMaterialCommand(
    zsg::IMaterialHandler& handler, std::unique_ptr<zsg::IMaterialDescriptor const> before,
    std::unique_ptr<zsg::IMaterialDescriptor const> after)
    : ZUndoCommand(ZCommandId::EditMaterial,
                   tr("Describe Material (%1)").arg(handler.materialName(before->id()))),
      handler_(handler),
      before_(std::move(before)),
      after_(std::move(after)) {}

} // namespace app
