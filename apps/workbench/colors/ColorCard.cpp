#include "workbench/colors/ColorCard.h"

#include "host/sRGB.h"
#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"
#include "zsg/colors/ColorDB.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace workbench {

ColorCard::ColorCard(Scene& scene, QWidget* parent) : QWidget(parent), scene_(scene) {
    setObjectName("colourCard");
    setAccessibleName(tr("Colours of the scene"));
    connect(&scene, &Scene::changed, this, [this] {
        if (isVisible()) {
            read();
        }
    });
    connect(&scene, &Scene::rootEnding, this, [this] { ids_.clear(); });
}

void ColorCard::read() {
    ids_.clear();
    if (scene_.colorDB()) {
        auto const ids = scene_.colorDB()->colors();
        ids_.assign(ids.begin(), ids.end());
    }
    layOut();
    update();
}

QSize ColorCard::cell() const {
    int const line = fontMetrics().height();
    // The longest of the words that are the same everywhere; names may be cut.
    int const words = fontMetrics().horizontalAdvance(tr("used by %n places", nullptr, 88));
    return {words + 5 * line, 4 * line};
}

int ColorCard::columns() const { return std::max(1, width() / cell().width()); }

void ColorCard::layOut() {
    int const rows = (int(ids_.size()) + columns() - 1) / columns();
    setMinimumHeight(std::min(rows * cell().height(), QWIDGETSIZE_MAX));
    setAccessibleDescription(tr("%n colours", nullptr, int(ids_.size())));
}

void ColorCard::resizeEvent(QResizeEvent* /*event*/) { layOut(); }

void ColorCard::showEvent(QShowEvent* /*event*/) { read(); }

void ColorCard::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    QSize const size = cell();
    int const line = fontMetrics().height();
    int const first = event->rect().top() / size.height() * columns();
    int const last = (event->rect().bottom() / size.height() + 1) * columns();
    for (int i = first; i < std::min(last, int(ids_.size())); ++i) {
        Swatch swatch = swatchOf(scene_.colorDB(), ids_[std::size_t(i)]);
        QRect const place(QPoint(i % columns() * size.width(), i / columns() * size.height()),
                          size);
        QRect const square(place.topLeft() + QPoint(line / 2, line / 2), QSize(3, 3) * line);
        unsigned const uses = std::exchange(swatch.uses, 0); // said in words
        paintSwatch(painter, square, swatch);
        QRect words(square.right() + line / 2, square.top(), place.right() - square.right() - line,
                    line);
        QString const hex = QString::fromStdString(app::hexColorWithAlpha(swatch.value));
        QString const used =
            uses == 0 ? tr("not used") : tr("used by %n places", nullptr, int(uses));
        for (QString const& text : {shownName(swatch.name), hex, used}) {
            painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                             fontMetrics().elidedText(text, Qt::ElideRight, words.width()));
            words.translate(0, line);
        }
    }
}

} // namespace workbench
