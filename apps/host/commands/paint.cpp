// Strokes on the edit layer of the current surface.

#include "host/ColorArguments.h"
#include "host/Command.h"
#include "host/CurrentBrush.h"
#include "host/Host.h"
#include "host/PaintState.h"
#include "painting/PaintCommand.h"
#include "zsg/painting/IPainterSurface.h"

#include "nyxembedded/BrushSettings.h"
#include "nyxembedded/BrushStroke.h"
#include "nyxembedded/LayerPixels.h"

#include <QCoreApplication>

#include <ostream>
#include <utility>
#include <vector>

namespace app {

namespace {

using nyx::embedded::LayerPixels;
using nyx::embedded::Stroke;
using Points = std::vector<Stroke::Point>;

void with(Host& host, Arguments& arguments) {
    auto const radius = static_cast<float>(arguments.real("a radius in texels"));
    auto const hardness = static_cast<float>(arguments.real("a hardness, 0 to 1"));
    nyxColor_rgba const color = takeRgba(host, arguments);
    arguments.done();
    if (!(radius > 0 && radius <= 16384)) {
        throw CommandError("expected a radius above 0, at most 16384");
    }
    host.sceneState<PaintState>().withBrush = false;
    Stroke& stroke = host.sceneState<PaintState>().stroke;
    stroke.radius = radius;
    stroke.hardness = hardness;
    stroke.color = color;
}

void brush(Host& host, Arguments&) {
    static_cast<void>(currentBrush(host)); // or a complaint
    host.sceneState<PaintState>().withBrush = true;
}

Points takePoints(Arguments& arguments) {
    Points points;
    do {
        auto const x = static_cast<float>(arguments.real("x of a point"));
        points.push_back({x, static_cast<float>(arguments.real("y of a point"))});
    } while (!arguments.empty());
    return points;
}

/// A smooth line through all points (Catmull and Rom's).
Points smooth(Points const& through) {
    constexpr int pieces = 12;
    Points line;
    auto const at = [&through](std::ptrdiff_t i) {
        auto const last = static_cast<std::ptrdiff_t>(through.size()) - 1;
        return through[static_cast<std::size_t>(i < 0 ? 0 : i > last ? last : i)];
    };
    for (std::ptrdiff_t i = 0; i + 1 < static_cast<std::ptrdiff_t>(through.size()); ++i) {
        Stroke::Point const a = at(i - 1), b = at(i), c = at(i + 1), d = at(i + 2);
        for (int k = 0; k < pieces; ++k) {
            float const t = static_cast<float>(k) / pieces;
            auto const blend = [t](float p, float q, float r, float s) {
                return 0.5f * (2 * q + (r - p) * t + (2 * p - 5 * q + 4 * r - s) * t * t +
                               (3 * q - p - 3 * r + s) * t * t * t);
            };
            line.push_back({blend(a.x, b.x, c.x, d.x), blend(a.y, b.y, c.y, d.y)});
        }
    }
    line.push_back(through.back());
    return line;
}

/// What paints a stroke: the brush as its nodes are now, or the plain tip.
example::PaintCommand::Paint painterOf(Host& host, Stroke stroke) {
    zsg::IPainterBrush const* const brush = host.sceneState<CurrentBrush>().brush.get();
    if (brush && host.sceneState<PaintState>().withBrush && !stroke.erase) {
        auto const settings =
            nyx::embedded::brushSettings(*host.renderer().scene(), brush->brushNode());
        if (!settings) {
            throw CommandError("the brush has no nodes");
        }
        nyx::embedded::BrushStroke pen;
        for (Stroke::Point const& point : stroke.points) {
            pen.points.push_back({point.x, point.y, 1});
        }
        return
            [brush = *settings, pen](LayerPixels& pixels) { paintBrushStroke(pixels, brush, pen); };
    }
    return [stroke = std::move(stroke)](LayerPixels& pixels) { paintStroke(pixels, stroke); };
}

void paint(Host& host, Stroke stroke, QString const& text) {
    zsg::IPainterSurface& surface = currentSurface(host);
    auto const layers = surface.layers();
    if (surface.editLayer() >= layers.size() || layers[surface.editLayer()].deleted) {
        throw CommandError("no layer is being edited; \"layer use\" chooses one");
    }
    host.undoStack().push(new example::PaintCommand(
        text, host.renderer().painting(), host.taskQueue(), *host.renderer().api(), surface.id(),
        layers[surface.editLayer()].id, painterOf(host, std::move(stroke))));
}

enum class Line { Straight, Smooth };

template <Line line, bool erase>
void stroke(Host& host, Arguments& arguments) {
    Stroke made = host.sceneState<PaintState>().stroke;
    made.points = takePoints(arguments);
    if (line == Line::Smooth) {
        made.points = smooth(made.points);
    }
    made.erase = erase;
    paint(host, std::move(made),
          erase ? QCoreApplication::translate("PaintCommand", "Erase")
                : QCoreApplication::translate("PaintCommand", "Paint"));
}

void memory(Host& host, Arguments&) {
    host.taskQueue().waitIdle();
    std::size_t bytes = 0;
    for (int i = 0; i < host.undoStack().count(); ++i) {
        auto const* const command =
            dynamic_cast<example::PaintCommand const*>(host.undoStack().command(i));
        bytes += command ? command->bytes() : 0;
    }
    host.out() << "  " << bytes / 1024 << " KiB of tiles in the history\n";
}

constexpr Command table[] = {
    {"paint with", "RADIUS HARDNESS RGBA", "paint with a plain round tip",
     "paint with 12 0.5 #c0302080", with},
    {"paint brush", "", "paint with the current brush again, no longer with a tip", "paint brush",
     brush},
    {"paint line", "X Y [X Y...]", "paint along a line; one point makes a dot",
     "paint line 20 20 120 60 200 20", stroke<Line::Straight, false>},
    {"paint curve", "X Y [X Y...]", "paint along a smooth line",
     "paint curve 20 100 120 160 200 100", stroke<Line::Smooth, false>},
    {"paint erase", "X Y [X Y...]", "take paint away along a line", "paint erase 60 20 60 160",
     stroke<Line::Straight, true>},
    {"paint memory", "", "what the history keeps for undoing strokes (single entries)",
     "paint memory", memory},
};

} // namespace

Family paintFamily() { return {"strokes on the edit layer of the current surface", table}; }

} // namespace app
