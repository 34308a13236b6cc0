#pragma once

#include "nyxrender/Ids.h"

#include <QString>

#include <vector>

class QWidget;

namespace workbench {

class Scene;

/// Name and columns of a palette: what a scene has no place for.
struct PaletteHeader {
    QString name;
    int columns = 0;
};

/// Brings the colours of a GIMP palette into the scene. Where names belong to colours with other
/// values, one question over `parent` decides for all of them. Reports what has happened, and gives
/// the header; a file that is none is told of in a dialog, and the header stays as it was.
void importPalette(Scene& scene, QString const& path, PaletteHeader& header, QWidget* parent);

/// Writes those that are plain colours, likewise.
void exportPalette(Scene& scene, std::vector<nyx::ColorId> const& ids, QString const& path,
                   PaletteHeader const& header, QWidget* parent);

} // namespace workbench
