#include "zcore/ZMainThreadCallback.h"

#include "nyxrender/nyxRT_api.h"

#include <QMetaObject>
#include <QPointer>

#include <memory>
#include <utility>

ZMainThreadCallback::ZMainThreadCallback(nyxRT_api* api, std::function<void()> function,
                                         QObject* parent)
    : QObject(parent), function_(std::move(function)) {
    if (api == nullptr) {
        QMetaObject::invokeMethod(
            this, [this] { run(); }, Qt::QueuedConnection);
        return;
    }
    api->call_after_sync([guard = QPointer<ZMainThreadCallback>(this)] {
        if (!guard.isNull()) {
            guard->run();
        }
    });
}

ZMainThreadCallback::~ZMainThreadCallback() = default;

void ZMainThreadCallback::run() {
    // The function may destroy the parent, and this object and function_ with it.
    struct Disposal {
        QPointer<ZMainThreadCallback> self;
        ~Disposal() { delete self.data(); }
    } const disposal{this};
    std::function<void()> const function = std::move(function_);
    if (function) {
        function();
    }
}
