#include "painting/PaintCommand.h"

#include "nyxrender/nyxRT_api.h"
#include "ztask/ZTask.h"
#include "ztask/ZTaskQueue.h"

#include <atomic>
#include <exception>
#include <utility>
#include <vector>

namespace example {

using nyx::embedded::LayerPixels;
using nyx::embedded::PixelTile;
using nyx::embedded::TileHandle;

/// What the tasks work on, all on the render thread but for what is atomic.
class PaintCommand::Edit {
public:
    Edit(nyx::embedded::Painting& painting, nyx::SurfaceId surface, std::uint32_t layer,
         Paint paint, Before before)
        : painting_(painting),
          surface_(surface),
          layer_(layer),
          paint_(std::move(paint)),
          before_(std::move(before)) {}

    void paint() {
        Paint const paint = std::exchange(paint_, {});
        Before const makeBefore = std::exchange(before_, {});
        auto before = painting_.pixels(surface_, layer_);
        if (!before) {
            return;
        }
        if (makeBefore) {
            LayerPixels given = makeBefore();
            if (given.resolution() != before->resolution()) {
                return;
            }
            before = std::move(given);
        }
        LayerPixels after = *before;
        paint(after);
        if (after.resolution() != before->resolution()) {
            return; // painting does not change the size
        }
        resolution_ = after.resolution();
        std::size_t kept = 0;
        for (int row = 0; row < after.tilesAcross(); ++row) {
            for (int column = 0; column < after.tilesAcross(); ++column) {
                TileHandle const& old = before->tile(column, row);
                TileHandle const& now = after.tile(column, row);
                if (!(old == now)) {
                    tiles_.push_back({column, row, old, now});
                    kept += (old ? sizeof(PixelTile) : 0) + (now ? sizeof(PixelTile) : 0);
                }
            }
        }
        bytes = kept;
        painting_.setPixels(surface_, layer_, std::move(after));
    }
    /// Whether what is kept has another size than the surface. On any thread.
    [[nodiscard]] bool isOutgrown() const {
        int const kept = resolution_; // 0 until the render thread has painted
        auto const now = painting_.surface(surface_);
        return kept != 0 && now && now->resolution != kept;
    }
    void putBack() { put(&Tile::before); }
    void putAgain() { put(&Tile::after); }

    std::atomic<std::size_t> bytes = 0;

private:
    struct Tile {
        int column, row;
        TileHandle before, after;
    };

    void put(TileHandle Tile::*which) {
        auto pixels = painting_.pixels(surface_, layer_);
        if (!pixels || pixels->resolution() != resolution_) {
            return;
        }
        for (Tile const& tile : tiles_) {
            pixels->setTile(tile.column, tile.row, tile.*which);
        }
        painting_.setPixels(surface_, layer_, *std::move(pixels));
    }

    nyx::embedded::Painting& painting_;
    nyx::SurfaceId surface_;
    std::uint32_t layer_;
    Paint paint_;
    Before before_;
    std::atomic<int> resolution_ = 0;
    std::vector<Tile> tiles_;
};

class PaintCommand::Task final : public ZTask {
public:
    Task(std::shared_ptr<Edit> edit, void (Edit::*step)()) : edit_(std::move(edit)), step_(step) {
        setDeleteOnDone(true);
    }
    void run() override {
        try {
            (edit_.get()->*step_)();
        } catch (...) {
            // Out of memory: the layer keeps what it had, as setPixels comes last.
        }
    }

private:
    std::shared_ptr<Edit> edit_;
    void (Edit::*step_)();
};

PaintCommand::PaintCommand(QString const& text, nyx::embedded::Painting& painting,
                           ZTaskQueue& queue, nyxRT_api& rtApi, nyx::SurfaceId surface,
                           std::uint32_t layer, Paint paint, Before before)
    : ZUndoCommand(commandId, text),
      queue_(queue),
      rtApi_(rtApi),
      edit_(std::make_shared<Edit>(painting, surface, layer, std::move(paint), std::move(before))) {
}

PaintCommand::~PaintCommand() = default;

bool PaintCommand::redo() {
    if (edit_->isOutgrown()) {
        return false;
    }
    queue(std::exchange(isPainted_, true) ? &Edit::putAgain : &Edit::paint);
    return true;
}

bool PaintCommand::undo() {
    if (edit_->isOutgrown()) {
        return false;
    }
    queue(&Edit::putBack);
    return true;
}

std::size_t PaintCommand::bytes() const { return edit_->bytes; }

void PaintCommand::queue(void (Edit::*step)()) {
    queue_.addBlockingRenderTask(std::make_unique<Task>(edit_, step).release());
    rtApi_.refresh(0);
}

} // namespace example
