#pragma once

#include "zsg/Export.h"
#include "zsg/core/Ids.h"

#include "nyxrender/Ids.h"
#include "nyxrender/Span.h"

#include <QString>

#include <memory>

namespace zsg {

class IMaterialDescriptor;

/// Reads and changes what materials say of themselves. It pushes no undo commands: an application
/// that wants the description of a material to be undoable pushes its own, which applies one
/// descriptor to redo and another to undo (examples/programs/undoable_description.cpp). Main
/// thread.
class ZSG_EXPORT IMaterialHandler {
public:
    IMaterialHandler(IMaterialHandler const&) = delete;
    IMaterialHandler& operator=(IMaterialHandler const&) = delete;
    virtual ~IMaterialHandler();

    /// A new descriptor with what the material says of itself; empty for an unknown material.
    /// Stored metadata that is no JSON, or nested more than 512 deep, comes out as null.
    [[nodiscard]] virtual std::unique_ptr<IMaterialDescriptor> descriptor(MaterialId id) const = 0;

    /// Gives the material named by the descriptor its CMF values, in place of all that it had, and
    /// its metadata, then posts one MaterialDescriptionChangedEvent with the descriptor's id. False
    /// for an unknown material: nothing is changed then, but the event is posted all the same.
    ///
    /// Metadata is written only when it differs from the stored one, which keeps its spelling. Null
    /// takes the stored metadata out, but leaves one that descriptor() could not read. A text in it
    /// that is no valid UTF-8 throws nlohmann::json::type_error: nothing is changed or posted then.
    /// The scene is not marked as modified.
    virtual bool applyDescriptor(IMaterialDescriptor const& descriptor) = 0;

    /// Passed on to IMaterialService::assignMaterial; false when the root was made without a
    /// service.
    virtual bool assignMaterial(MaterialId material, nyx::Span<nyx::ObjectId> objects) = 0;

    /// Empty for an unknown material.
    [[nodiscard]] virtual QString materialName(MaterialId id) const = 0;

protected:
    IMaterialHandler();
};

} // namespace zsg
