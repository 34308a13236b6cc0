#include "api/Notifications.h"

#include "nyxembedded/Faults.h"
#include "nyxrender/nyx_warning.h"

#include <QCoreApplication>
#include <QEvent>

#include <chrono>
#include <iterator>
#include <utility>

namespace nyx::embedded {

namespace {

constexpr int turnLimit = 1000;
constexpr std::chrono::milliseconds heldPollInterval{10};

template <class Container>
void prepend(Container& container, Container&& front) {
    container.insert(container.begin(), std::make_move_iterator(front.begin()),
                     std::make_move_iterator(front.end()));
}

} // namespace

/// One turn on its way: what is left of it when it ends goes back to the front.
class Notifications::Delivery {
public:
    explicit Delivery(Notifications& owner) : owner_(owner) {
        Guard const guard(owner_.mutex_);
        turn = std::exchange(owner_.waiting_, {});
        owner_.delivering_ = &turn;
        owner_.waitingColors_.clear();
    }
    ~Delivery() {
        Guard const guard(owner_.mutex_);
        owner_.delivering_ = nullptr;
        prepend(owner_.waiting_.messages, std::move(turn.messages));
        prepend(owner_.waiting_.functions, std::move(turn.functions));
        if (!owner_.waiting_.empty()) {
            owner_.schedule(guard);
        }
    }
    Delivery(Delivery const&) = delete;
    Delivery& operator=(Delivery const&) = delete;

private:
    Notifications& owner_;

public:
    Turn turn;
};

void Notifications::setHandler(std::function<void(nyxMessage const&)> handler) {
    handler_ = std::move(handler);
}

void Notifications::colorChanged(nyx::ColorId id) {
    Guard const guard(mutex_);
    if (waitingColors_.insert(id).second) {
        waiting_.colors.push_back(id);
        schedule(guard);
    }
}

void Notifications::colorwayActivated(nyx::ColorwayId id) {
    Guard const guard(mutex_);
    waiting_.messages.push_back({nyxMessage::ColorwayActivated, {}, id});
    schedule(guard);
}

void Notifications::callAfterSync(std::function<void()> function) {
    Guard const guard(mutex_);
    waiting_.functions.push_back(std::move(function));
    schedule(guard);
}

void Notifications::forgetMessages() {
    Guard const guard(mutex_);
    waiting_.colors.clear();
    waitingColors_.clear();
    waiting_.messages.clear();
    if (delivering_) {
        delivering_->messages.clear();
    }
}

void Notifications::schedule(Guard const&) {
    if (!posted_ && !delivering_ && QCoreApplication::instance()) {
        posted_ = true;
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
    }
}

bool Notifications::isIdle() const {
    Guard const guard(mutex_);
    return waiting_.empty();
}

// These two do not look at their event: it may come from another thread.
void Notifications::customEvent(QEvent*) { turn(); }

void Notifications::timerEvent(QTimerEvent* event) {
    killTimer(event->timerId());
    turn();
}

void Notifications::turn() {
    if (faults_.holdNotifications) {
        // Nobody tells when the hold ends, and posting again at once would keep the loop busy.
        startTimer(heldPollInterval);
        return;
    }
    {
        Guard const guard(mutex_);
        posted_ = false;
        if (delivering_) {
            return;
        }
    }
    deliverTurn();
}

void Notifications::processEvents() {
    if (delivering_) { // written by this thread alone
        return;
    }
    for (int turn = 0; turn < turnLimit; ++turn) {
        if (isIdle() || faults_.holdNotifications) {
            return;
        }
        deliverTurn();
    }
    nyx_warning("nyxrender: notifications keep causing notifications; %d turns delivered\n",
                turnLimit);
}

void Notifications::deliverTurn() {
    if (isIdle()) {
        return;
    }
    Delivery delivery(*this);
    Turn& turn = delivery.turn;
    if (!turn.colors.empty()) {
        std::vector<nyx::ColorId> const colors = std::exchange(turn.colors, {});
        send({nyxMessage::ColorsSynced, colors, {}});
    }
    while (!turn.messages.empty()) {
        nyxMessage const message = turn.messages.front();
        turn.messages.pop_front();
        send(message);
    }
    while (!turn.functions.empty()) {
        std::function<void()> const function = std::move(turn.functions.front());
        turn.functions.pop_front();
        if (function) {
            function();
        }
    }
}

void Notifications::send(nyxMessage const& message) const {
    // A copy: the receiver may set another handler.
    if (auto const handler = handler_) {
        handler(message);
    }
}

} // namespace nyx::embedded
