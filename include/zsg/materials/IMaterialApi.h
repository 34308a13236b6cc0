#pragma once

#include "zsg/Export.h"
#include "zsg/core/Ids.h"

#include <QString>

#include <memory>

namespace zsg {

class IMaterialDescriptor;

/// The road to the renderer's materials. Applications use IMaterialHandler, which also announces
/// what was applied. Main thread.
class ZSG_EXPORT IMaterialApi {
public:
    IMaterialApi(IMaterialApi const&) = delete;
    IMaterialApi& operator=(IMaterialApi const&) = delete;
    virtual ~IMaterialApi();

    /// A new descriptor with what the material says of itself; empty for an unknown material.
    [[nodiscard]] virtual std::unique_ptr<IMaterialDescriptor> descriptor(MaterialId id) const = 0;
    /// Empty for an unknown material.
    [[nodiscard]] virtual QString materialName(MaterialId id) const = 0;
    /// Gives the material named by the descriptor its CMF values, in place of all that it had, and
    /// its metadata. False, and nothing done, for an unknown material.
    virtual bool applyDescriptor(IMaterialDescriptor const& descriptor) = 0;

protected:
    IMaterialApi();
};

} // namespace zsg
