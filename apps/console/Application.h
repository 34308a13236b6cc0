#pragma once

#include <memory>

class QCoreApplication;

/// The one application object of the program, which opens no window and asks for no display. It can
/// write text into images where Qt's Gui module is there.
[[nodiscard]] std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv);
