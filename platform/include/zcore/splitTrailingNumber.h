#pragma once

#include "zcore/Export.h"

#include <QString>

#include <utility>

/// The text before a trailing number, and that number: ("Layer 12") gives ("Layer", 12). The number
/// is the trailing ASCII digits; one blank before them belongs to neither part. Without digits, or
/// when the number does not fit an int, the result is (text, 0).
[[nodiscard]] ZCORE_EXPORT std::pair<QString, int> splitTrailingNumber(QString const& text);
