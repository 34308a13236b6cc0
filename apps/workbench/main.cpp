#include "workbench/app/Application.h"
#include "workbench/app/CommandLine.h"
#include "workbench/app/WindowStyle.h"
#include "workbench/app/installLanguage.h"
#include "workbench/app/runWorkbench.h"

#include <iostream>

int main(int argc, char** argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments += QString::fromLocal8Bit(argv[i]);
    }
    workbench::CommandLineResult const result = workbench::readCommandLine(arguments);
    if (!result.line) {
        (result.code == 0 ? std::cout : std::cerr) << result.text.toStdString();
        return result.code;
    }
    if (result.line->scale != 0) {
        qputenv("QT_SCALE_FACTOR", QByteArray::number(result.line->scale));
    }
    QCoreApplication::setOrganizationName("zscenegraph");
    QCoreApplication::setApplicationName("zsg-workbench");
    QGuiApplication::setDesktopFileName("zsg-workbench");
    workbench::Application application(argc, argv);
    QApplication::setStyle(new workbench::WindowStyle);
    if (std::string const why = workbench::installLanguage(*result.line); !why.empty()) {
        std::cerr << why << '\n';
        return 1;
    }
    return workbench::runWorkbench(*result.line, application);
}
