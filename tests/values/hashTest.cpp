#include "zsg/values/hash.h"

#include "values/hashCombine.h"

#include "nyxrender/nyxVector.h"

#include <gtest/gtest.h>

namespace zsg {

TEST(Hash, ValuesAreFixed) {
    EXPECT_EQ(hash_int(0), 0x4d25767f9dce13f5);
    EXPECT_EQ(hash_int(-1), 0x994f76653e2a3951);
    EXPECT_EQ(hash_int(0x12345678), 0xcccfd053e47c3365);
    EXPECT_EQ(fnv(std::uint8_t{1}), 0xaf63bc4c8601b62c);
    EXPECT_EQ(hash_float(-0.0f), 0x4d24f67f9dcd3a75);
    EXPECT_EQ(hash_float(3.14159274f), 0x4c2da07f9cfbba04);
    EXPECT_EQ(hash_float(-123456.789f), 0x63ce4f803c0ed329);
    EXPECT_EQ(hash_double(-2.718281828459045), 0x8f80f8571294be76);

    EXPECT_EQ(hash_nyxVector2f({1, 2}), 0x77e66f38a674c3cc);
    EXPECT_EQ(hash_nyxVectorf({1, 2, 3}), 0x14074f40a46eb96d);
    EXPECT_EQ(hash_nyxVector({1, 2, 3}), 0xe885329cfe8b85ef);
    float const rgba[] = {1, 2, 3, 4};
    EXPECT_EQ(hash_floats(rgba, 4), 0x463bd72de2cd575d);
    EXPECT_EQ(hash_floats(rgba, 2), 0x77e66feed506f071); // not the hash of a vector

    EXPECT_EQ(hash_limits(true, -1.5f, 2.25f), 0x40100000bfc00001);
    EXPECT_EQ(hash_limits(true, 0.1f, 3.14159f), 0x404900003dccc001);
    EXPECT_EQ(hash_limits(false, -1.5f, 2.25f), 0u);

    // The lowest 12 and 16 bits of the mantissa do not count, the next one does.
    EXPECT_EQ(hash_float(std::bit_cast<float>(0x3f9abfff)), fnv(std::uint32_t{0x3f9ab000}));
    EXPECT_EQ(hash_double(std::bit_cast<double>(0x3ff123456789ffff)),
              fnv(std::uint64_t{0x3ff1234567890000}));
}

} // namespace zsg
