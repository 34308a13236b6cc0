#include "values/valueSamples.h"
#include "zsg/values/equals.h"
#include "zsg/values/hash.h"
#include "zsg/values/hash_variant.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <type_traits>
#include <utility>

namespace zsg {
namespace {

template <class First, class... Rest>
struct WithoutFirst {
    using Types = testing::Types<Rest...>;
};
#define ZSG_TYPE_LIST_ITEM(member, number, T) , T
using AllValueTypes = WithoutFirst<void ZSG_VALUE_TYPES(ZSG_TYPE_LIST_ITEM)>::Types;
#undef ZSG_TYPE_LIST_ITEM

std::string text(Variant const& variant) {
    std::ostringstream os;
    os << variant;
    return os.str();
}

template <class T>
class EveryValueType : public testing::Test {};
TYPED_TEST_SUITE(EveryValueType, AllValueTypes);

TYPED_TEST(EveryValueType, MadeInsideIsReadChangedComparedAndDeletedOutside) {
    using T = TypeParam;
    using Other = std::conditional_t<std::is_same_v<T, int>, float, int>;
    T const sample = test::sample<T>();
    std::unique_ptr<Variant> const holder(makeVariant(typeOf<T>));
    ASSERT_TRUE(holder);
    ASSERT_EQ(holder->type(), typeOf<T>);
    std::optional<T> const initial = tryGet<T>(*holder);
    ASSERT_TRUE(initial);
    EXPECT_FALSE(equals(*initial, sample));
    EXPECT_FALSE(tryGet<Other>(*holder));
    EXPECT_FALSE(holder->set(&*initial));
    std::uint64_t const initialHash = hash_variant(holder.get());

    EXPECT_TRUE(holder->set(&sample));
    EXPECT_FALSE(holder->set(&sample));
    EXPECT_TRUE(equals(*tryGet<T>(*holder), sample));
    EXPECT_NE(hash_variant(holder.get()), initialHash);
    EXPECT_EQ(text(*holder), test::Sample<T>::text);
    if (test::Sample<T>::hash != 0) {
        EXPECT_EQ(hash_variant(holder.get()), test::Sample<T>::hash);
    }

    std::unique_ptr<Variant> const clone(holder->cloneValue());
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->type(), typeOf<T>);
    EXPECT_EQ(hash_variant(clone.get()), hash_variant(holder.get()));
    EXPECT_TRUE(holder->set(&*initial));
    EXPECT_EQ(hash_variant(holder.get()), initialHash);
    EXPECT_TRUE(equals(*tryGet<T>(*clone), sample)) << "the clone is independent";
    EXPECT_TRUE(clone->copyTo(*holder));
    EXPECT_FALSE(clone->copyTo(*holder));
    EXPECT_TRUE(equals(*tryGet<T>(*holder), sample));
}

TYPED_TEST(EveryValueType, HoldersAreMadeCopiedAndMovedOutside) {
    using T = TypeParam;
    T const sample = test::sample<T>();
    T const initial = *tryGet<T>(*std::unique_ptr<Variant>(makeVariant(typeOf<T>)));
    ValueVariant<T> const holder(sample);
    ValueVariant<T> copy(holder);
    ValueVariant<T> assigned(initial);
    assigned = copy;
    ValueVariant<T> moved(std::move(copy));
    EXPECT_TRUE(equals(*tryGet<T>(assigned), sample));
    EXPECT_TRUE(equals(*tryGet<T>(moved), sample));
    moved = ValueVariant<T>(initial);
    EXPECT_TRUE(equals(*tryGet<T>(moved), initial));
    EXPECT_TRUE(equals(*tryGet<T>(holder), sample));
}

TEST(Surface, FunctionsWithoutAHolderLink) {
    EXPECT_STREQ(typeName(Type::Float3), "Float3");
    EXPECT_TRUE(equals(nyxColor{1, 2, 3}, nyxColor{1, 2, 3}));
    EXPECT_FALSE(equals(nyxColor_rgba{1, 2, 3, 4}, nyxColor_rgba{1, 2, 3, 5}));
    nyxShader* const none = nullptr;
    EXPECT_TRUE(equals(none, none));
    EXPECT_NE(hash_int(1), hash_float(1));
    EXPECT_EQ(hash_limits(false, 1, 2), 0u);
    EXPECT_NE(hash_nyxVector2f({1, 2}), hash_nyxVectorf({1, 2, 0}));
    EXPECT_NE(hash_nyxVector({1, 2, 3}), hash_nyxVectorf({1, 2, 3}));
    EXPECT_EQ(text(Variant()), "Null()");
}

} // namespace
} // namespace zsg
