#include "zsg/values/AxaltaColor.h"
#include "zsg/values/FilePath.h"

#include <QDir>
#include <gtest/gtest.h>

namespace zsg {

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
