#include "painting/PaintModel.h"
#include "painting/PaintScene.h"

#include "nyxembedded/Stroke.h"
#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"
#include "ztask/ZTask.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <utility>

using namespace zsg;
using nyx::embedded::LayerPixels;

namespace {

template <class Records>
std::string text(Records const& layers, unsigned edit) {
    PaintModel shown;
    shown.edit = edit;
    for (nyxLayerInfo const& l : layers) {
        shown.layers.push_back({l.id, l.name ? l.name : "", static_cast<int>(l.blend_mode),
                                l.deleted, l.visible, l.background.r});
    }
    return shown.text();
}

/// What an entry does, forwards and backwards, as an edit of its surface's model.
struct Entry {
    std::function<void()> redo, undo;
    int background = -1; ///< of a change of background: four times the layer, and the surface
    float color = 0;
};

class PaintRandomEditTest : public PaintScene {
protected:
    struct PaintTask final : ZTask {
        PaintTask(std::function<void()> function) : work(std::move(function)) {
            setDeleteOnDone(true);
        }
        void run() override { work(); }
        std::function<void()> work;
    };
};

// 10,000 edits of three surfaces, undone and redone at random, while tasks wait. Names go to the
// renderer at once, so the queue is drained before each; everything else may wait.
TEST_F(PaintRandomEditTest, modelRendererAndPixelsAgreeWithAPlainModel) {
    std::mt19937 random(20261122);
    auto const below = [&](unsigned n) { return static_cast<unsigned>(random() % n); };
    std::map<unsigned, PaintModel> models;
    for (unsigned id = 1; id <= 3; ++id) {
        renderer.painting().addSurface("", 64);
        models[id].layers.push_back({1, ""});
    }
    std::vector<Entry> history;
    std::size_t done = 0;
    auto const entered = [&](Entry entry) {
        history.resize(done);
        entry.redo();
        if (entry.background >= 0 && done > 0 && history[done - 1].background >= 0) {
            // The first one's layer gets the later colour.
            auto const key = static_cast<unsigned>(history[done - 1].background);
            history[done - 1].redo = [&m = models[key % 4], layer = key / 4, color = entry.color] {
                m.at(layer).background = color;
            };
        } else {
            history.push_back(std::move(entry));
            ++done;
        }
    };

    for (int step = 0; step < 10000; ++step) {
        unsigned const id = 1 + below(3);
        PaintModel& m = models[id];
        IPainterSurface& s = surface(nyx::SurfaceId(id));
        auto const n = static_cast<unsigned>(m.layers.size());
        unsigned const i = below(n);
        unsigned const layer = m.layers[i].id;
        auto const assignment = [&m, layer](auto member, auto const& value) {
            return Entry{
                [&m, layer, member, value] { m.at(layer).*member = value; },
                [&m, layer, member, old = m.at(layer).*member] { m.at(layer).*member = old; }};
        };
        switch (below(13)) {
        case 0: {
            if (n >= 12) {
                break;
            }
            unsigned const at = below(n + 1);
            s.addLayer(static_cast<int>(at));
            int largest = 0;
            for (auto const& l : m.layers) {
                if (l.name.starts_with("Layer ")) {
                    largest = std::max(largest, std::stoi(l.name.substr(6)));
                }
            }
            unsigned const made = m.nextId++;
            m.layers.insert(m.layers.begin() + at, {made, "Layer " + std::to_string(largest + 1)});
            entered({[&m, made] { m.setDeleted(made, false); },
                     [&m, made] { m.setDeleted(made, true); }});
            break;
        }
        case 1: {
            bool const flag = below(4) != 0;
            bool const changes = m.layers[i].deleted != flag;
            s.setLayerDeleted(i, flag);
            if (changes) {
                entered({[&m, layer] { m.setDeleted(layer, true); },
                         [&m, layer] { m.setDeleted(layer, false); }});
            }
            break;
        }
        case 2: {
            int const mode = static_cast<int>(below(14));
            s.setLayerBlend(i, static_cast<nyx::ColorBlendMode>(mode));
            if (mode != m.layers[i].mode) {
                entered(assignment(&PaintModel::Layer::mode, mode));
            }
            break;
        }
        case 3: {
            bool const visible = !m.layers[i].visible;
            s.setLayerVisibility(i, visible);
            entered(assignment(&PaintModel::Layer::visible, visible));
            break;
        }
        case 4: {
            queue.waitIdle();
            std::string const name = below(5) == 0 ? "" : "Name " + std::to_string(below(50));
            s.setLayerName(i, QString::fromStdString(name));
            entered(assignment(&PaintModel::Layer::name, name));
            break;
        }
        case 5: {
            unsigned const to = below(n);
            s.moveLayer(i, to);
            if (to != i) {
                unsigned const target = m.layers[to].id;
                unsigned const previous = i == 0 ? 0 : m.layers[i - 1].id;
                entered({[&m, layer, target] { m.move(layer, target); },
                         [&m, layer, previous] { m.move(layer, previous); }});
            }
            break;
        }
        case 6: {
            float const color = static_cast<float>(below(4)) / 4;
            bool const changes = color != m.layers[i].background;
            bool const undoable = below(3) != 0;
            EXPECT_EQ(s.setLayerBackgroundColor(i, {color, 0, 0, 0}, undoable), changes);
            if (changes && undoable) {
                Entry entry = assignment(&PaintModel::Layer::background, color);
                entry.background = static_cast<int>(layer * 4 + id);
                entry.color = color;
                entered(std::move(entry));
            } else {
                m.layers[i].background = color;
            }
            break;
        }
        case 7:
            s.setEditLayer(i);
            m.edit = i;
            break;
        case 8: { // a host paints, on the render thread, on a layer that may not be there yet
            nyx::embedded::Stroke stroke;
            stroke.points = {{static_cast<float>(below(64)), static_cast<float>(below(64))}};
            stroke.color = {1, static_cast<float>(below(2)), 0, 0.5f};
            queue.addBlockingRenderTask(new PaintTask([this, id, layer, stroke] {
                EXPECT_TRUE(renderer.painting().paint(nyx::SurfaceId(id), layer, stroke));
            }));
            paintStroke(m.at(layer).pixels, stroke);
            break;
        }
        case 9:
        case 10:
            if (done > 0) {
                queue.waitIdle(); // a name may be among it
                ASSERT_TRUE(undo.undo());
                history[--done].undo();
            }
            break;
        case 11:
            if (done < history.size()) {
                queue.waitIdle();
                ASSERT_TRUE(undo.redo());
                history[done++].redo();
            }
            break;
        default:
            for (unsigned k = below(5); k > 0; --k) {
                queue.step();
            }
        }
        ASSERT_EQ(text(s.layers(), s.editLayer()), m.text()) << "step " << step;
        ASSERT_EQ(undo.index(), static_cast<int>(done)) << "step " << step;
        if (step % 100 == 99) {
            queue.waitIdle();
            for (auto const& [key, model] : models) {
                nyx::SurfaceId const sid(key);
                auto layers = painter().painter()->surface(sid)->layers();
                auto const edit = static_cast<unsigned>(layers.size()) - 1 -
                                  renderer.painting().surface(sid)->editLayer;
                std::reverse(layers.begin(), layers.end());
                ASSERT_EQ(text(layers, edit), model.text()) << step;
                for (auto const& l : model.layers) {
                    ASSERT_TRUE(renderer.painting().pixels(sid, l.id) == l.pixels) << step;
                }
                EXPECT_EQ(renderer.painting().surface(sid)->ignoredCalls, 0u);
            }
        }
    }
    happened();
}

} // namespace
