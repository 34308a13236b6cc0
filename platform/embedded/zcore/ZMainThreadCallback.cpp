#include "zcore/ZMainThreadCallback.h"

#include "nyxrender/nyxRT_api.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

#include <utility>

namespace {

/// The thread that the function is to run on.
QThread* mainThread(QObject const* parent) {
    if (parent) {
        return parent->thread();
    }
    QCoreApplication const* const application = QCoreApplication::instance();
    return application ? application->thread() : QThread::currentThread();
}

} // namespace

ZMainThreadCallback::ZMainThreadCallback(nyxRT_api* api, std::function<void()> function,
                                         QObject* parent)
    : function_(std::move(function)),
      parentGuard_(parent),
      hasParent_(parent != nullptr),
      waitsForApi_(api != nullptr) {
    QPointer<ZMainThreadCallback> const self(this);
    QThread* const main = mainThread(parent);
    bool const isElsewhere = main != QThread::currentThread();
    if (isElsewhere) {
        moveToThread(main); // a parent on another thread can be set on that thread only
    } else {
        setParent(parent);
    }
    if (isElsewhere || !api) {
        sent_.store(true, std::memory_order_release);
        QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        // From here on, elsewhere, the main thread may run this callback and delete it.
    }
    if (api) {
        api->call_after_sync([self] {
            if (!self.isNull()) {
                self->run();
            }
        });
    }
}

ZMainThreadCallback::~ZMainThreadCallback() = default;

bool ZMainThreadCallback::isOrphan() const { return hasParent_ && parentGuard_.isNull(); }

void ZMainThreadCallback::customEvent(QEvent*) {
    if (!sent_.load(std::memory_order_acquire)) {
        return;
    }
    if (isOrphan()) {
        delete this;
    } else if (waitsForApi_) {
        setParent(parentGuard_);
    } else {
        run();
    }
}

void ZMainThreadCallback::run() {
    // The function may destroy the parent, and this object and function_ with it.
    struct Disposal {
        QPointer<ZMainThreadCallback> self;
        ~Disposal() { delete self.data(); }
    } const disposal{this};
    std::function<void()> const function = std::move(function_);
    if (function && !isOrphan()) {
        function();
    }
}
