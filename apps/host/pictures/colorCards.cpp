#include "host/pictures/colorCards.h"

#include "host/Arguments.h"
#include "host/Host.h"
#include "host/counted.h"
#include "host/pictures/swatch.h"
#include "host/printable.h"
#include "host/sRGB.h"
#include "zsg/colors/ColorDB.h"
#include "zsg/core/ISceneGraph.h"

#include <algorithm>
#include <cmath>

namespace app {

namespace {

constexpr double margin = 24;
constexpr double titleHeight = 40;
constexpr double nameSize = 13;

zsg::ColorDB& db(Host& host) { return *host.root().colorDB(); }

std::string shownName(std::string const& name) {
    return name.empty() ? "(unnamed)" : printable(name);
}

shape::Text text(shape::Point baseline, std::string words, Ink ink = Ink::Text) {
    shape::Text shown{baseline, std::move(words)};
    shown.ink = ink;
    return shown;
}

void addName(Picture& picture, shape::Point baseline, std::string const& name, double widest,
             bool bold = false) {
    shape::Text shown = text(baseline, shownName(name));
    shown.size = nameSize;
    shown.bold = bold;
    picture.add(shape::fitted(std::move(shown), widest));
}

/// "#rrggbb", and where that is not the whole of it a hint that there is more.
std::string value(nyxColor_rgba const& color) {
    auto const shown = [](float v) { return v >= 0 && v <= 1; };
    bool const whole = shown(color.r) && shown(color.g) && shown(color.b);
    return hexColorWithAlpha(color) + (whole ? "" : ", beyond sRGB");
}

Picture titled(std::string const& title, double width, double height) {
    Picture picture{width + 2 * margin, height + titleHeight + 2 * margin, title, {}};
    shape::Text shown = text({margin, margin + 18}, title);
    shown.size = 18;
    shown.bold = true;
    picture.add(shape::fitted(std::move(shown), width));
    return picture;
}

template <class Id>
std::vector<Id> kept(nyx::Span<Id> span) {
    return {span.begin(), span.end()}; // what is asked next may end the span
}

} // namespace

Picture paletteCard(Host& host) {
    constexpr double cellWidth = 216;
    constexpr double cellHeight = 68;
    constexpr double swatch = 52;
    constexpr double beside = swatch + 12;
    std::vector<nyx::ColorId> const colors = kept(db(host).colors());
    if (colors.empty()) {
        throw CommandError("the scene has no colours");
    }
    std::size_t const count = colors.size();
    // A sheet somewhat wider than high, however many there are.
    double const square = std::sqrt(1.4 * static_cast<double>(count) * cellHeight / cellWidth);
    auto const columns =
        std::min(count, std::max<std::size_t>(4, static_cast<std::size_t>(std::lround(square))));
    std::size_t const rows = (count + columns - 1) / columns;
    Picture picture =
        titled("Palette: " + counted(count, "colour", "colours"),
               cellWidth * static_cast<double>(columns), cellHeight * static_cast<double>(rows));
    for (std::size_t i = 0; i < count; ++i) {
        std::size_t const column = i % columns;
        std::size_t const row = i / columns;
        double const x = margin + cellWidth * static_cast<double>(column);
        double const y = margin + titleHeight + cellHeight * static_cast<double>(row);
        ZColorExt const color = db(host).colorFromId(colors[i]);
        addSwatch(picture, {x, y}, swatch, swatch, color.rgba());
        addName(picture, {x + beside, y + 15}, color.getColorName(), cellWidth - beside - 8, true);
        picture.add(text({x + beside, y + 32}, value(color.rgba())));
        unsigned const uses = db(host).totalSceneReferenceCount(colors[i]);
        picture.add(text({x + beside, y + 48},
                         uses == 0 ? "not used" : counted(uses, "use", "uses"), Ink::Faint));
    }
    return picture;
}

Picture multiColorCard(Host& host) {
    constexpr double nameWidth = 180;
    constexpr double cellWidth = 112;
    constexpr double cellHeight = 92;
    constexpr double swatch = 48;
    constexpr double ring = 4;
    constexpr std::size_t mostColumns = 8;
    std::vector<nyx::ColorId> const multis = kept(db(host).multiColors());
    if (multis.empty()) {
        throw CommandError("the scene has no multi-colours");
    }
    std::vector<ZColorExt> colors;
    std::size_t columns = 1;
    std::size_t rows = 0;
    for (nyx::ColorId const id : multis) {
        ZColorExt const& color = colors.emplace_back(db(host).colorFromId(id));
        auto const subs = static_cast<std::size_t>(color.nColors());
        columns = std::max(columns, std::min(subs, mostColumns));
        rows += std::max<std::size_t>(1, (subs + mostColumns - 1) / mostColumns);
    }
    double const width =
        nameWidth + cellWidth * static_cast<double>(std::max<std::size_t>(2, columns));
    Picture picture = titled(counted(multis.size(), "multi-colour", "multi-colours"), width,
                             cellHeight * static_cast<double>(rows));
    double y = margin + titleHeight;
    for (ZColorExt const& color : colors) {
        shape::Path rule;
        rule.stroke = {Ink::Grid, 1};
        rule.moveTo({margin, y});
        rule.lineTo({margin + width, y});
        picture.add(std::move(rule));
        addName(picture, {margin, y + 26}, color.getColorName(), nameWidth - 16, true);
        int const subs = color.nColors();
        picture.add(text({margin, y + 46},
                         counted(static_cast<std::size_t>(subs), "sub-colour", "sub-colours"),
                         Ink::Faint));
        for (int i = 0; i < subs; ++i) {
            auto const column = i % static_cast<int>(mostColumns);
            if (i > 0 && column == 0) {
                y += cellHeight;
            }
            double const x = margin + nameWidth + cellWidth * column;
            bool const active = i == color.activeIndex();
            if (active) {
                picture.add(shape::Rectangle{{x - ring, y + 12 - ring},
                                             swatch + 2 * ring,
                                             swatch + 2 * ring,
                                             {},
                                             {Ink::First, 2},
                                             ring});
            }
            addSwatch(picture, {x, y + 12}, swatch, swatch, color.subRgba(i));
            addName(picture, {x, y + 80}, color.getName(i), cellWidth - 8, active);
        }
        y += cellHeight;
    }
    return picture;
}

Picture colorwayBoard(Host& host) {
    constexpr double nameWidth = 170;
    constexpr double cellWidth = 160;
    constexpr double cellHeight = 76;
    constexpr double heading = 46;
    constexpr double swatchHeight = 40;
    constexpr double inset = 10;
    struct Column {
        std::string name;
        bool active = false;
        std::vector<zsg::MultiColorPair> pairs;
    };
    std::vector<Column> columns;
    for (nyx::ColorwayId const id : kept(db(host).colorways())) {
        zsg::ZColorwayEdit const* const edit = db(host).getColorwayParameters(id);
        if (edit && !edit->isDeleted()) {
            columns.push_back({edit->displayName(), edit->isActive(), edit->pairs()});
        }
    }
    std::vector<nyx::ColorId> const multis = kept(db(host).multiColors());
    if (columns.empty() || multis.empty()) {
        throw CommandError(columns.empty() ? "the scene has no colorways"
                                           : "the scene has no multi-colours");
    }
    double const width = nameWidth + cellWidth * static_cast<double>(columns.size());
    double const height = heading + cellHeight * static_cast<double>(multis.size());
    constexpr double top = margin + titleHeight;
    Picture picture = titled(counted(columns.size(), "colorway", "colorways") + ", " +
                                 counted(multis.size(), "multi-colour", "multi-colours"),
                             width, height);
    auto const left = [](std::size_t column) {
        return margin + nameWidth + cellWidth * static_cast<double>(column);
    };
    for (std::size_t row = 0; row < multis.size(); ++row) {
        double const y = top + heading + cellHeight * static_cast<double>(row);
        shape::Path rule;
        rule.stroke = {Ink::Grid, 1};
        rule.moveTo({margin, y});
        rule.lineTo({margin + width, y});
        picture.add(std::move(rule));
        addName(picture, {margin, y + 34}, db(host).colorFromId(multis[row]).getColorName(),
                nameWidth - 12, true);
        for (std::size_t i = 0; i < columns.size(); ++i) {
            double const x = left(i) + inset;
            auto const& pairs = columns[i].pairs;
            auto const pair =
                std::ranges::find(pairs, multis[row], &zsg::MultiColorPair::multiColor);
            if (pair == pairs.end()) {
                picture.add(text({x, y + 34}, "not covered", Ink::Faint));
            } else if (!host.renderer().colors().record(pair->subColor)) {
                picture.add(text({x, y + 34}, "no such colour", Ink::Faint));
            } else {
                ZColorExt const sub = db(host).colorFromId(pair->subColor);
                addSwatch(picture, {x, y + 8}, cellWidth - 2 * inset, swatchHeight, sub.rgba());
                addName(picture, {x, y + 66}, sub.getColorName(), cellWidth - 2 * inset);
            }
        }
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        double const x = left(i);
        addName(picture, {x + inset, top + 16}, columns[i].name, cellWidth - 2 * inset, true);
        if (columns[i].active) {
            picture.add(text({x + inset, top + 34}, "active", Ink::First));
            picture.add(
                shape::Rectangle{{x, top - 6}, cellWidth, height + 10, {}, {Ink::First, 2}, 6});
        }
    }
    return picture;
}

} // namespace app
