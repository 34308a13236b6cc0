#include "workbench/colors/ColorDelegate.h"

#include "workbench/colors/swatch.h"
#include "workbench/scene/Scene.h"

#include <QApplication>
#include <QFont>
#include <QPainter>

#include <algorithm>

namespace workbench {

ColorDelegate::ColorDelegate(Scene& scene, Form form,
                             std::function<nyx::ColorId(QModelIndex const&)> idOf, QObject* parent)
    : NameDelegate(parent), scene_(scene), form_(form), idOf_(std::move(idOf)) {}

ColorDelegate::Areas ColorDelegate::areas(QStyleOptionViewItem const& option) const {
    int const line = option.fontMetrics.height();
    int const gap = line / 4;
    QRect const all = option.rect.adjusted(gap / 2, gap / 2, -gap / 2, -gap / 2);
    if (form_ == Form::Tile) {
        QRect const text(all.left(), all.bottom() - line + 1, all.width(), line);
        return {all.adjusted(gap, gap, -gap, -line - gap), text};
    }
    if (form_ == Form::Row) {
        QRect const swatch(all.left() + gap, all.top(), 2 * line, all.height());
        return {swatch, all.adjusted(3 * gap + 2 * line, 0, 0, 0)};
    }
    return {all, all.adjusted(2 * gap, 0, -2 * gap, 0)};
}

void ColorDelegate::paint(QPainter* painter, QStyleOptionViewItem const& option,
                          QModelIndex const& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    QString const text = std::exchange(item.text, QString());
    QStyle const* const style = item.widget ? item.widget->style() : QApplication::style();
    if ((item.state & QStyle::State_Selected) != 0) {
        // All of it: styles mark the ground of the text only, and here is none for them.
        painter->fillRect(item.rect, item.palette.brush(QPalette::Normal, QPalette::Highlight));
    }
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
    nyx::ColorId const id = idOf_(index);
    if (!id.isValid()) {
        painter->setPen(item.palette.color(QPalette::Disabled, QPalette::Text));
        painter->drawText(item.rect, Qt::AlignCenter, text);
        return;
    }
    Swatch const swatch = swatchOf(scene_.colorDB(), id);
    auto const [swatchArea, textArea] = areas(item);
    paintSwatch(*painter, swatchArea, swatch);
    painter->save();
    if (isMarked_ && isMarked_(index)) {
        // Two lines, so that one of them is seen on every ground.
        painter->setPen(QPen(item.palette.color(QPalette::Text), 2));
        painter->drawRect(swatchArea.adjusted(-1, -1, 1, 1));
        painter->setPen(QPen(item.palette.color(QPalette::Base), 1));
        painter->drawRect(swatchArea.adjusted(1, 1, -2, -2));
    }
    Qt::Alignment alignment = Qt::AlignVCenter | Qt::AlignLeft;
    QPalette::ColorRole role = QPalette::Text;
    if ((item.state & QStyle::State_Selected) != 0) {
        role = QPalette::HighlightedText;
    }
    QColor ink = item.palette.color(
        (item.state & QStyle::State_Enabled) != 0 ? QPalette::Normal : QPalette::Disabled, role);
    if (form_ == Form::Tile) {
        alignment = Qt::AlignCenter;
    } else if (form_ == Form::Cell) {
        alignment = Qt::AlignCenter;
        // Readable on the swatch itself, whatever the palette.
        QColor const ground = screenColor(swatch.value);
        ink = qGray(ground.rgb()) > 140 || ground.alpha() < 128 ? Qt::black : Qt::white;
    }
    QFont font = item.font;
    font.setItalic(font.italic() || swatch.name.isEmpty());
    painter->setFont(font);
    painter->setPen(ink);
    painter->drawText(textArea, int(alignment),
                      QFontMetrics(font).elidedText(text, Qt::ElideRight, textArea.width()));
    painter->restore();
}

QSize ColorDelegate::sizeHint(QStyleOptionViewItem const& option, QModelIndex const&) const {
    int const line = option.fontMetrics.height();
    return form_ == Form::Tile ? QSize(6 * line, 5 * line) : QSize(10 * line, line * 8 / 5);
}

void ColorDelegate::updateEditorGeometry(QWidget* editor, QStyleOptionViewItem const& option,
                                         QModelIndex const&) const {
    QRect const text = areas(option).text;
    int const grow = std::max(0, editor->sizeHint().height() - text.height()) / 2;
    editor->setGeometry(text.adjusted(0, -grow, 0, grow));
}

} // namespace workbench
