#include "zsg/values/AxaltaColor.h"

#include <gtest/gtest.h>

namespace zsg {

TEST(AxaltaColor, ComparesAllNineNumbersAndNotTheMark) {
    EXPECT_EQ(AxaltaColor(), AxaltaColor({86.38f, 63.44f, 42.45f}, {19.63f, 19.63f, 19.63f},
                                         {1.46f, 0.77f, -0.92f}));
    for (int place = 0; place < 9; ++place) {
        double numbers[] = {0.1, 2, 3, 4, 5, 6, 7, 8, 9};
        AxaltaColor const before(numbers, numbers + 3, numbers + 6);
        EXPECT_EQ(before.getA().r, 0.1f);
        numbers[place] = -1;
        AxaltaColor after(numbers, numbers + 3, numbers + 6);
        EXPECT_FALSE(before == after || after.changed()) << place;
        after.setChanged(true);
        AxaltaColor const copy = after;
        after.setChanged(false);
        EXPECT_TRUE(copy == after && copy.changed());
    }
}

} // namespace zsg
