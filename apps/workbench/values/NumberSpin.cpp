#include "workbench/values/NumberSpin.h"

#include "workbench/scene/expression.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <charconv>
#include <cmath>
#include <limits>

namespace workbench {

namespace {

constexpr double farthest = 1e30; // the least number stands for "mixed"

/// The shortest text that is read as the same number, in the notation of files; with an exponent
/// only where nobody would count the digits.
template <class T>
std::string shortest(T number) {
    char text[64];
    T const size = std::abs(number);
    bool const isPlain = size == 0 || (size >= T(1e-5) && size < T(1e12));
    auto const format = isPlain ? std::chars_format::fixed : std::chars_format::general;
    auto const end = std::to_chars(std::begin(text), std::end(text), number, format).ptr;
    return {std::begin(text), end};
}

} // namespace

NumberSpin::NumberSpin(Kind kind, QWidget* parent) : ExpressionSpin(parent), kind_(kind) {
    if (kind == Kind::Whole) {
        setDecimals(0);
        setRange(double(std::numeric_limits<int>::min()) - 1,
                 double(std::numeric_limits<int>::max()));
    } else {
        setDecimals(std::numeric_limits<double>::max_digits10 + 8);
        setRange(-farthest, farthest);
        setSingleStep(0.1);
    }
    setAccelerated(true);
    connect(this, &NumberSpin::editingFinished, this, [this] { lineEdit()->setModified(false); });
}

void NumberSpin::showNumber(double number, bool mixed) {
    if (hasFocus() && lineEdit()->isModified()) {
        return; // somebody is typing, and says when it is done
    }
    QSignalBlocker const quiet(this);
    first_ = number;
    setSpecialValueText(mixed ? tr("mixed") : QString());
    setValue(mixed ? minimum() : number);
}

QString NumberSpin::textFromValue(double number) const {
    std::string const text =
        kind_ == Kind::Single ? shortest(static_cast<float>(number)) : shortest(number);
    QString shown = QString::fromStdString(text);
    if (shown.startsWith('-')) {
        shown.replace(0, 1, locale().negativeSign());
    }
    return shown.replace('.', locale().decimalPoint());
}

double NumberSpin::valueFromText(QString const& text) const { return typed(text).value_or(first_); }

QValidator::State NumberSpin::validate(QString& text, int& at) const {
    if (text == specialValueText()) {
        return QValidator::Acceptable;
    }
    auto const number = evaluate(bare(text), locale());
    return number && *number == minimum() ? QValidator::Intermediate // it stands for "mixed"
                                          : ExpressionSpin::validate(text, at);
}

void NumberSpin::stepBy(int steps) {
    if (!specialValueText().isEmpty() && value() == minimum()) {
        setValue(first_ + steps * singleStep());
    } else {
        ExpressionSpin::stepBy(steps);
    }
}

} // namespace workbench
