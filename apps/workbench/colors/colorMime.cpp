#include "workbench/colors/colorMime.h"

#include "host/sRGB.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorDB.h"

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>

namespace workbench {

namespace {

QJsonObject toJson(ZColor const& color) {
    nyxColor_rgba const& c = color.rgba();
    return {{"name", QString::fromStdString(color.name())},
            {"linear", QJsonArray{double(c.r), double(c.g), double(c.b), double(c.a)}}};
}

ZColor colorOf(QJsonObject const& json) {
    QJsonArray const linear = json["linear"].toArray();
    auto const part = [&](int i, double none) { return float(linear[i].toDouble(none)); };
    return {part(0, 0), part(1, 0), part(2, 0), part(3, 1), json["name"].toString().toStdString()};
}

ZColorExt valueOf(QJsonObject const& json) {
    QJsonArray const elements = json["elements"].toArray();
    if (elements.isEmpty()) {
        return ZColorExt(colorOf(json));
    }
    ZColorExt value;
    value.setMultiColor(true);
    value.setColorName(json["name"].toString().toStdString());
    std::vector<ZColorExt::ZColorWithId> colors;
    for (auto const& element : elements) {
        colors.emplace_back(colorOf(element.toObject()), nyx::ColorId());
    }
    value.setColors(colors);
    value.setActiveIndex(json["active"].toInt());
    return value;
}

} // namespace

char const* colorMimeType() { return "application/x-zscenegraph-colors+json"; }

std::unique_ptr<QMimeData> makeColorMime(Scene const& scene, std::vector<nyx::ColorId> const& ids,
                                         nyx::ColorId multi) {
    auto data = std::make_unique<QMimeData>();
    zsg::ColorDB* const db = scene.colorDB();
    QJsonArray list;
    QString text;
    for (nyx::ColorId const id : ids) {
        if (!db || !db->getColorParameters(id)) {
            continue;
        }
        ZColorExt const value = db->colorFromId(id);
        QJsonObject json = toJson(ZColor(value.rgba(), value.getColorName()));
        json["id"] = double(id.toUint());
        if (value.isMultiColor()) {
            QJsonArray elements;
            for (int i = 0; i < value.nColors(); ++i) {
                elements += toJson(value.getColor(i));
            }
            json["elements"] = elements;
            json["active"] = value.activeIndex();
        }
        if (list.isEmpty()) {
            data->setColorData(screenColor(value.rgba()));
        }
        list += json;
        text += (text.isEmpty() ? "" : "\n") +
                shownName(QString::fromStdString(value.getColorName())) + ' ' +
                QString::fromStdString(app::hexColorWithAlpha(value.rgba()));
    }
    QJsonObject const whole{
        {"scene", scene.sceneId().toString()}, {"multi", double(multi.toUint())}, {"colors", list}};
    data->setData(colorMimeType(), QJsonDocument(whole).toJson(QJsonDocument::Compact));
    data->setText(text);
    return data;
}

ColorMime readColorMime(Scene const& scene, QMimeData const& data) {
    ColorMime result;
    if (data.hasFormat(colorMimeType())) {
        QJsonObject const whole = QJsonDocument::fromJson(data.data(colorMimeType())).object();
        bool const isOurs = whole["scene"].toString() == scene.sceneId().toString();
        for (auto const& entry : whole["colors"].toArray()) {
            QJsonObject const json = entry.toObject();
            result.values.push_back(valueOf(json));
            nyx::ColorId const id(static_cast<std::uint32_t>(json["id"].toDouble()));
            if (isOurs && scene.colorDB() && scene.colorDB()->getColorParameters(id)) {
                result.ids.push_back(id);
            }
        }
        if (isOurs) {
            result.multi = nyx::ColorId(static_cast<std::uint32_t>(
                whole["multi"].toDouble(double(nyx::ColorId().toUint()))));
        }
    } else if (data.hasColor()) {
        auto const color = data.colorData().value<QColor>();
        result.values.emplace_back(ZColor(app::linearFromSRGB(
            std::array<std::uint8_t, 4>{std::uint8_t(color.red()), std::uint8_t(color.green()),
                                        std::uint8_t(color.blue()), std::uint8_t(color.alpha())})));
    }
    return result;
}

} // namespace workbench
