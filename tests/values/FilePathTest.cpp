#include "zsg/values/FilePath.h"

#include <gtest/gtest.h>

#include <QDir>

namespace zsg {

TEST(FilePath, KeepsNativeSeparatorsAndComparesExactly) {
    EXPECT_EQ(FilePath().toString(), "");
    EXPECT_EQ(FilePath("a/../b").toString(), QString("a/../b").replace('/', QDir::separator()));
    EXPECT_EQ(FilePath("C:\\a").toString(), "C:\\a");
    EXPECT_FALSE(FilePath("maps") == FilePath("Maps"));
    EXPECT_FALSE(FilePath("maps") == FilePath("maps/"));
}

} // namespace zsg
