#include "zsg/colors/ColorDB.h"

#include "Rows.h"
#include "zsg/core/Event.h"
#include "zsg/core/IEventQueue.h"

#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxParameter_edit.h"
#include "nyxrender/nyxRT_api.h"
#include "nyxrender/nyx_color.h"

#include <boost/container/flat_map.hpp>

#include <algorithm>
#include <map>
#include <memory>
#include <random>
#include <unordered_map>

namespace {

using nyx::ColorId;
using zsg::ColorDB;

class DiscardingQueue final : public zsg::IEventQueue {
public:
    void subscribe(zsg::IEventListener*, zsg::EventType) override {}
    void unsubscribe(zsg::IEventListener*) override {}
    void post(zsg::Event* event) override { delete event; }
};

std::size_t const sizes[] = {1'000, 10'000, 100'000, 1'000'000};

std::string sizeText(std::size_t size) {
    return size < 1'000'000 ? std::to_string(size / 1000) + " k" : "1 M";
}

/// A scene of plain colours with names, every edit of which exists.
struct Palette {
    explicit Palette(std::size_t size) : db(&queue, renderer.api()) {
        ids.reserve(size);
        for (std::size_t i = 0; i < size; ++i) {
            ids.push_back(renderer.colors().add("Colour " + std::to_string(i), {0, 0, 0, 1}));
            db.getColorParameters(ids.back());
        }
        std::shuffle(ids.begin(), ids.end(), std::mt19937(1));
        warm.assign(ids.begin(), ids.begin() + 64);
    }

    static Palette& of(std::size_t size) {
        static std::map<std::size_t, std::unique_ptr<Palette>> palettes;
        auto& palette = palettes[size];
        if (!palette) {
            palette = std::make_unique<Palette>(size);
        }
        return *palette;
    }

    nyx::embedded::Renderer renderer;
    DiscardingQueue queue;
    ColorDB db;
    std::vector<ColorId> ids; ///< in random order
    std::vector<ColorId> warm;
    unsigned edits = 0;
};

/// Runs `step(id)` over the ids, round and round.
template <class Step>
void cycle(benchmark::State& state, std::vector<ColorId> const& ids, Step step) {
    std::size_t next = 0;
    for (auto _ : state) {
        step(ids[next]);
        next = next + 1 == ids.size() ? 0 : next + 1;
    }
}

/// Hands out one empty colour block for every id, so that only the database's own work shows.
class OneBlockApi final : public nyxRT_api {
public:
    OneBlockApi() { block_.kind = nyxParameter_edit::ColorKind; }
    nyxScene* scene() override { return nullptr; }
    void lock() override {}
    void unlock() override {}
    void set_modified(bool) override {}
    void refresh(int) override {}
    nyxParameter_edit* color_params(ColorId) override { return &block_; }
    nyxParameter_edit* colorway_params(nyx::ColorwayId) override { return nullptr; }
    nyxParameter_edit* color_settings_params() override { return nullptr; }
    void commit_color_params(nyxParameter_edit*) override {}
    void commit_colorway_params(nyxParameter_edit*) override {}
    void commit_color_settings_params(nyxParameter_edit*) override {}
    void release_color_params(nyxParameter_edit*) override {}
    void release_colorway_params(nyxParameter_edit*) override {}
    void release_color_settings_params(nyxParameter_edit*) override {}
    nyxParameter_edit* clone_color_params(nyxParameter_edit const*, bool) override {
        return nullptr;
    }
    void change_layer_lights(nyx::LightLayerId, nyx::Span<nyx::ObjectId>, int) override {}
    void assign_layer_lights(nyx::LightLayerId, nyx::Span<nyx::ObjectId>) override {}
    void set_layer_flags(nyx::LightLayerId, nyx::Flags<layerFlags>) override {}
    void update_brush_node(nyx::painter::nyxBrush_node*) override {}
    void call_after_sync(std::function<void()>) override {}

private:
    nyxParameter_edit block_;
};

/// The ids 1 to `size` in random order.
std::vector<ColorId> shuffledIds(std::size_t size) {
    std::vector<ColorId> ids;
    for (std::size_t i = 1; i <= size; ++i) {
        ids.emplace_back(static_cast<std::uint32_t>(i));
    }
    std::shuffle(ids.begin(), ids.end(), std::mt19937(1));
    return ids;
}

void editById() {
    for (std::size_t const size : sizes) {
        std::string const workload = "edit by id, " + sizeText(size) + " random";
        bench::contestant("9a", workload, bench::ours, [size](benchmark::State& state) {
            OneBlockApi api;
            ColorDB db(nullptr, &api);
            for (ColorId id{1}; id.value <= size; ++id.value) {
                db.getColorParameters(id);
            }
            cycle(state, shuffledIds(size),
                  [&](ColorId id) { benchmark::DoNotOptimize(db.getColorParameters(id)); });
        });
        bench::contestant("9a", workload, "std::unordered_map", [size](benchmark::State& state) {
            OneBlockApi api;
            std::unordered_map<ColorId, std::unique_ptr<zsg::ZColorExtEdit>> map;
            for (ColorId id{1}; id.value <= size; ++id.value) {
                map.emplace(id, std::make_unique<zsg::ZColorExtEdit>(&api, api.color_params(id)));
            }
            cycle(state, shuffledIds(size),
                  [&](ColorId id) { benchmark::DoNotOptimize(map.find(id)->second.get()); });
        });
        bench::target({"9a", workload, "std::unordered_map", 1.05});
    }
}

void insertEdits() {
    constexpr unsigned count = 1'000'000;
    bench::contestant("9b", "1 M edits inserted", bench::ours, [](benchmark::State& state) {
        OneBlockApi api;
        for (auto _ : state) {
            auto db = std::make_unique<ColorDB>(nullptr, &api);
            for (ColorId id{1}; id.value <= count; ++id.value) {
                db->getColorParameters(id);
            }
            state.PauseTiming();
            db.reset();
            state.ResumeTiming();
        }
    });
    bench::contestant("9b", "1 M edits inserted", "flat_map", [](benchmark::State& state) {
        OneBlockApi api;
        for (auto _ : state) {
            boost::container::flat_map<ColorId, std::unique_ptr<zsg::ZColorExtEdit>> map;
            for (ColorId id{1}; id.value <= count; ++id.value) {
                map.emplace(id, std::make_unique<zsg::ZColorExtEdit>(&api, api.color_params(id)));
            }
            state.PauseTiming();
            map.clear();
            state.ResumeTiming();
        }
    });
    bench::target({"9b", "1 M edits inserted", "flat_map", 1.2});
}

/// One workload at every size; the largest may cost `factor` times the smallest.
template <class Step>
void growth(std::string const& workload, double factor, bool warm, Step step) {
    for (std::size_t const size : sizes) {
        bench::contestant("growth", workload + ", " + sizeText(size), bench::ours,
                          [size, warm, step](benchmark::State& state) {
                              Palette& palette = Palette::of(size);
                              cycle(state, warm ? palette.warm : palette.ids,
                                    [&](ColorId id) { step(palette, id); });
                          });
    }
    bench::target(
        {"growth", workload + ", 1 M", bench::ours, factor, workload + ", " + sizeText(sizes[0])});
}

void colorEdit(Palette& palette, ColorId id) {
    zsg::ZColorExtEdit* const edit = palette.db.getColorParameters(id);
    edit->setColor({edit->color().r + 1, 0, 0, 1});
    palette.db.pushColor(id);
    // The messages must not pile up.
    if (++palette.edits % 256 == 0) {
        palette.renderer.processEvents();
    }
}

void flatRows() {
    growth("colors() unchanged", 1.25, true,
           [](Palette& palette, ColorId) { benchmark::DoNotOptimize(palette.db.colors().data()); });
    growth("getColorParameters, warm", 1.25, true, [](Palette& palette, ColorId id) {
        benchmark::DoNotOptimize(palette.db.getColorParameters(id));
    });
    // The first reading of each colour, which fetches its block.
    for (std::size_t const size : sizes) {
        bench::contestant(
            "growth", "getColorParameters, cold, " + sizeText(size), bench::ours,
            [size](benchmark::State& state) {
                Palette& palette = Palette::of(size);
                auto db = std::make_unique<ColorDB>(nullptr, palette.renderer.api());
                for (ColorId const id : palette.ids) { // else fresh pages of the heap are measured
                    benchmark::DoNotOptimize(db->getColorParameters(id));
                }
                db = std::make_unique<ColorDB>(nullptr, palette.renderer.api());
                std::size_t next = 0;
                for (auto _ : state) {
                    benchmark::DoNotOptimize(db->getColorParameters(palette.ids[next]));
                    if (++next == size) {
                        state.PauseTiming();
                        db = std::make_unique<ColorDB>(nullptr, palette.renderer.api());
                        next = 0;
                        state.ResumeTiming();
                    }
                }
            });
    }
    bench::target({"growth", "getColorParameters, cold, 1 M", bench::ours, 3,
                   "getColorParameters, cold, 1 k"});
    growth("colorFromId, warm", 1.25, true, [](Palette& palette, ColorId id) {
        benchmark::DoNotOptimize(palette.db.colorFromId(id));
    });
    growth("pushColor with no change, warm", 1.25, true,
           [](Palette& palette, ColorId id) { palette.db.pushColor(id); });
    growth("setColor and pushColor, warm", 1.25, true, colorEdit);
    growth("setColor and pushColor, cold", 3, false, colorEdit);
}

void listRows() {
    for (std::size_t const size : sizes) {
        std::string const workload = "both lists after a rename, " + sizeText(size);
        auto const rename = [](Palette& palette) {
            ColorId const id = palette.warm[0];
            zsg::ZColorExtEdit* const edit = palette.db.getColorParameters(id);
            edit->setDisplayName(edit->displayName() == "a" ? "b" : "a");
            palette.db.pushColor(id);
        };
        bench::contestant("growth", workload, bench::ours, [=](benchmark::State& state) {
            Palette& palette = Palette::of(size);
            for (auto _ : state) {
                rename(palette);
                benchmark::DoNotOptimize(palette.db.colors().data());
                benchmark::DoNotOptimize(palette.db.multiColors().data());
            }
        });
        bench::contestant(
            "growth", workload, "the renderer's three lists", [=](benchmark::State& state) {
                Palette& palette = Palette::of(size);
                nyxScene* const scene = palette.renderer.scene();
                for (auto _ : state) {
                    rename(palette);
                    benchmark::DoNotOptimize(nyx_get_colors_named(scene));
                    benchmark::DoNotOptimize(nyx_get_colors(scene, nyxColor_extended::PlainColor));
                    benchmark::DoNotOptimize(nyx_get_colors(scene, nyxColor_extended::MultiColor));
                }
            });
        bench::target({"growth", workload, "the renderer's three lists", 1.1});
    }
}

/// Used multi-colours of two sub-colours, and colorways that alternate between them.
struct Wardrobe {
    Wardrobe(std::size_t pairs, std::size_t colorways, std::size_t others)
        : db(&queue, renderer.api()) {
        for (std::size_t i = 0; i < others; ++i) {
            renderer.colors().add("", {0, 0, 0, 1});
        }
        nyx::MaterialId const material = renderer.materials().add("Material");
        std::vector<nyx::embedded::ColorwayPair> first, second;
        for (std::size_t i = 0; i < pairs; ++i) {
            std::vector<ColorId> const subs{renderer.colors().add("", {1, 0, 0, 1}),
                                            renderer.colors().add("", {0, 0, 1, 1})};
            ColorId const multi = renderer.colors().addMulti("", subs, subs[0]);
            renderer.materials().bindColor(material, static_cast<unsigned>(i), "colour", multi);
            first.push_back({multi, subs[0]});
            second.push_back({multi, subs[1]});
        }
        switching = {renderer.colorways().add("First", first),
                     renderer.colorways().add("Second", second)};
        for (std::size_t i = 2; i < colorways; ++i) {
            renderer.colorways().add("", {});
        }
    }

    nyx::embedded::Renderer renderer;
    DiscardingQueue queue;
    ColorDB db;
    std::vector<nyx::ColorwayId> switching;
};

void applyRows() {
    struct {
        std::size_t pairs, colorways, others;
    } const rows[] = {{10, 10, 0},          {10, 1000, 0},      {10, 100'000, 0},
                      {1000, 10, 1'000},    {1000, 10, 10'000}, {1000, 10, 100'000},
                      {1000, 10, 1'000'000}};
    for (auto const [pairs, colorways, others] : rows) {
        std::string const workload =
            "applyColorway, " + std::to_string(pairs) + " pairs, " + std::to_string(colorways) +
            " colorways" + (others == 0 ? "" : ", " + sizeText(others) + " other colours");
        bench::contestant(
            "growth", workload, bench::ours,
            [pairs = pairs, colorways = colorways, others = others](benchmark::State& state) {
                Wardrobe wardrobe(pairs, colorways, others);
                std::size_t next = 0;
                wardrobe.db.applyColorway(wardrobe.switching[1]);
                for (auto _ : state) {
                    wardrobe.db.applyColorway(wardrobe.switching[next]);
                    next = 1 - next;
                    wardrobe.renderer.processEvents();
                }
            });
    }
}

bool const registered = [] {
    editById();
    insertEdits();
    flatRows();
    listRows();
    applyRows();
    return true;
}();

} // namespace
