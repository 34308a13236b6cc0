#include "console/Application.h"

#include <QGuiApplication>

#include <cstdio>

namespace {

/// What is said while the application starts is about desktops, of which this program needs none.
void sayOnlyFatal(QtMsgType type, QMessageLogContext const&, QString const& message) {
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qPrintable(message));
    }
}

} // namespace

std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QtMessageHandler const before = qInstallMessageHandler(sayOnlyFatal);
    auto application = std::make_unique<QGuiApplication>(argc, argv);
    qInstallMessageHandler(before);
    return application;
}
