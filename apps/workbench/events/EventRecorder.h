#pragma once

#include "zsg/core/IEventListener.h"
#include "zsg/core/Subscription.h"

#include <QString>

#include <cstddef>
#include <deque>
#include <functional>

namespace zsg {
class IEventQueue;
}

namespace workbench {

/// What a queue announced: one row of the list of events.
struct RecordedEvent {
    unsigned id = 0;
    QString type;
    QString payload;
    qint64 time = 0; ///< milliseconds since 1970: many come at once, few are read
};

/// Writes down every event of a queue until somebody takes them. It keeps the newest ones and
/// counts those that it had to let go. Main thread.
class EventRecorder final : public zsg::IEventListener {
public:
    static constexpr std::size_t mostKept = 10'000;

    /// `onFirst` is called when something comes after everything before was taken.
    EventRecorder(zsg::IEventQueue& queue, std::function<void()> onFirst);

    void onEvent(zsg::Event const* event) override;

    struct Taken {
        std::deque<RecordedEvent> events; ///< in the order in which they came
        std::size_t dropped = 0;          ///< older ones that were let go
    };
    [[nodiscard]] Taken take();

private:
    std::function<void()> onFirst_;
    Taken taken_;
    zsg::Subscription subscription_;
};

} // namespace workbench
