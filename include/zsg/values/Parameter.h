#pragma once

#include "zsg/Export.h"
#include "zsg/values/Quantity.h"
#include "zsg/values/Type.h"

#include "zcore/ZColorExt.h"

#include <QFlags>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

#include <iosfwd>
#include <optional>

namespace zsg {

class ParameterData;
class Variant;

/// A named, typed setting for the user: texts, a value, limits, a unit kind and flags. A handle:
/// copies share one ParameterData and see each other's changes. One thread.
///
/// A default-constructed parameter is null. isValid, isNull, sliderRange, useKelvin, value and
/// setValue may be asked of a null parameter; everything else on one is a programming error.
class ZSG_EXPORT Parameter {
public:
    enum Flag : quint32 {
        NoFlags = 0,
        Enabled = 0x10,
        Bit9 = 0x200,    ///< implied by Pure and by the shader types above ShaderBase
        Pure = 0x400,    ///< has no value of its own, no holder is made
        Bit11 = 0x800,   ///< implied by Bit9
        Bit12 = 0x1000,  ///< cleared on construction unless Bit9 is set
        Invalid = 0x4000 ///< no holder could be made, or the builder was given a null holder
    };
    Q_DECLARE_FLAGS(Flags, Flag)

    /// The number of the highest flag bit in use, here and in applications.
    static constexpr int HighestFlagBit = 21;

    /// What a parameter is made from: a plain record. It does not own `value`; the parameter built
    /// from it does. So build one parameter from a builder that holds a value, and only one.
    struct ZSG_EXPORT Builder {
        Type type = Type::Null;
        /// Zero-terminated pieces such as "-range,0,100-\n"; must outlive the parameter. May be
        /// null.
        char const* hint = nullptr;
        Quantity quantity = Quantity::None;
        Flags flags = NoFlags;
        bool enabled = true; ///< adds the flag Enabled
        QString name;        ///< internal identifier
        QString displayName;
        QString toolTip;
        Variant* value = nullptr; ///< null: a holder of `type` with its default value is made
        bool hasLimits = false;   ///< false: the hint's limits are used, if it has any
        float minimum = 0;
        float maximum = 0;

        Builder(QString name, QString displayName);
        Builder& setType(Type newType);
        /// Also takes the holder's type. Null instead replaces all flags by Invalid.
        Builder& setValue(Variant* holder);
        Builder& setHint(char const* text);
        Builder& setToolTip(QString text);
        Builder& setQuantity(Quantity kind);
        Builder& setFlags(Flags newFlags);
        Builder& setEnabled(bool on);
        Builder& setHasLimits(bool on);
        Builder& setMinimum(float low);
        Builder& setMaximum(float high);
    };

    Parameter();
    /// Takes ownership of the builder's value holder.
    Parameter(Builder const& builder);
    explicit Parameter(QSharedPointer<ParameterData> data);
    Parameter(Parameter const& other);
    Parameter& operator=(Parameter const& other);
    ~Parameter();

    [[nodiscard]] QString name() const;
    [[nodiscard]] QString displayName() const;
    [[nodiscard]] QString toolTip() const;

    [[nodiscard]] Type type() const;
    [[nodiscard]] bool hasType(Type type) const;
    /// Color or ColorAlpha.
    [[nodiscard]] bool isColorType() const;

    [[nodiscard]] Flags flags() const;
    /// All bits of `flag` are set; for NoFlags, that no flag is.
    [[nodiscard]] bool hasFlag(Flag flag) const;
    /// All bits are set; true for no bits.
    [[nodiscard]] bool hasFlags(Flags flags) const;
    /// Any bit is set.
    [[nodiscard]] bool containsFlags(Flags flags) const;
    [[nodiscard]] bool isEnabled() const;
    [[nodiscard]] bool isPure() const;
    /// Neither null nor flagged Invalid.
    [[nodiscard]] bool isValid() const;
    [[nodiscard]] bool isNull() const;

    [[nodiscard]] Quantity quantity() const;
    void setQuantity(Quantity quantity);
    [[nodiscard]] QVariant metaData() const;
    void setMetaData(QVariant const& metaData);

    /// The limits of an Integer parameter, truncated toward zero. False and outputs untouched when
    /// it has none or another type.
    [[nodiscard]] bool limits(int& low, int& high) const;
    /// The limits of a Float parameter.
    [[nodiscard]] bool limits(float& low, float& high) const;
    /// What a slider spans, from the hint's spin or else range piece. False and outputs untouched
    /// when there is none, it is malformed, or the parameter is not a valid Float.
    [[nodiscard]] bool sliderRange(float& low, float& high) const;
    /// The hint asks to show the value as a colour temperature.
    [[nodiscard]] bool useKelvin() const;

    /// The value when the parameter holds a T, else nothing.
    template <ValueType T>
    [[nodiscard]] std::optional<T> value() const {
        if (!holds(typeOf<T>)) {
            return std::nullopt;
        }
        std::optional<T> result(std::in_place);
        getp(&*result);
        return result;
    }
    /// True when the value changed. False, and nothing is done, when the parameter does not hold a
    /// T or holds an equal value.
    template <ValueType T>
    bool setValue(T const& value) {
        return holds(typeOf<T>) && setp(&value);
    }

    /// The colour of a Color or ColorAlpha parameter; opaque black when it holds neither.
    [[nodiscard]] ZColorExt getColor() const;
    /// True when the value changed. A ColorAlpha takes the active colour, opaque. Ignored when the
    /// parameter holds no colour.
    bool setColor(ZColorExt color);

private:
    friend ZSG_EXPORT std::ostream& operator<<(std::ostream& os, Parameter const& parameter);

    /// Whether there is a holder and it is of that type.
    [[nodiscard]] bool holds(Type type) const;
    void getp(void* out) const;
    bool setp(void const* in);

    QSharedPointer<ParameterData> d_;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(Parameter::Flags)

/// For logs: Parameter('name', Float 12.5), or "(pure)" in place of a value.
ZSG_EXPORT std::ostream& operator<<(std::ostream& os, Parameter const& parameter);

} // namespace zsg
