// Painted surfaces in the scene file.
#include "nyxembedded/Painting.h"
#include "nyxembedded/Renderer.h"
#include "nyxrender/nyxCustomSurface.h"
#include "nyxrender/nyxPainter.h"

#include <gmock/gmock.h>

#include <array>
#include <string>

namespace {

using namespace nyx::embedded;
using testing::HasSubstr;

std::string scene(std::string const& surfaces) {
    return R"({"format":"zsg-scene","version":1,"surfaces":[)" + surfaces + "]}";
}

TEST(SurfaceSection, SurfacesComeBackWithEveryTexel) {
    Renderer renderer;
    ASSERT_EQ(renderer.loadSceneText(scene(R"(
      {"id": 3, "name": "Seat", "resolution": 100, "deleted": true, "editLayer": 1, "layers": [
        {"id": 4, "name": "Base", "background": [1, 0.5, 0, 1]},
        {"id": 9, "name": "Größe", "blend": 2, "hidden": true},
        {"id": 4294967294, "deleted": true}]},
      {"id": 7, "resolution": 1, "layers": []})")),
              "");
    Painting& painting = renderer.painting();
    nyx::SurfaceId const seat(3);
    for (std::uint32_t const layer : {4u, 9u}) {
        EXPECT_TRUE(painting.paint(seat, layer, {{{20, 20}, {90, 70}}, 9, 0.5f, {0, 0, 1, 0.7f}}));
    }
    Renderer again;
    ASSERT_EQ(again.loadSceneText(renderer.saveSceneText()), "");
    EXPECT_EQ(again.saveSceneText(), renderer.saveSceneText());
    EXPECT_THAT(again.saveSceneText(),
                HasSubstr("\"name\": \"Größe\", \"blend\": 2, \"hidden\": true"));
    EXPECT_TRUE(*again.painting().pixels(seat, 9) == *painting.pixels(seat, 9));
    EXPECT_EQ(again.painting().composite(seat).rgba, painting.composite(seat).rgba);

    for (auto const& [column, row, texel] : {std::array{1, 0, 36}, {0, 1, 36 * 64}, {1, 1, 4095}}) {
        LayerPixels beyond(100);
        beyond.writableTile(column, row).planes[PixelTile::alpha][texel] = 9;
        painting.setPixels(seat, 4, beyond);
        EXPECT_THAT(again.loadSceneText(renderer.saveSceneText()),
                    HasSubstr("/tiles/0/2: a texel is painted beyond the edge"));
    }
}

TEST(SurfaceSection, WrongOnesAreRefusedWithThePlace) {
    std::string const begin = R"({"id": 1, "resolution": 64, "layers": [{"id": 1)";
    struct Row {
        std::string surface, message;
    };
    Row const rows[] = {
        {R"({"id": 1, "resolution": 0, "layers": []})", "/surfaces/0/resolution"},
        {R"({"id": 1, "resolution": 20000, "layers": []})", "/surfaces/0/resolution"},
        {R"({"id": 0, "resolution": 8, "layers": []})", "/surfaces/0/id"},
        {R"({"id": 1, "resolution": 8})", "/surfaces/0"},
        {R"({"id": 2, "resolution": 8, "layers": []}, {"id": 1, "resolution": 8, "layers": []})",
         "/surfaces/1/id"},
        {R"({"id": 1, "resolution": 8, "layers": [{"id": 4294967295}]})",
         "/surfaces/0/layers/0/id"},
        {begin + R"(}, {"id": 1}]})", "/surfaces/0/layers/1"},
        {begin + R"(, "background": [1, 2, 3]}]})", "/surfaces/0/layers/0/background"},
        {begin + R"(, "tiles": [[0, 0]]}]})", "/surfaces/0/layers/0/tiles/0"},
        {begin + R"(, "tiles": [[0, 1, ""]]}]})", "/surfaces/0/layers/0/tiles/0/1"},
        {begin + R"(, "tiles": [[0, 0, "no base64"]]}]})", "/surfaces/0/layers/0/tiles/0/2"},
        {begin + R"(, "tiles": [[0, 0, "f////3jaAAAA"]]}]})", "/surfaces/0/layers/0/tiles/0/2"},
    };
    Renderer renderer;
    std::string const before = renderer.saveSceneText();
    for (Row const& row : rows) {
        EXPECT_THAT(renderer.loadSceneText(scene(row.surface)), HasSubstr(row.message + ":"))
            << row.surface;
    }
    EXPECT_EQ(renderer.saveSceneText(), before);
}

} // namespace
