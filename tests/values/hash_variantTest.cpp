#include "zsg/values/hash_variant.h"

#include "values/PointerVariant.h"
#include "values/hashCombine.h"
#include "values/valueSamples.h"

#include <gtest/gtest.h>

namespace zsg {
namespace {

template <class T>
std::uint64_t hashOf(T const& value) {
    ValueVariant<T> const holder(value);
    return hash_variant(&holder);
}

std::uint64_t textHash(QString const& text) { return qHash(QStringView(text), 0); }

/// Reports a type and holds nothing.
class Bare final : public Variant {
public:
    explicit Bare(Type type) : type_(type) {}
    [[nodiscard]] Type type() const override { return type_; }

private:
    Type type_;
};

TEST(HashVariant, ValuesAreFixed) { // those of the samples are seen in the surface tests
    EXPECT_EQ(hashOf(-1), 0x994f7665dc61b388);
    EXPECT_EQ(hashOf(FloatArray()), 0x9e377d73u);
    EXPECT_EQ(hashOf(AxaltaColor()), 0xf59af68a39965144u);
    EXPECT_EQ(hashOf(WeavePattern()), 0x41637c98e25a496bu);
    EXPECT_EQ(hashOf(Enumerable()), 0x9e377eaau);

    nyxMatrix nearly = test::sample<nyxMatrix>();
    nearly.m[3] = 4.0000000000001;
    EXPECT_EQ(hashOf(nearly), test::Sample<nyxMatrix>::hash) << "the lowest bits are left out";

    float bound = 12.5f;
    PointerVariant<float> const other(&bound); // another holder of the same type
    EXPECT_EQ(hash_variant(&other), hashOf(12.5f));

    // A multi-colour is hashed by all its colours, whichever is active.
    EXPECT_EQ(hashOf(test::multiColor()), 0x5b9b8060a61c4805u);
}

TEST(HashVariant, TextsUseTheHashOfQt) {
    EXPECT_EQ(hashOf(QString("Größe")), combine(9, textHash("Größe")));
    EXPECT_EQ(hashOf(FilePath(QString("a"))), combine(11, textHash("a")));
    std::uint64_t const list = combine(combine(0, textHash("a")), textHash("b"));
    EXPECT_EQ(hashOf(QList<QString>{"a", "b"}), combine(10, list));
    Enumerable options{{1, "a"}, {2, "b"}};
    options.setSelection(1);
    EXPECT_EQ(hashOf(options), combine(20, list)) << "labels only";
}

TEST(HashVariant, WithoutAValueTheTypeAloneCounts) {
    EXPECT_EQ(hash_variant(nullptr), 0u);
    Variant const null;
    EXPECT_EQ(hash_variant(&null), 0x9e3779b9u);
    Bare const node(Type::Node);
    EXPECT_EQ(hash_variant(&node), 0x9e3b6db9u);
    nyxShader* shader = nullptr;
    PointerVariant<nyxShader*> const holder(&shader);
    EXPECT_EQ(hash_variant(&holder), 0x9e76b9b9u);
    Bare const negative(static_cast<Type>(-1));
    EXPECT_EQ(hash_variant(&negative), 0xbfffffff61c88687u) << "widened with its sign";
}

} // namespace
} // namespace zsg
