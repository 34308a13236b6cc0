#include "console/Application.h"

#include <QCoreApplication>

std::unique_ptr<QCoreApplication> makeApplication(int& argc, char** argv) {
    return std::make_unique<QCoreApplication>(argc, argv);
}
