#pragma once

#include "zsg/Export.h"
#include "zsg/values/FloatArray.h"

#include <string>

namespace zsg {

/// Reads a measured complex index of refraction, sampled over wavelength, from a text file.
///
/// The extension of `path` (UTF-8; in any letter case) selects the layout: "nk" and "ior" are a
/// header line (unit, start, end, intervals) followed by one "n k" pair per line, "csv" is
/// "wavelength, n, k" with the wavelength in nanometres. Lines that do not fit are skipped.
///
/// True, and `out` holds (wavelength in nm, n, k) of each sample in file order, when there is at
/// least one sample. False, and `out` unchanged, when there is none: also for another extension and
/// for a file that cannot be read. What is odd about the file is reported on std::cerr. Nothing is
/// thrown.
ZSG_EXPORT bool loadIORFile(std::string const& path, FloatArray& out) noexcept;

} // namespace zsg
