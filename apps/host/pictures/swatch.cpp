#include "host/pictures/swatch.h"

#include "host/sRGB.h"

#include <algorithm>

namespace app {

namespace {

constexpr ColorBytes white{255, 255, 255, 255};
constexpr ColorBytes grey{190, 190, 190, 255};

} // namespace

void addChequers(Picture& picture, shape::Point corner, double width, double height) {
    constexpr double side = 8;
    picture.add(shape::Rectangle{corner, width, height, white, {}, 0});
    shape::Path squares;
    squares.fill = grey;
    int row = 0;
    for (double y = 0; y < height; y += side, ++row) {
        double const bottom = std::min(y + side, height);
        for (double x = row % 2 == 0 ? 0 : side; x < width; x += 2 * side) {
            double const right = std::min(x + side, width);
            squares.moveTo({corner.x + x, corner.y + y});
            squares.lineTo({corner.x + right, corner.y + y});
            squares.lineTo({corner.x + right, corner.y + bottom});
            squares.lineTo({corner.x + x, corner.y + bottom});
            squares.close();
        }
    }
    picture.add(std::move(squares));
}

void addSwatch(Picture& picture, shape::Point corner, double width, double height,
               nyxColor_rgba const& color, shape::Stroke outline) {
    ColorBytes const bytes = sRGBFromLinear(color);
    if (bytes[3] != 255) {
        addChequers(picture, corner, width, height);
    }
    picture.add(shape::Rectangle{corner, width, height, bytes, outline, 2});
}

} // namespace app
