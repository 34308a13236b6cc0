#pragma once

#include <string>

namespace nyx::embedded {

/// Names end at a zero byte: what follows would be in no text that the library sees, and in no
/// scene file.
inline std::string upToZero(std::string const& text) { return text.c_str(); }

} // namespace nyx::embedded
