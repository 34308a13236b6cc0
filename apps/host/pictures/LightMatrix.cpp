#include "host/pictures/LightMatrix.h"

#include "host/Host.h"
#include "host/LightArguments.h"
#include "host/pictures/Picture.h"
#include "host/printable.h"
#include "zsg/lightlayers/ILightLayerApi.h"

#include <algorithm>
#include <map>
#include <set>

namespace app {

namespace {

/// Deeper groups stand as far in as these.
constexpr int deepest = 8;
/// Longer names are cut.
constexpr std::size_t longestName = 24;

std::size_t characters(std::string const& text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

/// The first characters of a name, so that the columns stay in line.
std::string cut(std::string name) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < name.size(); ++i) {
        bool const begins = (static_cast<unsigned char>(name[i]) & 0xC0) != 0x80;
        if (begins && ++count > longestName) {
            name.resize(i);
            break;
        }
    }
    return name;
}

std::string padded(std::string text, std::size_t width) {
    std::size_t const length = characters(text);
    return length < width ? text.append(width - length, ' ') : text;
}

} // namespace

LightMatrix::LightMatrix(Host& host) {
    zsg::ILightLayerApi const& api = lightLayers(host);
    std::vector<nyx::LightLayerId> const layers = [&] {
        auto const ids = api.layers();
        return std::vector<nyx::LightLayerId>(ids.begin(), ids.end());
    }();
    for (nyx::LightLayerId const layer : layers) {
        columns_.push_back(cut(printable(api.layerName(layer))));
    }
    std::map<nyx::GroupItemId, std::vector<nyx::GroupItemId>> below;
    std::set<nyx::GroupItemId> leading; // to a light
    nyx::embedded::Items const& items = host.renderer().items();
    for (nyx::GroupItemId const id : items.ids()) {
        auto const item = items.record(id);
        below[item->parent].push_back(id);
        for (auto at = item;
             item->isLight() && at && at->parent.isValid() && leading.insert(at->parent).second;) {
            at = items.record(at->parent);
        }
    }
    std::vector<std::pair<nyx::GroupItemId, int>> waiting;
    auto const putOff = [&](nyx::GroupItemId parent, int depth) {
        auto const& children = below[parent];
        for (auto child = children.rbegin(); child != children.rend(); ++child) {
            waiting.emplace_back(*child, depth);
        }
    };
    putOff({}, 0);
    while (!waiting.empty()) {
        auto const [id, depth] = waiting.back();
        waiting.pop_back();
        auto const item = items.record(id);
        if (item->isLight() || leading.contains(id)) {
            Row& row = rows_.emplace_back();
            row.name = cut(printable(item->name));
            row.depth = std::min(depth, deepest);
            row.isLight = item->isLight();
            for (nyx::LightLayerId const layer : layers) {
                row.in.push_back(item->isLight() &&
                                 api.contains(layer, nyx::ObjectId(id.toUint())));
            }
        }
        putOff(id, depth + 1);
    }
}

std::string LightMatrix::text() const {
    std::size_t width = 0;
    for (Row const& row : rows_) {
        width = std::max(width, 2 * static_cast<std::size_t>(row.depth) + characters(row.name));
    }
    std::string out = "  " + std::string(width, ' ');
    for (std::string const& column : columns_) {
        out += "  " + column;
    }
    out += '\n';
    for (Row const& row : rows_) {
        std::string line =
            "  " +
            padded(std::string(2 * static_cast<std::size_t>(row.depth), ' ') + row.name, width);
        for (std::size_t i = 0; row.isLight && i < columns_.size(); ++i) {
            line += "  " + padded(row.in[i] ? "x" : ".", characters(columns_[i]));
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out += line + '\n';
    }
    return out;
}

Picture LightMatrix::picture() const {
    constexpr double line = 26, names = 250, column = 120, margin = 16, mark = 14;
    double const width = names + column * static_cast<double>(columns_.size()) + margin;
    double const height = line * static_cast<double>(rows_.size() + 1) + 2 * margin;
    Picture picture{width, height, "Which light is in which layer", {}};
    auto const left = [&](std::size_t i) { return names + column * static_cast<double>(i); };
    auto const text = [&](double x, double y, std::string const& name, double widest, bool bold) {
        shape::Text shown{{x, y + line * 0.65}, name};
        shown.bold = bold;
        picture.add(shape::fitted(std::move(shown), widest));
    };
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        text(left(i), margin, columns_[i], column - 12, true);
    }
    double y = margin + line;
    for (Row const& row : rows_) {
        shape::Path rule;
        rule.stroke = {Ink::Grid, 1};
        rule.moveTo({margin, y});
        rule.lineTo({width - margin, y});
        picture.add(std::move(rule));
        double const indented = margin + 16 * row.depth;
        text(indented, y, row.name, names - indented - 12, !row.isLight);
        for (std::size_t i = 0; row.isLight && i < columns_.size(); ++i) {
            shape::Rectangle box{{left(i), y + (line - mark) / 2}, mark, mark, {}, {}, 3};
            if (row.in[i]) {
                box.fill = Ink::First;
            }
            box.outline = {row.in[i] ? Ink::First : Ink::Frame, 1};
            picture.add(std::move(box));
        }
        y += line;
    }
    return picture;
}

} // namespace app
