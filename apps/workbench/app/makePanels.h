#pragma once

namespace workbench {

class MainWindow;

/// Gives a window all its panels and connects those that follow one another.
void makePanels(MainWindow& window);

} // namespace workbench
