#pragma once

#include "zsg/Export.h"
#include "zsg/core/Ids.h"

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

namespace zsg {

/// What the application does with materials beyond describing them. The library calls none of it by
/// itself: the material handler passes one call on for the user interface. Main thread. Implemented
/// by the application.
class ZSG_EXPORT IMaterialService {
public:
    virtual ~IMaterialService() = default;
    /// A copy of a material under a unique name; the invalid id for an unknown one.
    virtual MaterialId duplicateMaterial(MaterialId material) = 0;
    /// Gives objects a material, as one undoable step; false when nothing was changed.
    virtual bool assignMaterial(MaterialId material, nyx::Span<nyx::ObjectId> objects) = 0;
};

} // namespace zsg
