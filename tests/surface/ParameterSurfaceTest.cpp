#include "zsg/values/Parameter.h"
#include "zsg/values/ParameterData.h"
#include "zsg/values/Variant.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

namespace zsg {
namespace {

/// A holder that an application brings itself.
class Temperature final : public Variant {
public:
    explicit Temperature(int& deleted) : deleted_(deleted) {}
    ~Temperature() override { ++deleted_; }
    [[nodiscard]] Type type() const override { return Type::Float; }
    bool set(void const* value) override {
        kelvin_ = *static_cast<float const*>(value);
        return true;
    }
    void get(void* out) const override { *static_cast<float*>(out) = kelvin_; }

private:
    int& deleted_;
    float kelvin_ = 6500;
};

TEST(Surface, AParameterOwnsAnApplicationsHolder) {
    int deleted = 0;
    {
        Parameter parameter(Parameter::Builder("temperature", "Temperature")
                                .setToolTip("Colour temperature")
                                .setHint("-kelvin-")
                                .setValue(new Temperature(deleted)));
        Parameter const copy = parameter;
        EXPECT_TRUE(copy.useKelvin());
        EXPECT_TRUE(parameter.setValue(6504.5f));
        EXPECT_EQ(copy.value<float>(), 6504.5f);
        parameter = Parameter();
        std::ostringstream os;
        os << copy;
        EXPECT_EQ(os.str(), "Parameter('temperature', Float 6504.5)");
        EXPECT_EQ(deleted, 0);
    }
    EXPECT_EQ(deleted, 1);
}

TEST(Surface, ParameterDataIsExtendedAndSharedByTheApplication) {
    struct Extended : ParameterData {
        explicit Extended(bool& g) : gone(g) {}
        ~Extended() override { gone = true; }
        bool& gone;
    };
    bool gone = false;
    QSharedPointer<ParameterData> data(new Extended(gone));
    data->type = Type::Integer;
    data->value = makeVariant(Type::Integer);
    {
        Parameter parameter(data);
        EXPECT_FALSE(data->modified);
        EXPECT_FALSE(parameter.setValue(0));
        EXPECT_FALSE(data->modified) << "an equal value does not count as a modification";
        EXPECT_TRUE(parameter.setValue(3));
        EXPECT_TRUE(data->modified);

        ParameterData shallow(*data);
        EXPECT_EQ(shallow.value, data->value) << "the holder is shared, not cloned";
        EXPECT_TRUE(shallow.modified);
        shallow.value = nullptr;
        data.reset();
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
}

} // namespace
} // namespace zsg
