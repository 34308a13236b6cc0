#pragma once

#include <string>

namespace app {

/// From now on the texts of the library (undo texts, messages, labels) come in a language, as long
/// as the application object lives: "de", "en"; a country behind it ("de_AT") is taken where it has
/// a catalogue of its own. Catalogues are looked for in ../share/zscenegraph/translations from the
/// program's folder. Returns what is wrong, with the languages that there are; empty when nothing.
/// `catalogue` names other texts than the library's.
[[nodiscard]] std::string installTranslation(std::string const& language,
                                             std::string const& catalogue = "zscenegraph");

} // namespace app
