#pragma once

#include "zsg/values/Variant.h"

#include <QString>

#include <memory>

namespace workbench {

/// A value as text for the clipboard, in the notation of files (a point, no thousands): numbers
/// one after the other, texts of a list one a line, a color as "#rrggbb" where that is the whole of
/// it and as four linear numbers otherwise, a weave as its JSON, a gradient as "blend on" or "blend
/// off" and a line "location r g b a left right" for each stop, a curve as the letters of its keys
/// and six numbers for each, a choice as its id.
[[nodiscard]] QString valueText(zsg::Variant const& value);

/// The value of such a text, of the type of `present`, which gives what the text leaves out: the
/// options of a choice, the name of a color. Null when it is none.
[[nodiscard]] std::unique_ptr<zsg::Variant> valueFromText(QString const& text,
                                                          zsg::Variant const& present);

} // namespace workbench
