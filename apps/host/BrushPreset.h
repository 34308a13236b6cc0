#pragma once

#include <string>

namespace zsg {
class IPainterBrush;
class Parameter;
} // namespace zsg

namespace app {

/// Whether a parameter of a brush is a setting of its own: applying works out the others anew, and
/// a shader cannot be written.
[[nodiscard]] bool isBrushSetting(zsg::Parameter const& parameter);

/// The settings of a brush as a JSON text, {"version": 1, "parameters": {...}}: numbers, booleans,
/// texts, the id of a choice, [r, g, b] of a colour. What applying works out anew and what cannot
/// be written is left out: the node's opacity, hardness, flow and pressure bits, the colour
/// selection, the shader. Paths of files in `folder` are written without it.
[[nodiscard]] std::string brushPreset(zsg::IPainterBrush const& brush, std::string const& folder);

/// Gives a brush the settings of such a text; the others stay. Relative paths are those of
/// `folder`. Throws CommandError, naming the parameter, for what is no preset, a parameter that the
/// brush does not have, and a value of another type or beyond the limits; what came before it is
/// set by then.
void setBrushPreset(zsg::IPainterBrush& brush, std::string const& text, std::string const& folder);

} // namespace app
