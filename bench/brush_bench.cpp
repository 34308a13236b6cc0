// Rows 15a to 15e: brushes beside a QObject's dynamic properties, and soft dabs beside QPainter.

#include "Rows.h"
#include "zsg/core/ISceneGraph.h"
#include "zsg/painting/IPainterBrush.h"
#include "zsg/painting/IPainterManager.h"
#include "zsg/values/Enumerable.h"

#include "nyxembedded/BrushStroke.h"
#include "nyxembedded/LayerPixels.h"
#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxRT_api.h"

#include <QImage>
#include <QObject>
#include <QPainter>
#include <QRadialGradient>

#include <cstddef>
#include <malloc.h>
#include <memory>
#include <vector>

namespace {

constexpr int brushCount = 1000;
constexpr int dabsPerStroke = 200;
constexpr int canvas = 2048;

/// A renderer with the root over it; one for all rows.
struct Scene {
    nyx::embedded::Renderer renderer;
    std::unique_ptr<zsg::ISceneGraph> root;

    Scene() {
        zsg::SceneGraphPars pars;
        pars.rtApi = renderer.api();
        root = zsg::ISceneGraph::create(pars);
    }
    std::unique_ptr<zsg::IPainterBrush> brush() {
        return root->painterManager()->createBrush(20, {});
    }
    static Scene& get() {
        static Scene scene;
        return scene;
    }
};

std::vector<QString> const& keys() {
    static std::vector<QString> const list = [] {
        std::vector<QString> names;
        for (zsg::Parameter const& parameter : Scene::get().brush()->parameters()) {
            names.push_back(parameter.name());
        }
        return names;
    }();
    return list;
}

float readAll(zsg::IPainterBrush const& brush) {
    float sum = 0;
    for (QString const& key : keys()) {
        zsg::Parameter const parameter = brush.parameter(key);
        sum += parameter.value<float>().value_or(0.0f);
        sum += parameter.value<bool>().value_or(false) ? 1.0f : 0.0f;
    }
    return sum;
}

/// What an application without a brush class would do: an object with the settings as properties,
/// their texts kept beside them.
struct Properties {
    QObject object;
    std::vector<std::pair<QString, QString>> texts;

