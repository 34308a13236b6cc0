#pragma once

#include "zcore/Export.h"

#include <QObject>

#include <functional>

class nyxRT_api;

/// Runs a function once on the main thread after the renderer has next synchronised. Allocate it
/// with a parent, which disposes of it; it deletes itself after its function has run. When the
/// parent dies first, the function never runs.
class ZCORE_EXPORT ZMainThreadCallback : public QObject {
public:
    /// `api` is borrowed for the call only; without one the function runs at the next turn of the
    /// event loop.
    ZMainThreadCallback(nyxRT_api* api, std::function<void()> function, QObject* parent);
    ~ZMainThreadCallback() override;

private:
    void run();

    std::function<void()> function_;
};
