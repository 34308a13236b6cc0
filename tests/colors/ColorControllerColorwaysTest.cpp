#include "colors/ControllerScene.h"

using namespace zsg;
using nyx::ColorId;
using nyx::ColorwayId;

namespace {

class ColorControllerColorwaysTest : public ControllerScene {
protected:
    ColorId const trim = multiColor("Trim", {red, blue});
};

} // namespace

TEST_F(ColorControllerColorwaysTest, EveryColorwayEditIsOneStepThatUndoTakesBack) {
    check({
        {[&] { edit.setDisplayName(winter, "Ice"); }, "175 Set Colorway name (Ice)", ""},
        {[&] { edit.setDisplayName(winter, ""); }, "175 Clear Colorway name", ""},
        {[&] {
             edit.setColors(summer, {{trim, blue}, {cover, green}});
         },
         "175 Edit Colorway (Summer)", ""},
        {[&] {
             edit.setColors(summer, {{trim, blue}, {cover, green}, {trim, red}});
         },
         "175 Edit Colorway (Summer)", ""},
        {[&] {
             edit.addColors(summer, {{cover, green}, {trim, red}, {trim, blue}}, 0, false);
         },
         "175 Edit Colorway (Summer)", ""},
        {[&] {
             edit.addColors(summer, {{cover, green}, {trim, red}, {trim, blue}}, 5, true);
         },
         "175 Edit Colorway (Summer)", ""},
        {[&] {
             edit.removeMultiColors(summer, {trim, cover});
         },
         "175 Edit Colorway (Summer)", ""},
        {[&] { edit.setDeleted(winter, true); }, "175 Delete Colorway (Winter)", ""},
        {[&] { edit.setDeleted(winter, false); }, "175 Delete Colorway (Winter)", ""},
        {[&] { edit.applyColorway(winter); }, "176 Switch Colorway (Winter)", ""},
        {[&] {
             edit.createColorway("Dune %1", {{trim, red}});
         },
         "174 Create Colorway", ""},
    });
}
