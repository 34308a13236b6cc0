#include "host/BrushPreset.h"

#include "host/Arguments.h"
#include "host/CurrentBrush.h"
#include "host/Host.h"

#include <gmock/gmock.h>

#include <sstream>

namespace app {
namespace {

class BrushPreset : public testing::Test {
protected:
    /// Why a text is refused as the parameters of a preset; empty when it is not.
    std::string refusal(std::string const& parameters) {
        return refusalOf(R"({"version":1,"parameters":)" + parameters + '}');
    }
    std::string refusalOf(std::string const& text) {
        try {
            setBrushPreset(*brush, text, "/brushes");
        } catch (CommandError const& error) {
            return error.what();
        }
        return {};
    }

    std::ostringstream out;
    Host host{out};
    std::unique_ptr<zsg::IPainterBrush> brush = freshBrush(host);
};

TEST_F(BrushPreset, ComesBackAsItWas) {
    EXPECT_EQ(refusal(R"({"basic_size_px_value":12.3,"basic_space":1,"basic_directional":true,
                          "color_color":[0.1,0.7,1],"basic_stencil_filepath":"a/ä.png",
                          "color_texture_filepath":"/else/b.png"})"),
              "");
    EXPECT_EQ(brush->stencilFilePath(), QString::fromUtf8("/brushes/a/ä.png"));
    std::string const text = brushPreset(*brush, "/brushes");
    EXPECT_THAT(text, testing::HasSubstr(R"("basic_size_px_value": 12.3,)"));
    EXPECT_THAT(text, testing::HasSubstr(R"("basic_stencil_filepath": "a/ä.png")"));
    EXPECT_THAT(text, testing::HasSubstr(R"("color_texture_filepath": "/else/b.png")"));
    EXPECT_THAT(text, testing::Not(testing::HasSubstr("color_selection")));
    brush = freshBrush(host);
    EXPECT_NE(brushPreset(*brush, "/brushes"), text);
    EXPECT_EQ(refusalOf(text), "");
    EXPECT_EQ(brushPreset(*brush, "/brushes"), text);
}

TEST_F(BrushPreset, IsNotWrittenWhenItCouldNotBeRead) {
    brush->parameter("basic_size_px_value").setValue(200'000.0f);
    EXPECT_THROW((void)brushPreset(*brush, "/brushes"), CommandError);
    brush = freshBrush(host);
    brush->parameter("color_color").setColor(ZColorExt(INFINITY, 0, 0));
    EXPECT_THROW((void)brushPreset(*brush, "/brushes"), CommandError);
}

TEST_F(BrushPreset, RefusesWhatIsNone) {
    EXPECT_EQ(refusal("{}"), "");
    for (char const* const text : {"", "[]", "{\"version\":1", "nul"}) {
        EXPECT_EQ(refusalOf(text), "not a JSON object") << text;
    }
    EXPECT_EQ(refusalOf("{\"version\":" + std::string(100'000, '[')), "nested deeper than 64");
    EXPECT_EQ(refusalOf(R"({"parameters":{}})"), "\"version\" is not 1");
    EXPECT_EQ(refusalOf(R"({"version":2,"parameters":{}})"), "\"version\" is not 1");
    EXPECT_THAT(refusalOf(R"({"version":1})"), testing::HasSubstr("are expected"));
    EXPECT_THAT(refusalOf(R"({"version":1,"parameters":{},"x":1})"),
                testing::HasSubstr("are expected"));
    struct Row {
        char const* parameters;
        char const* why;
    };
    for (auto const& [parameters, why] :
         {Row{R"({"size":1})", R"("size" is no parameter of the brush)"},
          Row{R"({"color_shader":null})", R"("color_shader" cannot be set from a file)"},
          Row{R"({"basic_rotation":"1"})", R"("basic_rotation" is not a number)"},
          Row{R"({"basic_rotation":361})", R"("basic_rotation" is not between -360.0 and 360.0)"},
          Row{R"({"basic_flow_jitter":1e300})",
              R"("basic_flow_jitter" is not between 0.0 and 1.0)"},
          Row{R"({"color_color":[0,1e300,1]})",
              R"("color_color" has a component that is no finite number)"},
          Row{R"({"basic_directional":1})", R"("basic_directional" is neither true nor false)"},
          Row{R"({"basic_space":2})", R"("basic_space" is none of the choices)"},
          Row{R"({"basic_space":4294967297})", R"("basic_space" is not a whole number)"},
          Row{R"({"basic_space":0.5})", R"("basic_space" is not a whole number)"},
          Row{R"({"color_color":[1,2]})", R"("color_color" is not [red, green, blue])"},
          Row{R"({"color_color":[1,2,"3"]})", R"("color_color" is not a number)"},
          Row{R"({"basic_stencil_filepath":3})", R"("basic_stencil_filepath" is not a text)"}}) {
        EXPECT_EQ(refusal(parameters), why);
    }
}

} // namespace
} // namespace app
