#pragma once

#include "zsg/Export.h"

#include "nyxrender/nyxColor.h"

namespace zsg {

/// A paint colour, described by three colour triplets, with a mark that it was changed.
class ZSG_EXPORT AxaltaColor {
public:
    /// The fixed sample colour.
    AxaltaColor();
    /// Each argument points at three doubles, which are rounded to float.
    AxaltaColor(double const* a, double const* b, double const* c);
    AxaltaColor(nyxColor a, nyxColor b, nyxColor c);

    [[nodiscard]] nyxColor getA() const noexcept { return a_; }
    [[nodiscard]] nyxColor getB() const noexcept { return b_; }
    [[nodiscard]] nyxColor getC() const noexcept { return c_; }

    /// False in a new colour. The mark is carried by copies and left out of comparisons.
    [[nodiscard]] bool changed() const noexcept { return changed_; }
    void setChanged(bool changed) noexcept { changed_ = changed; }

    bool operator==(AxaltaColor const& other) const noexcept;

private:
    nyxColor a_;
    nyxColor b_;
    nyxColor c_;
    bool changed_ = false;
};

} // namespace zsg
