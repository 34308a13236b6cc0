#include "zsg/values/AxaltaColor.h"

namespace zsg {

namespace {

nyxColor toColor(double const* rgb) {
    return {static_cast<float>(rgb[0]), static_cast<float>(rgb[1]), static_cast<float>(rgb[2])};
}

} // namespace

AxaltaColor::AxaltaColor()
    : a_{86.38f, 63.44f, 42.45f}, b_{19.63f, 19.63f, 19.63f}, c_{1.46f, 0.77f, -0.92f} {}

AxaltaColor::AxaltaColor(double const* a, double const* b, double const* c)
    : a_(toColor(a)), b_(toColor(b)), c_(toColor(c)) {}

AxaltaColor::AxaltaColor(nyxColor a, nyxColor b, nyxColor c) : a_(a), b_(b), c_(c) {}

bool AxaltaColor::operator==(AxaltaColor const& other) const noexcept {
    return a_ == other.a_ && b_ == other.b_ && c_ == other.c_;
}

} // namespace zsg
