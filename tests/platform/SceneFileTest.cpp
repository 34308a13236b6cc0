#include "support/sourceDir.h"

#include "nyxembedded/Painting.h"
#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxLight_layer_db.h"
#include "nyxrender/nyxScene.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gmock/gmock.h>

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <utility>

namespace {

using nyx::embedded::Renderer;

std::string const showroom = sourceDir() + "/examples/scenes/showroom.json";

std::string readFile(std::string const& path) {
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return file.readAll().toStdString();
}

std::string scene(std::string const& rest) {
    return R"({"format":"zsg-scene","version":1,)" + rest + "}";
}

std::string colors(std::string const& list) { return scene("\"colors\":[" + list + "]"); }

TEST(SceneDump, OfTheSceneInTheDocumentIsTheOneThere) {
    std::string const document = readFile(sourceDir() + "/docs/formats.md");
    auto const block = [&](std::string const& fence, std::size_t from) {
        std::size_t const begin = document.find(fence, from) + fence.size();
        return document.substr(begin, document.find("```", begin) - begin);
    };
    Renderer renderer;
    ASSERT_EQ(renderer.loadSceneText(block("```json\n", 0)), "");
    EXPECT_EQ(renderer.dump(), block("\n```\n", document.find("## Scene dump")));
}

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
        {"id": 3, "kind": "light"},
        {"id": 4, "kind": "light", "lightLayer": 3, "unlisted": true}],
      "environmentLightMask": 5,
      "lightLayers": [{"id": 1, "name": "Default"}, {"id": 3, "name": "Rim", "flags": 17}]})"),
              "");
    EXPECT_EQ(renderer.dump(), R"(unit scale 0.01
active colorway 1
color 2 "Red" 1 0.100000001 -0 0.5 original "Rouge"
color 3 "" 0 0 0 1 flags 4
color 7 "Multi\n" 0 0 0 1 flags 1 subs 2 5 2 none active 5
colorway 1 "Day" flags 2 pairs 7:2 8:missing
material 4 "Cloth" places 2."diffuse"->7 1."x"->none cmf "Finish"="Matt" "Vendor"="Ås" metadata "{\"a\":1}" items 3 1
material 5 ""
environment light mask 5
light layer 1 "Default"
light layer 3 "Rim" flags 17
group 1 "Chair"
object 2 "Seat" in 1 material 4
light 3 "" layer 1
light 4 "" layer 3 unlisted
)");
    std::string const before = renderer.dump();
    Renderer again;
    ASSERT_EQ(again.loadSceneText(renderer.saveSceneText()), "");
    EXPECT_EQ(again.dump(), before);
    EXPECT_EQ(again.colors().add("New", {}), nyx::ColorId(90)) << "as the file says";
    ASSERT_EQ(again.loadSceneText(scene(R"("lightLayers": [{"id": 1}])")), "");
    EXPECT_EQ(again.lightLayers().environment_light_mask(), 1u) << "as a new scene";
    ASSERT_TRUE(renderer.colors().remove(renderer.colors().add("Blue", {1, 0, 0, 1})));
    EXPECT_EQ(renderer.dump(), before) << "no undo takes back the next id and the revisions";
}

