#include "values/PointerVariant.h"
#include "values/valueSamples.h"

#include <gtest/gtest.h>

#include <sstream>

namespace zsg {
namespace {

template <class T>
std::string textOf(T const& value) {
    std::ostringstream os;
    os << ValueVariant<T>(value);
    return os.str();
}

TEST(Printing, ListsEndsAndStreamFlags) { // the samples' texts are seen in the surface tests
    EXPECT_EQ(textOf(QList<int>()), "");
    EXPECT_EQ(textOf(QList<int>{1, 2, 3, 4, 5, 6, 7, 8}), "1, 2, 3, 4, 5, 6, 7, 8");
    EXPECT_EQ(textOf(QList<int>(9, 0)), "9 elements");
    EXPECT_EQ(textOf(QList<QString>()), "0 elements");
    EXPECT_EQ(textOf(QString()), "\"\"");
    EXPECT_EQ(textOf(QString(QChar(0))), std::string("\"\0\"", 3));
    EXPECT_EQ(textOf(test::multiColor()), "RGB(0, 1, 0)") << "the active one";

    nyxShader* shader = nullptr;
    std::ostringstream os;
    os.precision(3);
    os << std::boolalpha << ValueVariant<bool>(false) << ' ' << ValueVariant<double>(3.14159) << ' '
       << PointerVariant<nyxShader*>(&shader);
    EXPECT_EQ(os.str(), "false 3.14 ShaderBase()");
}

} // namespace
} // namespace zsg
