#include "zsg/core/Events.h"

namespace zsg {

MaterialUpdatedEvent::~MaterialUpdatedEvent() = default;
MaterialDescriptionChangedEvent::~MaterialDescriptionChangedEvent() = default;
ShaderNodeChangedEvent::~ShaderNodeChangedEvent() = default;
CMFSchemaChangedEvent::~CMFSchemaChangedEvent() = default;
PaintLayersUpdatedEvent::~PaintLayersUpdatedEvent() = default;
ViewportToolStartedEvent::~ViewportToolStartedEvent() = default;
ColorEvent::~ColorEvent() = default;
ColorIdChangeEvent::~ColorIdChangeEvent() = default;
ColorUpdatedEvent::~ColorUpdatedEvent() = default;
ColorSyncedEvent::~ColorSyncedEvent() = default;
ColorwaySyncedEvent::~ColorwaySyncedEvent() = default;
ColorwayUpdatedEvent::~ColorwayUpdatedEvent() = default;
LightLayerUpdatedEvent::~LightLayerUpdatedEvent() = default;
LightLayerSyncedEvent::~LightLayerSyncedEvent() = default;

} // namespace zsg
