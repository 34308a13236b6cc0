#include "zsg/values/Parameter.h"

#include "values/PointerVariant.h"
#include "values/valueSamples.h"
#include "zsg/values/ParameterData.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

namespace zsg {
namespace {

Parameter::Builder builder(Type type, char const* hint = nullptr) {
    return Parameter::Builder("size", "Size").setType(type).setHint(hint);
}

std::string text(Parameter const& parameter) {
    std::ostringstream os;
    os << parameter;
    return os.str();
}

TEST(Parameter, CarriesWhatItsBuilderSays) {
    float field = 12.5f;
    auto described = Parameter::Builder("basic_size_px_value", "Size")
                         .setValue(new PointerVariant<float>(&field))
                         .setToolTip("Adjust the size")
                         .setQuantity(Quantity::Pixels)
                         .setHasLimits(true)
                         .setMinimum(1)
                         .setMaximum(8.5f)
                         .setHint("-limits,0,100-\n");
    Parameter parameter(described);
    EXPECT_EQ(parameter.name(), "basic_size_px_value");
    EXPECT_EQ(parameter.displayName(), "Size");
    EXPECT_EQ(parameter.toolTip(), "Adjust the size");
    EXPECT_EQ(parameter.type(), Type::Float);
    EXPECT_EQ(parameter.quantity(), Quantity::Pixels);
    EXPECT_EQ(parameter.flags(), Parameter::Enabled);
    EXPECT_FALSE(parameter.metaData().isValid());
    float low = 0;
    float high = 0;
    EXPECT_TRUE(parameter.limits(low, high));
    EXPECT_EQ(low, 1) << "the builder's limits go before the hint's";
    EXPECT_EQ(high, 8.5f);
    EXPECT_EQ(text(parameter), "Parameter('basic_size_px_value', Float 12.5)");

    Parameter const copy = parameter;
    EXPECT_TRUE(parameter.setValue(3.0f));
    EXPECT_EQ(field, 3);
    EXPECT_EQ(copy.value<float>(), 3) << "copies share the data";
    EXPECT_FALSE(parameter.setValue(3.0f));
    EXPECT_FALSE(parameter.setValue(4));
    EXPECT_FALSE(parameter.value<int>());
    parameter.setMetaData(5);
    parameter.setQuantity(Quantity::Angle);
    EXPECT_EQ(copy.metaData(), 5);
    EXPECT_EQ(copy.quantity(), Quantity::Angle);
}

TEST(Parameter, ConstructionCompletesTheFlags) {
    using P = Parameter;
    struct Row {
        Type type;
        quint32 given;
        bool enabled;
        quint32 flags;
        char const* text;
    };
    Row const rows[] = {
        {Type::Integer, 0, true, 0x10, "Parameter('size', Integer 0)"},
        {Type::Integer, 0, false, 0, "Parameter('size', Integer 0)"},
        {Type::Integer, 0x10, false, 0x10, "Parameter('size', Integer 0)"},
        {Type::Integer, 0x400, false, 0x400 | 0x200 | 0x800, "Parameter('size', Integer (pure))"},
        {Type::Integer, 0x200, false, 0x200 | 0x800, "Parameter('size', Integer 0)"},
        {Type::Integer, 0x800, false, 0x800, "Parameter('size', Integer 0)"},
        {Type::Integer, 0x1000, false, 0, "Parameter('size', Integer 0)"},
        {Type::Integer, 0x1200, false, 0x1A00, "Parameter('size', Integer 0)"},
        {Type::ShaderSurface, 0x1000, true, 0x1E10, "Parameter('size', ShaderSurface (pure))"},
        {Type::ShaderUv, 0, false, 0xE00, "Parameter('size', ShaderUv (pure))"},
        {Type::ShaderBase, 0, false, 0x4000, "Parameter('size', ShaderBase )"},
        {Type::Node, 0, false, 0x4000, "Parameter('size', Node )"},
        {Type::Null, 0x200000, false, 0x204000, "Parameter('size', Null )"},
        {static_cast<Type>(-1), 0, false, 0x4000, "Parameter('size', (invalid type) )"},
    };
    for (Row const& row : rows) {
        P const parameter(
            builder(row.type).setFlags(P::Flags::fromInt(row.given)).setEnabled(row.enabled));
        EXPECT_EQ(parameter.flags().toInt(), row.flags) << row.text;
        EXPECT_EQ(parameter.isValid(), (row.flags & 0x4000) == 0) << row.text;
        EXPECT_EQ(parameter.isPure(), (row.flags & 0x400) != 0) << row.text;
        EXPECT_EQ(parameter.value<int>().has_value(),
                  row.type == Type::Integer && !parameter.isPure())
            << row.text;
        EXPECT_EQ(text(parameter), row.text);
    }
}

TEST(Parameter, ANullHolderMakesItInvalidThoughItHasAValue) {
    Parameter const parameter(builder(Type::Float).setFlags(Parameter::Bit9).setValue(nullptr));
    EXPECT_EQ(parameter.flags(), Parameter::Invalid | Parameter::Enabled)
        << "the flags set before are replaced";
    EXPECT_TRUE(parameter.isNull());
    EXPECT_EQ(parameter.value<float>(), 0);
}

TEST(Parameter, FlagQuestions) {
    using P = Parameter;
    P const plain(builder(Type::Integer).setEnabled(false));
    EXPECT_TRUE(plain.hasFlag(P::NoFlags) && !plain.isEnabled());
    P const pure(builder(Type::Integer).setFlags(P::Pure));
    EXPECT_TRUE(pure.hasFlag(P::Pure) && !pure.hasFlag(P::NoFlags));
    EXPECT_TRUE(pure.hasFlags(P::Pure | P::Enabled) && pure.hasFlags({}));
    EXPECT_FALSE(pure.hasFlags(P::Pure | P::Invalid));
    EXPECT_TRUE(pure.containsFlags(P::Pure | P::Invalid));
    EXPECT_FALSE(pure.containsFlags(P::Invalid) || pure.containsFlags({}));
    EXPECT_EQ(P::HighestFlagBit, 21);
}

TEST(Parameter, LimitsAnswerOnlyTheirOwnType) {
    struct Row {
        Type type;
        char const* hint;
        bool has;
        int low, high;
    };
    Row const rows[] = {
        {Type::Integer, "-limits,1,8-\n", true, 1, 8},
        {Type::Integer, "-limits,-1.9,8.9-\n", true, -1, 8},
        {Type::Integer, "-limits,-1e30,inf-\n", true, std::numeric_limits<int>::min(),
         std::numeric_limits<int>::max()},
        {Type::Integer, "-limits,nan,2-\n", true, 0, 2},
        {Type::Integer, nullptr, false, 0, 0},
        {Type::Float, "-limits,1,8-\n", false, 0, 0},
    };
    for (Row const& row : rows) {
        Parameter const parameter(builder(row.type, row.hint));
        int low = -7;
        int high = -8;
        EXPECT_EQ(parameter.limits(low, high), row.has) << row.hint;
        EXPECT_EQ(low, row.has ? row.low : -7) << row.hint;
        EXPECT_EQ(high, row.has ? row.high : -8) << row.hint;
        float lowest = -7;
        float highest = -8;
        EXPECT_EQ(parameter.limits(lowest, highest), row.type == Type::Float) << row.hint;
    }
}

TEST(Parameter, SliderAndKelvinAskForAValidParameter) {
    char const* const hint = "-range,0,5-\n-kelvin-\n";
    float low = -7;
    float high = -8;
    EXPECT_FALSE(Parameter(builder(Type::Integer, hint)).sliderRange(low, high) ||
                 Parameter(builder(Type::Float)).sliderRange(low, high));
    Parameter null;
    for (Parameter const& invalid :
         {Parameter(builder(Type::Float, hint).setValue(nullptr)), null}) {
        EXPECT_TRUE(invalid.isNull());
        EXPECT_FALSE(invalid.isValid() || invalid.sliderRange(low, high) || invalid.useKelvin());
    }
    EXPECT_FALSE(null.value<float>() || null.setValue(1.0f));
    EXPECT_EQ(text(null), "Parameter()");

    Parameter const good(builder(Type::Float, hint));
    EXPECT_EQ(low + high, -15) << "nothing was written so far";
    EXPECT_TRUE(good.useKelvin() && good.sliderRange(low, high));
    EXPECT_EQ(low, 0);
    EXPECT_EQ(high, 5);
}

TEST(Parameter, ColorsAreReadAndWrittenInEitherType) {
    ZColorExt const color = test::sample<ZColorExt>();
    Parameter plain(builder(Type::Color));
    EXPECT_TRUE(plain.isColorType());
    EXPECT_TRUE(plain.setColor(color));
    EXPECT_FALSE(plain.setColor(color));
    EXPECT_EQ(plain.getColor(), color);

    Parameter alpha(builder(Type::ColorAlpha));
    EXPECT_TRUE(alpha.isColorType());
    EXPECT_TRUE(alpha.setColor(ZColorExt(0.25f, 0.5f, 0.75f, 0.5f)));
    EXPECT_EQ(*alpha.value<ZColorExtAlpha>(), ZColorExtAlpha(nyxColor{0.25f, 0.5f, 0.75f}))
        << "alpha is dropped";
    EXPECT_FALSE(alpha.setColor(color)) << "the same colour";
    EXPECT_TRUE(alpha.setColor(test::multiColor()));
    EXPECT_EQ(alpha.getColor(), ZColorExt(0, 1, 0)) << "the active one alone";

    Parameter number(builder(Type::Float));
    EXPECT_FALSE(number.isColorType());
    EXPECT_FALSE(number.setColor(color));
    EXPECT_EQ(number.value<float>(), 0);
    EXPECT_EQ(number.getColor().rgba().a, 1);
}

} // namespace
} // namespace zsg
