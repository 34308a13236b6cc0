#include "workbench/colors/swatch.h"

#include "host/sRGB.h"
#include "zsg/colors/ColorDB.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPixmap>

#include <algorithm>

namespace workbench {

namespace {

constexpr std::size_t mostDots = 8;

} // namespace

Swatch swatchOf(zsg::ColorDB* db, nyx::ColorId id) {
    Swatch swatch;
    zsg::ZColorExtEdit const* edit = db ? db->getColorParameters(id) : nullptr;
    if (!edit) {
        return swatch;
    }
    swatch.id = id;
    swatch.name = QString::fromStdString(edit->displayName());
    swatch.value = edit->color();
    swatch.isMulti = edit->hasFlag(zsg::ColorFlags::MultiColor);
    swatch.uses = db->totalSceneReferenceCount(id);
    if (!swatch.isMulti) {
        return swatch;
    }
    // Asking for another colour may replace the edit.
    nyx::ColorId const active = edit->activeSub();
    auto const subs = edit->subColors();
    std::vector<nyx::ColorId> const first(subs.begin(),
                                          subs.begin() + std::min(subs.size(), mostDots));
    for (nyx::ColorId const sub : first) {
        if (auto const* const other = db->getColorParameters(sub)) {
            swatch.others.push_back(other->color());
        }
    }
    if (auto const* const shown = db->getColorParameters(active)) {
        swatch.value = shown->color();
    }
    return swatch;
}

QColor screenColor(nyxColor_rgba const& value) {
    auto const [red, green, blue, alpha] = app::sRGBFromLinear(value);
    return {red, green, blue, alpha};
}

bool isOutOfRange(nyxColor_rgba const& value) {
    auto const shown = [](float component) { return component >= 0 && component <= 1; };
    return !(shown(value.r) && shown(value.g) && shown(value.b));
}

QString shownName(QString const& name) {
    return name.isEmpty() ? QCoreApplication::translate("Swatch", "unnamed") : name;
}

QString describe(Swatch const& swatch) {
    QString text = shownName(swatch.name) + ", " +
                   QString::fromStdString(app::hexColorWithAlpha(swatch.value));
    if (isOutOfRange(swatch.value)) {
        text += QCoreApplication::translate("Swatch", ", brighter than the screen");
    }
    if (swatch.isMulti) {
        text += QCoreApplication::translate("Swatch", ", multi-colour");
    }
    return text + ", " +
           (swatch.uses == 0 ? QCoreApplication::translate("Swatch", "not used")
                             : QCoreApplication::translate("Swatch", "used by %n places", nullptr,
                                                           int(swatch.uses)));
}

void paintSwatch(QPainter& painter, QRect const& rect, Swatch const& swatch) {
    if (rect.width() < 3 || rect.height() < 3) {
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QColor(0x80, 0x80, 0x80));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
    QRect const inside = rect.adjusted(1, 1, -1, -1);
    QColor const color = screenColor(swatch.value);
    if (color.alpha() != 255) {
        painter.fillRect(inside, Qt::white);
        painter.fillRect(inside, QBrush(QColor(0xb0, 0xb0, 0xb0), Qt::Dense4Pattern));
    }
    painter.fillRect(inside, color);
    // What is drawn on top has to be seen on every colour.
    QColor const ink = qGray(color.rgb()) > 140 ? QColor(0, 0, 0, 200) : QColor(255, 255, 255, 220);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isOutOfRange(swatch.value)) {
        painter.setPen(QPen(ink, 1));
        painter.drawLine(inside.topRight(), inside.bottomLeft());
    }
    if (swatch.isMulti && !swatch.others.empty()) {
        double const side = std::min(inside.height() / 4.0,
                                     inside.width() / (1.5 * double(swatch.others.size()) + 0.5));
        double x = inside.left() + side / 2;
        for (nyxColor_rgba const& other : swatch.others) {
            painter.setPen(QPen(ink, 1));
            painter.setBrush(screenColor({other.r, other.g, other.b, 1}));
            painter.drawEllipse(QRectF(x, inside.top() + side / 2, side, side));
            x += 1.5 * side;
        }
    }
    if (swatch.uses != 0) {
        int const height = std::max(2, inside.height() / 12);
        painter.fillRect(inside.left(), inside.bottom() - height + 1, inside.width(), height, ink);
    }
    painter.restore();
}

QIcon swatchIcon(Swatch const& swatch, int side) {
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paintSwatch(painter, pixmap.rect(), swatch);
    return pixmap;
}

} // namespace workbench
