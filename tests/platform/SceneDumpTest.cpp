#include "nyxembedded/Renderer.h"

#include <gtest/gtest.h>

namespace {

using nyx::embedded::Renderer;

TEST(SceneDump, IsOneReadableLinePerRecord) {
    Renderer renderer;
    ASSERT_EQ(renderer.loadSceneText(R"({"format": "zsg-scene", "version": 1, "unitScale": 0.01,
      "nextIds": {"color": 90},
      "colors": [
        {"id": 2, "name": "Red", "originalName": "Rouge", "value": [1, 0.1, -0.0, 0.5]},
        {"id": 3, "value": [0, 0, 0, 1], "flags": 4},
        {"id": 7, "name": "Multi\n", "value": [0, 0, 0, 1], "flags": 1,
         "subColors": [2, 5, 2, 4294967295], "activeSub": 5}],
      "colorways": [{"id": 1, "name": "Day", "flags": 2, "multiColors": [7, 8], "activeSubs": [2]}],
      "settings": {"activeColorway": 1},
      "materials": [{"id": 4, "name": "Cloth", "items": [3, 1], "metadata": "{\"a\":1}",
        "places": [{"node": 2, "parameter": "diffuse", "color": 7}, {"node": 1, "parameter": "x"}],
        "cmf": [["Vendor", "\u00c5s"], ["Finish", "Matt"]]}, {"id": 5}],
      "hierarchy": [{"id": 1, "kind": "group", "name": "Chair"},
        {"id": 2, "kind": "object", "name": "Seat", "parent": 1, "material": 4},
        {"id": 3, "kind": "light"}]})"),
              "");
    EXPECT_EQ(renderer.dump(), R"(unit scale 0.01
active colorway 1
color 2 "Red" 1 0.100000001 -0 0.5 original "Rouge"
color 3 "" 0 0 0 1 flags 4
color 7 "Multi\n" 0 0 0 1 flags 1 subs 2 5 2 none active 5
colorway 1 "Day" flags 2 pairs 7:2 8:missing
material 4 "Cloth" places 2."diffuse"->7 1."x"->none cmf "Finish"="Matt" "Vendor"="Ås" metadata "{\"a\":1}" items 3 1
material 5 ""
group 1 "Chair"
object 2 "Seat" in 1 material 4
light 3 ""
)");
    std::string const before = renderer.dump();
    ASSERT_TRUE(renderer.removeColor(renderer.addColor("Blue", {1, 0, 0, 1})));
    EXPECT_EQ(renderer.dump(), before) << "no undo takes back the next id and the revisions";
}

} // namespace
