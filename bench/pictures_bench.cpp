// Rows 20a and 20b: pictures of what grows, from the values to the bytes of a file. Floors: the
// same text copied, the same pixels compressed.

#include "Rows.h"
#include "host/Host.h"
#include "host/pictures/Picture.h"
#include "host/pictures/colorCards.h"
#include "host/pictures/png.h"
#include "host/pictures/svg.h"
#include "host/pictures/weaveDraft.h"
#include "zsg/values/WeavePattern.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <nlohmann/json.hpp>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

namespace {

using bench::contestant;
using bench::ours;

zsg::WeavePattern const& largeWeave() {
    static zsg::WeavePattern const weave = [] {
        zsg::WeavePattern pattern = zsg::WeavePattern::makeSatin(17, 5);
        pattern.setSize(512, 512);
        return pattern;
    }();
    return weave;
}

template <int count>
app::Host& manyColors() {
    static std::unique_ptr<app::Host> const host = [] {
        auto colors = nlohmann::json::array();
        for (int i = 0; i < count; ++i) {
            colors.push_back({{"id", i + 1},
                              {"name", "Color " + std::to_string(i)},
                              {"value", {i % 10 / 10.0, i % 100 / 100.0, i / double(count), 1}}});
        }
        auto const path = std::filesystem::temp_directory_path() / "zsg_pictures_bench.json";
        std::ofstream(path) << nlohmann::json{{"format", "zsg-scene"},
                                              {"version", 1},
                                              {"nextIds", {{"color", count + 1}}},
                                              {"colors", colors}};
        auto made = std::make_unique<app::Host>(std::cerr);
        std::string const problem = made->load(path.string());
        std::filesystem::remove(path);
        if (!problem.empty()) {
            std::cerr << problem << '\n';
            std::abort();
        }
        return made;
    }();
    return *host;
}

app::Picture weavePicture() { return app::weaveDraft(largeWeave()); }
template <int count>
app::Picture cardPicture() {
    return app::paletteCard(manyColors<count>());
}

template <app::Picture (*picture)()>
void asSvg(benchmark::State& state) {
    picture(); // the scene
    for (auto _ : state) {
        benchmark::DoNotOptimize(app::svg(picture()));
    }
}

template <app::Picture (*picture)()>
void asPng(benchmark::State& state) {
    picture();
    for (auto _ : state) {
        benchmark::DoNotOptimize(app::png(picture(), app::Theme::Light));
    }
}

template <app::Picture (*picture)()>
void copyText(benchmark::State& state) {
    std::string const text = app::svg(picture());
    for (auto _ : state) {
        std::string copy = text;
        benchmark::DoNotOptimize(copy.data());
    }
}

template <app::Picture (*picture)()>
void compressPixels(benchmark::State& state) {
    std::string const bytes = app::png(picture(), app::Theme::Light);
    QImage const image = QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
    for (auto _ : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        benchmark::DoNotOptimize(image.save(&buffer, "PNG"));
    }
}

template <app::Picture (*picture)()>
void svgRows(std::string const& row, std::string const& what) {
    contestant(row, what + ", .svg", ours, asSvg<picture>);
    contestant(row, what + ", .svg", "its text copied", copyText<picture>);
}

template <app::Picture (*picture)()>
void pngRows(std::string const& row, std::string const& what) {
    contestant(row, what + ", .png", ours, asPng<picture>);
    contestant(row, what + ", .png", "QImage saves its pixels", compressPixels<picture>);
}

bool const registered = [] {
    svgRows<weavePicture>("20a", "draft of a weave of 512 x 512");
    pngRows<weavePicture>("20a", "draft of a weave of 512 x 512");
    // As .png larger cards have more pixels than one may have, or than Qt reads again.
    svgRows<cardPicture<10'000>>("20b", "card of 10,000 colours");
    svgRows<cardPicture<2'000>>("20b", "card of 2,000 colours");
    pngRows<cardPicture<2'000>>("20b", "card of 2,000 colours");
    return true;
}();

} // namespace
