// The headline figures of colours (row 0), row 4d and the growth of undoable colour edits.

#include "Rows.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/Events.h"
#include "zsg/core/IEventListener.h"
#include "zsg/core/IEventQueue.h"
#include "zsg/core/ISceneGraph.h"

#include "nyxembedded/Host.h"
#include "nyxembedded/MaterialManager.h"
#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxParameter_edit.h"
#include "zcore/ZUndoCommand.h"
#include "zcore/ZUndoStack.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <array>
#include <fstream>
#include <malloc.h>
#include <memory>
#include <random>
#include <unistd.h>
#include <unordered_map>

namespace {

using nyx::ColorId;
using nyx::ColorwayId;
using zsg::AllowForwardUndoMerge;

class Listener final : public zsg::IEventListener {
public:
    explicit Listener(zsg::IEventQueue& queue) {
        queue.subscribe(this, zsg::EventType::ColorUpdated);
    }
    void onEvent(zsg::Event const*) override { ++count; }
    std::size_t count = 0;
};

/// Plain colours, ten multi-colours of eight that one material uses, ten colorways over all ten.
struct Studio {
    explicit Studio(std::size_t size) {
        for (std::size_t i = 0; i < size; ++i) {
            colors.push_back(renderer.colors().add("Colour " + std::to_string(i), {0, 0, 0, 1}));
        }
        nyx::MaterialId const material = renderer.materials().add("Material");
        std::array<std::vector<nyx::embedded::ColorwayPair>, 10> pairs;
        for (unsigned i = 0; i < 10; ++i) {
            std::vector<ColorId> const subs(colors.begin() + 8 * i, colors.begin() + 8 * i + 8);
            multis.push_back(
                renderer.colors().addMulti("Multi " + std::to_string(i), subs, subs[0]));
            renderer.materials().bindColor(material, i, "colour", multis.back());
            for (std::size_t way = 0; way < pairs.size(); ++way) {
                pairs[way].push_back({multis.back(), subs[way % subs.size()]});
            }
        }
        for (auto const& list : pairs) {
            colorways.push_back(renderer.colorways().add("Colorway", list));
        }
        warmUp();
    }

    // Every edit is there, so that a first reading is not taken for growth.
    void warmUp() {
        for (ColorId const id : colors) {
            db.getColorParameters(id);
        }
        for (ColorwayId const id : colorways) {
            db.getColorwayParameters(id);
        }
    }

