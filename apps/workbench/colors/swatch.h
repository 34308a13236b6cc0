#pragma once

#include "nyxrender/Ids.h"
#include "nyxrender/nyxColor.h"

#include <QColor>
#include <QIcon>
#include <QRect>
#include <QString>

#include <vector>

class QPainter;

namespace zsg {
class ColorDB;
}

namespace workbench {

/// What a person sees of one colour. Values stay linear floats; only painting converts them.
struct Swatch {
    nyx::ColorId id;
    QString name; ///< empty when the colour has none
    nyxColor_rgba value;
    bool isMulti = false;              ///< then `value` is that of the active sub-colour
    std::vector<nyxColor_rgba> others; ///< the first of a multi-colour's sub-colours
    unsigned uses = 0;                 ///< places of the scene's materials
};

/// A swatch without an id for a colour that the scene does not have, or when there is no scene.
[[nodiscard]] Swatch swatchOf(zsg::ColorDB* db, nyx::ColorId id);

/// As the screen shows it, cut off at what the screen can show.
[[nodiscard]] QColor screenColor(nyxColor_rgba const& value);
/// Whether a component lies outside of what the screen can show.
[[nodiscard]] bool isOutOfRange(nyxColor_rgba const& value);

/// "Walnut", or a word for a colour without a name.
[[nodiscard]] QString shownName(QString const& name);
/// "Walnut, #8a6a44, used 2 times": for tool tips and for those who cannot see the swatch.
[[nodiscard]] QString describe(Swatch const& swatch);

/// Paints a swatch: chequered below alpha, cut by a line where the screen cannot show the value, a
/// row of dots for sub-colours, a bar at the foot when it is in use. The frame is neutral whatever
/// the palette, because the surroundings change how a colour looks.
void paintSwatch(QPainter& painter, QRect const& rect, Swatch const& swatch);

/// The same as a square of so many pixels, for menus and lists.
[[nodiscard]] QIcon swatchIcon(Swatch const& swatch, int side);

} // namespace workbench
