#include "workbench/scene/ExpressionSpin.h"

#include "workbench/scene/expression.h"

#include <QCoreApplication>
#include <QStatusTipEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace workbench {

ExpressionSpin::ExpressionSpin(QWidget* parent) : QDoubleSpinBox(parent) {
    setKeyboardTracking(false); // one change for a number, not one for every digit
    setFocusPolicy(Qt::StrongFocus);
}

QString ExpressionSpin::bare(QString text) const {
    if (!suffix().isEmpty() && text.endsWith(suffix())) {
        text.chop(suffix().size());
    }
    return text.trimmed();
}

std::optional<double> ExpressionSpin::typed(QString const& text) const {
    std::optional<double> const number = evaluate(bare(text), locale());
    // QDoubleSpinBox rounds what is set, not what is typed.
    return number && decimals() == 0 ? std::round(*number) : number;
}

double ExpressionSpin::valueFromText(QString const& text) const {
    return typed(text).value_or(value());
}

QValidator::State ExpressionSpin::validate(QString& text, int& /*at*/) const {
    QString const shown = bare(text);
    auto const number = evaluate(shown, locale());
    if (number && *number >= minimum() && *number <= maximum()) {
        return QValidator::Acceptable;
    }
    return std::ranges::all_of(shown, [this](QChar c) { return isOfExpression(c, locale()); })
               ? QValidator::Intermediate // a sign, a parenthesis that is open
               : QValidator::Invalid;
}

void ExpressionSpin::fixup(QString& text) const {
    QString const shown = bare(text);
    auto const number = evaluate(shown, locale());
    QStatusTipEvent hint(shown.isEmpty() ? QString()
                         : number
                             ? tr("%1 is not from %2 to %3.")
                                   .arg(shown, textFromValue(minimum()), textFromValue(maximum()))
                             : tr("%1 is no number and no calculation.").arg(shown));
    QCoreApplication::sendEvent(window(), &hint);
    QDoubleSpinBox::fixup(text);
}

void ExpressionSpin::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QDoubleSpinBox::wheelEvent(event);
    } else {
        event->ignore(); // scrolling past a number must not change it
    }
}

} // namespace workbench
