#pragma once

#include "zcore/Export.h"

#include <QObject>
#include <QPointer>

#include <atomic>
#include <functional>

class nyxRT_api;

/// Runs a function once on the main thread after the renderer has next synchronised. Allocate it,
/// on any thread, with a parent that lives on the main thread: it deletes itself there, after its
/// function has run, or once its parent is gone, in which case the function never runs. On another
/// thread than the main one the pointer is nothing to keep: the object may be gone before the
/// constructor returns.
class ZCORE_EXPORT ZMainThreadCallback : public QObject {
public:
    /// `api` is borrowed for the call only; without one the function runs at the next turn of the
    /// event loop. `parent` must live until the constructor has returned.
    ZMainThreadCallback(nyxRT_api* api, std::function<void()> function, QObject* parent);
    ~ZMainThreadCallback() override;

protected:
    void customEvent(QEvent* event) override;

private:
    [[nodiscard]] bool isOrphan() const;
    void run();

    std::function<void()> function_;
    QPointer<QObject> parentGuard_; ///< to the parent that a callback of another thread will have
    bool hasParent_;
    bool waitsForApi_;
    std::atomic<bool> sent_{false}; ///< another thread is done with this object
};
