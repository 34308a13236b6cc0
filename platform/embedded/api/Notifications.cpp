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

QEvent::Type turnEvent() {
    static auto const type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

template <class Container>
void prepend(Container& container, Container&& front) {
    container.insert(container.begin(), std::make_move_iterator(front.begin()),
                     std::make_move_iterator(front.end()));
}

} // namespace

/// One turn on its way: what is left of it when it ends goes back to the front.
class Notifications::Delivery {
public:
    explicit Delivery(Notifications& owner)
        : owner_(owner), turn(std::exchange(owner.waiting_, {})) {
        owner_.delivering_ = &turn;
        owner_.waitingColors_.clear();
    }
    ~Delivery() {
        owner_.delivering_ = nullptr;
        prepend(owner_.waiting_.messages, std::move(turn.messages));
        prepend(owner_.waiting_.functions, std::move(turn.functions));
        if (!owner_.waiting_.empty()) {
            owner_.schedule();
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
    if (waitingColors_.insert(id).second) {
        waiting_.colors.push_back(id);
        schedule();
    }
}

void Notifications::colorwayActivated(nyx::ColorwayId id) {
    waiting_.messages.push_back({nyxMessage::ColorwayActivated, {}, id});
    schedule();
}

void Notifications::callAfterSync(std::function<void()> function) {
    waiting_.functions.push_back(std::move(function));
    schedule();
}

void Notifications::forgetMessages() {
    waiting_.colors.clear();
    waitingColors_.clear();
    waiting_.messages.clear();
    if (delivering_ != nullptr) {
        delivering_->messages.clear();
    }
}

void Notifications::schedule() {
    if (!posted_ && delivering_ == nullptr && QCoreApplication::instance() != nullptr) {
        posted_ = true;
        QCoreApplication::postEvent(this, new QEvent(turnEvent()));
    }
}

bool Notifications::event(QEvent* event) {
    if (event->type() == QEvent::Timer) {
        killTimer(static_cast<QTimerEvent*>(event)->timerId());
    } else if (event->type() != turnEvent()) {
        return QObject::event(event);
    }
    if (faults_.holdNotifications) {
        // Nobody tells when the hold ends, and posting again at once would keep the loop busy.
        startTimer(heldPollInterval);
        return true;
    }
    posted_ = false;
    if (delivering_ == nullptr) {
        deliverTurn();
    }
    return true;
}

void Notifications::processEvents() {
    if (delivering_ != nullptr) {
        return;
    }
    for (int turn = 0; turn < turnLimit; ++turn) {
        if (waiting_.empty() || faults_.holdNotifications) {
            return;
        }
        deliverTurn();
    }
    nyx_warning("nyxrender: notifications keep causing notifications; %d turns delivered\n",
                turnLimit);
}

void Notifications::deliverTurn() {
    if (waiting_.empty()) {
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
