#pragma once

#include "zsg/core/IEventListener.h"
#include "zsg/core/Subscription.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace zsg {
class IEventQueue;
}

namespace app {

/// Keeps a line for every event of every type that the queue delivers: id, type text, payload.
class EventLog final : public zsg::IEventListener {
public:
    struct Entry {
        unsigned id = 0;
        int type = 0;
        std::string typeText;
        std::string payload;
    };

    /// `onEntry` is told of every event as it arrives.
    EventLog(zsg::IEventQueue& queue, std::function<void(Entry const&)> onEntry);

    void onEvent(zsg::Event const* event) override;

    /// The events since the last clear().
    [[nodiscard]] std::vector<Entry> const& entries() const { return entries_; }
    void clear() { entries_.clear(); }

private:
    std::function<void(Entry const&)> onEntry_;
    std::vector<Entry> entries_;
    std::optional<zsg::Subscription> subscription_;
};

} // namespace app
