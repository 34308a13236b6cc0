// Values and parameters: what a property panel is made of. Nothing here needs a scene.

#include <zsg/values/Parameter.h>
#include <zsg/values/Variant.h>
#include <zsg/values/WeavePattern.h>

#include <iostream>
#include <memory>

int main() {
    // The parameter owns its holder; the hint says what a slider spans.
    zsg::Parameter::Builder builder("roughness", "Roughness");
    builder.setType(zsg::Type::Float).setHint("-range,0,1-").setToolTip("0 is a mirror");
    zsg::Parameter const roughness(builder);
    float low = 0, high = 0;
    if (roughness.sliderRange(low, high)) {
        std::cout << roughness.displayName().toStdString() << ": slider from " << low << " to "
                  << high << '\n';
    }
    zsg::Parameter sameOne = roughness; // a handle: copies see each other's changes
    std::cout << "changed " << sameOne.setValue(0.25f) << ", again " << sameOne.setValue(0.25f)
              << ", reads " << roughness.value<float>().value_or(-1) << '\n';
    std::cout << "as an integer: " << roughness.value<int>().has_value() << '\n';

    // Rich values share their data until one of them is changed.
    zsg::WeavePattern twill = zsg::WeavePattern::makeTwill(3, 1);
    zsg::WeavePattern const before = twill;
    twill.flip(0, 0);
    std::cout << "the copy is untouched: " << !before.equals(twill) << '\n';

    // Any value in a holder: cloned and printed without knowing what it is, read by who knows.
    std::unique_ptr<zsg::Variant> const holder(zsg::makeVariant(zsg::Type::Float));
    float const half = 0.5f;
    std::cout << "set " << holder->set(&half) << ", again " << holder->set(&half) << '\n';
    std::unique_ptr<zsg::Variant> const clone(holder->cloneValue());
    std::cout << *clone << ", " << zsg::tryGet<float>(*clone).value_or(-1) << '\n';
    return 0;
}
