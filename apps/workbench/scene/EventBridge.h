#pragma once

#include "workbench/scene/Changes.h"
#include "zsg/core/IEventListener.h"
#include "zsg/core/Subscription.h"

#include <functional>

namespace zsg {
class IEventQueue;
}

namespace workbench {

/// Collects what a queue announces until somebody takes it. It does nothing else within the
/// delivery of an event, when a command may be running and every edit would be refused.
class EventBridge final : public zsg::IEventListener {
public:
    /// `onFirst` is called when something comes after everything before was taken.
    EventBridge(zsg::IEventQueue& queue, std::function<void()> onFirst);

    void onEvent(zsg::Event const* event) override;

    [[nodiscard]] bool lightLayersChanged() const { return changes_.lightLayers; }
    [[nodiscard]] Changes take();

private:
    std::function<void()> onFirst_;
    Changes changes_;
    zsg::Subscription subscription_;
};

} // namespace workbench
