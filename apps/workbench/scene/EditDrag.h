#pragma once

#include <QObject>
#include <QTimer>

#include <functional>

class QWidget;

namespace workbench {

class Scene;

/// One continuous edit, from the press of a pointer to its release, as one entry of the history.
///
/// Values are pushed as they come, one per frame at most, and the last one closes the entry. Every
/// end counts as the release: the pointer is taken away, the window loses the focus, the widget is
/// hidden or ends, the history is used, the drag itself is destroyed. A press without a move pushes
/// nothing. Main thread.
class EditDrag final : public QObject {
    Q_OBJECT

public:
    /// How a value goes to the history: `Open` may be followed by another one of the same entry.
    enum class Step { Open, Last };

    struct Target {
        std::function<void(Step)> push; ///< pushes the newest value
        std::function<void()> restore;  ///< sets the value back to the one at the beginning
    };

    /// `source` is the widget that has the pointer; it may end before the drag.
    EditDrag(Scene& scene, QWidget& source, Target target);
    ~EditDrag() override;

    /// There is a newer value.
    void move();
    /// As the release, when no newer value comes for a moment: for the wheel and for keys.
    void endSoon();
    /// Closes the entry. Nothing happens after the first time.
    void end();
    /// Takes the whole edit back; the history is as it was before.
    void cancel();

    [[nodiscard]] bool isActive() const { return active_; }
    [[nodiscard]] bool hasMoved() const { return moved_; }

signals:
    void ended();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void pushNow(Step step);
    void finish();

    Scene& scene_;
    Target target_;
    QTimer frame_;
    QTimer pause_;
    int indexBefore_;
    bool active_ = true;
    bool moved_ = false;
    bool pushed_ = false;
};

} // namespace workbench