    nyx::embedded::Renderer renderer;
    std::unique_ptr<zsg::ISceneGraph> const root = zsg::ISceneGraph::create({});
    Listener listener{*root->eventQueue()};
    zsg::ColorDB db{root->eventQueue(), renderer.api()};
    std::vector<ColorId> colors, multis;
    std::vector<ColorwayId> colorways;
    ZUndoStack stack;
    nyx::embedded::MaterialManager materials{renderer, &stack};
    zsg::ColorController controller{&db, &materials, &stack};
};

class NoEdit final : public ZUndoCommand {
public:
    explicit NoEdit(QString const& text) : ZUndoCommand(ZCommandId::EditColor, text) {}
    bool undo() override { return true; }
    bool redo() override { return true; }
};

void wholeEdit() {
    std::string const workload = "setColor, plain, 1 listener";
    constexpr int kept = 1000; // entries; the same work for each edit from then on
    bench::contestant("4d", workload, bench::ours, [](benchmark::State& state) {
        Studio studio(1000);
        studio.stack.setLimit(kept);
        float value = 0;
        std::size_t next = 0;
        for (auto _ : state) {
            studio.controller.setColor(studio.colors[next++ % 64], ZColor(value, 0, 0),
                                       AllowForwardUndoMerge::No);
            value = 1 - value;
        }
    });
    bench::contestant("4d", workload, "composite floor", [](benchmark::State& state) {
        Studio studio(1000);
        studio.stack.setLimit(kept);
        // What a record weighs as a block of seven entries.
        using Record = std::array<char, 7 * sizeof(nyxParameter_entry)>;
        std::unordered_map<ColorId, std::unique_ptr<Record>> records;
        for (ColorId const id : studio.colors) {
            records[id] = std::make_unique<Record>();
        }
        std::size_t next = 0;
        for (auto _ : state) {
            ColorId const id = studio.colors[next++ % 64];
            Record const* const from = records[id].get();
            for (int copy = 0; copy < 3; ++copy) {
                auto const made = std::make_unique<Record>(*from);
                benchmark::DoNotOptimize(made->data());
            }
            studio.stack.push(
                new NoEdit(QCoreApplication::translate("ZEditColorCommand", "Set Color")));
            studio.root->eventQueue()->post(new zsg::ColorUpdatedEvent(id));
            benchmark::DoNotOptimize(records.find(id));
        }
    });
    bench::target({"4d", workload, "composite floor", 3});
}

/// From the call of a controller to the return of the listener, and all that follows.
void editToEvent() {
    bench::contestant(
        "0", "edit to event, 100 k colours", bench::ours, [](benchmark::State& state) {
            Studio studio(100'000);
            studio.stack.setLimit(1000);
            std::mt19937 random(1);
            float value = 0;
            for (auto _ : state) {
                studio.controller.setColor(studio.colors[random() % studio.colors.size()],
                                           ZColor(value, 0, 0), AllowForwardUndoMerge::No);
                value = 1 - value;
            }
        });
}

/// A scene file that is in memory already, until the root stands over it.
void loading() {
    bench::contestant("0", "load 100 k colours", bench::ours, [](benchmark::State& state) {
        std::string const text = Studio(100'000).renderer.saveSceneText();
        for (auto _ : state) {
            nyx::embedded::Host host;
            benchmark::DoNotOptimize(host.loadSceneText(text));
        }
    })->Unit(benchmark::kMillisecond);
}

/// What stays resident of the process once a scene file of a million named colours is loaded, told
/// as seconds per gigabyte.
void memoryAfterLoading() {
    std::string const workload = "resident after loading 1 M colours";
    bench::contestant("0", workload, "what is allowed",
                      [](benchmark::State& state) {
                          for (auto _ : state) {
                              state.SetIterationTime(0.4);
                          }
                      })
        ->UseManualTime()
        ->Iterations(1);
    bench::target({"0", workload, "what is allowed", 1});
    bench::contestant(
        "0", workload, bench::ours,
        [](benchmark::State& state) {
            QTemporaryDir const folder;
            std::string const path = folder.filePath("scene.json").toStdString();
            {
                nyx::embedded::Renderer renderer;
                for (int i = 0; i < 1'000'000; ++i) {
                    renderer.colors().add("Colour " + std::to_string(i), {0, 0, 0, 1});
                }
                if (!renderer.saveScene(path).empty()) {
                    state.SkipWithError("the scene cannot be saved");
                    return;
                }
            }
            auto const resident = [] {
                malloc_trim(0); // of what earlier rows have freed
                std::size_t whole = 0;
                std::size_t pages = 0;
                std::ifstream("/proc/self/statm") >> whole >> pages;
                return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE));
            };
            for (auto _ : state) {
                double const before = resident();
                nyx::embedded::Host host;
                benchmark::DoNotOptimize(host.loadScene(path));
                state.SetIterationTime((resident() - before) / 1e9);
            }
        })
        ->UseManualTime()
        ->Iterations(1);
}

void drags() {
    for (bool const plain : {true, false}) {
        bench::contestant("growth",
                          plain ? "drag of 10 k setColor, plain"
                                : "drag of 10 k setColor, multi, 10 colorways",
                          bench::ours, [plain](benchmark::State& state) {
                              Studio studio(1000);
                              ColorId const id = plain ? studio.colors[0] : studio.multis[0];
                              for (auto _ : state) {
                                  for (int i = 0; i < 10'000; ++i) {
                                      studio.controller.setColor(id, ZColor(float(i), 0, 0),
                                                                 AllowForwardUndoMerge::Yes);
                                  }
                              }
                          });
    }
}

/// Edits that every session has, of random colours.
void edit(Studio& studio, std::mt19937& random) {
    auto const below = [&](std::size_t count) { return random() % count; };
    zsg::ColorController& controller = studio.controller;
    ColorId const color = studio.colors[below(studio.colors.size())];
    ColorId const multi = studio.multis[below(10)];
    ColorId const sub = studio.colors[below(80)];
    ColorwayId const colorway = studio.colorways[below(10)];
    zsg::MultiColorPair const pair{multi, sub};
    float const value = float(below(256)) / 255;
    switch (below(10)) {
    case 0:
    case 1:
    case 2:
        return controller.setColor(color, ZColor(value, value, 0), AllowForwardUndoMerge::No);
    case 3:
        return controller.setDisplayName(color, "Name " + std::to_string(below(99)));
    case 4:
        return controller.setFlags(color, 8, below(2) != 0);
    case 5:
        return controller.setActiveSubColor(multi, sub);
    case 6:
        return controller.moveSubColors(multi, {sub}, int(below(8)), sub);
    case 7:
        return controller.addColors(colorway, {pair}, -1, true);
    case 8:
        return controller.applyColorway(colorway);
    default:
        return controller.changeSubColor(multi, sub, studio.colors[below(80)]);
    }
}

void mixed() {
    constexpr int edits = 100'000;
    for (std::size_t const size : {std::size_t(1'000), std::size_t(100'000)}) {
        bench::contestant(
            "0", "100 k mixed edits, undone, redone, " + std::to_string(size / 1000) + " k colours",
            bench::ours,
            [size](benchmark::State& state) {
                Studio studio(size);
                std::mt19937 random(1);
                for (auto _ : state) {
                    std::size_t const before = mallinfo2().uordblks;
                    for (int i = 0; i < edits; ++i) {
                        edit(studio, random);
                    }
                    int const entries = studio.stack.count();
                    state.counters["bytes per entry"] =
                        double(mallinfo2().uordblks - before) / entries;
                    studio.stack.goTo(0);
                    studio.stack.goTo(entries);
                    state.PauseTiming();
                    studio.stack.clear();
                    studio.renderer.processEvents();
                    state.ResumeTiming();
                }
            })
            ->Unit(benchmark::kMillisecond);
    }
    bench::target({"0", "100 k mixed edits, undone, redone, 100 k colours", bench::ours, 3,
                   "100 k mixed edits, undone, redone, 1 k colours"});
}

bool const registered = [] {
    editToEvent();
    loading();
    memoryAfterLoading();
    wholeEdit();
    drags();
    mixed();
    return true;
}();

} // namespace
