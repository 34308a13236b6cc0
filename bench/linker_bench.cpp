// Growth of what touches many colours at once: imports in which every name is in use, long lists of
// sub-colours, and many colours of one name.

#include "Rows.h"
#include "zsg/colors/ColorController.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/colors/IColorLinkHandler.h"
#include "zsg/colors/IColorLinker.h"
#include "zsg/colors/ZColorExtEdit.h"
#include "zsg/core/ISceneGraph.h"

#include "nyxembedded/Host.h"
#include "nyxembedded/Renderer.h"

#include <memory>
#include <string>
#include <vector>

namespace {

using nyx::ColorId;
using Resolution = zsg::IColorLinkHandler::Resolution;

// From the smallest to the largest of these an operation may cost what its own work grows by.
constexpr std::size_t small = 1000;
constexpr std::size_t large = 4000;

class Answer final : public zsg::IColorLinkHandler {
public:
    explicit Answer(Resolution resolution) : resolution_(resolution) {}
    Resolution resolveConflict(ZColorExt const&, int, ColorId) override { return resolution_; }

private:
    Resolution resolution_;
};

/// A scene with colours that a material uses, so that an import of their names is in conflict.
struct Shelf {
    explicit Shelf(std::size_t used) {
        for (std::size_t i = 0; i < used; ++i) {
            colors.push_back(host.renderer().colors().add("White", {1, 1, 1, 1}));
        }
        nyx::MaterialId const material = host.renderer().materials().add("Material");
        for (std::size_t i = 0; i < used; ++i) {
            host.renderer().materials().bindColor(material, static_cast<unsigned>(i), "colour",
                                                  colors[i]);
        }
    }

