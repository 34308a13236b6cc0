#pragma once

#include "zsg/values/ValueVariant.h"

#include <cstdint>
#include <vector>

namespace zsg::test {

/// Of each value type: a value that differs from the type's default, the text of a holder with it,
/// and its hash_variant(), 0 where that hangs on Qt's hash of texts.
template <class T>
struct Sample;

template <class T>
T sample() {
    return Sample<T>::value();
}

inline ColorGradient makeGradient() {
    ColorGradient gradient;
    gradient.addColorStop({1, 0, 0, 1}, 0, 1, 2);
    gradient.addColorStop({0, 0, 1, 0.5f}, 1, -1, 0.5f);
    return gradient;
}

#define ZSG_SAMPLE(T, fixedText, fixedHash, ...)                                                   \
    template <>                                                                                    \
    struct Sample<T> {                                                                             \
        static T value() { return T __VA_ARGS__; }                                                 \
        static constexpr char const* text = fixedText;                                             \
        static constexpr std::uint64_t hash = fixedHash;                                           \
    };
ZSG_SAMPLE(bool, "1", 0xaf63bc4d24393024, {true})
ZSG_SAMPLE(int, "42", 0x8d9aadc8d36759ba, {42})
ZSG_SAMPLE(QList<int>, "1, 2, 3", 0x0b50fa93d22acd57, {1, 2, 3})
ZSG_SAMPLE(float, "12.5", 0x4c3085803b353cb0, {12.5f})
ZSG_SAMPLE(nyxVector2f, "<1, 2>", 0x77e66f3944ac3ec3, {1, 2})
ZSG_SAMPLE(nyxVectorf, "<1, 2, 3>", 0x14074f4142a634a1, {1, 2, 3})
ZSG_SAMPLE(double, "0.1", 0x1279d3947e3f7678, {0.1})
ZSG_SAMPLE(nyxVector, "<1, 2, 3>", 0xe885329d9cc301a2, {1, 2, 3})
ZSG_SAMPLE(QString, "\"Größe\"", 0, (QStringLiteral("Größe")))
ZSG_SAMPLE(QList<QString>, "2 elements", 0, {"a", "b"})
ZSG_SAMPLE(FilePath, "\"textures\"", 0, (QStringLiteral("textures")))
ZSG_SAMPLE(nyxMatrix, "Matrix()", 0x02e37f503e1d8828,
           {{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}})
ZSG_SAMPLE(ZColorExt, "RGB(0.25, 0.5, 0.75)", 0x1551ceb123abb711, (0.25f, 0.5f, 0.75f))
ZSG_SAMPLE(ZColorExtAlpha, "RGBA(0.25, 0.5, 0.75, 0.5)", 0xb3bca98a85a6788d,
           (0.25f, 0.5f, 0.75f, 0.5f))
ZSG_SAMPLE(FloatArray, "FloatArray()", 0x77e66fef733e0dc0, {1, 2})
ZSG_SAMPLE(ColorGradient, "ColorGradient()", 0xee9edd2771773dea, (makeGradient()))
ZSG_SAMPLE(AnimationCurve, "AnimationCurve()", 0xd4f1a6f39e00ead0,
           {nyx::AnimationKey{{0, 1}, {-1, 2}, {1, 3}, nyx::KeyType::L},
            nyx::AnimationKey{{5, 6}, {4, 6}, {6, 7}, nyx::KeyType::U}})
ZSG_SAMPLE(AxaltaColor, "AxaltaColor()", 0x4c04b9f9480441b6,
           (nyxColor{1, 2, 3}, nyxColor{4, 5, 6}, nyxColor{7, 8, 9}))
ZSG_SAMPLE(WeavePattern, "WeavePattern()", 0xdea6ad2f1d07c840, (WeavePattern::makePlain()))
ZSG_SAMPLE(Enumerable, "Enumerable()", 0, {{7, "seven"}, {9, "nine"}})
#undef ZSG_SAMPLE

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
