#include "support/sourceDir.h"

#include <QDir>

namespace {

// Found out before a test changes the folder: on Windows a path without a drive means the current
// one.
std::string const& absolute() {
    static std::string const path =
        QDir(QStringLiteral(ZSG_SOURCE_DIR)).absolutePath().toStdString();
    return path;
}
[[maybe_unused]] std::string const& atStart = absolute();

} // namespace

std::string sourceDir() { return absolute(); }
