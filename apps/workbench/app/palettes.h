#pragma once

#include <QPalette>

namespace workbench {

/// The window's own palettes. Every text stands out from its ground by a contrast of 4.5 : 1 at
/// least; greyed text by 3 : 1.
[[nodiscard]] QPalette darkPalette();
[[nodiscard]] QPalette lightPalette();

/// The contrast of two colours, 1 to 21: (lighter + 0.05) / (darker + 0.05) of their relative
/// luminances (WCAG 2.1).
[[nodiscard]] double contrast(QColor const& a, QColor const& b);

} // namespace workbench
