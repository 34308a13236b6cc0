#pragma once

#include "zsg/core/IEventListener.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/Subscription.h"

#include <functional>
#include <initializer_list>
#include <string>

/// Writes down the events that a queue delivers, one line each: "ColorUpdated 3", several ids with
/// blanks between them, an invalid one as "invalid". The words are eventKindText()'s.
class EventTrace final : public zsg::IEventListener {
public:
    /// Hears of every kind of event.
    explicit EventTrace(zsg::IEventQueue& queue);
    EventTrace(zsg::IEventQueue& queue, std::initializer_list<zsg::EventType> types);

    void onEvent(zsg::Event const* event) override;

    /// The lines since the last call, without a line break at the end; empty when there were none.
    std::string take();

    /// What is done at each event, beside.
    std::function<void()> reaction;

    /// The line of one event.
    [[nodiscard]] static std::string line(zsg::Event const& event);

private:
    std::string lines_;
    zsg::Subscription subscription_;
};
