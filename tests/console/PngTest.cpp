#include "host/pictures/png.h"

#include "host/Arguments.h"
#include "host/Host.h"
#include "host/Interpreter.h"
#include "host/pictures/rasterPng.h"
#include "support/sourceDir.h"

#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sstream>

using app::ColorBytes;
using app::Ink;
using app::Picture;
using app::Theme;
namespace shape = app::shape;

namespace {

QImage read(std::string const& bytes) {
    return QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
}

} // namespace

TEST(Png, ShowsWhatTheShapesSay) {
    Picture picture{40, 20, "", {}};
    shape::Path square;
    square.fill = ColorBytes{10, 20, 30, 255};
    for (shape::Point const p : {shape::Point{2, 2}, {8, 2}, {8, 8}, {2, 8}}) {
        square.steps.empty() ? square.moveTo(p) : square.lineTo(p);
    }
    square.close();
    picture.add(square);
    shape::Path strokes; // two squares as strokes
    strokes.stroke = {Ink::Second, 4};
    strokes.crisp = true;
    strokes.moveTo({10, 4});
    strokes.lineTo({14, 4});
    strokes.moveTo({16, 4});
    strokes.lineTo({18.4, 4}); // not far enough to take the next pixel
    picture.add(strokes);
    picture.add(shape::Rectangle{
        {20, 0},
        20,
        10,
        shape::LinearGradient{
            {20, 0},
            {40, 0},
            {{0, {255, 0, 0, 255}}, {0.5, {255, 0, 0, 255}}, {0.5, {0, 0, 255, 255}}}},
        {},
        0});
    picture.add(shape::Raster{{0, 10}, 20, 10, 2, 1, {1, 2, 3, 255, 9, 9, 9, 0}});
    picture.add(shape::Rectangle{{20, 10}, 10, 10, ColorBytes{0, 0, 0, 128}, {}, 5});
    QImage const light = read(png(picture, Theme::Light));
    QImage const dark = read(png(picture, Theme::Dark));
    ASSERT_EQ(light.size(), QSize(40, 20));
    struct Row {
        int x, y;
        QRgb light, dark;
    };
    Row const rows[] = {
        {0, 0, 0xffffffff, 0xff14181d},   {5, 5, 0xff0a141e, 0xff0a141e},
        {10, 2, 0xffc0301c, 0xffff8b7b},  {13, 5, 0xffc0301c, 0xffff8b7b},
        {14, 4, 0xffffffff, 0xff14181d},  {17, 3, 0xffc0301c, 0xffff8b7b},
        {18, 3, 0xffffffff, 0xff14181d},  {29, 5, 0xffff0000, 0xffff0000},
        {30, 5, 0xff0000ff, 0xff0000ff},  {2, 15, 0xff010203, 0xff010203},
        {18, 15, 0xffffffff, 0xff14181d}, {25, 15, 0xff7f7f7f, 0xff0a0c0e},
        {20, 10, 0xffffffff, 0xff14181d},
    };
    for (Row const& row : rows) {
        EXPECT_EQ(light.pixel(row.x, row.y), row.light) << row.x << ' ' << row.y;
        EXPECT_EQ(dark.pixel(row.x, row.y), row.dark) << row.x << ' ' << row.y;
    }
}

TEST(Png, APaintedSurfaceIsSavedWithItsOwnColors) {
    std::ostringstream out;
    app::Host host(out);
    app::Interpreter interpreter(host);
    QTemporaryDir const folder;
    ASSERT_EQ(host.load(sourceDir() + "/examples/scenes/showroom.json"), "");
    std::string const path = folder.filePath("surface.png").toStdString();
    for (std::string const& line :
         {std::string("surface new 4"), std::string("layer background 0 #ff400080"),
          "picture save " + path}) {
        interpreter.run(line);
    }
    EXPECT_EQ(QImage(QString::fromStdString(path)).pixel(0, 0), 0x80ff4000u);
}

TEST(Png, RefusesWhatItCannotShow) {
    auto const refusal = [](Picture const& picture) {
        try {
            (void)png(picture, Theme::Light);
        } catch (app::CommandError const& error) {
            return std::string(error.what());
        }
        return std::string();
    };
    EXPECT_EQ(refusal({40'000, 10, "", {}}),
              "the picture is too large for a .png, but not for a .svg");
    EXPECT_EQ(refusal({10'000, 10'000, "", {}}), refusal({40'000, 10, "", {}}));
    // The program of the tests is not a graphical one.
    EXPECT_EQ(refusal({10, 10, "", {shape::Text{{1, 9}, "x"}}}),
              "this program cannot write text into a .png");
    EXPECT_THROW((void)app::rasterPng({}), app::CommandError);
}
