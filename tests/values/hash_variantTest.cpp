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

TEST(HashVariant, ValuesAreFixed) {
    using test::sample;
    EXPECT_EQ(hashOf(sample<bool>()), 0xaf63bc4d24393024);
    EXPECT_EQ(hashOf(sample<int>()), 0x8d9aadc8d36759ba);
    EXPECT_EQ(hashOf(-1), 0x994f7665dc61b388);
    EXPECT_EQ(hashOf(sample<QList<int>>()), 0x0b50fa93d22acd57u);
    EXPECT_EQ(hashOf(sample<float>()), 0x4c3085803b353cb0u);
    EXPECT_EQ(hashOf(sample<nyxVector2f>()), 0x77e66f3944ac3ec3u);
    EXPECT_EQ(hashOf(sample<nyxVectorf>()), 0x14074f4142a634a1u);
    EXPECT_EQ(hashOf(sample<double>()), 0x1279d3947e3f7678u);
    EXPECT_EQ(hashOf(sample<nyxVector>()), 0xe885329d9cc301a2u);
    EXPECT_EQ(hashOf(sample<nyxMatrix>()), 0x02e37f503e1d8828u);
    EXPECT_EQ(hashOf(sample<ZColorExt>()), 0x1551ceb123abb711u);
    EXPECT_EQ(hashOf(sample<ZColorExtAlpha>()), 0xb3bca98a85a6788du);
    EXPECT_EQ(hashOf(sample<FloatArray>()), 0x77e66fef733e0dc0u);
    EXPECT_EQ(hashOf(FloatArray()), 0x9e377d73u);
    EXPECT_EQ(hashOf(sample<ColorGradient>()), 0xee9edd2771773deau);
    EXPECT_EQ(hashOf(sample<AnimationCurve>()), 0xd4f1a6f39e00ead0u);
    EXPECT_EQ(hashOf(sample<AxaltaColor>()), 0x4c04b9f9480441b6u);
    EXPECT_EQ(hashOf(AxaltaColor()), 0xf59af68a39965144u);
    EXPECT_EQ(hashOf(sample<WeavePattern>()), 0xdea6ad2f1d07c840u);
    EXPECT_EQ(hashOf(WeavePattern()), 0x41637c98e25a496bu);
    EXPECT_EQ(hashOf(Enumerable()), 0x9e377eaau);

    nyxMatrix nearly = sample<nyxMatrix>();
    nearly.m[3] = 4.0000000000001;
    EXPECT_EQ(hashOf(nearly), hashOf(sample<nyxMatrix>())) << "the lowest bits are left out";

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
