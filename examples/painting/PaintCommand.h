#pragma once

#include "nyxembedded/Painting.h"
#include "zcore/ZUndoCommand.h"

#include <cstddef>
#include <functional>
#include <memory>

class nyxRT_api;
class ZTaskQueue;

namespace example {

/// How an application makes painting undoable: the library's commands cover the layers, not what is
/// painted on them. Painting, undo and redo each queue a task, so they come in order with what the
/// library has queued. The first task keeps the tiles that it changed, before and after; undo and
/// redo put those back and leave every other tile alone.
///
/// A surface whose resolution has changed since is left as it is, and undo and redo fail.
class PaintCommand final : public ZUndoCommand {
public:
    /// Changes the pixels of a layer; called once, on the render thread.
    using Paint = std::function<void(nyx::embedded::LayerPixels&)>;
    /// What there was on the layer; called once, on the render thread.
    using Before = std::function<nyx::embedded::LayerPixels()>;

    /// What an application may use as the number of its own commands.
    static constexpr auto commandId = static_cast<ZCommandId>(1000);

    /// What is given by reference is borrowed, and has to live until the queue has run the tasks.
    /// `before` is for a stroke that was seen while it was made, so that it is there already.
    PaintCommand(QString const& text, nyx::embedded::Painting& painting, ZTaskQueue& queue,
                 nyxRT_api& rtApi, nyx::SurfaceId surface, std::uint32_t layer, Paint paint,
                 Before before = {});
    ~PaintCommand() override;

    bool redo() override;
    bool undo() override;

    /// What the kept tiles take, in bytes; those that the layer still shares are counted too. 0
    /// until the render thread has painted.
    [[nodiscard]] std::size_t bytes() const;

private:
    class Edit;
    class Task;
    void queue(void (Edit::*step)());

    ZTaskQueue& queue_;
    nyxRT_api& rtApi_;
    std::shared_ptr<Edit> edit_; ///< with the tasks, which may outlive the command
    bool isPainted_ = false;
};

} // namespace example
