#pragma once

#include <string>

/// The folder of the project's sources, for examples/ and its data; UTF-8, without a last slash.
[[nodiscard]] std::string sourceDir();