TEST(SceneFile, NothingThatASceneMayHoldIsLost) {
    constexpr float infinity = std::numeric_limits<float>::infinity();
    Renderer made;
    // 7.038531e-26 is the float whose shortest digits come back as its neighbour through double.
    made.colors().add("\"Grün\"\n\\ \t", {7.038531e-26f, -0.0f, 0.1f, 0.25f});
    made.colors().add("bad \xFF\xC3 bytes", {infinity, -infinity, 3e38f, 1});
    made.colors().add("",
                      {std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min(),
                       16777216.0f, std::numeric_limits<float>::quiet_NaN()});
    made.materials().bindColor(made.materials().add(""), 0xFFFFFFFFu, "", nyx::ColorId(77));
    ASSERT_TRUE(made.colors().remove(made.colors().add("last", {}))); // its id must not come back
    made.setUnitScale(0.0254);
    std::string const cut("Cut\0off", 7); // where every text of the renderer's interface ends
    made.colors().add(cut, {});
    made.materials().bindColor(made.materials().add(cut), 1, cut,
                               made.colors().addMulti(cut, {}, {}));
    made.colorways().add(cut, {});
    made.items().addObject(cut, made.items().addGroup(cut));
    made.items().addLight(cut);
    made.painting().addSurface(cut, 64);

    Renderer loaded;
    ASSERT_EQ(loaded.loadSceneText(made.saveSceneText()), "");
    EXPECT_EQ(loaded.saveSceneText(), made.saveSceneText());
    EXPECT_EQ(loaded.dump(), made.dump());
    EXPECT_EQ(loaded.colors().add("new", {}), nyx::ColorId(7));
    EXPECT_EQ(nyx_scene_unit_scale(*loaded.scene()), 0.0254);
    for (double const bad : {std::nan(""), -1.0, HUGE_VAL}) {
        loaded.setUnitScale(bad);
        EXPECT_EQ(nyx_scene_unit_scale(*loaded.scene()), 0) << "no file could hold it";
    }

    // A colorway whose lists differ in length, and the same name twice, exist in scenes too.
    std::string const text = R"("colors": [
    {"id": 3, "name": "Red", "originalName": "R", "value": [1, 0, -0.0, 1], "flags": 4294967295},
    {"id": 9, "name": "Red", "value": ["nan", "-nan", "-inf", 1e-45], "activeSub": 4}
  ],
  "colorways": [
    {"id": 4294967294, "name": {"hex": "ff01"}, "flags": 3, "multiColors": [1, 4294967295]}
  ])";
    ASSERT_EQ(loaded.loadSceneText(scene(text)), "");
    EXPECT_THAT(loaded.saveSceneText(), testing::HasSubstr(text));
}

