#pragma once

#include "zsg/Export.h"
#include "zsg/values/AnimationCurve.h"
#include "zsg/values/AxaltaColor.h"
#include "zsg/values/ColorGradient.h"
#include "zsg/values/Enumerable.h"
#include "zsg/values/FilePath.h"
#include "zsg/values/FloatArray.h"
#include "zsg/values/Variant.h"
#include "zsg/values/WeavePattern.h"

#include "zcore/ZColorExt.h"
#include "zcore/ZColorExtAlpha.h"

namespace zsg {

/// A holder that owns its value. It exists for the types of ZSG_VALUE_TYPES, compiled into the
/// library.
template <class T>
class ValueVariant final : public Variant {
public:
    explicit ValueVariant(T const& value);
    ValueVariant(ValueVariant const& other);
    ValueVariant(ValueVariant&& other) noexcept;
    ValueVariant& operator=(ValueVariant const& other);
    ValueVariant& operator=(ValueVariant&& other) noexcept;
    ~ValueVariant() override;

    [[nodiscard]] Type type() const override;
    /// An equal value is not assigned at all. Enumerables are compared without their selection: the
    /// same options with another selection change nothing.
    bool set(void const* value) override;
    void get(void* out) const override;
    bool copyTo(Variant& target) const override;

    /// The value itself, until the holder is changed.
    [[nodiscard]] T const& value() const noexcept { return value_; }

private:
    T value_;
};

#define ZSG_DECLARE_HOLDER(member, number, T)                                                      \
    extern template class ZSG_TEMPLATE_DECLARATION ValueVariant<T>;
ZSG_VALUE_TYPES(ZSG_DECLARE_HOLDER)
#undef ZSG_DECLARE_HOLDER

} // namespace zsg
