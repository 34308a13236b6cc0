#pragma once

#include <string>

namespace nyx::embedded {

// Scalars as JSON, as the scene file and the journal write them, put at the end of `out`.
// Independent of the locale.

/// A string, or {"hex": "..."} when the bytes are no valid UTF-8, so that every text can be saved.
void appendText(std::string& out, std::string const& text);
/// The shortest number that reads back as the same float; what JSON has no number for as a string.
void appendFloat(std::string& out, float value);
void appendDouble(std::string& out, double value);

} // namespace nyx::embedded