TEST(SceneFile, AWrongFileIsNamedByPlaceAndExpectationAndChangesNothing) {
    std::string const red = R"({"id":1,"value":[1,0,0,1]})";
    std::pair<std::string, std::string> const rows[] = {
        {"", "line 1, column 1: syntax error while parsing value - unexpected end of input; "
             "expected '[', '{', or a literal"},
        {"{\"format\":\n  junk}", "line 2, column 3: syntax error while parsing value - invalid "
                                  "literal"},
        {"[1 2]", "line 1, column 4: syntax error while parsing array - unexpected number literal; "
                  "expected ']'"},
        {"{\"format\": \"\xC3(\"}", "line 1, column 14: syntax error while parsing value - invalid "
                                    "string: ill-formed UTF-8 byte"},
        {scene("\"unitScale\":1e999"), "line 1, column 51: number out of range"},
        {std::string(1000000, '['),
         "/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0/0: nested deeper "
         "than 32"},
        {"[]", "the file: expected an object, found an array"},
        {R"({"format":"other","version":1})", "/format: expected \"zsg-scene\", found \"other\""},
        {R"({"format":"zsg-scene","version":2,"x":0})", "/version: expected 1, found 2"},
        {scene("\"colors\":{}"), "/colors: expected an array, found an object"},
        {scene("\"a/b~c\":0"), "/a~1b~0c: unknown key"},
        {colors(R"({"id":1,"id":2})"), "/colors/0/id: the key appears twice"},
        {colors(red + "," + red), "/colors/1/id: ids ascend: expected 2 or more, found 1"},
        {colors(R"({"id":4294967295})"),
         "/colors/0/id: expected a whole number from 1 to 4294967294, found 4294967295"},
        {colors(R"({"id":1})"), "/colors/0: the key \"value\" is missing"},
        {colors(red + R"(,{"id":2,"value":[1,0,"0",1]})"),
         "/colors/1/value/2: expected a number, found a string"},
        {colors(R"({"id":1,"value":[1,0,1e39,1]})"),
         "/colors/0/value/2: expected a number within the range of a 32-bit float, found 1e+39"},
        {colors(R"({"id":1,"value":[1,0,0]})"),
         "/colors/0/value: expected 4 numbers (red, green, blue, alpha), found 3"},
        {colors(R"({"id":1,"name":{"hex":"f"},"value":[1,0,0,1]})"),
         "/colors/0/name/hex: expected pairs of the digits 0 to 9 and a to f"},
        {colors(R"({"id":1,"name":{"hex":"ff00"},"value":[1,0,0,1]})"),
         "/colors/0/name: a text cannot contain a zero byte"},
        {colors(R"({"id":1,"name":"a\u0000b","value":[1,0,0,1]})"),
         "/colors/0/name: a text cannot contain a zero byte"},
        {colors(R"({"id":1,"value":[1,0,0,1],"subColors":[2,-1]})"),
         "/colors/0/subColors/1: expected a whole number from 0 to 4294967295, found -1"},
        {scene(R"("nextIds":{"color":1},"colors":[)" + red + "]"),
         "/nextIds/color: expected a whole number from 2 to 4294967295, found 1"},
        {scene(R"("materials":[{"id":1,"places":[{"node":1,"parameter":"a"},)"
               R"({"node":1,"parameter":"a","color":3}]}])"),
         "/materials/0/places/1: the material has this place already"},
        {scene(R"("materials":[{"id":1,"cmf":[["a","b"],["a","c"]]}])"),
         "/materials/0/cmf/1: the material has this key already"},
        {scene(R"("hierarchy":[{"id":1,"kind":"group","parent":1}])"),
         "/hierarchy/0/parent: expected the id of an item further up, found 1"},
        {scene(R"("hierarchy":[{"id":1,"kind":"lamp"}])"),
         "/hierarchy/0/kind: expected \"group\", \"object\" or \"light\", found \"lamp\""},
        {scene(R"("hierarchy":[{"id":1,"kind":"light","material":1}])"),
         "/hierarchy/0/material: only objects have a material"},
        {scene(R"("hierarchy":[{"id":1,"kind":"light","lightLayer":2}])"),
         "/hierarchy/0/lightLayer: expected the id of a light layer, found 2"},
        {scene(R"("hierarchy":[{"id":1,"kind":"group","lightLayer":1}])"),
         "/hierarchy/0/lightLayer: only lights are in light layers"},
        {scene(R"("hierarchy":[{"id":1,"kind":"light","unlisted":1}])"),
         "/hierarchy/0/unlisted: expected true or false, found 1"},
        {scene(R"("lightLayers":[{"id":2}])"), "/lightLayers: there is no layer 1"},
        {scene(R"("lightLayers":[{"id":1},{"id":33}])"),
         "/lightLayers/1/id: expected a whole number from 1 to 32, found 33"},
        {scene(R"("lightLayers":[{"id":1},{"id":1}])"),
         "/lightLayers/1/id: ids ascend: expected 2 or more, found 1"},
    };
    Renderer renderer;
    ASSERT_EQ(renderer.loadScene(showroom), "");
    std::string const before = renderer.saveSceneText();
    for (auto const& [json, message] : rows) {
        EXPECT_EQ(renderer.loadSceneText(json), message);
        EXPECT_EQ(renderer.saveSceneText(), before) << message;
    }
    // What is quoted from a file in a message stays readable, however long it is.
    std::string const longKey(1000000, 'x');
    EXPECT_EQ(renderer.loadSceneText(scene("\"" + longKey + "\":0")),
              "/" + longKey.substr(0, 60) + "...: unknown key");
    EXPECT_LT(renderer.loadSceneText("\"" + longKey).size(), 200u);
}

TEST(SceneFile, FilesThatCannotBeReadOrWrittenLoseNothing) {
    QTemporaryDir const folder;
    std::string const path = folder.filePath("Scène.json").toStdString();
    std::string const folderPath = folder.path().toStdString();
    Renderer renderer;
    std::string const missing = renderer.loadScene(path);
    EXPECT_TRUE(missing.starts_with(path + ": ")) << missing;
#ifndef _WIN32 // the rest is in the words of the system
    EXPECT_EQ(missing, path + ": No such file or directory");
#endif
    EXPECT_EQ(renderer.loadScene(folderPath), folderPath + ": is a folder");
    EXPECT_NE(renderer.saveScene(folderPath + "/none/x.json"), "");

    renderer.colors().add("Red", {1, 0, 0, 1});
    ASSERT_EQ(renderer.saveScene(path), "");
    EXPECT_EQ(readFile(path), renderer.saveSceneText());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"Scène.json"});
    // Such a file is what people keep under version control, so the text is pinned to the byte.
    ASSERT_EQ(renderer.loadScene(showroom), "");
    ASSERT_EQ(renderer.saveScene(path), "");
    EXPECT_EQ(readFile(path), readFile(showroom));
}

} // namespace