    Properties() {
        for (QString const& key : keys()) {
            object.setProperty(key.toLatin1().constData(), 0.5f);
            texts.emplace_back(QString::fromLatin1("Size Jitter"),
                               QString::fromLatin1("Adjust the size of the brush"));
        }
    }
    float readAll() const {
        float sum = 0;
        for (QString const& key : keys()) {
            sum += object.property(key.toLatin1().constData()).toFloat();
        }
        return sum;
    }
};

void createAndRead(benchmark::State& state) {
    Scene& scene = Scene::get();
    for (auto _ : state) {
        benchmark::DoNotOptimize(readAll(*scene.brush()));
    }
}

void readOnly(benchmark::State& state) {
    auto const brush = Scene::get().brush();
    for (auto _ : state) {
        benchmark::DoNotOptimize(readAll(*brush));
    }
}

void createAndReadProperties(benchmark::State& state) {
    for (auto _ : state) {
        benchmark::DoNotOptimize(Properties().readAll());
    }
}

void readProperties(benchmark::State& state) {
    Properties const properties;
    for (auto _ : state) {
        benchmark::DoNotOptimize(properties.readAll());
    }
}

template <void (zsg::IPainterBrush::*operation)()>
void forAllBrushes(benchmark::State& state) {
    std::vector<std::unique_ptr<zsg::IPainterBrush>> brushes;
    for (int i = 0; i < brushCount; ++i) {
        brushes.push_back(Scene::get().brush());
    }
    for (auto _ : state) {
        for (auto const& brush : brushes) {
            (brush.get()->*operation)();
        }
    }
    state.SetItemsProcessed(state.iterations() * brushCount);
}

/// The twelve values that the two directions carry, as properties of a thousand objects.
void writeProperties(benchmark::State& state) {
    std::vector<std::unique_ptr<QObject>> objects;
    for (int i = 0; i < brushCount; ++i) {
        objects.push_back(std::make_unique<QObject>());
    }
    std::vector<QByteArray> names;
    for (QString const& key : keys()) {
        names.push_back(key.toLatin1());
    }
    names.resize(12);
    float value = 0;
    for (auto _ : state) {
        value += 1;
        for (auto const& object : objects) {
            for (QByteArray const& name : names) {
                object->setProperty(name.constData(), value);
            }
        }
    }
    state.SetItemsProcessed(state.iterations() * brushCount);
}

template <class Make>
void bytesOf(benchmark::State& state, Make const& make) {
    keys();
    for (auto _ : state) {
        auto const inUse = [] {
            auto const info = mallinfo2();
            return info.uordblks + info.hblkhd;
        };
        std::vector<decltype(make())> all;
        all.reserve(brushCount);
        std::size_t const before = inUse();
        for (int i = 0; i < brushCount; ++i) {
            all.push_back(make());
        }
        auto const each = static_cast<double>(inUse() - before) / brushCount;
        state.counters["bytes each"] = each;
        // Told as seconds per gigabyte, so that ratios are those of the bytes.
        state.SetIterationTime(each / 1e9);
    }
}

/// The centres of a stroke of a brush that sets its dabs a quarter of its size apart.
std::vector<QPointF> centers(int diameter) {
    std::vector<QPointF> points;
    double x = diameter;
    double y = diameter;
    for (int i = 0; i < dabsPerStroke; ++i) {
        points.emplace_back(x, y);
        x += diameter / 4.0;
        if (x > canvas - diameter) {
            x = diameter + diameter / 8.0;
            y = y + diameter / 4.0 > canvas - diameter ? diameter : y + diameter / 4.0;
        }
    }
    return points;
}

void softDabs(benchmark::State& state, int diameter) {
    nyx::embedded::BrushSettings brush;
    brush.pixels = true;
    brush.stamp = true; // the same dabs as QPainter draws
    brush.sizePixels.value = static_cast<float>(diameter);
    brush.hardness = 0;
    brush.flow.value = 0.5f;
    brush.color = {0.2f, 0.4f, 0.8f};
    nyx::embedded::BrushStroke stroke;
    for (QPointF const& p : centers(diameter)) {
        stroke.points.push_back({static_cast<float>(p.x()), static_cast<float>(p.y())});
    }
    nyx::embedded::LayerPixels pixels(canvas);
    for (auto _ : state) {
        nyx::embedded::paintBrushStroke(pixels, brush, stroke);
    }
    state.SetItemsProcessed(state.iterations() * dabsPerStroke);
}

void gradientDabs(benchmark::State& state, int diameter) {
    QImage image(canvas, canvas, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    std::vector<QPointF> const points = centers(diameter);
    double const radius = diameter / 2.0;
    QRadialGradient gradient(QPointF(0, 0), radius);
    for (int i = 0; i <= 16; ++i) {
        double const t = 1 - i / 16.0;
        gradient.setColorAt(
            i / 16.0,
            QColor::fromRgbF(0.2f, 0.4f, 0.8f, static_cast<float>(0.5 * t * t * (3 - 2 * t))));
    }
    QBrush const brush(gradient);
    for (auto _ : state) {
        QPainter painter(&image);
        for (QPointF const& p : points) {
            painter.resetTransform();
            painter.translate(p);
            painter.fillRect(QRectF(-radius, -radius, diameter, diameter), brush);
        }
    }
    state.SetItemsProcessed(state.iterations() * dabsPerStroke);
}

bool const registered = [] {
    char const* const properties = "QObject properties";
    auto const pair = [&](char const* row, char const* workload, char const* name, double atMost,
                          auto ours, auto peer) {
        bench::target({row, workload, name, atMost});
        return std::pair(bench::contestant(row, workload, bench::ours, ours),
                         bench::contestant(row, workload, name, peer));
    };
    pair("15a", "brush: create and read all", properties, 1.0, createAndRead,
         createAndReadProperties);
    pair("15a", "brush: read all", properties, 1.0, readOnly, readProperties);
    pair("15b", "apply, 1,000 brushes", properties, 1.0,
         forAllBrushes<&zsg::IPainterBrush::applyToNode>, writeProperties);
    pair("15b", "update, 1,000 brushes", properties, 1.0,
         forAllBrushes<&zsg::IPainterBrush::updateFromNode>, writeProperties);
    auto const [ours, peer] = pair(
        "15c", "bytes per brush", properties, 3.0,
        [](benchmark::State& state) { bytesOf(state, [] { return Scene::get().brush(); }); },
        [](benchmark::State& state) {
            bytesOf(state, [] { return std::make_unique<Properties>(); });
        });
    ours->UseManualTime()->Iterations(1);
    peer->UseManualTime()->Iterations(1);
    for (int const diameter : {64, 512}) {
        std::string const workload = "200 soft dabs of " + std::to_string(diameter) + " texels";
        pair(
            diameter == 64 ? "15d" : "15e", workload.c_str(), "QPainter", 1.0,
            [diameter](benchmark::State& state) { softDabs(state, diameter); },
            [diameter](benchmark::State& state) { gradientDabs(state, diameter); });
    }
    return true;
}();

} // namespace
