#include "workbench/values/ParameterRow.h"

#include "workbench/scene/PointerDrag.h"
#include "workbench/scene/Scene.h"
#include "workbench/values/FieldBinding.h"
#include "workbench/values/NumberField.h"
#include "workbench/values/valueText.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>

#include <utility>

namespace workbench {

namespace {

QString limitsOf(zsg::Parameter const& parameter) {
    float low = 0;
    float high = 0;
    int lowest = 0;
    int highest = 0;
    if (parameter.limits(lowest, highest)) {
        return ParameterRow::tr("%L1 to %L2; other numbers can be typed").arg(lowest).arg(highest);
    }
    if (parameter.limits(low, high)) {
        return ParameterRow::tr("%L1 to %L2; other numbers can be typed")
            .arg(double(low))
            .arg(double(high));
    }
    return {};
}

QString toolTipOf(zsg::Parameter const& parameter) {
    QStringList lines{parameter.toolTip().toHtmlEscaped(), parameter.name().toHtmlEscaped(),
                      limitsOf(parameter)};
    lines.removeAll(QString());
    return "<p>" + lines.join("<br>") + "</p>";
}

} // namespace

ParameterRow::ParameterRow(Scene& scene, ParameterItems items, ParameterWriter writer,
                           QGridLayout& layout, QWidget& parent)
    : QObject(&parent),
      scene_(scene),
      parameter_(items.front().parameter),
      label_(new QLabel(parameter_.displayName(), &parent)) {
    label_->setTextFormat(Qt::PlainText);
    label_->setToolTip(toolTipOf(parameter_));
    int const row = layout.rowCount();
    if (parameter_.isPure()) { // it only heads those below it
        QFont font = label_->font();
        font.setBold(true);
        label_->setFont(font);
        layout.addWidget(label_, row, 0, 1, 2);
        return;
    }
    layout.addWidget(label_, row, 0);
    if (!valueOf(parameter_)) {
        auto* const none = new QLabel(tr("no value to edit"), &parent);
        none->setEnabled(false);
        layout.addWidget(none, row, 1);
        return;
    }
    makeField(scene, std::move(items), std::move(writer), layout, parent);
}

ParameterRow::~ParameterRow() = default;

void ParameterRow::makeField(Scene& scene, ParameterItems items, ParameterWriter writer,
                             QGridLayout& layout, QWidget& parent) {
    field_ = workbench::makeField(parameter_, &parent);
    field_->setObjectName(parameter_.name());
    field_->setAccessibleName(parameter_.displayName());
    if (QWidget* const inner = field_->focusProxy()) {
        inner->setAccessibleName(parameter_.displayName());
    }
    for (QWidget* const part : field_->findChildren<QWidget*>()) { // a slider beside the number
        if ((part->focusPolicy() & Qt::TabFocus) != 0 && part->accessibleName().isEmpty()) {
            part->setAccessibleName(parameter_.displayName());
        }
    }
    label_->setBuddy(field_);
    layout.addWidget(field_, layout.rowCount() - 1, 1);
    binding_ = new FieldBinding(scene, *field_, std::move(items), std::move(writer));
    for (QWidget* const widget : {static_cast<QWidget*>(label_), static_cast<QWidget*>(field_)}) {
        widget->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(widget, &QWidget::customContextMenuRequested, this,
                [this, widget](QPoint const& at) { openMenu(widget->mapToGlobal(at)); });
    }
    makeLabelDrag();
    refresh();
}

/// A number can be dragged by its name, too.
void ParameterRow::makeLabelDrag() {
    auto* const number = qobject_cast<NumberField*>(field_);
    if (!number) {
        return;
    }
    label_->setCursor(Qt::SizeHorCursor);
    auto pressedAt = std::make_shared<double>(0);
    auto* const drag = new PointerDrag(*label_, [this, pressedAt](QPointF const& at) {
        *pressedAt = at.x();
        return field_->isEnabled();
    });
    connect(drag, &PointerDrag::pressed, number, &NumberField::beginDrag);
    connect(drag, &PointerDrag::moved, number, [this, number, pressedAt](QPointF const& at) {
        double const whole = 20.0 * label_->fontMetrics().height();
        number->dragBy((at.x() - *pressedAt) / whole);
    });
    connect(drag, &PointerDrag::released, number, [number] { number->endDrag(true); });
    connect(drag, &PointerDrag::cancelled, number, [number] { number->endDrag(false); });
}

void ParameterRow::refresh() {
    if (binding_) {
        field_->setEnabled(parameter_.isEnabled());
        binding_->refresh();
    }
}

void ParameterRow::takeFocus() {
    if (field_) {
        field_->setFocus(Qt::OtherFocusReason);
    }
}

void ParameterRow::openMenu(QPoint const& at) {
    QMenu menu;
    QAction* const reset = menu.addAction(tr("&Reset"), binding_, &FieldBinding::reset);
    reset->setEnabled(parameter_.isEnabled() && binding_->isChanged());
    menu.addSeparator();
    menu.addAction(tr("&Copy Value"), this, &ParameterRow::copyValue);
    QAction* const paste = menu.addAction(tr("&Paste Value"), this, &ParameterRow::pasteValue);
    paste->setEnabled(parameter_.isEnabled());
    menu.addAction(tr("Copy &Name"), this,
                   [this] { QApplication::clipboard()->setText(parameter_.name()); });
    menu.exec(at);
}

void ParameterRow::copyValue() const {
    QApplication::clipboard()->setText(valueText(*valueOf(parameter_)));
}

void ParameterRow::pasteValue() {
    std::shared_ptr<zsg::Variant const> const value =
        valueFromText(QApplication::clipboard()->text(), *valueOf(parameter_));
    if (value) {
        binding_->writeAll(value);
    } else {
        scene_.say(tr("The clipboard holds no value for %1.").arg(parameter_.displayName()));
    }
}

} // namespace workbench
