#include "workbench/values/NumbersField.h"

#include "workbench/values/NumberSpin.h"
#include "workbench/values/parameterValue.h"

#include <QGridLayout>

#include <algorithm>
#include <iterator>

namespace workbench {

using zsg::Type;

namespace {

std::vector<double> numbersOf(zsg::Variant const& value) {
    if (auto const two = zsg::tryGet<nyxVector2f>(value)) {
        return {double(two->x), double(two->y)};
    }
    if (auto const three = zsg::tryGet<nyxVectorf>(value)) {
        return {double(three->x), double(three->y), double(three->z)};
    }
    if (auto const three = zsg::tryGet<nyxVector>(value)) {
        return {three->x, three->y, three->z};
    }
    if (auto const matrix = zsg::tryGet<nyxMatrix>(value)) {
        return {std::begin(matrix->m), std::end(matrix->m)};
    }
    return {};
}

std::size_t countOf(Type type) { return type == Type::Float2 ? 2 : type == Type::Matrix ? 16 : 3; }

} // namespace

NumbersField::NumbersField(Type type, QWidget* parent)
    : ValueField(parent), type_(type), numbers_(countOf(type)) {
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(fontMetrics().height() / 4);
    bool const isSingle = type == Type::Float2 || type == Type::Float3;
    int const columns = type == Type::Matrix ? 4 : static_cast<int>(numbers_.size());
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
        auto* const spin =
            new NumberSpin(isSingle ? NumberSpin::Kind::Single : NumberSpin::Kind::Double, this);
        spin->setButtonSymbols(QAbstractSpinBox::NoButtons);
        spin->setMinimumWidth(fontMetrics().horizontalAdvance("-0.000"));
        spin->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        int const at = static_cast<int>(i);
        spin->setAccessibleName(type == Type::Matrix
                                    ? tr("Row %1, column %2").arg(at / 4 + 1).arg(at % 4 + 1)
                                    : QString(QChar('X' + at)));
        layout->addWidget(spin, at / columns, at % columns);
        connect(spin, &QDoubleSpinBox::valueChanged, this, [this, i](double number) {
            numbers_[i] = number;
            touched_.insert(i);
            emit stepped();
        });
        connect(spin, &QAbstractSpinBox::editingFinished, this, &ValueField::finished);
        spins_.push_back(spin);
    }
    setFocusProxy(spins_.front());
}

void NumbersField::showValue(zsg::Variant const& value) { showNumbers(value, false); }

void NumbersField::showMixed(zsg::Variant const& one) { showNumbers(one, true); }

void NumbersField::showNumbers(zsg::Variant const& value, bool mixed) {
    auto const numbers = numbersOf(value);
    touched_.clear();
    for (std::size_t i = 0; i < spins_.size() && i < numbers.size(); ++i) {
        numbers_[i] = numbers[i];
        spins_[i]->showNumber(numbers[i], mixed);
    }
}

std::unique_ptr<zsg::Variant> NumbersField::wanted() const { return valueOf(numbers_); }

std::unique_ptr<zsg::Variant> NumbersField::wantedFor(zsg::Variant const& before) const {
    auto numbers = numbersOf(before);
    if (numbers.size() != numbers_.size()) {
        return nullptr;
    }
    for (std::size_t const i : touched_) {
        numbers[i] = numbers_[i];
    }
    return valueOf(numbers);
}

std::unique_ptr<zsg::Variant> NumbersField::valueOf(std::vector<double> const& numbers) const {
    auto const single = [&numbers](std::size_t i) { return static_cast<float>(numbers[i]); };
    switch (type_) {
    case Type::Float2:
        return makeValue(nyxVector2f{single(0), single(1)});
    case Type::Float3:
        return makeValue(nyxVectorf{single(0), single(1), single(2)});
    case Type::Double3:
        return makeValue(nyxVector{numbers[0], numbers[1], numbers[2]});
    default: {
        nyxMatrix matrix{};
        std::ranges::copy(numbers, std::begin(matrix.m));
        return makeValue(matrix);
    }
    }
}

} // namespace workbench
