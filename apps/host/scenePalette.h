#pragma once

#include "host/Palette.h"

#include "nyxrender/Ids.h"

#include <QString>

#include <cstddef>
#include <string>
#include <vector>

class ZUndoStack;

namespace zsg {
class ColorDB;
class ISceneGraph;
} // namespace zsg

namespace app {

/// What happens to a colour of a palette whose name a plain colour of the scene has with another
/// value.
enum class SameName {
    Rename, ///< it comes in under a free name
    Change, ///< the scene's colour gets its value and keeps its alpha
    Keep,   ///< the scene's colour stays, and it does not come in
};

/// How many colours of a palette have such a name.
[[nodiscard]] std::size_t countSameNames(zsg::ColorDB& db, Palette const& palette);

struct PaletteCounts {
    std::size_t added = 0;
    std::size_t changed = 0;
    std::size_t there = 0; ///< with that name and value, or kept
    std::size_t lost = 0;  ///< the renderer made no record of them
};

/// Brings a palette into the scene. One that is there with name and value does not come again. A
/// colour without a name is called as it is written, "#4682b4", so that it can be found. Of two of
/// one name in the palette the second is renamed. The changes are one entry of the history, of the
/// text `text`; new colours cannot be undone, because a scene keeps its records.
PaletteCounts bringIn(zsg::ISceneGraph& root, ZUndoStack& undoStack, Palette const& palette,
                      SameName how, QString const& text);

/// What a palette has and a scene has no place for: the next one that is written gets that of the
/// one that was read last.
struct PaletteHeader {
    std::string name; ///< UTF-8
    int columns = 0;
};

/// The plain ones of some colours of a scene, without a header.
struct ScenePalette {
    Palette palette;
    std::size_t cut = 0; ///< how many lie outside what bytes hold, or are not opaque
};
[[nodiscard]] ScenePalette paletteOf(zsg::ColorDB& db, std::vector<nyx::ColorId> const& ids);

} // namespace app
