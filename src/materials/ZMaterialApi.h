#pragma once

#include "zsg/materials/IMaterialApi.h"

class nyxMaterial;
class nyxRT_api;

namespace zsg {

/// Finds materials in the scene that the handle shows at the time of each call.
class ZMaterialApi final : public IMaterialApi {
public:
    /// The handle is borrowed; with null every material is unknown.
    explicit ZMaterialApi(nyxRT_api* rtApi);
    ~ZMaterialApi() override;

    [[nodiscard]] std::unique_ptr<IMaterialDescriptor> descriptor(MaterialId id) const override;
    [[nodiscard]] QString materialName(MaterialId id) const override;
    bool applyDescriptor(IMaterialDescriptor const& descriptor) override;

private:
    /// Null when the scene has no such material.
    [[nodiscard]] nyxMaterial* material(MaterialId id) const;

    nyxRT_api* rtApi_;
};

} // namespace zsg
