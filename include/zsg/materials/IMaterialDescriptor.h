#pragma once

#include "zsg/Export.h"
#include "zsg/core/Ids.h"

#include <nlohmann/json_fwd.hpp>

#include <map>
#include <string>
#include <vector>

namespace zsg {

/// What a material says about itself: its CMF values, its metadata, and related items. A descriptor
/// is detached: editing it changes nothing in the scene until it is applied
/// (IMaterialHandler::applyDescriptor). Main thread.
///
/// CMF values are texts under text keys. Operations that take a field number stand for the key that
/// cmfFieldKey() gives it; a number outside 0 to 6 throws std::out_of_range and changes nothing.
/// Texts are UTF-8. The renderer's texts end at a zero byte: of a key or a value that holds one,
/// applying stores what stands before it.
class ZSG_EXPORT IMaterialDescriptor {
public:
    virtual ~IMaterialDescriptor();

    /// The material described.
    [[nodiscard]] virtual MaterialId id() const = 0;

    [[nodiscard]] virtual bool hasValue(std::string const& key) const = 0;
    /// All CMF values. Through the second form they may be changed freely, but do not keep that
    /// reference beyond a copy of the descriptor: it would change the copy as well.
    [[nodiscard]] virtual std::map<std::string, std::string> const& values() const = 0;
    [[nodiscard]] virtual std::map<std::string, std::string>& values() = 0;
    /// Sets or replaces a value; ignored for an empty key.
    virtual void setValue(std::string const& key, std::string const& value) = 0;
    virtual void setValue(int field, std::string const& value) = 0;
    /// A value, empty when there is none.
    [[nodiscard]] virtual std::string value(std::string const& key) const = 0;
    [[nodiscard]] virtual std::string value(int field) const = 0;
    /// Takes a value out; ignored when there is none.
    virtual void removeValue(std::string const& key) = 0;
    virtual void removeValue(int field) = 0;

    /// Takes one member out of the metadata; ignored when there is none, also when the metadata is
    /// no object.
    virtual void removeMetadata(std::string const& key) = 0;
    /// Sets one member of the metadata. Null metadata becomes an object first; metadata that is
    /// anything else throws nlohmann::json::type_error and stays as it was. What would be nested
    /// more than 512 deep is not taken, with a warning: nobody could read it back from the scene.
    virtual void setMetadata(std::string const& key, nlohmann::json const& value) = 0;
    /// A copy of one member of the metadata, null when there is none, also when the metadata is no
    /// object.
    [[nodiscard]] virtual nlohmann::json metadata(std::string const& key) const = 0;
    /// A copy of the whole metadata: any JSON value, null when there is none.
    [[nodiscard]] virtual nlohmann::json metadata() const = 0;
    /// Replaces the whole metadata, unless it is nested more than 512 deep.
    virtual void setMetadata(nlohmann::json const& metadata) = 0;

    /// Does nothing: it keeps the place of an operation that no application needs.
    virtual void reserved() = 0;

    /// Identifiers of items that belong to the material, opaque here. Applying leaves them alone.
    [[nodiscard]] virtual bool hasItems() const = 0;
    [[nodiscard]] virtual std::vector<unsigned int> const& items() const = 0;

protected:
    IMaterialDescriptor();
    IMaterialDescriptor(IMaterialDescriptor const&);
    IMaterialDescriptor& operator=(IMaterialDescriptor const&);
};

} // namespace zsg
