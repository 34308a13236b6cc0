#pragma once

#include "nyxrender/Ids.h"
#include "zcore/ZColorExt.h"

#include <vector>

class QWidget;

namespace workbench {

class Scene;

/// Brings colours from elsewhere into the scene. Names that belong to colours in use with other
/// values are asked about first, in a dialog over `parent`, all of them before anything is changed:
/// when that is cancelled nothing has happened, and the result is empty. Otherwise it is the new
/// ids. They cannot be undone, because the scene keeps its records.
std::vector<nyx::ColorId> importColors(Scene& scene, std::vector<ZColorExt> colors,
                                       QWidget* parent);

} // namespace workbench