    nyx::embedded::Host host;
    std::vector<ColorId> colors;
};

void importRows(std::string const& what, Resolution resolution, double factor) {
    auto const workload = [&](std::size_t size) {
        return "import of " + std::to_string(size) + " elements of a name in use, " + what;
    };
    for (std::size_t const size : {small, large}) {
        bench::contestant("growth", workload(size), bench::ours,
                          [size, resolution](benchmark::State& state) {
                              Answer answer(resolution);
                              std::vector<ZColorExt::ZColorWithId> elements;
                              for (std::size_t i = 0; i < size; ++i) {
                                  ZColor color(0, 0, 0);
                                  color.setName("White");
                                  elements.emplace_back(color, ColorId());
                              }
                              for (auto _ : state) {
                                  state.PauseTiming();
                                  auto shelf = std::make_unique<Shelf>(1);
                                  zsg::ISceneGraph& root = shelf->host.root();
                                  auto const linker = root.colorDB()->getColorLinker(
                                      root.colorController(), &answer);
                                  ZColorExt color;
                                  color.setMultiColor(true);
                                  color.setColorName("Guest");
                                  color.setColors(elements);
                                  state.ResumeTiming();
                                  benchmark::DoNotOptimize(linker->importColor(color));
                                  state.PauseTiming();
                                  shelf.reset();
                                  state.ResumeTiming();
                              }
                          })
            ->Unit(benchmark::kMillisecond);
    }
    bench::target({"growth", workload(large), bench::ours, factor, workload(small)});
}

// Each addition copies the list and announces every sub-colour: the sum grows with the square.
void addOneByOne() {
    auto const workload = [](std::size_t size) {
        return std::to_string(size) + " sub-colours, one by one";
    };
    for (std::size_t const size : {small, large}) {
        bench::contestant("growth", workload(size), bench::ours, [size](benchmark::State& state) {
            for (auto _ : state) {
                state.PauseTiming();
                auto shelf = std::make_unique<Shelf>(size);
                ColorId const multi = shelf->host.renderer().colors().addMulti(
                    "Multi", {&shelf->colors[0], 1}, shelf->colors[0]);
                zsg::IColorController* const controller = shelf->host.root().colorController();
                state.ResumeTiming();
                for (std::size_t i = 1; i < size; ++i) {
                    controller->addSubColors(multi, {&shelf->colors[i], 1}, -1, ColorId());
                }
                state.PauseTiming();
                shelf.reset();
                state.ResumeTiming();
            }
        })->Unit(benchmark::kMillisecond);
    }
    bench::target({"growth", workload(large), bench::ours, 16, workload(small)});
}

/// One more operation on two long multi-colours without a colour in common, or on one whose places
/// a material has; each on a scene of its own.
template <class Operation>
void onLongLists(std::string const& what, Operation operation) {
    auto const workload = [&](std::size_t size) { return what + ", " + std::to_string(size); };
    for (std::size_t const size : {small, large}) {
        bench::contestant("growth", workload(size), bench::ours,
                          [size, operation](benchmark::State& state) {
                              for (auto _ : state) {
                                  state.PauseTiming();
                                  auto shelf = std::make_unique<Shelf>(2 * size);
                                  ColorId const* const first = shelf->colors.data();
                                  auto& colors = shelf->host.renderer().colors();
                                  ColorId const one = colors.addMulti("One", {first, size}, *first);
                                  ColorId const other =
                                      colors.addMulti("Other", {first + size, size}, first[size]);
                                  state.ResumeTiming();
                                  operation(shelf->host.root(), one, other);
                                  state.PauseTiming();
                                  shelf.reset();
                                  state.ResumeTiming();
                              }
                          })
            ->Unit(benchmark::kMillisecond);
    }
    bench::target({"growth", workload(large), bench::ours, 5, workload(small)});
}

void longLists() {
    onLongLists("clone a multi-colour with its sub-colours",
                [](zsg::ISceneGraph& root, ColorId one, ColorId) {
                    benchmark::DoNotOptimize(root.colorDB()->cloneRecursively(one));
                });
    onLongLists("merge two multi-colours", [](zsg::ISceneGraph& root, ColorId one, ColorId other) {
        Answer answer(Resolution::Link);
        root.colorDB()->getColorLinker(root.colorController(), &answer)->mergeSubColors(one, other);
    });
    auto const linkAll = [](std::size_t size) {
        return "link a colour of " + std::to_string(size) + " places to another";
    };
    for (std::size_t const size : {small, large}) {
        bench::contestant("growth", linkAll(size), bench::ours, [size](benchmark::State& state) {
            for (auto _ : state) {
                state.PauseTiming();
                auto shelf = std::make_unique<Shelf>(2);
                nyx::embedded::Renderer& renderer = shelf->host.renderer();
                nyx::MaterialId const material = renderer.materials().add("Places");
                for (std::size_t i = 0; i < size; ++i) {
                    renderer.materials().bindColor(material, static_cast<unsigned>(i), "colour",
                                                   shelf->colors[0]);
                }
                state.ResumeTiming();
                shelf->host.root().colorController()->linkColor(shelf->colors[0], shelf->colors[1]);
                state.PauseTiming();
                shelf.reset();
                state.ResumeTiming();
            }
        })->Unit(benchmark::kMillisecond);
    }
    bench::target({"growth", linkAll(large), bench::ours, 5, linkAll(small)});
}

// The renderer's index of names, by what it answers: many holders of one name, and many numbers.
void nameRows() {
    auto const workload = [](std::size_t size) {
        return "rename one of " + std::to_string(size) + " \"White\" away and back";
    };
    for (std::size_t const size : {large / 4, large * 25}) {
        bench::contestant("growth", workload(size), bench::ours, [size](benchmark::State& state) {
            Shelf shelf(size);
            zsg::ColorDB& db = *shelf.host.root().colorDB();
            std::size_t next = 0;
            for (auto _ : state) {
                ColorId const id = shelf.colors[next++ % 64 * (size / 64)];
                for (char const* const name : {"Black", "White"}) {
                    db.getColorParameters(id)->setDisplayName(name);
                    db.pushColor(id);
                }
                if (next % 256 == 0) {
                    shelf.host.renderer().processEvents();
                }
            }
        });
    }
    bench::target({"growth", workload(large * 25), bench::ours, 1.5, workload(large / 4)});
    auto const numbered = [](std::size_t size) {
        return "a unique name beside " + std::to_string(size) + " numbered ones";
    };
    for (std::size_t const size : {large / 4, large * 25}) {
        bench::contestant("growth", numbered(size), bench::ours, [size](benchmark::State& state) {
            nyx::embedded::Host host;
            for (std::size_t i = 1; i <= size; ++i) {
                host.renderer().colors().add("Red " + std::to_string(i), {1, 0, 0, 1});
            }
            zsg::ColorDB& db = *host.root().colorDB();
            for (auto _ : state) {
                benchmark::DoNotOptimize(
                    db.findUniqueColorName("Red 1", {}, nyxColor_extended::PlainColor));
            }
        });
    }
    bench::target({"growth", numbered(large * 25), bench::ours, 1.5, numbered(large / 4)});
}

bool const registered = [] {
    // n log n at most.
    importRows("linked", Resolution::Link, 5);
    importRows("renamed", Resolution::Rename, 5);
    addOneByOne();
    longLists();
    nameRows();
    return true;
}();

} // namespace
