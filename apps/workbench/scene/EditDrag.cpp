#include "workbench/scene/EditDrag.h"

#include "workbench/scene/Scene.h"

#include "zcore/ZUndoStack.h"

#include <QEvent>
#include <QWidget>

#include <chrono>
#include <utility>

namespace workbench {

using namespace std::chrono_literals;

EditDrag::EditDrag(Scene& scene, QWidget& source, Target target)
    : scene_(scene), target_(std::move(target)), indexBefore_(scene.undoStack().index()) {
    frame_.setSingleShot(true);
    frame_.setInterval(16ms);
    connect(&frame_, &QTimer::timeout, this, [this] { pushNow(Step::Open); });
    pause_.setSingleShot(true);
    pause_.setInterval(400ms);
    connect(&pause_, &QTimer::timeout, this, &EditDrag::end);
    connect(&scene, &Scene::dragsEnding, this, &EditDrag::end);
    // The history is empty by then, and the root is about to end.
    connect(&scene, &Scene::rootEnding, this, &EditDrag::finish);
    connect(&source, &QObject::destroyed, this, &EditDrag::end);
    source.installEventFilter(this);
    if (source.window() != &source) {
        source.window()->installEventFilter(this);
    }
}

EditDrag::~EditDrag() { end(); }

void EditDrag::move() {
    if (!active_) {
        return;
    }
    moved_ = true;
    if (!frame_.isActive()) {
        frame_.start();
    }
    if (pause_.isActive()) {
        pause_.start();
    }
}

void EditDrag::endSoon() {
    if (active_) {
        pause_.start();
    }
}

void EditDrag::end() {
    if (!active_) {
        return;
    }
    active_ = false; // what the push causes may end the drag again
    if (moved_) {
        pushNow(Step::Last);
    }
    finish();
}

void EditDrag::cancel() {
    if (!active_) {
        return;
    }
    active_ = false;
    ZUndoStack& stack = scene_.undoStack();
    if (!pushed_) {
        target_.restore();
    } else if (stack.index() == indexBefore_ + 1) {
        stack.undo();
        stack.clearRedo();
    } else {
        // It joined an entry that somebody had left open, which has to stay.
        target_.restore();
        target_.push(Step::Last);
    }
    finish();
}

bool EditDrag::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::UngrabMouse:
    case QEvent::WindowDeactivate:
    case QEvent::Hide:
    case QEvent::Close:
        end();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void EditDrag::pushNow(Step step) {
    frame_.stop();
    pushed_ = true;
    target_.push(step);
}

void EditDrag::finish() {
    active_ = false;
    frame_.stop();
    pause_.stop();
    emit ended();
}

} // namespace workbench
