#pragma once

#include "zsg/materials/IMaterialHandler.h"

namespace zsg {

class IMaterialApi;
class IMaterialService;
class ISceneGraph;

/// Passes everything on, and announces what was applied.
class ZMaterialHandler final : public IMaterialHandler {
public:
    /// All three are borrowed; the last two may be null. The root is asked for its event queue only
    /// when there is something to post: it is still being built at this moment.
    ZMaterialHandler(IMaterialApi* api, IMaterialService* service, ISceneGraph* root);
    ~ZMaterialHandler() override;

    [[nodiscard]] std::unique_ptr<IMaterialDescriptor> descriptor(MaterialId id) const override;
    bool applyDescriptor(IMaterialDescriptor const& descriptor) override;
    bool assignMaterial(MaterialId material, nyx::Span<nyx::ObjectId> objects) override;
    [[nodiscard]] QString materialName(MaterialId id) const override;

private:
    IMaterialApi* api_;
    IMaterialService* service_;
    ISceneGraph* root_;
};

} // namespace zsg
