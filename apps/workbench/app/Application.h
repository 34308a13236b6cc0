#pragma once

#include <QApplication>

#include <functional>

namespace workbench {

/// The application, which outlives what fails within an event: memory runs out, or a command of the
/// history throws. There is one.
class Application final : public QApplication {
public:
    using QApplication::QApplication;

    /// Told what an event has failed with.
    std::function<void(QString const& why)> onFailure;

    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace workbench
