#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>

namespace workbench {

/// What the window is started with.
struct CommandLine {
    QString scene;      ///< empty: an empty scene
    QString script;     ///< commands to run when the scene is loaded
    QString screenshot; ///< a picture to write, and then to end
    QString panel;      ///< what the picture shows; empty: the whole window
    QSize size{1280, 800};
    double scale = 0;   ///< device pixels per unit of size; 0 as the screen has it
    QString palette;    ///< "dark", "light", or empty for the system's
    QString language;   ///< of the window, as "de"; empty: that of the system
    int autosave = 120; ///< seconds between two copies of what is not saved
    bool quit = false;

    /// Whether nobody is there to be asked.
    [[nodiscard]] bool isBatch() const { return quit || !screenshot.isEmpty(); }
};

/// What reading the command line has come to: `line`, or else a text to print (on the error stream
/// when `code` is not 0) and the code to end with.
struct CommandLineResult {
    std::optional<CommandLine> line;
    QString text;
    int code = 0;
};

/// Needs no application: the scale must be known before there is one. `arguments` begins with the
/// program's name.
[[nodiscard]] CommandLineResult readCommandLine(QStringList const& arguments);

} // namespace workbench
