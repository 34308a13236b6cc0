#pragma once

#include "zsg/values/Variant.h"

namespace zsg {

/// A holder of a value that lives elsewhere and must outlive it, usually a field of the object
/// whose setting it exposes. Never frees the target. Compiled for the seven types named below.
template <class T>
class PointerVariant final : public Variant {
public:
    explicit PointerVariant(T* target) : target_(target) {}
    ~PointerVariant() override;

    [[nodiscard]] Type type() const override;
    /// Writes the target even when the value is equal to it; the result says whether it was.
    bool set(void const* value) override;
    void get(void* out) const override;
    bool copyTo(Variant& target) const override;

private:
    T* target_;
};

extern template class PointerVariant<ZColorExt>;
extern template class PointerVariant<QString>;
extern template class PointerVariant<bool>;
extern template class PointerVariant<float>;
extern template class PointerVariant<Enumerable>;
extern template class PointerVariant<int>;
extern template class PointerVariant<nyxShader*>;

} // namespace zsg
