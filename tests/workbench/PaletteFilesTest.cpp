#include "host/InputFile.h"
#include "host/Palette.h"
#include "support/sourceDir.h"
#include "workbench/WindowScene.h"
#include "workbench/colors/ColorsPanel.h"

using namespace workbench;

using PaletteFilesTest = WindowScene;

TEST_F(PaletteFilesTest, ComeInAndGoOut) {
    scratch = true;
    auto& panel = static_cast<ColorsPanel&>(*window.panel("colours"));
    QString said;
    QObject::connect(&scene(), &Scene::said, [&](QString const& text) { said = text; });
    QString const mill =
        QString::fromStdString(sourceDir()) + "/examples/palettes/weaving-mill.gpl";
    answer("Cancel");
    panel.importFrom(mill);
    EXPECT_TRUE(said.isEmpty() && history() == "|");
    answer("Change Those Here");
    panel.importFrom(mill);
    EXPECT_EQ(history(), "Import Palette (Weberei Südtal);|");
    EXPECT_TRUE(window.isWindowModified() && panel.select("茜色"));
    panel.exportTo(inFolder("out.gpl"));
    EXPECT_TRUE(said.startsWith("41 colours written.")) << said.toStdString();
    panel.importFrom(inFolder("out.gpl"));
    EXPECT_EQ(said, "41 colours were there.");
    answer("OK");
    panel.importFrom(inFolder("scene.json"));
    EXPECT_TRUE(asked.contains("scene.json:1: is no palette")) << asked.toStdString();
    answer("Discard");
    EXPECT_TRUE(window.files().open(inFolder("scene.json")));
    panel.exportTo(inFolder("next.gpl"));
    EXPECT_EQ(app::paletteFromText(app::readInputFile(inFolder("next.gpl").toStdString(), 100'000),
                                   "next.gpl")
                  .name,
              "next")
        << "the name of the palette that another scene brought in";
}
