#include "workbench/values/NumberSpin.h"

#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

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

NumberSpin::NumberSpin(Kind kind, QWidget* parent) : QDoubleSpinBox(parent), kind_(kind) {
    if (kind == Kind::Whole) {
        setDecimals(0);
        setRange(double(std::numeric_limits<int>::min()) - 1,
                 double(std::numeric_limits<int>::max()));
    } else {
        setDecimals(std::numeric_limits<double>::max_digits10 + 8);
        setRange(-farthest, farthest);
        setSingleStep(0.1);
    }
    setKeyboardTracking(false);
    setFocusPolicy(Qt::StrongFocus);
    setAccelerated(true);
}

void NumberSpin::showNumber(double number, bool mixed) {
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

QString NumberSpin::bare(QString text) const {
    if (!suffix().isEmpty() && text.endsWith(suffix())) {
        text.chop(suffix().size());
    }
    return text.trimmed();
}

double NumberSpin::valueFromText(QString const& text) const {
    QString const number = bare(text);
    bool ok = false;
    double value = locale().toDouble(number, &ok);
    if (!ok) {
        value = number.toDouble(&ok); // as in files
    }
    return ok ? value : first_;
}

QValidator::State NumberSpin::validate(QString& text, int& /*at*/) const {
    QString const number = bare(text);
    bool isNumber = false;
    double value = locale().toDouble(number, &isNumber);
    if (!isNumber) {
        value = number.toDouble(&isNumber);
    }
    if (text == specialValueText()) {
        return QValidator::Acceptable;
    }
    if (isNumber && value > minimum() && value <= maximum()) {
        return QValidator::Acceptable;
    }
    // Not yet a number: a sign, an exponent that has begun.
    for (QChar const c : number) {
        if (!c.isDigit() && !QString("+-eE.,").contains(c) && c != locale().decimalPoint() &&
            c != locale().negativeSign()) {
            return QValidator::Invalid;
        }
    }
    return QValidator::Intermediate;
}

void NumberSpin::stepBy(int steps) {
    if (!specialValueText().isEmpty() && value() == minimum()) {
        setValue(first_ + steps * singleStep());
    } else {
        QDoubleSpinBox::stepBy(steps);
    }
}

void NumberSpin::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QDoubleSpinBox::wheelEvent(event);
    } else {
        event->ignore(); // scrolling past a number must not change it
    }
}

} // namespace workbench
