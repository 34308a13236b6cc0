#include "zsg/values/Parameter.h"

#include "values/hintParsing.h"
#include "zsg/values/ParameterData.h"
#include "zsg/values/Variant.h"

#include "zcore/ZColorExtAlpha.h"

#include <limits>
#include <utility>

namespace zsg {
namespace {

/// Toward zero. What does not fit an int, as hints may well ask for, becomes the nearest one.
int truncated(float value) {
    constexpr float beyond = 2147483648.0f;
    if (value >= beyond) {
        return std::numeric_limits<int>::max();
    }
    if (value <= -beyond) {
        return std::numeric_limits<int>::min();
    }
    return value == value ? static_cast<int>(value) : 0;
}

} // namespace

Parameter::Builder::Builder(QString newName, QString newDisplayName)
    : name(std::move(newName)), displayName(std::move(newDisplayName)) {}

Parameter::Builder& Parameter::Builder::setType(Type newType) {
    type = newType;
    return *this;
}

Parameter::Builder& Parameter::Builder::setValue(Variant* holder) {
    value = holder;
    if (holder) {
        type = holder->type();
    } else {
        flags = Invalid;
    }
    return *this;
}

Parameter::Builder& Parameter::Builder::setHint(char const* text) {
    hint = text;
    return *this;
}

Parameter::Builder& Parameter::Builder::setToolTip(QString text) {
    toolTip = std::move(text);
    return *this;
}

Parameter::Builder& Parameter::Builder::setQuantity(Quantity kind) {
    quantity = kind;
    return *this;
}

Parameter::Builder& Parameter::Builder::setFlags(Flags newFlags) {
    flags = newFlags;
    return *this;
}

Parameter::Builder& Parameter::Builder::setEnabled(bool on) {
    enabled = on;
    return *this;
}

Parameter::Builder& Parameter::Builder::setHasLimits(bool on) {
    hasLimits = on;
    return *this;
}

Parameter::Builder& Parameter::Builder::setMinimum(float low) {
    minimum = low;
    return *this;
}

Parameter::Builder& Parameter::Builder::setMaximum(float high) {
    maximum = high;
    return *this;
}

Parameter::Parameter() = default;

Parameter::Parameter(Builder const& builder) : d_(new ParameterData) {
    ParameterData& d = *d_;
    d.value = builder.value;
    d.name = builder.name;
    d.displayName = builder.displayName;
    d.toolTip = builder.toolTip;
    d.hint = builder.hint;
    d.type = builder.type;
    d.flags = builder.flags;
    if (builder.enabled) {
        d.flags |= Enabled;
    }
    d.quantity = builder.quantity;
    d.hasLimits = builder.hasLimits;
    d.minimum = builder.minimum;
    d.maximum = builder.maximum;
    if (!d.hasLimits) {
        if (auto const limits = hintLimits(d.hint)) {
            d.hasLimits = true;
            d.minimum = limits->low;
            d.maximum = limits->high;
        }
    }

    // The order matters: each step may rest on a flag that an earlier one added.
    if (d.flags.testFlag(Pure)) {
        d.flags |= Bit9;
    }
    if (d.type > Type::ShaderBase) {
        d.flags |= Pure | Bit9;
    }
    if (d.flags.testFlag(Bit9)) {
        d.flags |= Bit11;
    }
    if (!d.flags.testFlag(Pure) && !d.value) {
        // A builder that was given a null holder stays Invalid although it gets one here.
        d.value = makeVariant(d.type);
        if (!d.value) {
            d.flags |= Invalid;
        }
    }
    if (!d.flags.testFlag(Bit9)) {
        d.flags &= ~Flags(Bit12);
    }
}

Parameter::Parameter(QSharedPointer<ParameterData> data) : d_(std::move(data)) {}

Parameter::Parameter(Parameter const& other) = default;

Parameter& Parameter::operator=(Parameter const& other) = default;

Parameter::~Parameter() = default;

QString Parameter::name() const { return d_ ? d_->name : QString(); }

QString Parameter::displayName() const { return d_->displayName; }

QString Parameter::toolTip() const { return d_->toolTip; }

Type Parameter::type() const { return d_->type; }

bool Parameter::hasType(Type type) const { return d_->type == type; }

bool Parameter::isColorType() const { return hasType(Type::Color) || hasType(Type::ColorAlpha); }

Parameter::Flags Parameter::flags() const { return d_->flags; }

bool Parameter::hasFlag(Flag flag) const { return d_->flags.testFlag(flag); }

bool Parameter::hasFlags(Flags flags) const { return (d_->flags & flags) == flags; }

bool Parameter::containsFlags(Flags flags) const { return d_->flags.testAnyFlags(flags); }

bool Parameter::isEnabled() const { return hasFlag(Enabled); }

bool Parameter::isPure() const { return hasFlag(Pure); }

bool Parameter::isValid() const { return d_ && !hasFlag(Invalid); }

bool Parameter::isNull() const { return !isValid(); }

Quantity Parameter::quantity() const { return d_->quantity; }

void Parameter::setQuantity(Quantity quantity) { d_->quantity = quantity; }

QVariant Parameter::metaData() const { return d_->metaData; }

void Parameter::setMetaData(QVariant const& metaData) { d_->metaData = metaData; }

bool Parameter::limits(int& low, int& high) const {
    if (!d_->hasLimits || !hasType(Type::Integer)) {
        return false;
    }
    low = truncated(d_->minimum);
    high = truncated(d_->maximum);
    return true;
}

bool Parameter::limits(float& low, float& high) const {
    if (!d_->hasLimits || !hasType(Type::Float)) {
        return false;
    }
    low = d_->minimum;
    high = d_->maximum;
    return true;
}

bool Parameter::sliderRange(float& low, float& high) const {
    if (!isValid() || !hasType(Type::Float)) {
        return false;
    }
    auto const range = hintSliderRange(d_->hint);
    if (range) {
        low = range->low;
        high = range->high;
    }
    return range.has_value();
}

bool Parameter::useKelvin() const { return isValid() && hintKelvin(d_->hint); }

ZColorExt Parameter::getColor() const {
    if (auto const color = value<ZColorExt>()) {
        return *color;
    }
    if (auto const color = value<ZColorExtAlpha>()) {
        return *color;
    }
    return {};
}

bool Parameter::setColor(ZColorExt color) {
    if (holds(Type::Color)) {
        return setp(&color);
    }
    nyxColor const active = color.getActive();
    return setValue(ZColorExtAlpha(active));
}

bool Parameter::holds(Type type) const { return d_ && d_->value && d_->value->type() == type; }

void Parameter::getp(void* out) const { d_->value->get(out); }

bool Parameter::setp(void const* in) {
    if (!d_->value->set(in)) {
        return false;
    }
    d_->modified = true;
    return true;
}

} // namespace zsg
