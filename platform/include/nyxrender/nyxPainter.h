#pragma once

#include "nyxrender/Export.h"
#include "nyxrender/Ids.h"
#include "nyxrender/Unique_array.h"

class nyxCustomSurface;
class nyxScene;

/// A surface as a painter lists it; the resolution is the edge length in texels.
struct nyxPainter_surface {
    nyx::SurfaceId id;
    int resolution = 0;
};

/// Paints onto the surfaces of a scene. Only the factory that made a painter ends it.
class NYXRENDER_EXPORT nyxPainter {
public:
    [[nodiscard]] virtual nyx::Unique_array<nyxPainter_surface> surfaces() const = 0;
    virtual nyx::SurfaceId create_surface(char const* name, int resolution) = 0;
    /// The surface of an id, owned by the scene; null when there is none.
    [[nodiscard]] virtual nyxCustomSurface* surface(nyx::SurfaceId id) const = 0;
    virtual bool change_resolution(nyxScene* scene, nyx::SurfaceId id, unsigned resolution) = 0;

protected:
    virtual ~nyxPainter();
};

/// Makes and ends the painters of a scene.
class NYXRENDER_EXPORT nyxPainter_factory {
public:
    virtual ~nyxPainter_factory();
    /// A painter of a kind, or null when the kind is unknown.
    [[nodiscard]] virtual nyxPainter* create(char const* kind) = 0;
    /// Ends a painter; one that was already released, or null, is accepted and ignored.
    virtual void release(nyxPainter* painter) = 0;
};

/// The painter factory of a scene, owned by it; null for a null scene.
[[nodiscard]] NYXRENDER_EXPORT nyxPainter_factory* nyx_painter_factory(nyxScene* scene);
