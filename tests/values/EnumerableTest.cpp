#include "zsg/values/Enumerable.h"
#include "zsg/values/FloatArray.h"

#include <gtest/gtest.h>

#include <utility>

namespace zsg {

TEST(Enumerable, CopiesAndMovesCarryOptionsAndSelection) {
    Enumerable value{{7, "seven"}, {9, "nine"}};
    EXPECT_EQ(value.getSelection(), 0);
    value.setSelection(-12); // no option has it
    Enumerable copy(value);
    copy.append({11, "eleven"});
    EXPECT_EQ(value.size(), 2);
    Enumerable const moved(std::move(copy));
    EXPECT_EQ(moved.getSelection(), -12);
    EXPECT_EQ(moved.size(), 3);
    Enumerable assigned(4);
    assigned = value;
    EXPECT_EQ(assigned.getSelection(), -12);
    EXPECT_EQ(assigned.at(1).second, "nine");
}

TEST(FloatArray, IsConstructedAsTheListIs) {
    EXPECT_EQ(FloatArray(2), FloatArray({0, 0}));
    EXPECT_EQ(FloatArray(2, 1.5f), FloatArray({1.5f, 1.5f}));
    float raw[] = {1, 2};
    FloatArray const borrowed(QArrayDataPointer<float>::fromRawData(raw, 2));
    EXPECT_EQ(borrowed.constData(), raw);
}

} // namespace zsg
