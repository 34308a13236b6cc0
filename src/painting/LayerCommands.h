#pragma once

#include "nyxrender/nyxLayerInfo.h"
#include "zcore/ZUndoCommand.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace zsg {

class ZPaintSurface;

// The undo commands of paint layers. They refer to layers by id, so that they stay right after
// layers have moved, and change them through the surface (borrowed; surfaces are never destroyed).
// Undo and redo always succeed; an id that the surface no longer has is ignored there.

/// Has the layer added when it is made, before it is pushed: undo and redo only mark it as deleted
/// and as not deleted, whatever becomes of the command.
class ZAddLayerCommand final : public ZUndoCommand {
public:
    ZAddLayerCommand(unsigned int index, ZPaintSurface* surface);
    bool undo() override;
    bool redo() override;

    [[nodiscard]] std::uint32_t layerId() const { return layerId_; }

private:
    std::uint32_t layerId_;
    ZPaintSurface* surface_;
};

class ZDeleteLayerCommand final : public ZUndoCommand {
public:
    ZDeleteLayerCommand(std::uint32_t layerId, ZPaintSurface* surface);
    bool undo() override;
    bool redo() override;

private:
    std::uint32_t layerId_;
    ZPaintSurface* surface_;
};

class ZLayerBlendCommand final : public ZUndoCommand {
public:
    ZLayerBlendCommand(nyx::ColorBlendMode mode, nyx::ColorBlendMode oldMode, std::uint32_t layerId,
                       ZPaintSurface* surface);
    bool undo() override;
    bool redo() override;

private:
    nyx::ColorBlendMode mode_;
    nyx::ColorBlendMode oldMode_;
    std::uint32_t layerId_;
    ZPaintSurface* surface_;
};

/// Undo sets the opposite of the new value, whatever the layer was before.
class ZLayerVisibilityCommand final : public ZUndoCommand {
public:
    ZLayerVisibilityCommand(bool visible, std::uint32_t layerId, ZPaintSurface* surface);
    bool undo() override;
    bool redo() override;

private:
    bool visible_;
    std::uint32_t layerId_;
    ZPaintSurface* surface_;
};

class ZLayerNameCommand final : public ZUndoCommand {
public:
    ZLayerNameCommand(QString name, QString oldName, std::uint32_t layerId, ZPaintSurface* surface);
    bool undo() override;
    bool redo() override;

private:
    QString name_;
    QString oldName_;
    std::uint32_t layerId_;
    ZPaintSurface* surface_;
};

class ZLayerBackgroundCommand final : public ZUndoCommand {
public:
    ZLayerBackgroundCommand(nyxColor_rgba const& color, nyxColor_rgba const& oldColor,
                            std::uint32_t layerId, ZPaintSurface* surface);
    bool undo() override;
    bool redo() override;
    /// Takes over the new colour of another change of background, and keeps its own layer: whose
    /// layer the other one is, is not asked, so that redo then gives this layer the other's colour.
    /// A move has the same id and is not taken.
    bool mergeWith(ZUndoCommand const* other) override;

private:
    nyxColor_rgba color_;
    nyxColor_rgba oldColor_;
    std::uint32_t layerId_;
    ZPaintSurface* surface_;
};

/// Undo puts the layer where the one now stands that was just above it (`previousId`; noLayer: at
/// the top). After a move downwards that is one place above where it came from, unless it came from
/// the top. After a redo that threw, it goes back to where it was.
class ZMoveLayerCommand final : public ZUndoCommand {
public:
    ZMoveLayerCommand(std::uint32_t layerId, std::uint32_t previousId, std::uint32_t targetId,
                      ZPaintSurface* surface);
    bool undo() override;
    bool redo() override;

private:
    std::uint32_t layerId_;
    std::uint32_t previousId_;
    std::uint32_t targetId_;
    ZPaintSurface* surface_;
    std::optional<std::uint32_t> origin_; ///< the layer's index, from redo() until it succeeds
};

} // namespace zsg
