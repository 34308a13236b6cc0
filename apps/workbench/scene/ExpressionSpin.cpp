#include "workbench/scene/ExpressionSpin.h"

#include "workbench/scene/expression.h"

#include <QCoreApplication>
#include <QStatusTipEvent>
#include <QWheelEvent>

#include <algorithm>

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

double ExpressionSpin::valueFromText(QString const& text) const {
    return evaluate(bare(text), locale()).value_or(value());
}

QValidator::State ExpressionSpin::validate(QString& text, int& /*at*/) const {
    QString const typed = bare(text);
    auto const number = evaluate(typed, locale());
    if (number && *number >= minimum() && *number <= maximum()) {
        return QValidator::Acceptable;
    }
    return std::ranges::all_of(typed, [this](QChar c) { return isOfExpression(c, locale()); })
               ? QValidator::Intermediate // a sign, a parenthesis that is open
               : QValidator::Invalid;
}

void ExpressionSpin::fixup(QString& text) const {
    QString const typed = bare(text);
    auto const number = evaluate(typed, locale());
    QStatusTipEvent hint(typed.isEmpty() ? QString()
                         : number
                             ? tr("%1 is not from %2 to %3.")
                                   .arg(typed, textFromValue(minimum()), textFromValue(maximum()))
                             : tr("%1 is no number and no calculation.").arg(typed));
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
