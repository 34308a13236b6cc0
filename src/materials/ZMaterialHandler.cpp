#include "materials/ZMaterialHandler.h"

#include "core/postEvent.h"
#include "zsg/core/Events.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/materials/IMaterialApi.h"
#include "zsg/materials/IMaterialDescriptor.h"
#include "zsg/materials/IMaterialService.h"

namespace zsg {

ZMaterialHandler::ZMaterialHandler(IMaterialApi* api, IMaterialService* service, ISceneGraph* root)
    : api_(api), service_(service), root_(root) {}

ZMaterialHandler::~ZMaterialHandler() = default;

std::unique_ptr<IMaterialDescriptor> ZMaterialHandler::descriptor(MaterialId id) const {
    return api_->descriptor(id);
}

bool ZMaterialHandler::applyDescriptor(IMaterialDescriptor const& descriptor) {
    bool const applied = api_->applyDescriptor(descriptor);
    // Also for a material that is gone: whoever shows its description learns of it so.
    if (root_) {
        post(root_->eventQueue(),
             std::make_unique<MaterialDescriptionChangedEvent>(descriptor.id()));
    }
    return applied;
}

bool ZMaterialHandler::assignMaterial(MaterialId material, nyx::Span<nyx::ObjectId> objects) {
    return service_ && service_->assignMaterial(material, objects);
}

QString ZMaterialHandler::materialName(MaterialId id) const { return api_->materialName(id); }

} // namespace zsg
