#pragma once

#include "nyxrender/nyxLayerInfo.h"
#include "ztask/ZTask.h"

#include <cstdint>
#include <string>

class nyxCustomSurface;

namespace zsg {

/// A change of a layer that the renderer makes on its render thread, given by the render index that
/// the layer had when the task was queued. That is right because the queue runs tasks in order. The
/// queue deletes a task that has run. Tasks read nothing but their own fields and the renderer
/// surface (borrowed), so the model may change, or be gone, by then.
class LayerTask : public ZTask {
protected:
    LayerTask(std::uint32_t renderIndex, nyxCustomSurface* surface);

    std::uint32_t renderIndex_;
    nyxCustomSurface* surface_;
};

/// Adds a layer, makes it the edit layer, and names it.
class ZAddLayerTask final : public LayerTask {
public:
    ZAddLayerTask(std::uint32_t renderIndex, std::uint32_t layerId, nyxCustomSurface* surface,
                  std::string name);
    void run() override;

private:
    std::uint32_t layerId_;
    std::string name_;
};

class ZDeleteLayerTask final : public LayerTask {
public:
    ZDeleteLayerTask(std::uint32_t renderIndex, nyxCustomSurface* surface, bool deleted);
    void run() override;

private:
    bool deleted_;
};

class ZBlendModeTask final : public LayerTask {
public:
    ZBlendModeTask(std::uint32_t renderIndex, nyxCustomSurface* surface, nyx::ColorBlendMode mode);
    void run() override;

private:
    nyx::ColorBlendMode mode_;
};

class ZVisibilityLayerTask final : public LayerTask {
public:
    ZVisibilityLayerTask(std::uint32_t renderIndex, nyxCustomSurface* surface, bool visible);
    void run() override;

private:
    bool visible_;
};

class ZMoveLayerTask final : public LayerTask {
public:
    ZMoveLayerTask(std::uint32_t from, std::uint32_t to, nyxCustomSurface* surface);
    void run() override;

private:
    std::uint32_t to_;
};

class ZBackgroundTask final : public LayerTask {
public:
    ZBackgroundTask(std::uint32_t renderIndex, nyxCustomSurface* surface,
                    nyxColor_rgba const& color);
    void run() override;

private:
    nyxColor_rgba color_;
};

/// Makes a layer the edit layer.
class ZEditLayerTask final : public LayerTask {
public:
    ZEditLayerTask(std::uint32_t renderIndex, nyxCustomSurface* surface);
    void run() override;
};

} // namespace zsg
