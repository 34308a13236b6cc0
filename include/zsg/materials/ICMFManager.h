#pragma once

#include "zsg/Export.h"

namespace zsg {

struct ZCMFSchema;

/// Holds the CMF schema in force for the scene. Main thread.
class ZSG_EXPORT ICMFManager {
public:
    ICMFManager(ICMFManager const&) = delete;
    ICMFManager& operator=(ICMFManager const&) = delete;
    virtual ~ICMFManager();

    /// The schema in force, at first the built-in one: named "default", with the visible attributes
    /// Name, Color, Finish, Material, Vendor, Reference Image (an image; the others are texts) and
    /// Notes. The reference holds until the next setSchema().
    [[nodiscard]] virtual ZCMFSchema const& schema() const = 0;

    /// Puts a copy of `schema` in force and posts one CMFSchemaChangedEvent, also when nothing
    /// differs. What materials store is not touched.
    virtual void setSchema(ZCMFSchema const& schema) = 0;

protected:
    ICMFManager();
};

} // namespace zsg
