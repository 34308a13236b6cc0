#include "zsg/values/AxaltaColor.h"
#include "zsg/values/Enumerable.h"
#include "zsg/values/FilePath.h"
#include "zsg/values/FloatArray.h"

#include <gtest/gtest.h>

#include <QDir>

#include <utility>

namespace zsg {

TEST(SimpleValues, EnumerableCarriesItsSelection) {
    Enumerable value{{7, "seven"}, {9, "nine"}};
    EXPECT_EQ(value.getSelection(), 0);
    value.setSelection(-12); // no option has it
    Enumerable copy(value);
    copy.append({11, "eleven"});
    Enumerable const moved(std::move(copy));
    Enumerable assigned(4);
    assigned = value;
    EXPECT_TRUE(moved.getSelection() == -12 && assigned.getSelection() == -12);
    EXPECT_TRUE(moved.size() == 3 && assigned.size() == 2 && assigned[1].second == "nine");
}

TEST(SimpleValues, FloatArrayIsConstructedAsTheListIs) {
    EXPECT_EQ(FloatArray(2), FloatArray({0, 0}));
    EXPECT_EQ(FloatArray(2, 1.5f), FloatArray({1.5f, 1.5f}));
    float raw[] = {1, 2};
    FloatArray const borrowed(QArrayDataPointer<float>::fromRawData(raw, 2));
    EXPECT_EQ(borrowed.constData(), raw);
}

TEST(SimpleValues, FilePathKeepsNativeSeparators) {
    EXPECT_EQ(FilePath().toString(), "");
    EXPECT_EQ(FilePath("a/../b").toString(), QString("a/../b").replace('/', QDir::separator()));
    EXPECT_EQ(FilePath("C:\\a").toString(), "C:\\a");
    EXPECT_FALSE(FilePath("maps") == FilePath("maps/") || FilePath("maps") == FilePath("Maps"));
}

TEST(SimpleValues, AxaltaColorComparesNineNumbersAndNotTheMark) {
    EXPECT_EQ(AxaltaColor(), AxaltaColor({86.38f, 63.44f, 42.45f}, {19.63f, 19.63f, 19.63f},
                                         {1.46f, 0.77f, -0.92f}));
    double numbers[] = {0.1, 2, 3, 4, 5, 6, 7, 8, 9};
    AxaltaColor const before(numbers, numbers + 3, numbers + 6);
    EXPECT_TRUE(before.getA().r == 0.1f && before.getB().g == 5 && before.getC().b == 9);
    for (double& number : numbers) {
        number = -number;
        AxaltaColor after(numbers, numbers + 3, numbers + 6);
        EXPECT_FALSE(before == after || after.changed()) << number;
        number = -number;
        after.setChanged(true);
        AxaltaColor const copy = after;
        after.setChanged(false);
        EXPECT_TRUE(copy == after && copy.changed());
    }
}

} // namespace zsg
