#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/nyxMessage.h"

#include <QObject>

#include <cstdint>
#include <deque>
#include <functional>
#include <mutex>
#include <unordered_set>
#include <vector>

namespace nyx::embedded {

struct Faults;

/// What the renderer has to tell, until the next turn of the event loop. A turn delivers what
/// waited when it began; what a receiver causes meanwhile waits for the turn after. When a receiver
/// throws, the rest of the turn waits on in its order. Main thread, but for callAfterSync().
class Notifications final : public QObject {
public:
    explicit Notifications(Faults const& faults) : faults_(faults) {}

    void setHandler(std::function<void(nyxMessage const&)> handler);
    void colorChanged(nyx::ColorId id);
    void colorwayActivated(nyx::ColorwayId id);
    /// Any thread.
    void callAfterSync(std::function<void()> function);
    /// Drops colours and messages not yet delivered, those of a turn under way included: the
    /// records that they name are no more.
    void forgetMessages();
    /// Delivers turn after turn until nothing waits. Ignored inside a delivery. After 1000 turns it
    /// gives up with a warning: receivers that always cause more would keep it forever.
    void processEvents();

protected:
    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    struct Turn {
        std::vector<nyx::ColorId> colors;
        std::deque<nyxMessage> messages;
        std::deque<std::function<void()>> functions;
        [[nodiscard]] bool empty() const {
            return colors.empty() && messages.empty() && functions.empty();
        }
    };
    class Delivery;

    using Guard = std::lock_guard<std::mutex>;

    void schedule(Guard const& held);
    [[nodiscard]] bool isIdle() const;
    void turn();
    void deliverTurn();
    void send(nyxMessage const& message) const;

    Faults const& faults_;
    std::function<void(nyxMessage const&)> handler_;
    mutable std::mutex mutex_; ///< over the members that follow; the turn under way needs none
    Turn waiting_;
    std::unordered_set<nyx::ColorId> waitingColors_;
    bool posted_ = false;
    Turn* delivering_ = nullptr; ///< the rest of the turn under way
};

} // namespace nyx::embedded
