#pragma once

#include <QObject>
#include <QPointF>

#include <functional>

class QWidget;

namespace workbench {

/// One button on a widget, from press to release: what everything that is dragged within one
/// widget has in common. A press alone is no move, Escape gives up, and losing the pointer, the
/// window's focus or the sight of the widget is a release. Positions are the widget's.
class PointerDrag final : public QObject {
    Q_OBJECT

public:
    /// `mayBegin` says whether there is something to drag at a place; it can remember what.
    PointerDrag(QWidget& widget, std::function<bool(QPointF const& at)> mayBegin,
                Qt::MouseButton button = Qt::LeftButton);

    [[nodiscard]] bool isActive() const { return active_; }
    /// As the release, when there is something to release.
    void finish();

signals:
    void pressed();
    void moved(QPointF const& at);
    void released();
    void cancelled();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool press(QPointF const& at);
    void end(bool given);

    std::function<bool(QPointF const&)> mayBegin_;
    Qt::MouseButton button_;
    QPointF pressedAt_;
    bool active_ = false;
    bool moved_ = false;
};

} // namespace workbench
