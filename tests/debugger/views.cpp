#include "zsg/core/Ids.h"
#include "zsg/values/ColorGradient.h"
#include "zsg/values/Parameter.h"
#include "zsg/values/ValueVariant.h"
#include "zsg/values/WeavePattern.h"

#include "zcore/ZColorExtAlpha.h"

#include <vector>

/// Where the debugger stops: all the values are made.
[[gnu::noinline]] void shown() { asm volatile(""); }

int main() {
    nyx::ColorId const id(12);
    // The debugger looks at them.
    [[maybe_unused]] nyx::SurfaceId const none;
    [[maybe_unused]] zsg::MaterialId const material(7);
    zsg::WeavePattern const weave = zsg::WeavePattern::makeTwill(4, 1);
    zsg::ColorGradient gradient;
    gradient.setBlend(true);
    gradient.addColorStop({1, 0.5f, 0, 1}, 0.25f, 0, 0);
    gradient.addColorStop({0, 0, 1, 1}, 1, 0, 0);
    ZColorExt plain(0.5f, 0.25f, 0, 1);
    plain.setColorName("Walnut");
    plain.setId(id);
    ZColorExtAlpha multi;
    multi.setMultiColor(true);
    std::vector<ZColorExt::ZColorWithId> elements;
    elements.emplace_back(ZColor(1, 0, 0, 1, "Red"), id);
    elements.emplace_back(ZColor(0, 0, 1, 0.5f), nyx::ColorId());
    multi.setColors(elements);
    multi.setActiveIndex(1);
    zsg::ValueVariant<QString> const text(QStringLiteral("Größe"));
    zsg::Variant const& variant = text;
    zsg::Parameter const size(zsg::Parameter::Builder("size", "Size")
                                  .setValue(new zsg::ValueVariant<float>(12.5f))
                                  .setHasLimits(true)
                                  .setMaximum(100));
    shown();
    return variant.type() == zsg::Type::String && weave.numWarp() == 4 && !size.isNull() ? 0 : 1;
}
