#include "values/PointerVariant.h"
#include "values/valueSamples.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zsg {
namespace {

std::string text(Variant const& variant) {
    std::ostringstream os;
    os << variant;
    return os.str();
}

template <class T>
std::string textOf(T const& value) {
    return text(ValueVariant<T>(value));
}

template <class T>
std::string sampleText() {
    return textOf(test::sample<T>());
}

TEST(Printing, WritesEachTypeInItsForm) {
    EXPECT_EQ(sampleText<bool>(), "1");
    EXPECT_EQ(sampleText<int>(), "42");
    EXPECT_EQ(sampleText<QList<int>>(), "1, 2, 3");
    EXPECT_EQ(sampleText<float>(), "12.5");
    EXPECT_EQ(sampleText<nyxVector2f>(), "<1, 2>");
    EXPECT_EQ(sampleText<nyxVectorf>(), "<1, 2, 3>");
    EXPECT_EQ(sampleText<double>(), "0.1");
    EXPECT_EQ(sampleText<nyxVector>(), "<1, 2, 3>");
    EXPECT_EQ(sampleText<QString>(), "\"Größe\"");
    EXPECT_EQ(sampleText<QList<QString>>(), "2 elements");
    EXPECT_EQ(sampleText<FilePath>(), "\"textures\"");
    EXPECT_EQ(sampleText<nyxMatrix>(), "Matrix()");
    EXPECT_EQ(sampleText<ZColorExt>(), "RGB(0.25, 0.5, 0.75)");
    EXPECT_EQ(sampleText<ZColorExtAlpha>(), "RGBA(0.25, 0.5, 0.75, 0.5)");
    EXPECT_EQ(sampleText<FloatArray>(), "FloatArray()");
    EXPECT_EQ(sampleText<ColorGradient>(), "ColorGradient()");
    EXPECT_EQ(sampleText<AnimationCurve>(), "AnimationCurve()");
    EXPECT_EQ(sampleText<AxaltaColor>(), "AxaltaColor()");
    EXPECT_EQ(sampleText<WeavePattern>(), "WeavePattern()");
    EXPECT_EQ(sampleText<Enumerable>(), "Enumerable()");
    EXPECT_EQ(text(Variant()), "Null()");
    nyxShader* shader = nullptr;
    EXPECT_EQ(text(PointerVariant<nyxShader*>(&shader)), "ShaderBase()");
}

TEST(Printing, ListsEndsAndStreamFlags) {
    EXPECT_EQ(textOf(QList<int>()), "");
    EXPECT_EQ(textOf(QList<int>{1, 2, 3, 4, 5, 6, 7, 8}), "1, 2, 3, 4, 5, 6, 7, 8");
    EXPECT_EQ(textOf(QList<int>(9, 0)), "9 elements");
    EXPECT_EQ(textOf(QList<QString>()), "0 elements");
    EXPECT_EQ(textOf(QString()), "\"\"");
    EXPECT_EQ(textOf(QString(QChar(0))), std::string("\"\0\"", 3));

    std::ostringstream os;
    os.precision(3);
    os << std::boolalpha << ValueVariant<bool>(false) << ' ' << ValueVariant<double>(3.14159);
    EXPECT_EQ(os.str(), "false 3.14");

    EXPECT_EQ(textOf(test::multiColor()), "RGB(0, 1, 0)") << "the active one";
}

} // namespace
} // namespace zsg
