#pragma once

#include "zsg/Export.h"
#include "zsg/core/Event.h"
#include "zsg/core/Ids.h"

#include "nyxrender/Ids.h"

#include <cstdint>

// The kinds of events, in the order of their EventType. They copy and move as plain values.
namespace zsg {

/// A material has changed. Posted by the application.
class ZSG_EXPORT MaterialUpdatedEvent final : public Event {
public:
    explicit MaterialUpdatedEvent(MaterialId materialId) noexcept
        : Event(EventType::MaterialUpdated), materialId_(materialId) {}
    ~MaterialUpdatedEvent() override;

    [[nodiscard]] MaterialId materialId() const noexcept { return materialId_; }

private:
    MaterialId materialId_;
};

/// A material's description was applied.
class ZSG_EXPORT MaterialDescriptionChangedEvent final : public Event {
public:
    explicit MaterialDescriptionChangedEvent(MaterialId materialId) noexcept
        : Event(EventType::MaterialDescriptionChanged), materialId_(materialId) {}
    ~MaterialDescriptionChangedEvent() override;

    [[nodiscard]] MaterialId materialId() const noexcept { return materialId_; }

private:
    MaterialId materialId_;
};

/// A node of a material's shader graph has changed. Posted by the application.
class ZSG_EXPORT ShaderNodeChangedEvent final : public Event {
public:
    ShaderNodeChangedEvent(MaterialId materialId, ShaderNodeId shaderNodeId) noexcept
        : Event(EventType::ShaderNodeChanged),
          materialId_(materialId),
          shaderNodeId_(shaderNodeId) {}
    ~ShaderNodeChangedEvent() override;

    [[nodiscard]] MaterialId materialId() const noexcept { return materialId_; }
    [[nodiscard]] ShaderNodeId shaderNodeId() const noexcept { return shaderNodeId_; }

private:
    MaterialId materialId_;
    ShaderNodeId shaderNodeId_;
};

/// The CMF schema was replaced.
class ZSG_EXPORT CMFSchemaChangedEvent final : public Event {
public:
    CMFSchemaChangedEvent() noexcept : Event(EventType::CMFSchemaChanged) {}
    ~CMFSchemaChangedEvent() override;
};

/// Layers of a paint surface have changed.
class ZSG_EXPORT PaintLayersUpdatedEvent final : public Event {
public:
    explicit PaintLayersUpdatedEvent(nyx::SurfaceId surfaceId) noexcept
        : Event(EventType::PaintLayersUpdated), surfaceId_(surfaceId) {}
    ~PaintLayersUpdatedEvent() override;

    [[nodiscard]] nyx::SurfaceId surfaceId() const noexcept { return surfaceId_; }

private:
    nyx::SurfaceId surfaceId_;
};

/// A tool of the viewport was started. Posted by the application.
class ZSG_EXPORT ViewportToolStartedEvent final : public Event {
public:
    /// The values belong to the application.
    enum class ToolType : std::uint32_t {};

    explicit ViewportToolStartedEvent(ToolType toolType) noexcept
        : Event(EventType::ViewportToolStarted), toolType_(toolType) {}
    ~ViewportToolStartedEvent() override;

    [[nodiscard]] ToolType toolType() const noexcept { return toolType_; }

private:
    ToolType toolType_;
};

/// A colour was created and pushed into the scene.
class ZSG_EXPORT ColorEvent final : public Event {
public:
    explicit ColorEvent(nyx::ColorId colorId) noexcept
        : Event(EventType::ColorCreated), colorId_(colorId) {}
    ~ColorEvent() override;

    [[nodiscard]] nyx::ColorId colorId() const noexcept { return colorId_; }

private:
    nyx::ColorId colorId_;
};

/// A colour has another id from now on. Posted by the application.
class ZSG_EXPORT ColorIdChangeEvent final : public Event {
public:
    ColorIdChangeEvent(nyx::ColorId oldId, nyx::ColorId newId) noexcept
        : Event(EventType::ColorIdChange), oldId_(oldId), newId_(newId) {}
    ~ColorIdChangeEvent() override;

    [[nodiscard]] nyx::ColorId oldId() const noexcept { return oldId_; }
    [[nodiscard]] nyx::ColorId newId() const noexcept { return newId_; }

private:
    nyx::ColorId oldId_;
    nyx::ColorId newId_;
};

/// A colour was changed by an edit.
class ZSG_EXPORT ColorUpdatedEvent final : public Event {
public:
    explicit ColorUpdatedEvent(nyx::ColorId colorId) noexcept
        : Event(EventType::ColorUpdated), colorId_(colorId) {}
    ~ColorUpdatedEvent() override;

    [[nodiscard]] nyx::ColorId colorId() const noexcept { return colorId_; }

private:
    nyx::ColorId colorId_;
};

/// The renderer has taken over a colour's change.
class ZSG_EXPORT ColorSyncedEvent final : public Event {
public:
    explicit ColorSyncedEvent(nyx::ColorId colorId) noexcept
        : Event(EventType::ColorSynced), colorId_(colorId) {}
    ~ColorSyncedEvent() override;

    [[nodiscard]] nyx::ColorId colorId() const noexcept { return colorId_; }

private:
    nyx::ColorId colorId_;
};

/// The renderer has taken over a colorway's change.
class ZSG_EXPORT ColorwaySyncedEvent final : public Event {
public:
    explicit ColorwaySyncedEvent(nyx::ColorwayId colorwayId) noexcept
        : Event(EventType::ColorwaySynced), colorwayId_(colorwayId) {}
    ~ColorwaySyncedEvent() override;

    [[nodiscard]] nyx::ColorwayId colorwayId() const noexcept { return colorwayId_; }

private:
    nyx::ColorwayId colorwayId_;
};

/// A colorway was changed by an edit.
class ZSG_EXPORT ColorwayUpdatedEvent final : public Event {
public:
    explicit ColorwayUpdatedEvent(nyx::ColorwayId colorwayId) noexcept
        : Event(EventType::ColorwayUpdated), colorwayId_(colorwayId) {}
    ~ColorwayUpdatedEvent() override;

    [[nodiscard]] nyx::ColorwayId colorwayId() const noexcept { return colorwayId_; }

private:
    nyx::ColorwayId colorwayId_;
};

/// A light layer has changed.
class ZSG_EXPORT LightLayerUpdatedEvent final : public Event {
public:
    explicit LightLayerUpdatedEvent(nyx::LightLayerId lightLayerId) noexcept
        : Event(EventType::LightLayerUpdated), lightLayerId_(lightLayerId) {}
    ~LightLayerUpdatedEvent() override;

    [[nodiscard]] nyx::LightLayerId lightLayerId() const noexcept { return lightLayerId_; }

private:
    nyx::LightLayerId lightLayerId_;
};

/// The light layers were synchronised with the renderer's.
class ZSG_EXPORT LightLayerSyncedEvent final : public Event {
public:
    LightLayerSyncedEvent() noexcept : Event(EventType::LightLayerSynced) {}
    ~LightLayerSyncedEvent() override;
};

} // namespace zsg
