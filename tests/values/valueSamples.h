#pragma once

#include "zsg/values/ValueVariant.h"

#include <vector>

/// One value of each value type that differs from the type's default.
namespace zsg::test {

template <class T>
T sample();

#define ZSG_SAMPLE(T, ...)                                                                         \
    template <>                                                                                    \
    inline T sample<T>() {                                                                         \
        return T __VA_ARGS__;                                                                      \
    }
ZSG_SAMPLE(bool, {true})
ZSG_SAMPLE(int, {42})
ZSG_SAMPLE(QList<int>, {1, 2, 3})
ZSG_SAMPLE(float, {12.5f})
ZSG_SAMPLE(nyxVector2f, {1, 2})
ZSG_SAMPLE(nyxVectorf, {1, 2, 3})
ZSG_SAMPLE(double, {0.1})
ZSG_SAMPLE(nyxVector, {1, 2, 3})
ZSG_SAMPLE(QString, (QStringLiteral("Größe")))
ZSG_SAMPLE(QList<QString>, {"a", "b"})
ZSG_SAMPLE(FilePath, (QStringLiteral("textures")))
ZSG_SAMPLE(nyxMatrix, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}})
ZSG_SAMPLE(ZColorExt, (0.25f, 0.5f, 0.75f))
ZSG_SAMPLE(ZColorExtAlpha, (0.25f, 0.5f, 0.75f, 0.5f))
ZSG_SAMPLE(FloatArray, {1, 2})
ZSG_SAMPLE(AnimationCurve, {nyx::AnimationKey{{0, 1}, {-1, 2}, {1, 3}, nyx::KeyType::L},
                            nyx::AnimationKey{{5, 6}, {4, 6}, {6, 7}, nyx::KeyType::U}})
ZSG_SAMPLE(AxaltaColor, (nyxColor{1, 2, 3}, nyxColor{4, 5, 6}, nyxColor{7, 8, 9}))
ZSG_SAMPLE(WeavePattern, (WeavePattern::makePlain()))
ZSG_SAMPLE(Enumerable, {{7, "seven"}, {9, "nine"}})
#undef ZSG_SAMPLE

template <>
inline ColorGradient sample<ColorGradient>() {
    ColorGradient gradient;
    gradient.addColorStop({1, 0, 0, 1}, 0, 1, 2);
    gradient.addColorStop({0, 0, 1, 0.5f}, 1, -1, 0.5f);
    return gradient;
}

/// Red and green, green being the active one.
inline ZColorExt multiColor() {
    std::vector<ZColorExt::ZColorWithId> const colors{{ZColor(1, 0, 0), nyx::ColorId(1)},
                                                      {ZColor(0, 1, 0), nyx::ColorId(2)}};
    ZColorExt multi;
    multi.setMultiColor(true);
    multi.setColors(colors);
    multi.setActiveIndex(1);
    return multi;
}

} // namespace zsg::test
