#pragma once

#include "nyxrender/Ids.h"

#include <vector>

class QString;
class QWidget;

namespace app {
struct PaletteHeader;
}

namespace workbench {

class Scene;

/// Brings the colours of a GIMP palette into the scene. Where names belong to colours with other
/// values, one question over `parent` decides for all of them. Reports what has happened, and gives
/// the header; a file that is none is told of in a dialog, and the header stays as it was.
void importPalette(Scene& scene, QString const& path, app::PaletteHeader& header, QWidget* parent);

/// Writes those that are plain colours, likewise.
void exportPalette(Scene& scene, std::vector<nyx::ColorId> const& ids, QString const& path,
                   app::PaletteHeader const& header, QWidget* parent);

} // namespace workbench
